// SPDX-License-Identifier: Apache-2.0
// Goes through the cells that bound a cell.
#include "host/part/BoundedCells.h"

#include "host/system/Probe.h"

namespace vex {

BoundedCells::BoundedCells(const Cell& cell) : _cell(&cell)
{
    cell.AddRef();
    _body.reset(&cell.OwnBody());
}

HRESULT BoundedCells::Initialize()
{
    return Probe<"VEXBoundedCellsIterator::Initialize">([&]() -> HRESULT {
        _next = 0;
        _boundary.clear();
        if (_body->IsGone()) {
            return E_FAIL;
        }
        _boundary = _body->Shape().CellBoundary(_cell->Dimension(), _cell->Index());
        return S_OK;
    });
}

VEXCell* BoundedCells::Next()
{
    return Probe<"VEXBoundedCellsIterator::Next">([&]() -> VEXCell* {
        if (_next == _boundary.size() || _body->IsGone()) {
            return nullptr;
        }
        const Cell* const cell = _body->CellAt(_cell->Dimension() - 1, _boundary[_next++]);
        return cell == nullptr ? nullptr : cell->Face<VEXCell>();
    });
}

}  // namespace vex
