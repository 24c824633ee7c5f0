// SPDX-License-Identifier: Apache-2.0
// File systems that only one child process sees: small ones, read-only ones.
#pragma once

#include <cstdlib>
#include <string>
#include <string_view>

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

/// Whether who runs the tests has said, by HLX_ALLOW_NO_MOUNTS=1, that they may go on untested.
inline bool MayGoWithoutMounts()
{
    const char* const said = std::getenv("HLX_ALLOW_NO_MOUNTS");
    return said != nullptr && std::string_view(said) == "1";
}

inline constexpr const char* kNeedsMounts =
    "NOT TESTED: the kernel gives this user neither mounts nor a user namespace of his own. Run as "
    "root, or allow user namespaces (sysctl kernel.unprivileged_userns_clone=1, "
    "user.max_user_namespaces), in a container by --privileged or --security-opt "
    "seccomp=unconfined; or let HLX_ALLOW_NO_MOUNTS=1 skip what needs them.";

/// After a child that entered private mounts: the test goes on when it ended with 0. When it was
/// refused them, the test fails, or is skipped where that is allowed; it fails otherwise.
#define ASSERT_ENDED_WITH_MOUNTS(code)                                                 \
    if ((code) == durabilitytest::kNoMounts && durabilitytest::MayGoWithoutMounts()) { \
        GTEST_SKIP() << durabilitytest::kNeedsMounts;                                  \
    }                                                                                  \
    ASSERT_EQ(code, 0) << ((code) == durabilitytest::kNoMounts ? durabilitytest::kNeedsMounts : "")

}  // namespace durabilitytest
