// SPDX-License-Identifier: Apache-2.0
// Builds, rearranges and takes down trees of features, without recursion.
#include "host/feature/FeatureTree.h"

#include <algorithm>
#include <utility>

namespace vex {

namespace {

/// The place of a feature among its siblings, searched from both ends: the first and the last are
/// what is deleted most.
std::vector<Feature*>::iterator PlaceOf(std::vector<Feature*>& siblings, const Feature* feature)
{
    for (auto front = siblings.begin(), back = siblings.end(); front != back; ++front) {
        if (*front == feature) {
            return front;
        }
        if (*--back == feature) {
            return back;
        }
        if (front == back) {
            break;
        }
    }
    return siblings.end();
}

}  // namespace

Feature& FeatureTree::Create(const LateType& lateType, Feature* parent, const Feature* before)
{
    auto* const feature = new Feature(*this, lateType, _nextId++);
    _index.Add(*feature);
    Attach(*feature, parent, before);
    return *feature;
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

void FeatureTree::Attach(Feature& feature, Feature* parent, const Feature* before)
{
    std::vector<Feature*>& siblings = Siblings(parent);
    const auto place = before == nullptr ? siblings.end() : PlaceOf(siblings, before);
    siblings.insert(place, &feature);
    feature._parent = parent;
}

void FeatureTree::Unlink(Feature& feature)
{
    std::vector<Feature*>& siblings = Siblings(feature._parent);
    siblings.erase(PlaceOf(siblings, &feature));
}

bool FeatureTree::Move(Feature& feature, Feature* parent, const Feature* before)
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
    Unlink(feature);
    Attach(feature, parent, before);
    return true;
}

void FeatureTree::Delete(Feature& feature)
{
    Unlink(feature);
    std::vector<Feature*> doomed;
    Walk(feature, [&](Feature& each, int) {
        _index.Remove(each._id);
        doomed.push_back(&each);
    });
    Dispose(std::move(doomed));
}

void FeatureTree::Clear()
{
    std::vector<Feature*> doomed;
    for (Feature* const root : std::exchange(_roots, {})) {
        Walk(*root, [&](Feature& each, int) { doomed.push_back(&each); });
    }
    _index.Clear();
    Dispose(std::move(doomed));
}

/// First all are detached, then those that nobody holds die: none of them is seen half taken down.
void FeatureTree::Dispose(std::vector<Feature*> features)
{
    std::erase_if(features, [](Feature* feature) {
        feature->Detach();
        return feature->ReferenceCount() != 0;
    });
    for (const Feature* const feature : features) {
        delete feature;
    }
}

void FeatureTree::Walk(Feature& root, const std::function<void(Feature&, int depth)>& visit)
{
    struct Level
    {
        const std::vector<Feature*>* siblings;
        std::size_t next;
    };
    visit(root, 0);
    std::vector<Level> levels{{&root.Children(), 0}};
    while (!levels.empty()) {
        Level& level = levels.back();
        if (level.next == level.siblings->size()) {
            levels.pop_back();
            continue;
        }
        Feature& feature = *(*level.siblings)[level.next++];
        visit(feature, static_cast<int>(levels.size()));
        if (!feature.Children().empty()) {
            levels.push_back({&feature.Children(), 0});
        }
    }
}

}  // namespace vex
