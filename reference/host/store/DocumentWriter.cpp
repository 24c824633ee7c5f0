// SPDX-License-Identifier: Apache-2.0
// Writes document files.
#include "host/store/DocumentWriter.h"

#include "host/system/MessageTexts.h"

#include <fmt/format.h>

#include <vector>

namespace vex::store {
namespace {

constexpr std::size_t kMaximumGeometry = 1'000'000'000 - 1'000;  // SQLite's limit of a row

}  // namespace

// Here, so that users of the host need neither SQLite nor the digests.
DocumentWriter::DocumentWriter() = default;
DocumentWriter::~DocumentWriter() = default;

// The file, last: its connection must be gone before it is removed or renamed.
bool DocumentWriter::End(std::string error)
{
    _error = std::move(error);
    _insertLink.Close();
    _insertGeometry.Close();
    _features.Detach();
    _database.Close();
    _file.Discard();
    return false;
}

bool DocumentWriter::Refuse(std::string_view reason)
{
    return End(
        fmt::format("{}: saving failed: {}. Correct the document and save again; the file as "
                    "it was before is untouched.",
                    system::Quoted(_path), reason));
}

bool DocumentWriter::FailWriting(std::string_view reason)
{
    return End(system::AtomicFile::Failure(_path, "writing the document", reason));
}

bool DocumentWriter::Begin(std::string_view path, DocumentKind kind, int dataVersion,
                           system::Existing existing)
{
    End("");
    _path = path;
    _kind = kind;
    _dataVersion = dataVersion;
    _check = ContentCheck();
    _summary.reset();
    _lateTypes.clear();
    _attributeNames.clear();
    std::string reason;
    if (dataVersion < 1) return Refuse(fmt::format("there is no data version {}", dataVersion));
    if (dataVersion > kDataVersion) {
        return Refuse(
            fmt::format("its data version {} is newer than {}, the newest that can be read again",
                        dataVersion, kDataVersion));
    }
    if (!_file.Begin(path, reason, existing)) return End(std::move(reason));
    return Prepare(reason) || FailWriting(reason);
}

bool DocumentWriter::Prepare(std::string& reason)
{
    return DocumentSchema().Create(_file.File(), _dataVersion, reason) &&
           _database.OpenForWriting(_file.File(), reason) && _features.Attach(_database, reason);
}

std::optional<NameIndex> DocumentWriter::Intern(Names& names, AddName add, std::string_view name)
{
    if (!Usable()) return std::nullopt;
    if (const auto found = names.find(name); found != names.end()) return found->second;
    std::string reason;
    if (!(_check.*add)(name, reason)) {
        Refuse(reason);
        return std::nullopt;
    }
    const auto index = static_cast<NameIndex>(names.size());
    names.emplace(name, index);
    return index;
}

std::optional<NameIndex> DocumentWriter::LateType(std::string_view name)
{
    return Intern(_lateTypes, &ContentCheck::AddLateType, name);
}

std::optional<NameIndex> DocumentWriter::AttributeName(std::string_view name)
{
    return Intern(_attributeNames, &ContentCheck::AddAttributeName, name);
}

bool DocumentWriter::AddLink(const LinkRow& link)
{
    if (!Usable()) return false;
    std::string reason;
    if (!_check.AddLink(link, reason)) return Refuse(reason);
    if (!_insertLink.PrepareOnce(_database, "INSERT INTO link VALUES (?1, ?2, ?3)", reason)) {
        return FailWriting(reason);
    }
    _insertLink.Bind(1, link.id);
    _insertLink.Bind(2, NameOf(link.kind));
    _insertLink.Bind(3, link.path);
    return _insertLink.Execute() || FailWriting(_database.Reason());
}

bool DocumentWriter::AddGeometry(Id id, Bytes bytes)
{
    if (!Usable()) return false;
    if (bytes.size() > kMaximumGeometry) {
        return Refuse(fmt::format("geometry {}: it has {} bytes, more than the {} allowed", id,
                                  bytes.size(), kMaximumGeometry));
    }
    const auto size = static_cast<std::int64_t>(bytes.size());
    const system::Digest digest = system::DigestOf(bytes);
    std::string reason;
    if (!_check.AddGeometry(id, size, digest, reason)) return Refuse(reason);
    if (!_insertGeometry.PrepareOnce(_database, "INSERT INTO geometry VALUES (?1, ?2, ?3, ?4)",
                                     reason)) {
        return FailWriting(reason);
    }
    _insertGeometry.Bind(1, id);
    _insertGeometry.Bind(2, size);
    _insertGeometry.Bind(3, Bytes(digest));
    _insertGeometry.Bind(4, bytes);
    return _insertGeometry.Execute() || FailWriting(_database.Reason());
}

bool DocumentWriter::AddFeature(const FeatureRow& feature)
{
    if (!Usable()) return false;
    ContentCheck::Place place;
    std::string reason;
    if (!_check.AddFeature(feature, place, reason)) return Refuse(reason);
    return _features.Add(feature, place.ordinal) || FailWriting(_database.Reason());
}

bool DocumentWriter::WriteNames(const char* sql, const Names& names, std::string& reason)
{
    system::Statement insert;
    if (!insert.Prepare(_database, sql, reason)) return false;
    std::vector<std::string_view> byIndex(names.size());
    for (const auto& [name, index] : names)
        byIndex[index] = name;
    for (std::size_t index = 0; index < byIndex.size(); ++index) {
        insert.Bind(1, static_cast<std::int64_t>(index));
        insert.Bind(2, byIndex[index]);
        if (!insert.Execute()) {
            reason = _database.Reason();
            return false;
        }
    }
    return true;
}

bool DocumentWriter::WriteDocument(std::string& reason)
{
    system::Statement insert;
    if (!insert.Prepare(_database, "INSERT INTO document VALUES (?1, ?2, ?3, ?4, ?5, ?6, ?7)",
                        reason)) {
        return false;
    }
    const RowCounts& counts = _check.Counts();
    const system::Digest digest = _check.ContentDigest(_kind, _dataVersion);
    insert.Bind(1, NameOf(_kind));
    insert.Bind(2, counts.lateTypes);
    insert.Bind(3, counts.attributeNames);
    insert.Bind(4, counts.links);
    insert.Bind(5, counts.geometries);
    insert.Bind(6, counts.features);
    insert.Bind(7, Bytes(digest));
    if (insert.Execute()) return true;
    reason = _database.Reason();
    return false;
}

// What is known only at the end, and the end of the transaction.
bool DocumentWriter::WriteRest(std::string& reason)
{
    if (!_features.Flush()) {
        reason = _database.Reason();
        return false;
    }
    _insertLink.Close();
    _insertGeometry.Close();
    _features.Detach();
    return WriteNames("INSERT INTO late_type VALUES (?1, ?2)", _lateTypes, reason) &&
           WriteNames("INSERT INTO attribute_name VALUES (?1, ?2)", _attributeNames, reason) &&
           WriteDocument(reason) && _database.Commit(reason);
}

bool DocumentWriter::Commit(std::string& error)
{
    if (_error.empty() && !_database.IsOpen()) {
        _error = "Saving failed: it was not begun. Begin it first.";
    }
    std::string reason;
    if (_error.empty() && !_check.Finish(reason)) Refuse(reason);
    if (_error.empty() && !WriteRest(reason)) FailWriting(reason);
    if (_error.empty() && _check.Counts().geometries == 0) {
        _summary = system::SummaryOfFile(_file.File());
    }
    if (_error.empty() && _file.Commit(_error)) return true;
    _summary.reset();
    error = _error;
    return false;
}

}  // namespace vex::store
