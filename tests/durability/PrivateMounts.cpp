// SPDX-License-Identifier: Apache-2.0
#include "durability/PrivateMounts.h"

#include <fmt/format.h>
#include <gtest/gtest.h>

#include <cerrno>
#include <cstdio>
#include <cstring>

#include <fcntl.h>
#include <sched.h>
#include <sys/mount.h>
#include <unistd.h>

namespace durabilitytest {

namespace {

// The files of /proc that make a user of a user namespace take one write each.
bool WriteOnce(const char* path, const std::string& text)
{
    const int file = ::open(path, O_WRONLY | O_CLOEXEC);
    const bool written =
        file >= 0 && ::write(file, text.data(), text.size()) == static_cast<ssize_t>(text.size());
    if (file >= 0) ::close(file);
    return written;
}

bool BecomeRootOfOwnNamespace()
{
    const uid_t user = ::geteuid();
    const gid_t group = ::getegid();
    return ::unshare(CLONE_NEWUSER | CLONE_NEWNS) == 0 &&
           WriteOnce("/proc/self/setgroups", "deny") &&
           WriteOnce("/proc/self/uid_map", fmt::format("0 {} 1", user)) &&
           WriteOnce("/proc/self/gid_map", fmt::format("0 {} 1", group));
}

}  // namespace

void EnterPrivateMounts()
{
    const bool entered = ::geteuid() == 0 && ::unshare(CLONE_NEWNS) == 0;
    if ((!entered && !BecomeRootOfOwnNamespace()) ||
        ::mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0) {
        std::fprintf(stderr, "no mounts of its own: %s\n", std::strerror(errno));
        ::_exit(kNoMounts);
    }
}

void MountSmall(const std::string& folder, std::size_t pages, std::size_t files)
{
    // The folder itself counts as a file.
    const std::string options = fmt::format("nr_blocks={},nr_inodes={}", pages, files + 1);
    ASSERT_EQ(::mount("small", folder.c_str(), "tmpfs", MS_NOSUID | MS_NODEV, options.c_str()), 0)
        << std::strerror(errno);
}

void MountReadOnly(const std::string& folder)
{
    ASSERT_EQ(::mount(folder.c_str(), folder.c_str(), nullptr, MS_BIND, nullptr), 0)
        << std::strerror(errno);
    ASSERT_EQ(::mount("none", folder.c_str(), nullptr,
                      MS_REMOUNT | MS_BIND | MS_RDONLY | MS_NOSUID | MS_NODEV, nullptr),
              0)
        << std::strerror(errno);
}

std::size_t PageSize()
{
    return static_cast<std::size_t>(::sysconf(_SC_PAGESIZE));
}

}  // namespace durabilitytest
