// SPDX-License-Identifier: Apache-2.0
// What a process made for one piece of work may take.
#pragma once

#include <sys/types.h>

#include <cstddef>

namespace vex::topology {

// What a child may take.
struct ChildLimits
{
    int seconds = 0;           // of the clock; `TimedOut` after it
    int processorSeconds = 0;  // of processor time, `TimedOut` after it; 0 when there is no limit
    // Of memory in use beyond the parent's, `OutOfMemory` after it; 0 when there is no limit. It is
    // looked at now and then. The work is not just refused what goes beyond it: the kernel would go
    // on without what it has no memory for, and say nothing.
    std::size_t bytes = 0;
};

// Sets the limits of this process that the system watches: that of processor time, and no core is
// written. A limit that is lower already stays.
void Obey(const ChildLimits& limits);

// The bytes of memory that a process has in use, but for its files; 0 when it is gone.
std::size_t MemoryOf(pid_t process);

}  // namespace vex::topology
