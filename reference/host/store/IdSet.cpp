// SPDX-License-Identifier: Apache-2.0
// Sets of ids.
#include "host/store/IdSet.h"

#include <algorithm>
#include <utility>

namespace vex::store {
namespace {

// Bits are used as long as they take no more than a byte an id.
constexpr std::size_t kMostBits = 8;

}  // namespace

IdSet::IdSet(std::vector<Id> ids)
{
    const auto largest = std::max_element(ids.begin(), ids.end());
    if (largest == ids.end()) return;
    if (std::cmp_greater(*largest, ids.size() * kMostBits)) {
        Sort(std::move(ids));
        return;
    }
    _present.resize(static_cast<std::size_t>(*largest) + 1);
    for (const Id id : ids) {
        auto present = _present[static_cast<std::size_t>(id)];
        if (present) _twice = id;
        present = true;
    }
}

void IdSet::Sort(std::vector<Id> ids)
{
    std::sort(ids.begin(), ids.end());
    const auto twice = std::adjacent_find(ids.begin(), ids.end());
    if (twice != ids.end()) _twice = *twice;
    _sorted = std::move(ids);
}

bool IdSet::Has(Id id) const
{
    if (!_sorted.empty()) return std::binary_search(_sorted.begin(), _sorted.end(), id);
    return id >= 0 && std::cmp_less(id, _present.size()) && _present[static_cast<std::size_t>(id)];
}

Id IdSet::FirstMissing(const std::vector<Id>& wanted) const
{
    for (const Id id : wanted) {
        if (!Has(id)) return id;
    }
    return 0;
}

}  // namespace vex::store
