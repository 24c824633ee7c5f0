// SPDX-License-Identifier: Apache-2.0
// The rules that a document's content keeps and the digest over it: one procedure for the writer,
// which never writes what the reader would refuse, and for the reader, which trusts no file.
#pragma once

#include "host/store/Rows.h"
#include "host/system/Digest.h"

#include <set>
#include <string>
#include <vector>

namespace vex::store {

/// Takes every row of a document in the order of its table and tells whether the content is sound.
/// Tables may be taken in any order, with two exceptions: a name comes before the first feature
/// that uses it, and Finish comes last. All operations answer false with a reason, fit for the
/// middle of a message, at the first fault; nothing more may be asked then.
class ContentCheck
{
public:
    /// Where a feature belongs, as its neighbours have it.
    struct Place
    {
        std::int64_t ordinal = 0;     ///< among its siblings, from 1
        std::int64_t parentRow = -1;  ///< the row of its parent, from 0; -1: none
    };

    bool AddLateType(std::string_view name, std::string& reason);
    bool AddAttributeName(std::string_view name, std::string& reason);
    bool AddLink(const LinkRow& link, std::string& reason);
    bool AddGeometry(Id id, std::int64_t size, const system::Digest& digest, std::string& reason);
    bool AddFeature(const FeatureRow& feature, Place& place, std::string& reason);

    /// Checks what can only be known at the end: ids that stand twice, references and links that
    /// lead nowhere.
    bool Finish(std::string& reason);

    const RowCounts& Counts() const { return _counts; }

    /// The digest of the whole content, with kind and version.
    system::Digest ContentDigest(DocumentKind kind, int version);

private:
    struct Ancestor
    {
        Id id;
        std::int64_t row;
        std::int64_t children;
    };
    using Names = std::set<std::string, std::less<>>;  // no file can be made whose names collide
    static bool AddName(std::string_view name, std::string_view table, Names& names,
                        std::string& reason);
    bool FindPlace(const FeatureRow& feature, Place& place, std::string& reason);
    bool CheckAttributes(const FeatureRow& feature, std::string& reason);
    std::string NoSuchParent(const FeatureRow& feature) const;

    RowCounts _counts;
    system::DigestStream _lateTypeDigest;
    system::DigestStream _attributeNameDigest;
    system::DigestStream _linkDigest;
    system::DigestStream _geometryDigest;
    system::DigestStream _featureDigest;

    Names _lateTypes;
    Names _attributeNames;
    std::vector<Id> _ids;              // of features, as they came
    std::vector<Ancestor> _ancestors;  // from a root to the last feature
    std::int64_t _roots = 0;           // how many so far
    std::vector<Id> _links;            // ascending
    Id _lastGeometry = 0;
    std::vector<Id> _referenced;         // features that references lead to
    std::vector<Id> _linked;             // links that attributes lead to
    std::vector<std::int64_t> _lastUse;  // per attribute name: the last row that has it
};

}  // namespace vex::store
