// SPDX-License-Identifier: Apache-2.0
// Runs work that may crash or never end in a child process, and brings its result back.
#pragma once

#include "host/topology/ChildLimits.h"

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

namespace vex::topology {

// What the work says while it runs.
struct ChildReport
{
    std::function<void(const std::string&)>
        phase;  // what it is at, in words that fit after "while"
    std::function<void(const std::string&)>
        warning;  // what its user should know although it goes on
};

using ChildWork = std::function<std::vector<std::byte>(const ChildReport&)>;

struct ChildOutcome
{
    enum class End {
        Done,         // `result` is what the work returned
        Failed,       // the work threw a std::exception, `text` is what it said
        Broken,       // the child ended before the work did, `text` tells how
        TimedOut,     // the work took too long, and the child was ended
        OutOfMemory,  // the work took too much memory, or was refused some, and the child was ended
    };
    End end = End::Broken;
    std::vector<std::byte> result;
    std::string text;
    std::string phase = "starting";  // the last one
    std::vector<std::string> warnings;
};

// The child sees the process as it is now, changes nothing of it and writes nothing to its standard
// output; it ends with its parent. Other threads do not exist in it, so the work must not wait for
// one. Throws std::system_error when the system gives no child.
ChildOutcome RunInChild(const ChildWork& work, const ChildLimits& limits);

}  // namespace vex::topology
