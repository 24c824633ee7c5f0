// SPDX-License-Identifier: Apache-2.0
// The iterator over the cells that bound a cell.
#pragma once

#include "VEXTopology.h"
#include "host/part/Body.h"

namespace vex {

/// Holds a reference of the body.
class BoundedCells final : public VEXBoundedCellsIterator
{
public:
    explicit BoundedCells(const Cell& cell);

    HRESULT Initialize() override;
    VEXCell* Next() override;

private:
    const Cell* _cell;
    BodyHolder _body;
    std::vector<std::size_t> _boundary;
    std::size_t _next = 0;
};

}  // namespace vex
