// SPDX-License-Identifier: Apache-2.0
// The names that probes go by: the generated table of operations, casts, and the interfaces of
// sdk/.
#pragma once

#include "host/system/Probe.h"

#include <string_view>

namespace vex::probe {

inline constexpr std::string_view kCastPrefix = "cast:";
inline constexpr std::string_view kCastArrow = "->";

/// The operation of that name; null when there is none.
const PointDefinition* FindPoint(std::string_view name);

/// What all casts are: a result and an object.
const PointDefinition& CastPoint();

bool IsInterfaceName(std::string_view name);

/// The name of an interface of sdk/; empty for another identifier.
VEX_EXPORT std::string_view InterfaceName(const IID& iid);

/// Whether some component can bear this name: a row of the component table or a class in the
/// registry of meta-classes. Declared here for the check of faults and defined by the component
/// folder, which knows them (ComponentNames.cpp).
bool IsComponentName(std::string_view name);

}  // namespace vex::probe
