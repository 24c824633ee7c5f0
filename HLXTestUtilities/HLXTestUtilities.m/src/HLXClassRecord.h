// SPDX-License-Identifier: Apache-2.0
// Defines the run-time class record that a class of the library declares in its header.
#pragma once

#include "VEXMetaClass.h"

/// All class-record operations of `Class`, derived from `Base`; once, in the class's source.
#define HLX_CLASS_RECORD(Class, Base)                                                           \
    VEXMetaClass* Class::meta_object = nullptr;                                                 \
                                                                                                \
    VEXMetaClass* Class::MetaObject()                                                           \
    {                                                                                           \
        if (meta_object == nullptr) {                                                           \
            meta_object = VEXMetaClass::Get(#Class, VEXImplementationClass, Base::MetaObject(), \
                                            "VEXNull", "HLXTestUtilities");                     \
        }                                                                                       \
        return meta_object;                                                                     \
    }                                                                                           \
                                                                                                \
    VEXMetaClass* Class::GetMetaObject() const                                                  \
    {                                                                                           \
        return MetaObject();                                                                    \
    }                                                                                           \
    const GUID& Class::ClassId()                                                                \
    {                                                                                           \
        return HLXClassRecord::ClassIdOf(MetaObject());                                         \
    }                                                                                           \
    const char* Class::ClassName()                                                              \
    {                                                                                           \
        return #Class;                                                                          \
    }                                                                                           \
    const char* Class::IsA() const                                                              \
    {                                                                                           \
        return #Class;                                                                          \
    }                                                                                           \
    int Class::IsAKindOf(const char* name) const                                                \
    {                                                                                           \
        return HLXClassRecord::IsKindOf(MetaObject(), name);                                    \
    }                                                                                           \
    VEXBaseUnknown* Class::CreateItself()                                                       \
    {                                                                                           \
        return nullptr;                                                                         \
    }                                                                                           \
    static_assert(true)

// What the record answers when the registry gave no meta-class.
namespace HLXClassRecord {

inline const GUID& ClassIdOf(const VEXMetaClass* metaClass)
{
    static constexpr GUID none;
    return metaClass == nullptr ? none : metaClass->GetClassId();
}

inline int IsKindOf(const VEXMetaClass* metaClass, const char* name)
{
    return metaClass == nullptr ? 0 : metaClass->IsAKindOf(name);
}

}  // namespace HLXClassRecord
