// SPDX-License-Identifier: Apache-2.0
#include "host/topology/ChildLimits.h"

#include <sys/resource.h>
#include <unistd.h>

#include <algorithm>
#include <fstream>
#include <string>

namespace vex::topology {
namespace {

void Limit(__rlimit_resource resource, rlim_t most)
{
    rlimit limit{};
    if (::getrlimit(resource, &limit) != 0) return;
    limit.rlim_cur = std::min({most, limit.rlim_cur, limit.rlim_max});
    ::setrlimit(resource, &limit);
}

}  // namespace

void Obey(const ChildLimits& limits)
{
    Limit(RLIMIT_CORE, 0);
    if (limits.processorSeconds > 0) {
        Limit(RLIMIT_CPU, static_cast<rlim_t>(limits.processorSeconds));
    }
}

std::size_t MemoryOf(pid_t process)
{
    std::size_t addressed = 0;
    std::size_t used = 0;
    std::size_t ofFiles = 0;
    std::ifstream("/proc/" + std::to_string(process) + "/statm") >> addressed >> used >> ofFiles;
    return (used - std::min(used, ofFiles)) * static_cast<std::size_t>(::sysconf(_SC_PAGESIZE));
}

}  // namespace vex::topology
