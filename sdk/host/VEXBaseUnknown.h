// SPDX-License-Identifier: Apache-2.0
// The base of every object of the platform: counting, queries, run-time class.
//
// A component is an object with several interfaces. Each interface is a class derived from
// VEXBaseUnknown that adds its own operations; a query on any interface of a component reaches
// every other one. The order of the virtual operations is binary contract: an interface's own
// operations follow the seventeen of this class.
#pragma once

#include "VEXTypes.h"

class VEXMetaClass;

class VEX_EXPORT VEXBaseUnknown
{
public:
    /// Asks the component for the interface `iid`. On success `*object` is that interface with one
    /// reference added, which the caller releases. Errors: E_POINTER when `object` is null;
    /// E_NOINTERFACE (and null in `*object`) when the component lacks the interface.
    virtual HRESULT QueryInterface(const IID& iid, void** object) const;

    /// Adds a reference (the platform has one thread; counts are plain); answers the new count (for
    /// diagnosis only).
    virtual unsigned long AddRef() const;

    /// Drops a reference; the object dies with its last one. Answers the new count (for diagnosis
    /// only).
    virtual unsigned long Release() const;

    /// The four operations of late-bound calls; no component of this platform offers them:
    /// E_NOTIMPL.
    virtual HRESULT GetTypeInfoCount(unsigned int* count) const;
    virtual HRESULT GetTypeInfo(unsigned int index, unsigned long locale, void** typeInfo) const;
    virtual HRESULT GetIDsOfNames(const IID& reserved, char** names, unsigned int count,
                                  unsigned long locale, long* identifiers) const;
    virtual HRESULT Invoke(long member, const IID& reserved, unsigned long locale,
                           unsigned short flags, void* parameters, void* result) const;

    /// As the query by identifier, by the interface's name.
    virtual HRESULT QueryInterface(const char* interfaceName, void** object) const;

    virtual ~VEXBaseUnknown();

    /// The run-time class of this object; owned by the registry.
    virtual VEXMetaClass* GetMetaObject() const;

    /// The name of the run-time class.
    virtual const char* IsA() const;

    /// 1 when the run-time class, or one it derives from, bears the name; else 0.
    virtual int IsAKindOf(const char* name) const;

    /// The component behind this interface (not counted); the object itself when it is its own
    /// component.
    virtual VEXBaseUnknown* GetImpl() const;

    /// Binds an interface object to its component. Only the component model calls it; other objects
    /// ignore it.
    virtual void SetImpl(VEXBaseUnknown* component);

    /// 1 when there is nothing behind the interface any more (its document was removed); else 0.
    virtual int IsNull() const;

    /// 1 when both are interfaces of one component; else 0.
    virtual int IsEqual(const VEXBaseUnknown* other) const;

    /// Tells a component that its state changes; components of this platform keep no such state:
    /// E_NOTIMPL.
    virtual HRESULT ChangeComponentState(int state, const VEXBaseUnknown* origin) const;

    /// A new object starts with a count of one. Copying an object never copies its count.
    VEXBaseUnknown() noexcept = default;
    VEXBaseUnknown(const VEXBaseUnknown&) noexcept {}
    VEXBaseUnknown& operator=(const VEXBaseUnknown&) noexcept { return *this; }

    /// The class's own record: its run-time class, that one's identifier, its name, a new object.
    static VEXMetaClass* MetaObject();
    static const GUID& ClassId();
    static const char* ClassName();
    static VEXBaseUnknown* CreateItself();

protected:
    /// The present count; for components that live on in a tree without outside holders.
    unsigned long ReferenceCount() const noexcept { return _count; }

    mutable std::uint32_t _count = 1;
};

/// One line of identity for an interface class, after its definition: its IID, its name at compile
/// time, its handle.
#define VEX_INTERFACE(Interface)                                      \
    inline constexpr IID IID_##Interface = VEXGuidOfName(#Interface); \
    template <>                                                       \
    struct VEXInterfaceTraits<Interface>                              \
    {                                                                 \
        static constexpr const char* Name = #Interface;               \
        static constexpr IID Id = VEXGuidOfName(#Interface);          \
    };                                                                \
    using Interface##_var = VEXVar<Interface>

template <class Interface>
struct VEXInterfaceTraits;

template <class Interface>
class VEXVar;

/// The identifier under which a component answers itself.
inline constexpr IID IID_VEXBaseUnknown = VEXGuidOfName("VEXBaseUnknown");

template <>
struct VEXInterfaceTraits<VEXBaseUnknown>
{
    static constexpr const char* Name = "VEXBaseUnknown";
    static constexpr IID Id = IID_VEXBaseUnknown;
};

using VEXBaseUnknown_var = VEXVar<VEXBaseUnknown>;
