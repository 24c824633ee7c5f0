// SPDX-License-Identifier: Apache-2.0
// The settings repository over its file.
#include "host/system/SettingsStore.h"

#include "host/system/AtomicFile.h"
#include "host/system/Descriptor.h"
#include "host/system/FileOperations.h"
#include "host/system/FolderLock.h"
#include "host/system/MessageTexts.h"
#include "host/system/Path.h"
#include "host/system/SettingsFile.h"

#include <fmt/format.h>

#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <new>

#include <fcntl.h>

namespace vex::system {
namespace {

std::string Variable(const char* name)
{
    const char* value = std::getenv(name);
    return value != nullptr ? value : "";
}

// Makes `folder` and those above it that are missing, each with its name on the disk: settings are
// not safe in a folder that is lost. Answers 0 or an error number.
int MakeFolder(const std::filesystem::path& folder)
{
    std::error_code code;
    if (folder.empty() || std::filesystem::is_directory(folder, code)) return 0;
    if (code && code.value() != ENOENT && code.value() != ENOTDIR) return code.value();
    const std::filesystem::path above = folder.parent_path();
    if (const int failed = MakeFolder(above); failed != 0) return failed;
    if (!std::filesystem::create_directory(folder, code)) return code.value();
    const Descriptor opened(Descriptor::AboveStandardStreams(
        ::open(above.empty() ? "." : above.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)));
    if (!opened.IsOpen()) return errno;
    return -CurrentFileOperations().synchronizeFolder(opened.Number());
}

}  // namespace

std::string SettingsStore::DefaultPath(std::string& error)
{
    constexpr const char* kBelowConfiguration = "/HLX/settings.VEXSettings";
    if (std::string path = Variable("VEX_SETTINGS"); !path.empty()) return path;
    const std::string configuration = Variable("XDG_CONFIG_HOME");
    if (configuration.starts_with('/')) return configuration + kBelowConfiguration;
    if (const std::string home = Variable("HOME"); !home.empty()) {
        return home + "/.config" + kBelowConfiguration;
    }
    error =
        "There is no place for the settings: none of VEX_SETTINGS, XDG_CONFIG_HOME and HOME is "
        "set. Set VEX_SETTINGS to the path of a file.";
    return "";
}

bool SettingsStore::Load(std::string& error)
{
    _changes.clear();
    try {
        return ReadSettings(_path, _settings, error);
    } catch (const std::bad_alloc&) {
        _settings.clear();
        error = NotEnoughMemory(Quoted(_path));
        return false;
    }
}

std::optional<std::string_view> SettingsStore::Get(std::string_view key) const
{
    for (const Settings* settings : {&_changes, &_settings}) {
        if (const auto found = settings->find(key); found != settings->end()) return found->second;
    }
    return std::nullopt;
}

bool SettingsStore::Set(std::string_view key, std::string_view value, std::string& error)
{
    const char* keyFault = key.empty() ? "is empty" : TextFault(key);
    const char* valueFault = TextFault(value);
    if (keyFault != nullptr || valueFault != nullptr) {
        error = fmt::format("setting {}: its {} {}. Give another text.", Quoted(key),
                            keyFault != nullptr ? "key" : "value",
                            keyFault != nullptr ? keyFault : valueFault);
        return false;
    }
    _changes.insert_or_assign(std::string(key), std::string(value));
    return true;
}

bool SettingsStore::Commit(std::string& error)
{
    try {
        return WriteChanges(error);
    } catch (const std::bad_alloc&) {
        error = NotEnoughMemory(Quoted(_path));
        return false;
    }
}

bool SettingsStore::WriteChanges(std::string& error)
{
    if (_changes.empty()) return true;
    if (!CheckPath(_path, error)) return false;
    const std::string folder = FolderOf(_path);
    if (const int failed = MakeFolder(folder); failed != 0) {
        error = fmt::format(
            "{}: the folder of the settings cannot be made: {}. Check the path and "
            "the permissions.",
            Quoted(folder), SystemReason(failed));
        return false;
    }
    // Between reading and replacing the file nobody else may replace it: his settings would be
    // lost. The file is the one that a symbolic link leads to, however each of them comes to it.
    FolderLock lock;
    Settings settings;
    std::string target;
    if (!AtomicFile::ResolveTarget(_path, target, error) || !lock.Take(FolderOf(target), error) ||
        !ReadSettings(target, settings, error)) {
        return false;
    }
    for (const auto& [key, value] : _changes)
        settings.insert_or_assign(key, value);
    if (!WriteSettings(target, settings, error)) return false;
    _settings = std::move(settings);
    _changes.clear();
    return true;
}

}  // namespace vex::system
