// SPDX-License-Identifier: Apache-2.0
#include "host/topology/ChildLimits.h"

#include <sys/resource.h>
#include <unistd.h>

#include <algorithm>
#include <fstream>

namespace vex::topology {
namespace {

void Limit(__rlimit_resource resource, rlim_t most)
{
    rlimit limit{};
    if (::getrlimit(resource, &limit) != 0) return;
    limit.rlim_cur = std::min({most, limit.rlim_cur, limit.rlim_max});
    ::setrlimit(resource, &limit);
}

#if defined(__SANITIZE_ADDRESS__)
constexpr bool kLimitsMemory = false;
#elif defined(__has_feature)
constexpr bool kLimitsMemory = !__has_feature(address_sanitizer);
#else
constexpr bool kLimitsMemory = true;
#endif

// Of this process, which at first is as large as its parent.
std::size_t AddressSpace()
{
    std::size_t pages = 0;
    std::ifstream("/proc/self/statm") >> pages;
    return pages * static_cast<std::size_t>(::sysconf(_SC_PAGESIZE));
}

}  // namespace

void Obey(const ChildLimits& limits)
{
    Limit(RLIMIT_CORE, 0);
    if (limits.processorSeconds > 0) {
        Limit(RLIMIT_CPU, static_cast<rlim_t>(limits.processorSeconds));
    }
    if (kLimitsMemory && limits.bytes > 0) {
        Limit(RLIMIT_AS, AddressSpace() + limits.bytes);
    }
}

}  // namespace vex::topology
