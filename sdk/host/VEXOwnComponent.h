// SPDX-License-Identifier: Apache-2.0
// Components of one's own: how a user puts, say, a writer of input files of his own in the place of
// the one that comes with the product. A component library (VEXComponentLibrary.h) that is written
// with this header needs the SDK and the library VEXHost, nothing else; examples/own_writer is one.
//
//   class CaseTable final : public VEXOwnComponent<CaseTable, HLXIIfwTraverser>
//   {
//   public:
//       static constexpr const char* ComponentName = "HLXIfwTraverser";
//       static constexpr const char* LibraryName = "HLXIfwExportTraverser";
//       HRESULT WriteInputFile(const VEXUnicodeString&, VEXListValVEXBaseUnknown_var&) override;
//   };
//
//   const VEXComponentLibrary* VEXGetComponentLibrary()
//   {
//       return VEXOwnComponentLibrary<CaseTable>();
//   }
//
// The host makes one object of a component when it is first asked for, and keeps it to the end of
// the process. No exception may leave an operation. Probes do not see what is called of it (a fault
// of HLXIIfwTraverser::WriteInputFile meets the product's writer only); they see what it calls.
#pragma once

#include "VEXComponentLibrary.h"
#include "VEXMetaClass.h"
#include "VEXVar.h"

/// Base of a component with one interface: answers queries, and is of the run-time class and
/// library that the derived class names. What is left to write are the interface's operations.
template <class Self, class Interface>
class VEXOwnComponent : public Interface
{
public:
    /// The object for `Interface` and for VEXBaseUnknown.
    HRESULT QueryInterface(const IID& iid, void** object) const override
    {
        if (object == nullptr) {
            return E_POINTER;
        }
        const bool found = iid == VEXInterfaceTraits<Interface>::Id || iid == IID_VEXBaseUnknown;
        Interface* const self = const_cast<VEXOwnComponent*>(this);
        *object = found ? self : nullptr;
        if (!found) {
            return E_NOINTERFACE;
        }
        this->AddRef();
        return S_OK;
    }

    HRESULT QueryInterface(const char* interfaceName, void** object) const override
    {
        return QueryInterface(interfaceName == nullptr ? IID{} : VEXGuidOfName(interfaceName),
                              object);
    }

    VEXMetaClass* GetMetaObject() const override
    {
        return VEXMetaClass::Get(Self::ComponentName, VEXImplementationClass,
                                 VEXBaseUnknown::MetaObject(), "VEXNull", Self::LibraryName);
    }
};

/// The row of a component of one's own, which must be constructible without arguments.
template <class Component>
constexpr VEXComponentRow VEXOwnComponentRow()
{
    return {Component::ComponentName, nullptr, {}, [](void*) -> VEXBaseUnknown* {
                return new Component;
            }};
}

/// The table of a library of such components; lives to the end of the process. Its name is the
/// LibraryName of the first: that of the file without "lib" and ".so".
template <class First, class... Others>
const VEXComponentLibrary* VEXOwnComponentLibrary()
{
    static constexpr VEXComponentRow rows[] = {VEXOwnComponentRow<First>(),
                                               VEXOwnComponentRow<Others>()...};
    static constexpr VEXComponentLibrary library = {VEXComponentLibraryVersion, First::LibraryName,
                                                    rows, nullptr};
    return &library;
}
