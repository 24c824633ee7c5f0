// SPDX-License-Identifier: Apache-2.0
// Open addressing with linear probing; a removal moves later entries up, so that there are no
// tombstones.
#include "host/feature/FeatureIndex.h"

#include "host/feature/Feature.h"

#include <random>
#include <utility>

namespace vex {

namespace {

constexpr std::size_t smallest = 16;

}  // namespace

FeatureIndex::FeatureIndex() : _seed(std::random_device{}())
{
    _seed = (_seed << 32U) ^ std::random_device{}();
}

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

Feature* FeatureIndex::Find(FeatureId id) const noexcept
{
    return _size == 0 || id == 0 ? nullptr : _slots[SlotOf(id)].feature;
}

bool FeatureIndex::Add(Feature& feature)
{
    if (_slots.size() < smallest || (_size + 1) * 4 > _slots.size() * 3) {
        Grow();
    }
    Slot& slot = _slots[SlotOf(feature.Id())];
    if (slot.id != 0) {
        return false;
    }
    slot = {feature.Id(), &feature};
    ++_size;
    return true;
}

void FeatureIndex::Remove(FeatureId id) noexcept
{
    if (Find(id) == nullptr) {
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
    --_size;
}

void FeatureIndex::Clear() noexcept
{
    _slots.clear();
    _size = 0;
}

void FeatureIndex::Grow()
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
