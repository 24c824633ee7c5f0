// SPDX-License-Identifier: Apache-2.0
// Which ids there are, and whether one stands twice.
#pragma once

#include "VEXTypes.h"
#include "host/store/Rows.h"

#include <vector>

namespace vex::store {

/// Ids are mostly dense: a bit for each tells it then, in a fraction of the time that sorting them
/// takes. Else they are sorted.
class VEX_EXPORT IdSet
{
public:
    /// @param ids positive, in any order
    explicit IdSet(std::vector<Id> ids);

    bool Has(Id id) const;

    /// An id that stands twice; 0: there is none.
    Id Twice() const { return _twice; }

    /// The first of `wanted` that is not here; 0: all are.
    Id FirstMissing(const std::vector<Id>& wanted) const;

private:
    void Sort(std::vector<Id> ids);

    std::vector<bool> _present;  // by id
    std::vector<Id> _sorted;     // used when ids are too far apart
    Id _twice = 0;
};

}  // namespace vex::store
