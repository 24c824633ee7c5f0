// SPDX-License-Identifier: Apache-2.0
// Advisory locks on folders.
#include "host/system/FolderLock.h"

#include "host/system/MessageTexts.h"

#include <fmt/format.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <thread>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>

namespace vex::system {
namespace {

using Clock = std::chrono::steady_clock;
using namespace std::chrono_literals;

// How long to wait for one who changes nothing in the folder, and for all those who do.
constexpr auto kPatience = 5s;
constexpr auto kLongest = 60s;

// When the folder was changed last.
timespec LastChange(int folder)
{
    struct stat status = {};
    return ::fstat(folder, &status) == 0 ? status.st_mtim : timespec{};
}

bool AreSame(const timespec& one, const timespec& other)
{
    return one.tv_sec == other.tv_sec && one.tv_nsec == other.tv_nsec;
}

}  // namespace

bool FolderLock::Take(const std::string& folder, std::string& error)
{
    _folder = Descriptor(Descriptor::AboveStandardStreams(
        ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)));
    if (!_folder.IsOpen()) {
        error = fmt::format(
            "{}: the folder cannot be opened: {}. Check the path and the "
            "permissions.",
            Quoted(folder), SystemReason(errno));
        return false;
    }
    const Clock::time_point end = Clock::now() + kLongest;
    Clock::time_point deadline = Clock::now() + kPatience;
    timespec change = LastChange(_folder.Number());
    while (::flock(_folder.Number(), LOCK_EX | LOCK_NB) != 0) {
        if (errno != EWOULDBLOCK && errno != EINTR) return true;  // no locks here
        if (const timespec latest = LastChange(_folder.Number()); !AreSame(latest, change)) {
            change = latest;
            deadline = std::min(Clock::now() + kPatience, end);
        }
        if (Clock::now() > deadline) {
            error =
                fmt::format("{}: another process keeps the folder locked. End it and try again.",
                            Quoted(folder));
            return false;
        }
        std::this_thread::sleep_for(1ms);
    }
    return true;
}

}  // namespace vex::system
