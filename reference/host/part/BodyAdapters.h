// SPDX-License-Identifier: Apache-2.0
// Rows of bodies, domains and cells.
#pragma once

#include "host/component/ComponentTypes.h"

#include <span>

namespace vex {

extern const std::span<const VEXInterfaceRow> bodyInterfaces;
extern const std::span<const VEXInterfaceRow> domainInterfaces;
extern const std::span<const VEXInterfaceRow> volumeCellInterfaces;
extern const std::span<const VEXInterfaceRow> faceCellInterfaces;
extern const std::span<const VEXInterfaceRow> edgeCellInterfaces;
extern const std::span<const VEXInterfaceRow> vertexCellInterfaces;

}  // namespace vex
