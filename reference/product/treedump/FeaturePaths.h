// SPDX-License-Identifier: Apache-2.0
// Paths of features as text, for references in the tree dump and in the input file
// (docs/tree-dump.md, "References"). Built for many references into one tree: what siblings are
// called is found out once a parent. A path object is good as long as the tree does not change.
#pragma once

#include "host/feature/FeatureTree.h"

#include <cstdint>
#include <string>
#include <unordered_map>
#include <vector>

namespace hlx {

class VEX_EXPORT FeaturePaths
{
public:
    /// Paths to features below `base` start there; others start at the container of features.
    /// `base` outlives this object.
    explicit FeaturePaths(const vex::Feature& base) : _base(&base) {}

    /// Appends the path of a feature that is in a tree.
    template <class Text>
    void Append(Text& out, const vex::Feature& target);

    /// A path longer than this is given as a number instead, so that neither long aliases nor deep
    /// trees make the text grow with the square of what it describes.
    static constexpr std::size_t longestPath = 1024;

private:
    /// What a feature is called among its siblings.
    struct Place
    {
        std::uint64_t ordinal = 0;  ///< among those of its late type, from 1
        bool aliasIsUnique = false;
    };

    template <class Text>
    bool AppendSegments(Text& out, const vex::Feature& target);
    const Place& PlaceOf(const vex::Feature& feature);
    std::uint64_t NumberOf(const vex::Feature& feature);

    const vex::Feature* _base;
    std::unordered_map<const vex::Feature*, Place> _places;
    std::unordered_map<const vex::Feature*, std::uint64_t> _numbers;
    std::vector<const vex::Feature*> _chain;
};

}  // namespace hlx
