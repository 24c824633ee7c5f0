// SPDX-License-Identifier: Apache-2.0
// Run-time classes and their registry.
#include "host/component/MetaClassRegistry.h"

#include <cstring>

MetaClassRegistry& MetaClassRegistry::Instance()
{
    static MetaClassRegistry& registry = *new MetaClassRegistry;
    return registry;
}

VEXMetaClass* MetaClassRegistry::FindOrMake(const char* name, int kind, const VEXMetaClass* base,
                                            const char* lateType, const char* framework)
{
    std::unique_ptr<VEXMetaClass>& place = _classes[name];
    if (!place) {
        place.reset(new VEXMetaClass(name, kind, base, lateType, framework));
    }
    return place.get();
}

VEXMetaClass::VEXMetaClass(const char* name, int kind, const VEXMetaClass* base,
                           const char* lateType, const char* framework)
    : _name(name),
      _kind(kind),
      _base(base),
      _lateType(lateType == nullptr ? "" : lateType),
      _framework(framework == nullptr ? "" : framework),
      _classId(VEXGuidOfName(name))
{}

VEXMetaClass* VEXMetaClass::Get(const char* name, int kind, const VEXMetaClass* base,
                                const char* lateType, const char* framework)
{
    return name == nullptr
               ? nullptr
               : MetaClassRegistry::Instance().FindOrMake(name, kind, base, lateType, framework);
}

int VEXMetaClass::IsAKindOf(const char* name) const
{
    if (name == nullptr) {
        return 0;
    }
    for (const VEXMetaClass* one = this; one != nullptr; one = one->_base) {
        if (one->_name == name) {
            return 1;
        }
    }
    return 0;
}
