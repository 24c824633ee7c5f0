// SPDX-License-Identifier: Apache-2.0
// Reads and writes settings files.
#include "host/system/SettingsFile.h"

#include "host/system/AtomicFile.h"
#include "host/system/Database.h"
#include "host/system/DatabaseFile.h"
#include "host/system/Digest.h"
#include "host/system/MessageTexts.h"
#include "host/system/ReadBudget.h"
#include "host/system/Schema.h"

#include <fmt/format.h>

#include <cstring>

namespace vex::system {
namespace {

using Settings = std::map<std::string, std::string, std::less<>>;

constexpr DatabaseKind kKind{"a settings file", 0x56455853, 1};

const Schema& SettingsSchema()
{
    static const char kText[] =
#include "host/system/settings.sql.inc"
        ;
    static const Schema schema(kText, kKind.applicationId);
    return schema;
}

Digest DigestOfSettings(const Settings& settings)
{
    DigestStream stream;
    stream.AddNumber(kKind.newestVersion);
    stream.AddNumber(static_cast<std::int64_t>(settings.size()));
    for (const auto& [key, value] : settings) {
        stream.AddText(key);
        stream.AddText(value);
    }
    return stream.Result();
}

bool ReadRows(Database& database, ReadBudget budget, Settings& settings, std::string& reason)
{
    Statement statement;
    if (!statement.Prepare(database, "SELECT key, value FROM setting ORDER BY key", reason)) {
        return false;
    }
    int result = statement.Step();
    for (; result == SQLITE_ROW; result = statement.Step()) {
        std::string_view key;
        std::string_view value;
        if (!statement.Get(0, key) || !statement.Get(1, value) || key.empty() ||
            TextFault(key) != nullptr || TextFault(value) != nullptr) {
            reason = fmt::format("setting {} is not a pair of texts", settings.size() + 1);
            return false;
        }
        if (!budget.Take(key.size() + value.size(), reason)) return false;
        if (!settings.empty() && settings.rbegin()->first >= key) {
            reason = fmt::format("setting {} repeats or is out of order", Quoted(key));
            return false;
        }
        settings.emplace_hint(settings.end(), key, value);
    }
    if (result == SQLITE_DONE) return true;
    reason = database.Reason();
    return false;
}

bool CheckRepository(Database& database, const Settings& settings, std::string& reason)
{
    Statement statement;
    if (!statement.Prepare(database, "SELECT setting_count, digest FROM repository", reason)) {
        return false;
    }
    std::int64_t count = 0;
    std::span<const std::byte> digest;
    if (statement.Step() != SQLITE_ROW || !statement.Get(0, count) || !statement.Get(1, digest)) {
        reason = "its digest is missing";
        return false;
    }
    const Digest expected = DigestOfSettings(settings);
    if (count != static_cast<std::int64_t>(settings.size()) || digest.size() != expected.size() ||
        std::memcmp(digest.data(), expected.data(), expected.size()) != 0) {
        reason = "its settings do not match their digest";
        return false;
    }
    return true;
}

bool WriteRows(Database& database, const Settings& settings, std::string& reason)
{
    Statement setting;
    Statement repository;
    if (!setting.Prepare(database, "INSERT INTO setting VALUES (?1, ?2)", reason) ||
        !repository.Prepare(database, "INSERT INTO repository VALUES (?1, ?2)", reason)) {
        return false;
    }
    for (const auto& [key, value] : settings) {
        setting.Bind(1, std::string_view(key));
        setting.Bind(2, std::string_view(value));
        if (!setting.Execute()) {
            reason = database.Reason();
            return false;
        }
    }
    const Digest digest = DigestOfSettings(settings);
    repository.Bind(1, static_cast<std::int64_t>(settings.size()));
    repository.Bind(2, std::span<const std::byte>(digest));
    if (repository.Execute()) return true;
    reason = database.Reason();
    return false;
}

}  // namespace

bool ReadSettings(const std::string& path, Settings& settings, std::string& error)
{
    settings.clear();
    Descriptor file;
    int version = 0;
    bool missing = false;
    if (!OpenDatabaseFile(path, kKind, file, version, missing, error)) return missing;
    Database database;
    std::string reason;
    if (database.OpenForReading(file.Number(), reason) &&
        SettingsSchema().Matches(database, reason) &&
        ReadRows(database, ReadBudget(file.Number()), settings, reason) &&
        CheckRepository(database, settings, reason)) {
        return true;
    }
    settings.clear();
    error = DamagedMessage(path, reason);
    return false;
}

bool WriteSettings(const std::string& path, const Settings& settings, std::string& error)
{
    AtomicFile file;
    if (!file.Begin(path, error)) return false;
    Database database;
    std::string reason;
    if (!SettingsSchema().Create(file.File(), kKind.newestVersion, reason) ||
        !database.OpenForWriting(file.File(), reason) || !WriteRows(database, settings, reason) ||
        !database.Commit(reason)) {
        error = AtomicFile::Failure(path, "writing the settings", reason);
        return false;
    }
    return file.Commit(error);
}

}  // namespace vex::system
