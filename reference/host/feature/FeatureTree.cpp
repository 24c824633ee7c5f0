// SPDX-License-Identifier: Apache-2.0
// Builds, rearranges and takes down trees of features, without recursion.
#include "host/feature/FeatureTree.h"

#include <algorithm>
#include <utility>

namespace vex {

void FeatureList::Insert(Feature& feature, Feature* before)
{
    feature._previous = before == nullptr ? _last : before->_previous;
    feature._next = before;
    (feature._previous == nullptr ? _first : feature._previous->_next) = &feature;
    (before == nullptr ? _last : before->_previous) = &feature;
    ++_size;
}

void FeatureList::Remove(Feature& feature)
{
    (feature._previous == nullptr ? _first : feature._previous->_next) = feature._next;
    (feature._next == nullptr ? _last : feature._next->_previous) = feature._previous;
    feature._previous = nullptr;
    feature._next = nullptr;
    --_size;
}

Feature& FeatureTree::Create(const LateType& lateType, Feature* parent, Feature* before)
{
    auto* const feature = new Feature(*this, lateType, _nextId++);
    _index.Add(*feature);
    Attach(*feature, parent, before);
    return *feature;
}

Feature& AddFeature(Feature& parent, std::string_view lateType, Feature* before)
{
    return parent.Tree()->Create(LateTypes::Instance().Require(lateType), &parent, before);
}

Feature* FeatureTree::Restore(const LateType& lateType, Feature* parent, FeatureId id)
{
    if (id == 0 || id > maximumStoredId || Find(id) != nullptr) {
        return nullptr;
    }
    auto* const feature = new Feature(*this, lateType, id);
    _index.Add(*feature);
    Attach(*feature, parent, nullptr);
    _nextId = std::max(_nextId, id + 1);
    return feature;
}

void FeatureTree::Attach(Feature& feature, Feature* parent, Feature* before)
{
    const bool isSibling = before != nullptr && before->_parent == parent;
    Siblings(parent).Insert(feature, isSibling ? before : nullptr);
    feature._parent = parent;
    ++_changes;
}

bool FeatureTree::Move(Feature& feature, Feature* parent, Feature* before)
{
    for (const Feature* ancestor = parent; ancestor != nullptr; ancestor = ancestor->_parent) {
        if (ancestor == &feature) {
            return false;
        }
    }
    if (before == &feature) {
        // In front of itself: where it stands, or, below another parent, at the end.
        if (parent == feature._parent) {
            return true;
        }
        before = nullptr;
    }
    Siblings(feature._parent).Remove(feature);
    Attach(feature, parent, before);
    return true;
}

void FeatureTree::Delete(Feature& feature)
{
    ++_changes;
    Siblings(feature._parent).Remove(feature);
    Feature* doomed = nullptr;
    Walk(feature, [&](Feature& each, int) {
        _index.Remove(each._id);
        each._previous = std::exchange(doomed, &each);
    });
    Dispose(doomed);
}

void FeatureTree::Clear()
{
    ++_changes;
    Feature* doomed = nullptr;
    for (Feature* const root : std::exchange(_roots, FeatureList())) {
        Walk(*root, [&](Feature& each, int) { each._previous = std::exchange(doomed, &each); });
    }
    _index.Clear();
    Dispose(doomed);
}

/// First all are detached, then those that nobody holds die: none of them is seen half taken down.
/// They hang together by what was the link to the feature before: a tree that memory has run out
/// for can still go.
void FeatureTree::Dispose(Feature* doomed)
{
    Feature* dead = nullptr;
    while (doomed != nullptr) {
        Feature* const feature = doomed;
        doomed = feature->_previous;
        feature->Detach();
        if (feature->ReferenceCount() == 0) {
            feature->_previous = std::exchange(dead, feature);
        }
    }
    while (dead != nullptr) {
        const Feature* const feature = dead;
        dead = feature->_previous;
        delete feature;
    }
}

}  // namespace vex
