// SPDX-License-Identifier: Apache-2.0
// Names that components bear without a row of their own: the late types of the catalogues. Faults
// may name them.
#pragma once

#include "VEXTypes.h"

#include <string_view>

namespace vex {

/// Whether its owner knows components of that name.
using ComponentNameHolder = bool (*)(std::string_view name);

VEX_EXPORT void AddComponentNames(ComponentNameHolder holds);

}  // namespace vex
