// SPDX-License-Identifier: Apache-2.0
// The features of one document: owns them, gives them ids, finds them by id. Walks do not recurse,
// so that a chain of any length opens and dies like any other. A feature handed to an operation
// must be one of this tree.
#pragma once

#include "host/feature/Feature.h"
#include "host/feature/FeatureIndex.h"

#include <functional>

namespace vex {

class Document;

/// The largest id that a stored feature may have: far behind it there is room for those made later.
inline constexpr FeatureId maximumStoredId = FeatureId{1} << 62U;

class VEX_EXPORT FeatureTree
{
public:
    explicit FeatureTree(Document& document) : _document(&document) {}
    /// Features still held outside survive, detached; the others die.
    ~FeatureTree() { Clear(); }
    FeatureTree(const FeatureTree&) = delete;
    FeatureTree& operator=(const FeatureTree&) = delete;

    Document& Owner() const noexcept { return *_document; }

    /// The roots, one a container: a root's parent is null.
    const std::vector<Feature*>& Roots() const noexcept { return _roots; }

    /// Makes a feature below `parent` (null: a root), in front of `before` (null, or no child of
    /// `parent`: at the end, which takes the same time however many there are). Not counted.
    Feature& Create(const LateType& lateType, Feature* parent, const Feature* before = nullptr);

    /// As Create at the end, with the id it was stored under; null when the id is 0, above
    /// maximumStoredId or taken.
    Feature* Restore(const LateType& lateType, Feature* parent, FeatureId id);

    /// Moves a feature, with what is below it, below another parent of this tree (null: to the
    /// roots), placed as by Create. False when that would close a circle.
    bool Move(Feature& feature, Feature* parent, const Feature* before);

    /// Deletes a feature and everything below it. References to them are empty from then on; held
    /// ones are detached.
    void Delete(Feature& feature);

    /// Deletes everything.
    void Clear();

    /// Null for an id that no feature has.
    Feature* Find(FeatureId id) const noexcept { return _index.Find(id); }
    std::size_t Size() const noexcept { return _index.Size(); }

    /// Visits `root` and everything below it, each before its children. `depth` is 0 for the root.
    /// The visit may change attributes, but must not move or delete features nor make new ones.
    static void Walk(Feature& root, const std::function<void(Feature&, int depth)>& visit);

private:
    std::vector<Feature*>& Siblings(Feature* parent)
    {
        return parent == nullptr ? _roots : parent->_children;
    }
    void Attach(Feature& feature, Feature* parent, const Feature* before);
    void Unlink(Feature& feature);
    static void Dispose(std::vector<Feature*> features);

    Document* _document;
    std::vector<Feature*> _roots;
    FeatureIndex _index;
    FeatureId _nextId = 1;
};

}  // namespace vex
