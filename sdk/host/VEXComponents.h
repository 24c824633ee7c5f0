// SPDX-License-Identifier: Apache-2.0
// Making components by name.
#pragma once

#include "VEXBaseUnknown.h"

/// Makes the component of that class name and asks it for an interface. Factories and services are
/// process-wide objects: each call hands out the same one, with a reference added that the caller
/// releases.
/// @param object  receives the interface; null on failure
/// @return S_OK; E_POINTER for a null argument; E_FAIL when no component has that name;
/// E_NOINTERFACE when it lacks the interface
VEX_EXPORT HRESULT VEXInstantiateComponent(const char* className, const IID& iid, void** object);

/// Makes the object of type `type` from the component library `library` (loaded from the search
/// path on first use).
/// @param name      name of the object among several of its type, null for the only one
/// @param library   component library that holds it
/// @param argument  passed to the library's maker, null as a rule
/// @return the object: owned by the host, handed out uncounted (the caller does not release it);
/// null when it cannot be made, with the
///         reason on standard error
VEX_EXPORT VEXBaseUnknown* VEXCreateExternalObject(const char* type, const char* name,
                                                   const char* library, void* argument);
