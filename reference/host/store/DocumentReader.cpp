// SPDX-License-Identifier: Apache-2.0
// Reads document files.
#include "host/store/DocumentReader.h"

#include "host/system/DatabaseFile.h"
#include "host/system/MessageTexts.h"

#include <fmt/format.h>

#include <algorithm>

namespace vex::store {
namespace {

constexpr const char* kSelectFeatures =
    "SELECT position, id, parent, ordinal, container, late_type, alias, attributes FROM feature "
    "ORDER BY position";

}  // namespace

// Here, so that users of the host need neither SQLite nor the digests.
DocumentReader::DocumentReader() = default;
DocumentReader::~DocumentReader() = default;

void DocumentReader::Close()
{
    _features.Close();
    _database.Close();
    _file.Close();
    _finished = false;
}

bool DocumentReader::Open(std::string_view path, std::string& error, int newestDataVersion)
{
    Close();
    _check = ContentCheck();
    _fault.clear();
    _summary.reset();
    _atEnd = false;
    _lateTypes.clear();
    _attributeNames.clear();
    _linkPaths.clear();
    _links.clear();
    _geometryIds.clear();
    _geometrySizes.clear();
    _geometryDigests.clear();

    _path = path;
    const system::DatabaseKind kind{"a document", kApplicationId, newestDataVersion};
    bool missing = false;
    if (!system::OpenDatabaseFile(path, kind, _file, _dataVersion, missing, error)) return false;
    _budget.emplace(_file.Number());
    std::string reason;
    if (_database.OpenForReading(_file.Number(), reason) &&
        DocumentSchema().Matches(_database, reason) && ReadTables(reason)) {
        // Before the features are read: should the file change meanwhile, the summary is of no
        // file.
        if (_geometryIds.empty()) _summary = system::SummaryOfFile(_file.Number());
        return true;
    }
    Close();
    error = system::DamagedMessage(path, reason);
    return false;
}

bool DocumentReader::ReadTables(std::string& reason)
{
    return ReadDocument(reason) &&
           ReadNames("SELECT id, name FROM late_type ORDER BY id", _lateTypes,
                     &ContentCheck::AddLateType, reason) &&
           ReadNames("SELECT id, name FROM attribute_name ORDER BY id", _attributeNames,
                     &ContentCheck::AddAttributeName, reason) &&
           ReadLinks(reason) && ReadGeometries(reason) &&
           _features.Prepare(_database, kSelectFeatures, reason);
}

bool DocumentReader::ReadFeature(FeatureRow& feature, std::string& reason)
{
    const std::int64_t row = _check.Counts().features;
    std::int64_t position = 0;
    std::int64_t ordinal = 0;
    std::int64_t container = 0;
    std::int64_t lateType = 0;
    std::string_view alias;
    const bool hasAlias = !_features.IsNull(6);
    const bool readable = _features.Get(0, position) && _features.Get(1, feature.id) &&
                          _features.Get(2, feature.parent) && _features.Get(3, ordinal) &&
                          _features.Get(4, container) && _features.Get(5, lateType) &&
                          (!hasAlias || _features.Get(6, alias)) &&
                          _features.Get(7, feature.attributes);
    const auto refuse = [&](std::string_view what) {
        reason = fmt::format("table feature, row {}: {}", row + 1, what);
        return false;
    };
    if (!readable) return refuse("a value is of a wrong type");
    if (position != row + 1) return refuse("its position is wrong");
    feature.container = static_cast<std::int32_t>(container);
    feature.lateType = static_cast<NameIndex>(lateType);
    if (feature.container != container) return refuse("its container's number is too large");
    if (feature.lateType != lateType) return refuse("its late type does not exist");
    feature.alias.reset();
    if (hasAlias) feature.alias = alias;
    std::string fault;
    if (!_budget->Take(alias.size() + feature.attributes.size(), fault)) return refuse(fault);
    if (!_check.AddFeature(feature, _place, fault)) return refuse(fault);
    if (ordinal != _place.ordinal) {
        return refuse(fmt::format("its ordinal is {} instead of {}", ordinal, _place.ordinal));
    }
    return true;
}

bool DocumentReader::Next(FeatureRow& feature)
{
    if (_atEnd || !_fault.empty() || !_database.IsOpen()) return false;
    const int result = _features.Step();
    if (result == SQLITE_ROW) return ReadFeature(feature, _fault);
    _atEnd = Ended(result, _fault);
    return false;
}

bool DocumentReader::CheckWhole(std::string& reason)
{
    reason = _fault;
    if (!reason.empty()) return false;
    if (_check.Counts() != _stated) {
        reason = fmt::format("its tables do not have the rows it states ({} features of {})",
                             _check.Counts().features, _stated.features);
        return false;
    }
    if (!_check.Finish(reason)) return false;
    if (_check.ContentDigest(_kind, _dataVersion) == _digest) return true;
    reason = "its content does not match its digest";
    return false;
}

bool DocumentReader::Finish(std::string& error)
{
    if (!_database.IsOpen()) {
        error = fmt::format("{}: it is not open. Open it first.", system::Quoted(_path));
        return false;
    }
    if (_finished) return true;
    for (FeatureRow feature; Next(feature);) {
    }
    std::string reason;
    if (CheckWhole(reason)) {
        _features.Close();
        _check = ContentCheck();  // frees what the checks remembered
        _finished = true;
        return true;
    }
    Close();
    error = system::DamagedMessage(_path, reason);
    return false;
}

bool DocumentReader::ReadGeometry(Id id, std::vector<std::byte>& bytes, std::string& error)
{
    bytes.clear();
    if (!_finished) {
        error = fmt::format("{}: geometry is read from an open document only. Open it first.",
                            system::Quoted(_path));
        return false;
    }
    const auto found = std::lower_bound(_geometryIds.begin(), _geometryIds.end(), id);
    if (found == _geometryIds.end() || *found != id) {
        error = fmt::format("{}: there is no geometry {} in it. Name one that it has.",
                            system::Quoted(_path), id);
        return false;
    }
    const auto index = static_cast<std::size_t>(found - _geometryIds.begin());
    system::Statement select;
    std::string reason;
    Bytes stored;
    if (select.Prepare(_database, "SELECT bytes FROM geometry WHERE id = ?1", reason)) {
        select.Bind(1, id);
        if (select.Step() != SQLITE_ROW || !select.Get(0, stored)) {
            reason = fmt::format("geometry {}: its bytes cannot be read", id);
        } else if (static_cast<std::int64_t>(stored.size()) != _geometrySizes[index] ||
                   system::DigestOf(stored) != _geometryDigests[index]) {
            reason = fmt::format("geometry {}: its bytes do not match their digest", id);
        } else {
            bytes.assign(stored.begin(), stored.end());
        }
    }
    if (reason.empty()) return true;
    error = system::DamagedMessage(_path, reason);
    return false;
}

}  // namespace vex::store
