// SPDX-License-Identifier: Apache-2.0
// The edge that an entity turns about: a region below it, to which an attribute of it refers.
#pragma once

#include "VEXProductStructure.h"
#include "host/feature/Feature.h"

#include <string_view>

namespace vex {

/// Makes an edge of a part the axis of an entity, in place of the one it had.
/// @param attribute  of kind reference, of the entity
/// @return as VEXISamAnalysisSupport::AddSupport; E_INVALIDARG also for geometry that is no edge
VEX_EXPORT HRESULT SetAxis(Feature& entity, std::string_view attribute,
                           const VEXILinkableObject_var& edge, const VEXISpecObject_var& part);

}  // namespace vex
