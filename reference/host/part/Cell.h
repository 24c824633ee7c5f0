// SPDX-License-Identifier: Apache-2.0
// A cell of a body: where it stands in the shape.
#pragma once

#include "VEXTopology.h"
#include "host/part/BodyMember.h"

#include <cstddef>

namespace vex {

class Document;

class VEX_EXPORT Cell final : public BodyMember
{
public:
    /// @param dimension  0 to 3  @param index  from 1, as the shape numbers its cells
    Cell(Body& body, int dimension, std::size_t index);

    int Dimension() const noexcept { return _dimension; }
    std::size_t Index() const noexcept { return _index; }

private:
    int _dimension;
    std::size_t _index;
};

/// The document that holds a cell's part; null when the cell is gone.
const Document* DocumentOf(const Cell& cell);

}  // namespace vex
