// SPDX-License-Identifier: Apache-2.0
// The registry that owns all meta-classes of the process.
#pragma once

#include "VEXMetaClass.h"

#include <map>
#include <memory>
#include <string>
#include <string_view>

class MetaClassRegistry
{
public:
    static MetaClassRegistry& Instance();

    VEXMetaClass* FindOrMake(const char* name, int kind, const VEXMetaClass* base,
                             const char* lateType, const char* framework);
    bool Holds(std::string_view name) const { return _classes.find(name) != _classes.end(); }

private:
    std::map<std::string, std::unique_ptr<VEXMetaClass>, std::less<>> _classes;
};
