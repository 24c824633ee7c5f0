// SPDX-License-Identifier: Apache-2.0
// Rows of what leads to a part's shape: the container of a part document, the part, its bodies, its
// features of shape, and accesses to cells.
#pragma once

#include "host/component/ComponentTypes.h"

#include <span>

namespace vex {

extern const std::span<const VEXInterfaceRow> partContainerInterfaces;
extern const std::span<const VEXInterfaceRow> partInterfaces;
extern const std::span<const VEXInterfaceRow> mechanicalToolInterfaces;
extern const std::span<const VEXInterfaceRow> importedShapeInterfaces;
extern const std::span<const VEXInterfaceRow> brepAccessInterfaces;

}  // namespace vex
