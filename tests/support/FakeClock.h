// SPDX-License-Identifier: Apache-2.0
// The standard runtime's time() and clock(), as a test wants them.
#pragma once

#include <ctime>
#include <functional>

namespace hlxtest {

/// While it lives, time() and clock() answer what its two functions do, wherever in the process
/// they are called; what has no function answers the truth. One at a time.
class FakeClock
{
public:
    FakeClock();
    ~FakeClock();
    FakeClock(const FakeClock&) = delete;
    FakeClock& operator=(const FakeClock&) = delete;

    std::function<std::time_t()> time;
    std::function<std::clock_t()> clock;
};

}  // namespace hlxtest
