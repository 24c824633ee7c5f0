// SPDX-License-Identifier: Apache-2.0
// An environment variable for as long as the object lives; then it is what it was.
#pragma once

#include <cstdlib>
#include <ctime>
#include <optional>
#include <string>

namespace hlxtest {

class EnvironmentVariable
{
public:
    /// @param value  null: the variable is not there
    EnvironmentVariable(const char* name, const char* value) : _name(name)
    {
        if (const char* const former = std::getenv(name)) _former = former;
        Put(value);
    }
    ~EnvironmentVariable() { Put(_former ? _former->c_str() : nullptr); }
    EnvironmentVariable(const EnvironmentVariable&) = delete;
    EnvironmentVariable& operator=(const EnvironmentVariable&) = delete;

private:
    void Put(const char* value) const
    {
        if (value != nullptr) {
            ::setenv(_name, value, 1);
        } else {
            ::unsetenv(_name);
        }
        ::tzset();  // the time zone is such a variable
    }

    const char* _name;
    std::optional<std::string> _former;
};

}  // namespace hlxtest
