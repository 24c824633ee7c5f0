// SPDX-License-Identifier: Apache-2.0
// Cells of a domain, asked of the shape once.
#include "host/part/Domain.h"

#include "host/part/Body.h"

namespace vex {

Domain::Domain(Body& body, int codimension, std::size_t index)
    : BodyMember(ComponentTypes::Instance().Require("VEXDomain"), body),
      _codimension(codimension),
      _index(index)
{}

Cell* Domain::CellAt(std::size_t number, int codimension)
{
    if (codimension < 0 || codimension > 3) {
        return nullptr;
    }
    auto& cells = _cells[static_cast<std::size_t>(codimension)];
    if (!cells) {
        cells = OwnBody().Shape().DomainCells(_codimension, _index, 3 - codimension);
    }
    return number < 1 || number > cells->size()
               ? nullptr
               : OwnBody().CellAt(3 - codimension, (*cells)[number - 1]);
}

}  // namespace vex
