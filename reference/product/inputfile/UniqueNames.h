// SPDX-License-Identifier: Apache-2.0
// Names of which each is given once: parts and instances are found by name in a deck, while aliases
// may repeat.
#pragma once

#include <cstdint>
#include <string>
#include <unordered_map>

namespace hlx {

class UniqueNames
{
public:
    /// `wish` when it is still free, else the first free one of "wish (2)", "wish (3)", …
    std::string Make(const std::string& wish)
    {
        if (_taken.emplace(wish, 1).second) {
            return wish;
        }
        std::uint64_t number = _taken[wish];
        std::string name;
        do {
            name = wish + " (" + std::to_string(++number) + ")";
        } while (!_taken.emplace(name, 1).second);
        _taken[wish] = number;
        return name;
    }

private:
    std::unordered_map<std::string, std::uint64_t> _taken;  ///< with the last number tried
};

}  // namespace hlx
