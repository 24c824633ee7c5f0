// SPDX-License-Identifier: Apache-2.0
// What a process made for one piece of work may take.
#pragma once

#include <cstddef>

namespace vex::topology {

// What a child may take.
struct ChildLimits
{
    int seconds = 0;           // of the clock; `TimedOut` after it
    int processorSeconds = 0;  // of processor time, `TimedOut` after it; 0 when there is no limit
    // Of address space beyond the parent's; 0 when there is no limit. The work is refused what
    // goes beyond it. Sanitizers reserve more than any limit: built with them there is none.
    std::size_t bytes = 0;
};

// Sets the limits of this process that the system watches: all but that of the clock, and no core
// is written. A limit that is lower already stays.
void Obey(const ChildLimits& limits);

}  // namespace vex::topology
