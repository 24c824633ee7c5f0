// SPDX-License-Identifier: Apache-2.0
// Advisory locks on folders.
#include "host/system/FolderLock.h"

#include "host/system/MessageTexts.h"

#include <fmt/format.h>

#include <cerrno>
#include <chrono>
#include <thread>

#include <fcntl.h>
#include <sys/file.h>

namespace vex::system {

bool FolderLock::Take(const std::string& folder, std::string& error)
{
    using namespace std::chrono_literals;
    const auto deadline = std::chrono::steady_clock::now() + 5s;
    _folder = Descriptor(Descriptor::AboveStandardStreams(
        ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)));
    if (!_folder.IsOpen()) {
        error = fmt::format(
            "{}: the folder cannot be opened: {}. Check the path and the "
            "permissions.",
            Quoted(folder), SystemReason(errno));
        return false;
    }
    while (::flock(_folder.Number(), LOCK_EX | LOCK_NB) != 0) {
        if (errno != EWOULDBLOCK && errno != EINTR) return true;  // no locks here
        if (std::chrono::steady_clock::now() > deadline) {
            error =
                fmt::format("{}: another process keeps the folder locked. End it and try again.",
                            Quoted(folder));
            return false;
        }
        std::this_thread::sleep_for(5ms);
    }
    return true;
}

}  // namespace vex::system
