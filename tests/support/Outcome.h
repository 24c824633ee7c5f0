// SPDX-License-Identifier: Apache-2.0
// Result and output of an operation as one value, and the platform calls that it made as lines, so
// that a test compares each with what was typed.
#pragma once

#include "support/Capture.h"
#include "support/Platform.h"

#include <ostream>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

namespace hlxtest {

struct Outcome
{
    long result;
    std::string out;
    std::string err;

    friend bool operator==(const Outcome&, const Outcome&) = default;
    friend void PrintTo(const Outcome& outcome, std::ostream* stream)
    {
        *stream << outcome.result << ", out " << testing::PrintToString(outcome.out) << ", err "
                << testing::PrintToString(outcome.err);
    }
};

/// What `operation` answers (0 when it answers nothing) and writes.
template <class Operation>
Outcome OutcomeOf(Operation operation)
{
    long result = 0;
    Captured text = Capture([&] {
        if constexpr (std::is_void_v<decltype(operation())>) {
            operation();
        } else {
            result = operation();
        }
    });
    return {result, std::move(text.out), std::move(text.err)};
}

/// The same while faults are in force; none for an empty script.
template <class Operation>
Outcome RunWith(std::string_view faults, Operation operation)
{
    if (faults.empty()) {
        return OutcomeOf(operation);
    }
    const Faults inForce(faults);
    return OutcomeOf(operation);
}

/// The platform calls of `operation` whose name begins with one of `prefixes` (none: all), each as
/// "Name(argument, argument)". What it writes is not caught.
template <class Operation>
std::vector<std::string> CallsOf(Operation operation, const std::vector<std::string>& prefixes = {})
{
    Recording recording;
    operation();
    std::vector<std::string> lines;
    for (const vex::probe::Call& call : recording.Stop()) {
        bool wanted = prefixes.empty();
        for (const std::string& prefix : prefixes) {
            wanted = wanted || call.name.starts_with(prefix);
        }
        if (!wanted) {
            continue;
        }
        std::string line = call.name + "(";
        for (const std::string& argument : call.arguments) {
            line += (line.back() == '(' ? "" : ", ") + argument;
        }
        lines.push_back(line + ")");
    }
    return lines;
}

/// References to an object's component at this moment.
inline unsigned long References(const VEXBaseUnknown& object)
{
    object.AddRef();
    return object.Release();
}

}  // namespace hlxtest
