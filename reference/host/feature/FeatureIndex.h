// SPDX-License-Identifier: Apache-2.0
// Finds the features of a tree by id. Ids are mostly dense: those are looked up where they stand in
// an array; the others in a hash table.
#pragma once

#include "host/feature/Value.h"

#include <cstddef>
#include <vector>

namespace vex {

class Feature;

/// Owns nothing.
class VEX_EXPORT FeatureIndex
{
public:
    FeatureIndex();

    Feature* Find(FeatureId id) const noexcept;

    /// False when the feature's id is there already.
    bool Add(Feature& feature);

    /// Takes an id out; one that is not there is ignored.
    void Remove(FeatureId id) noexcept;

    void Clear() noexcept;
    std::size_t Size() const noexcept { return _denseSize + _sparseSize; }

private:
    bool MakeDense(FeatureId id);
    std::size_t Start(FeatureId id) const noexcept;
    std::size_t SlotOf(FeatureId id) const noexcept;
    Feature* FindSparse(FeatureId id) const noexcept;
    void GrowSparse();

    struct Slot
    {
        FeatureId id = 0;  ///< 0: free
        Feature* feature = nullptr;
    };

    std::vector<Feature*>
        _dense;  ///< by id; no more than a few times as long as there ever were features
    std::size_t _denseSize = 0;

    /// The others, by open addressing in a power of two of slots.
    std::vector<Slot> _slots;
    std::size_t _sparseSize = 0;
    std::uint64_t _seed;  ///< differs from run to run: no file can be made whose ids collide
};

}  // namespace vex
