// SPDX-License-Identifier: Apache-2.0
// Checks and digests a document's content in one pass.
//
// Features come depth first, so the parent of each stands on the path from a root to the feature
// before it. That makes the tree's soundness a matter of one stack: a parent that is missing, comes
// later or takes part in a cycle is not on it.
#include "host/store/ContentCheck.h"

#include "host/store/AttributeUnpacker.h"
#include "host/store/IdSet.h"
#include "host/system/LittleEndian.h"
#include "host/system/MessageTexts.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <utility>

namespace vex::store {
namespace {

using system::TextFault;

// Between two paths of 4096 bytes: up from one with three bytes for at least two, down to the
// other. Every use of a link holds its path: longer ones would make much of a small file.
constexpr std::size_t kLongestLink = 10240;

// The fields of a feature row that have a fixed size, as they enter the digest.
void AddToDigest(const FeatureRow& feature, std::int64_t ordinal, system::DigestStream& digest)
{
    const auto aliasSize = feature.alias ? static_cast<std::int64_t>(feature.alias->size()) : -1;
    const std::array<std::int64_t, 7> fields = {
        feature.id,
        feature.parent,
        ordinal,
        feature.container,
        feature.lateType,
        aliasSize,
        static_cast<std::int64_t>(feature.attributes.size())};
    std::array<std::byte, sizeof fields> bytes;
    for (std::size_t i = 0; i < fields.size(); ++i) {
        system::StoreLittleEndian(bytes.data() + 8 * i, static_cast<std::uint64_t>(fields[i]));
    }
    digest.Add(bytes.data(), bytes.size());
    if (feature.alias) digest.Add(feature.alias->data(), feature.alias->size());
    digest.Add(feature.attributes.data(), feature.attributes.size());
}

// Keeps a run of equal ids once: neighbours often refer to the same target.
void Remember(std::vector<Id>& ids, Id id)
{
    if (id != 0 && (ids.empty() || ids.back() != id)) ids.push_back(id);
}

std::string At(const FeatureRow& feature, std::string_view reason)
{
    return fmt::format("feature {}: {}", feature.id, reason);
}

}  // namespace

// One name under two numbers would let a feature have an attribute twice.
bool ContentCheck::AddName(std::string_view name, std::string_view table, Names& names,
                           std::string& reason)
{
    const char* fault = name.empty() ? "is empty" : TextFault(name);
    if (names.size() >= kMaximumNames) {
        reason = fmt::format("table {}: there are more than {} names", table, kMaximumNames);
        return false;
    }
    if (fault == nullptr && names.emplace(name).second) return true;
    reason = fmt::format("table {}, name {}: it {}", table, names.size(),
                         fault != nullptr ? fault : "stands twice");
    return false;
}

bool ContentCheck::AddLateType(std::string_view name, std::string& reason)
{
    if (!AddName(name, "late_type", _lateTypes, reason)) return false;
    ++_counts.lateTypes;
    _lateTypeDigest.AddText(name);
    return true;
}

bool ContentCheck::AddAttributeName(std::string_view name, std::string& reason)
{
    if (!AddName(name, "attribute_name", _attributeNames, reason)) return false;
    ++_counts.attributeNames;
    _lastUse.push_back(-1);
    _attributeNameDigest.AddText(name);
    return true;
}

bool ContentCheck::AddLink(const LinkRow& link, std::string& reason)
{
    const char* fault = TextFault(link.path);
    if (link.id <= (_links.empty() ? 0 : _links.back())) {
        reason = fmt::format("link {}: its id is not above the one before it", link.id);
    } else if (link.path.empty() || link.path.starts_with('/')) {
        reason = fmt::format("link {}: its path is not a relative one", link.id);
    } else if (fault != nullptr) {
        reason = fmt::format("link {}: its path {}", link.id, fault);
    } else if (link.path.size() > kLongestLink) {
        reason = fmt::format("link {}: its path has {} bytes, more than the {} allowed", link.id,
                             link.path.size(), kLongestLink);
    }
    if (!reason.empty()) return false;
    ++_counts.links;
    _links.push_back(link.id);
    _linkDigest.AddNumber(link.id);
    _linkDigest.AddText(NameOf(link.kind));
    _linkDigest.AddText(link.path);
    return true;
}

bool ContentCheck::AddGeometry(Id id, std::int64_t size, const system::Digest& digest,
                               std::string& reason)
{
    if (id <= _lastGeometry) {
        reason = fmt::format("geometry {}: its id is not above the one before it", id);
        return false;
    }
    _lastGeometry = id;
    ++_counts.geometries;
    _geometryDigest.AddNumber(id);
    _geometryDigest.AddNumber(size);
    _geometryDigest.Add(digest.data(), digest.size());
    return true;
}

std::string ContentCheck::NoSuchParent(const FeatureRow& feature) const
{
    if (feature.parent == feature.id) return At(feature, "it is its own parent");
    const bool known = std::find(_ids.begin(), _ids.end(), feature.parent) != _ids.end();
    return At(feature, fmt::format("its parent {} {}", feature.parent,
                                   known ? "stands before it, but not depth first"
                                         : "does not exist or comes later"));
}

bool ContentCheck::FindPlace(const FeatureRow& feature, Place& place, std::string& reason)
{
    if (feature.parent == 0) {
        _ancestors.clear();
        place = {++_roots, -1};
    } else {
        while (!_ancestors.empty() && _ancestors.back().id != feature.parent)
            _ancestors.pop_back();
        if (_ancestors.empty() || feature.parent == feature.id) {
            reason = NoSuchParent(feature);
            return false;
        }
        place = {++_ancestors.back().children, _ancestors.back().row};
    }
    _ancestors.push_back({feature.id, _counts.features, 0});
    return true;
}

bool ContentCheck::CheckAttributes(const FeatureRow& feature, std::string& reason)
{
    AttributeUnpacker unpacker(feature.attributes);
    for (Attribute attribute; unpacker.Next(attribute);) {
        if (attribute.name >= _lastUse.size()) {
            reason = At(feature, fmt::format("attribute name {} does not exist", attribute.name));
            return false;
        }
        if (std::exchange(_lastUse[attribute.name], _counts.features) == _counts.features) {
            reason = At(feature, fmt::format("attribute name {} stands twice", attribute.name));
            return false;
        }
        if (attribute.kind == AttributeKind::Reference) Remember(_referenced, attribute.integer);
        if (attribute.kind == AttributeKind::Link) Remember(_linked, attribute.integer);
    }
    if (unpacker.Fault() == nullptr) return true;
    reason = At(feature, unpacker.Fault());
    return false;
}

bool ContentCheck::AddFeature(const FeatureRow& feature, Place& place, std::string& reason)
{
    const auto refuse = [&](std::string_view text) {
        reason = At(feature, text);
        return false;
    };
    if (feature.id <= 0) return refuse("its id is not positive");
    if (feature.container < 0) return refuse("its container's number is negative");
    if (feature.lateType >= _counts.lateTypes) return refuse("its late type does not exist");
    if (feature.alias) {
        const char* fault = TextFault(*feature.alias);
        if (fault != nullptr) return refuse(fmt::format("its alias {}", fault));
    }
    if (!FindPlace(feature, place, reason) || !CheckAttributes(feature, reason)) return false;
    _ids.push_back(feature.id);
    ++_counts.features;
    AddToDigest(feature, place.ordinal, _featureDigest);
    return true;
}

bool ContentCheck::Finish(std::string& reason)
{
    const IdSet features(std::exchange(_ids, {}));
    const IdSet links(std::exchange(_links, {}));
    if (features.Twice() != 0) {
        reason = fmt::format("feature {}: its id stands twice", features.Twice());
    } else if (const Id id = features.FirstMissing(_referenced); id != 0) {
        reason = fmt::format("an attribute refers to feature {}, which does not exist", id);
    } else if (const Id link = links.FirstMissing(_linked); link != 0) {
        reason = fmt::format("an attribute refers to link {}, which does not exist", link);
    }
    return reason.empty();
}

system::Digest ContentCheck::ContentDigest(DocumentKind kind, int version)
{
    system::DigestStream whole;
    whole.AddNumber(version);
    whole.AddText(NameOf(kind));
    const auto table = [&](std::int64_t count, system::DigestStream& rows) {
        const system::Digest digest = rows.Result();
        whole.AddNumber(count);
        whole.Add(digest.data(), digest.size());
    };
    table(_counts.lateTypes, _lateTypeDigest);
    table(_counts.attributeNames, _attributeNameDigest);
    table(_counts.links, _linkDigest);
    table(_counts.geometries, _geometryDigest);
    table(_counts.features, _featureDigest);
    return whole.Result();
}

}  // namespace vex::store
