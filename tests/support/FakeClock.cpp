// SPDX-License-Identifier: Apache-2.0
// The two functions are defined here, in the test program, where the linker looks before it comes
// to the runtime.
#include "support/FakeClock.h"

#include "VEXTypes.h"

#include <ctime>

namespace hlxtest {

namespace {

FakeClock* current = nullptr;

timespec Read(clockid_t clock)
{
    timespec now{};
    clock_gettime(clock, &now);
    return now;
}

}  // namespace

FakeClock::FakeClock()
{
    current = this;
}

FakeClock::~FakeClock()
{
    current = nullptr;
}

}  // namespace hlxtest

extern "C" {

VEX_EXPORT time_t time(time_t* result) noexcept
{
    using hlxtest::current;
    const time_t now = current != nullptr && current->time ? current->time()
                                                           : hlxtest::Read(CLOCK_REALTIME).tv_sec;
    if (result != nullptr) {
        *result = now;
    }
    return now;
}

VEX_EXPORT clock_t clock() noexcept
{
    using hlxtest::current;
    if (current != nullptr && current->clock) {
        return current->clock();
    }
    const timespec used = hlxtest::Read(CLOCK_PROCESS_CPUTIME_ID);
    return used.tv_sec * CLOCKS_PER_SEC + used.tv_nsec * CLOCKS_PER_SEC / 1'000'000'000;
}

}  // extern "C"
