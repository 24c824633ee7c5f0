// SPDX-License-Identifier: Apache-2.0
// The features of one document: owns them, gives them ids, finds them by id. Walks do not recurse,
// so that a chain of any length opens and dies like any other. A feature handed to an operation
// must be one of this tree.
#pragma once

#include "host/feature/Feature.h"
#include "host/feature/FeatureIndex.h"

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
    const FeatureList& Roots() const noexcept { return _roots; }

    /// Makes a feature below `parent` (null: a root), in front of `before` (null, or no child of
    /// `parent`: at the end). Takes the same time however many children there are. Not counted.
    Feature& Create(const LateType& lateType, Feature* parent, Feature* before = nullptr);

    /// As Create at the end, with the id it was stored under; null when the id is 0, above
    /// maximumStoredId or taken.
    Feature* Restore(const LateType& lateType, Feature* parent, FeatureId id);

    /// Moves a feature, with what is below it, below another parent of this tree (null: to the
    /// roots), placed as by Create. False when that would close a circle.
    bool Move(Feature& feature, Feature* parent, Feature* before);

    /// Deletes a feature and everything below it. References to them are empty from then on; held
    /// ones are detached.
    void Delete(Feature& feature);

    /// Deletes everything.
    void Clear();

    /// Null for an id that no feature has.
    Feature* Find(FeatureId id) const noexcept { return _index.Find(id); }
    std::size_t Size() const noexcept { return _index.Size(); }

    /// Grows with each change of a feature, its place, name or attributes.
    std::uint64_t Changes() const noexcept { return _changes; }

    /// Visits `root` and everything below it, each before its children. `depth` is 0 for the root.
    /// The visit may change attributes, but must not move or delete features nor make new ones.
    template <class Visit>
    static void Walk(Feature& root, Visit&& visit);

private:
    friend class Feature;
    FeatureList& Siblings(Feature* parent)
    {
        return parent == nullptr ? _roots : parent->_children;
    }
    void Attach(Feature& feature, Feature* parent, Feature* before);
    static void Dispose(Feature* doomed);

    Document* _document;
    FeatureList _roots;
    FeatureIndex _index;
    FeatureId _nextId = 1;
    std::uint64_t _changes = 0;
};

/// Makes a feature of a late type that the program text names (LateTypes::Require) below `parent`,
/// which is in a tree, placed as by FeatureTree::Create. Not counted.
VEX_EXPORT Feature& AddFeature(Feature& parent, std::string_view lateType,
                               Feature* before = nullptr);

template <class Visit>
void FeatureTree::Walk(Feature& root, Visit&& visit)
{
    Feature* feature = &root;
    int depth = 0;
    for (;;) {
        visit(*feature, depth);
        if (!feature->_children.empty()) {
            feature = feature->_children.front();
            ++depth;
            continue;
        }
        while (feature != &root && feature->_next == nullptr) {
            feature = feature->_parent;
            --depth;
        }
        if (feature == &root) {
            return;
        }
        feature = feature->_next;
    }
}

}  // namespace vex
