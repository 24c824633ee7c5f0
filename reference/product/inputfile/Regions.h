// SPDX-License-Identifier: Apache-2.0
// The regions that a deck is about, found in their parts and told by names. What stands outside of
// the parts calls a region by an instance of its part and its name there.
#pragma once

#include "host/feature/Feature.h"
#include "product/inputfile/Structure.h"

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <tuple>
#include <unordered_map>
#include <utility>
#include <vector>

namespace hlx {

/// What a region of an instance is called outside of its part: "Left/Bracket.1/Face-12".
std::string RegionOfInstance(const PartInstance& instance, std::string_view region);

/// As long as this object lives, the features that it was given do not change.
class Regions
{
public:
    struct Region
    {
        std::string name;                 ///< within its part
        std::optional<std::size_t> part;  ///< indexes Structure::parts; none: not in the structure
    };

    /// The regions of one part by dimension and index, with their names.
    using OfPart = std::map<std::pair<std::int64_t, std::int64_t>, std::string>;

    /// `structure` outlives this object.
    explicit Regions(const Structure& structure);

    /// The region that a feature stores, which lives as long as this object; from now on the deck
    /// uses it. Parts are looked up once for all features that store the same. Null, with the
    /// reason in `error`, when it is not found in its part (vex::ResolveRegion), or all uses
    /// together, one for each instance, have names of more than 256 MiB.
    const Region* Use(const vex::Feature& stored, std::string& error);

    /// Those used so far of a part of the structure.
    const OfPart& Used(std::size_t part) const { return _used[part]; }

    const Structure& Parts() const { return _structure; }

private:
    /// What a feature stores: document, its kind, dimension, index, digest of the shape. The texts
    /// are the feature's.
    using Stored = std::tuple<std::string_view, std::optional<vex::store::DocumentKind>,
                              std::int64_t, std::int64_t, std::string_view>;

    bool Resolve(const vex::Feature& stored, Region& region, std::string& error) const;
    bool CountNames(const Region& region, std::string& error);

    const Structure& _structure;
    std::unordered_map<const vex::Document*, std::size_t> _parts;
    std::vector<OfPart> _used;                   ///< by part
    std::vector<std::size_t> _bytesOfInstances;  ///< by part: names with their slashes
    std::map<Stored, Region> _known;
    std::size_t _bytesOfNames = 0;
};

}  // namespace hlx
