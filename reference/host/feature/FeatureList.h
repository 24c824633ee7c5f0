// SPDX-License-Identifier: Apache-2.0
// Features that stand below one parent, or the roots of a tree, in their order. The links are in
// the features themselves: any of them comes and goes in the same time, however many there are.
#pragma once

#include <cstddef>
#include <iterator>

namespace vex {

class Feature;

/// Owns nothing; a feature is in one list at most. Only FeatureTree changes it. An iterator lives
/// as long as its feature stays where it is.
class FeatureList
{
public:
    class Iterator
    {
    public:
        using iterator_category = std::forward_iterator_tag;
        using value_type = Feature*;
        using difference_type = std::ptrdiff_t;
        using pointer = Feature* const*;
        using reference = Feature*;

        Iterator() = default;
        explicit Iterator(Feature* feature) : _feature(feature) {}
        Feature* operator*() const { return _feature; }
        inline Iterator& operator++();
        Iterator operator++(int)
        {
            const Iterator before = *this;
            ++*this;
            return before;
        }
        friend bool operator==(const Iterator&, const Iterator&) = default;

    private:
        Feature* _feature = nullptr;
    };
    using value_type = Feature*;
    using iterator = Iterator;
    using const_iterator = Iterator;

    Iterator begin() const { return Iterator(_first); }
    Iterator end() const { return {}; }
    bool empty() const { return _first == nullptr; }
    std::size_t size() const { return _size; }
    /// Null when it is empty.
    Feature* front() const { return _first; }
    Feature* back() const { return _last; }

private:
    friend class FeatureTree;
    /// Puts `feature` in front of `before` (null: at the end), which is in this list.
    void Insert(Feature& feature, Feature* before);
    void Remove(Feature& feature);

    Feature* _first = nullptr;
    Feature* _last = nullptr;
    std::size_t _size = 0;
};

}  // namespace vex
