// SPDX-License-Identifier: Apache-2.0
// Components with outside references, by identity, so that one that was held before the account
// began and is let go within it does not hide another.
#pragma once

#include "VEXBaseUnknown.h"

#include <cstdint>
#include <map>
#include <string>
#include <unordered_map>

namespace vex::probe {

class HeldObjectAccount
{
public:
    void Add(const VEXBaseUnknown* object, const char* type) { _types[object] = type; }
    void Remove(const VEXBaseUnknown* object) { _types.erase(object); }
    void Clear() { _types.clear(); }

    std::map<std::string, std::int64_t> ByType() const
    {
        std::map<std::string, std::int64_t> counts;
        for (const auto& [object, type] : _types) {
            ++counts[type];
        }
        return counts;
    }

private:
    std::unordered_map<const VEXBaseUnknown*, std::string> _types;
};

}  // namespace vex::probe
