// SPDX-License-Identifier: Apache-2.0
// What a component library exports. A component library is a shared object lib<Name>.so on the
// search path (VEX_COMPONENT_PATH, then the host's own folder) with one exported function,
// VEXGetComponentLibrary, that answers its table. The first library of a name that the search path
// holds wins: that is how a component is replaced without relinking. One that is refused is not
// passed over for a later one: what it should have made cannot be made, and the reason is told on
// standard error. VEXOwnComponent.h makes such a library easy to write.
#pragma once

#include "VEXBaseUnknown.h"

#include <span>

/// Version of these structures; a library built for another one is refused by name.
inline constexpr unsigned int VEXComponentLibraryVersion = 1;

/// Makes one interface of a component: an adapter bound to it. The component owns the adapter and
/// deletes it.
using VEXInterfaceMaker = VEXBaseUnknown* (*)(VEXBaseUnknown& component);

struct VEXInterfaceRow
{
    const char* InterfaceName;
    VEXInterfaceMaker Make;
};

/// One component or late type with its interfaces.
struct VEXComponentRow
{
    const char* Name;  ///< class name or late type
    const char* Base;  ///< row whose interfaces this one extends (of this or an earlier library),
                       ///< null for none
    /// Those made by adapters; none for a component that answers queries itself.
    std::span<const VEXInterfaceRow> Interfaces;
    /// Makes the component (count 1); null where VEXInstantiateComponent cannot make it, as for
    /// late types.
    VEXBaseUnknown* (*Create)(void* argument);
};

/// The table of a library. Version and Name keep their places in every version.
struct VEXComponentLibrary
{
    unsigned int Version;  ///< VEXComponentLibraryVersion at compile time
    const char* Name;      ///< the library's name, without "lib" and ".so"
    std::span<const VEXComponentRow> Components;
    /// Called once after the table was accepted; a negative result refuses the library. Null when
    /// there is nothing to do.
    HRESULT (*Start)();
};

/// Name of the exported function and its type.
inline constexpr const char* VEXComponentLibraryEntry = "VEXGetComponentLibrary";
using VEXComponentLibraryFunction = const VEXComponentLibrary* (*)();

/// What every component library defines; the host calls it. Name of ours.
extern "C" VEX_EXPORT const VEXComponentLibrary* VEXGetComponentLibrary();
