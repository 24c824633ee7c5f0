// SPDX-License-Identifier: Apache-2.0
// An array of dense ids; for the others open addressing with linear probing, where a removal moves
// later entries up, so that there are no tombstones.
#include "host/feature/FeatureIndex.h"

#include "host/feature/Feature.h"

#include <algorithm>
#include <random>
#include <utility>

namespace vex {

namespace {

constexpr std::size_t smallest = 16;

/// How many times as many places as features the array may have.
constexpr std::size_t mostPlaces = 2;

/// One for all: no file that is made elsewhere can know it, and chance is slow.
std::uint64_t SeedOfProcess()
{
    static const std::uint64_t seed = [] {
        std::random_device chance;
        return (std::uint64_t{chance()} << 32U) ^ chance();
    }();
    return seed;
}

}  // namespace

FeatureIndex::FeatureIndex() : _seed(SeedOfProcess()) {}

std::size_t FeatureIndex::Start(FeatureId id) const noexcept
{
    std::uint64_t mixed = id + _seed;
    mixed = (mixed ^ (mixed >> 30U)) * 0xBF58476D1CE4E5B9U;
    mixed = (mixed ^ (mixed >> 27U)) * 0x94D049BB133111EBU;
    return static_cast<std::size_t>(mixed ^ (mixed >> 31U)) & (_slots.size() - 1);
}

/// The slot that has the id, or the free one where it would go.
std::size_t FeatureIndex::SlotOf(FeatureId id) const noexcept
{
    std::size_t slot = Start(id);
    while (_slots[slot].id != 0 && _slots[slot].id != id) {
        slot = (slot + 1) & (_slots.size() - 1);
    }
    return slot;
}

Feature* FeatureIndex::FindSparse(FeatureId id) const noexcept
{
    return _sparseSize == 0 || id == 0 ? nullptr : _slots[SlotOf(id)].feature;
}

Feature* FeatureIndex::Find(FeatureId id) const noexcept
{
    if (id < _dense.size() && _dense[id] != nullptr) {
        return _dense[id];
    }
    return FindSparse(id);
}

/// Whether the id has a place in the array. Those that had none when they came stay in the table.
bool FeatureIndex::MakeDense(FeatureId id)
{
    if (id < _dense.size()) {
        return true;
    }
    if (id > smallest + mostPlaces * Size()) {
        return false;
    }
    if (id >= _dense.capacity()) {
        _dense.reserve(std::max(smallest, id + 1 + id / 4));
    }
    _dense.resize(id + 1);
    return true;
}

bool FeatureIndex::Add(Feature& feature)
{
    const FeatureId id = feature.Id();
    if (Find(id) != nullptr) {
        return false;
    }
    if (MakeDense(id)) {
        _dense[id] = &feature;
        ++_denseSize;
        return true;
    }
    if (_slots.size() < smallest || (_sparseSize + 1) * 4 > _slots.size() * 3) {
        GrowSparse();
    }
    _slots[SlotOf(id)] = {id, &feature};
    ++_sparseSize;
    return true;
}

void FeatureIndex::Remove(FeatureId id) noexcept
{
    if (id < _dense.size() && _dense[id] != nullptr) {
        _dense[id] = nullptr;
        --_denseSize;
        return;
    }
    if (FindSparse(id) == nullptr) {
        return;
    }
    const std::size_t mask = _slots.size() - 1;
    std::size_t hole = SlotOf(id);
    for (std::size_t next = (hole + 1) & mask; _slots[next].id != 0; next = (next + 1) & mask) {
        // An entry may move up when the hole is no further from its start than it is itself.
        if (((next - Start(_slots[next].id)) & mask) >= ((next - hole) & mask)) {
            _slots[hole] = _slots[next];
            hole = next;
        }
    }
    _slots[hole] = {};
    --_sparseSize;
}

void FeatureIndex::Clear() noexcept
{
    _dense.clear();
    _denseSize = 0;
    _slots.clear();
    _sparseSize = 0;
}

void FeatureIndex::GrowSparse()
{
    std::vector<Slot> old(std::max(smallest, _slots.size() * 2));
    old.swap(_slots);
    for (const Slot& slot : old) {
        if (slot.id != 0) {
            _slots[SlotOf(slot.id)] = slot;
        }
    }
}

}  // namespace vex
