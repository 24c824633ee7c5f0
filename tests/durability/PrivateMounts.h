// SPDX-License-Identifier: Apache-2.0
// File systems that only one child process sees: small ones, read-only ones.
#pragma once

#include <string>

namespace durabilitytest {

/// Code with which a child ends when the kernel lets it have no mounts of its own.
inline constexpr int kNoMounts = 77;

/// Gives this process, which should be a child made for it, a view of mounts of its own; without
/// root it becomes root of a user namespace of its own. Ends the process with kNoMounts, and the
/// reason on standard error, when the kernel forbids both.
void EnterPrivateMounts();

/// Mounts an empty file system of `pages` pages of memory and `files` files over `folder`. Fails
/// the test when that cannot be done. So with the next one.
void MountSmall(const std::string& folder, std::size_t pages, std::size_t files = 100);

/// Makes what is in `folder` read-only, as a mount.
void MountReadOnly(const std::string& folder);

/// Bytes of a page.
std::size_t PageSize();

/// After a child that entered private mounts: the test goes on when it ended with 0, is skipped,
/// with what is needed, when it was refused them, and fails otherwise.
#define ASSERT_ENDED_WITH_MOUNTS(code)                                                          \
    if ((code) == durabilitytest::kNoMounts) {                                                  \
        GTEST_SKIP() << "NOT TESTED: the kernel gives this user neither mounts nor a user "     \
                        "namespace of his own (run as root, or allow user namespaces: "         \
                        "sysctl kernel.unprivileged_userns_clone=1, user.max_user_namespaces; " \
                        "in a container: --privileged or --security-opt seccomp=unconfined)";   \
    }                                                                                           \
    ASSERT_EQ(code, 0)

}  // namespace durabilitytest
