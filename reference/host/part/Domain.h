// SPDX-License-Identifier: Apache-2.0
// A domain of a body: one piece, with its cells.
#pragma once

#include "host/part/BodyMember.h"

#include <array>
#include <cstddef>
#include <optional>
#include <vector>

namespace vex {

class Cell;

class VEX_EXPORT Domain final : public BodyMember
{
public:
    /// @param codimension  0 to 3  @param index  from 1, as the shape numbers its domains
    Domain(Body& body, int codimension, std::size_t index);

    /// The cell of that number (from 1) among those of a codimension; null when there is none.
    Cell* CellAt(std::size_t number, int codimension);

private:
    int _codimension;
    std::size_t _index;
    std::array<std::optional<std::vector<std::size_t>>, 4> _cells;  ///< indices, by codimension
};

}  // namespace vex
