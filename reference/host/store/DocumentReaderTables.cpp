// SPDX-License-Identifier: Apache-2.0
// Reads the tables of a document but its features: they are small and kept by the reader.
#include "host/store/DocumentReader.h"
#include "host/system/MessageTexts.h"

#include <fmt/format.h>

#include <cstring>

namespace vex::store {
namespace {

bool ToDigest(Bytes bytes, system::Digest& digest)
{
    if (bytes.size() != digest.size()) return false;
    std::memcpy(digest.data(), bytes.data(), digest.size());
    return true;
}

}  // namespace

// Whether rows ended because there are no more.
bool DocumentReader::Ended(int result, std::string& reason)
{
    if (result != SQLITE_DONE && reason.empty()) reason = _database.Reason();
    return result == SQLITE_DONE;
}

bool DocumentReader::ReadDocument(std::string& reason)
{
    system::Statement select;
    if (!select.Prepare(_database,
                        "SELECT kind, late_type_count, attribute_name_count, link_count, "
                        "geometry_count, feature_count, digest FROM document",
                        reason)) {
        return false;
    }
    std::string_view kindName;
    Bytes digest;
    const int result = select.Step();
    if (result != SQLITE_ROW) {
        if (Ended(result, reason)) reason = "table document is empty";
        return false;
    }
    if (!select.Get(0, kindName) || !select.Get(1, _stated.lateTypes) ||
        !select.Get(2, _stated.attributeNames) || !select.Get(3, _stated.links) ||
        !select.Get(4, _stated.geometries) || !select.Get(5, _stated.features) ||
        !select.Get(6, digest) || !ToDigest(digest, _digest)) {
        reason = "table document: a value is of a wrong type";
        return false;
    }
    const std::optional<DocumentKind> kind = KindFromName(kindName);
    if (!kind) {
        reason = fmt::format("table document: unknown kind {}", system::QuotedStart(kindName));
        return false;
    }
    _kind = *kind;
    if (select.Step() == SQLITE_DONE) return true;
    reason = "table document has more than one row";
    return false;
}

bool DocumentReader::ReadNames(const char* sql, std::vector<std::string>& names,
                               bool (ContentCheck::*add)(std::string_view, std::string&),
                               std::string& reason)
{
    system::Statement select;
    if (!select.Prepare(_database, sql, reason)) return false;
    int result = select.Step();
    for (; result == SQLITE_ROW; result = select.Step()) {
        std::int64_t id = -1;
        std::string_view name;
        if (!select.Get(0, id) || !select.Get(1, name) ||
            id != static_cast<std::int64_t>(names.size())) {
            reason = fmt::format("name {} of a table of names is missing", names.size());
            return false;
        }
        if (!_budget->Take(name.size(), reason) || !(_check.*add)(name, reason)) return false;
        names.emplace_back(name);
    }
    return Ended(result, reason);
}

bool DocumentReader::ReadLinks(std::string& reason)
{
    system::Statement select;
    if (!select.Prepare(_database, "SELECT id, kind, path FROM link ORDER BY id", reason)) {
        return false;
    }
    int result = select.Step();
    for (; result == SQLITE_ROW; result = select.Step()) {
        LinkRow link;
        std::string_view kindName;
        if (!select.Get(0, link.id) || !select.Get(1, kindName) || !select.Get(2, link.path)) {
            reason = fmt::format("link {}: a value is of a wrong type", link.id);
            return false;
        }
        const std::optional<DocumentKind> kind = KindFromName(kindName);
        if (!kind) {
            reason =
                fmt::format("link {}: unknown kind {}", link.id, system::QuotedStart(kindName));
            return false;
        }
        link.kind = *kind;
        if (!_budget->Take(kindName.size() + link.path.size(), reason)) return false;
        if (!_check.AddLink(link, reason)) return false;
        _linkPaths.emplace_back(link.path);
        _links.push_back(link);
    }
    for (std::size_t i = 0; i < _links.size(); ++i)
        _links[i].path = _linkPaths[i];
    return Ended(result, reason);
}

bool DocumentReader::ReadGeometries(std::string& reason)
{
    system::Statement select;
    if (!select.Prepare(_database, "SELECT id, size, digest FROM geometry ORDER BY id", reason)) {
        return false;
    }
    int result = select.Step();
    for (; result == SQLITE_ROW; result = select.Step()) {
        Id id = 0;
        std::int64_t size = 0;
        Bytes bytes;
        system::Digest digest{};
        if (!select.Get(0, id) || !select.Get(1, size) || !select.Get(2, bytes) ||
            !ToDigest(bytes, digest)) {
            reason = fmt::format("geometry {}: a value is of a wrong type", id);
            return false;
        }
        if (!_budget->Take(bytes.size(), reason)) return false;
        if (!_check.AddGeometry(id, size, digest, reason)) return false;
        _geometryIds.push_back(id);
        _geometrySizes.push_back(size);
        _geometryDigests.push_back(digest);
    }
    return Ended(result, reason);
}

}  // namespace vex::store
