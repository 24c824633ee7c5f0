// SPDX-License-Identifier: Apache-2.0
// The one way a query goes, of components and of objects without a row: checked, and observed as
// "cast:COMPONENT->INTERFACE" while probes are active.
#pragma once

#include "VEXBaseUnknown.h"

#include <string_view>

namespace vex {

/// The interface of `component` for `iid`, not counted; null when it lacks it.
using InterfaceFinder = VEXBaseUnknown* (*)(const VEXBaseUnknown& component, const IID& iid);

/// Answers a query; `name` is the interface's name when the caller gave one, else null.
HRESULT Cast(const VEXBaseUnknown& component, InterfaceFinder find, const IID& iid,
             const char* name, void** object);

/// The identifier of a name that the caller gave; of a null name, one that no interface has.
IID IdOfInterface(const char* name);

}  // namespace vex
