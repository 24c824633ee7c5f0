// SPDX-License-Identifier: Apache-2.0
// A command line as main gets it: entries that can be written to, any of them null.
#pragma once

#include <initializer_list>
#include <string>
#include <vector>

namespace hlxtest {

class CommandLine
{
public:
    /// The entries, the program's name included; a null one stays null.
    CommandLine(std::initializer_list<const char*> entries)
        : CommandLine(std::vector<const char*>(entries))
    {}

    explicit CommandLine(const std::vector<const char*>& entries)
    {
        _texts.reserve(entries.size());
        for (const char* const entry : entries) {
            _texts.emplace_back(entry == nullptr ? "" : entry);
            _argv.push_back(entry == nullptr ? nullptr : _texts.back().data());
        }
        _argv.push_back(nullptr);
    }

    CommandLine(const CommandLine&) = delete;
    CommandLine& operator=(const CommandLine&) = delete;

    int Count() const { return static_cast<int>(_texts.size()); }
    char** Values() { return _argv.data(); }

private:
    std::vector<std::string> _texts;
    std::vector<char*> _argv;
};

}  // namespace hlxtest
