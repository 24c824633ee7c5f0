// SPDX-License-Identifier: Apache-2.0
// Run-time classes and their process-wide registry. The registry owns every meta-class; pointers
// stay valid to the end.
#pragma once

#include "VEXTypes.h"

#include <string>

/// How a class takes part in the component model.
enum VEXClassKind : int {
    VEXInterfaceClass = 0,
    VEXImplementationClass = 1,
};

/// A run-time class. Names of ours: all.
class VEX_EXPORT VEXMetaClass
{
public:
    /// The meta-class of that name from the registry, made on first call.
    /// @param name       class name; a null name is no class: null is returned
    /// @param kind       one of VEXClassKind
    /// @param base       meta-class of the base class, null for the root
    /// @param lateType   late type of the objects, "VEXNull" when they have none
    /// @param framework  component library that holds the class
    /// A second call with the same name answers the first call's meta-class, whatever its other
    /// arguments.
    static VEXMetaClass* Get(const char* name, int kind, const VEXMetaClass* base,
                             const char* lateType, const char* framework);

    const char* GetName() const { return _name.c_str(); }
    int GetKind() const { return _kind; }
    const VEXMetaClass* GetBase() const { return _base; }
    const char* GetLateType() const { return _lateType.c_str(); }
    const char* GetFramework() const { return _framework.c_str(); }

    /// The class identifier, derived from the name.
    const GUID& GetClassId() const { return _classId; }

    /// 1 when this class or one of its bases bears `name`; 0 otherwise, for a null name too.
    int IsAKindOf(const char* name) const;

    VEXMetaClass(const VEXMetaClass&) = delete;
    VEXMetaClass& operator=(const VEXMetaClass&) = delete;

private:
    friend class MetaClassRegistry;
    VEXMetaClass(const char* name, int kind, const VEXMetaClass* base, const char* lateType,
                 const char* framework);

    std::string _name;
    int _kind;
    const VEXMetaClass* _base;
    std::string _lateType;
    std::string _framework;
    GUID _classId;
};
