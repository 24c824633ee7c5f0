// SPDX-License-Identifier: Apache-2.0
// What a piece of code writes to standard error, kept in memory: a process that is killed meanwhile
// leaves no file, and a full disk does not matter.
#pragma once

#include <gtest/gtest.h>

#include <cstdio>
#include <functional>
#include <string>

#include <sys/mman.h>
#include <unistd.h>

namespace durabilitytest {

inline std::string StandardErrorOf(const std::function<void()>& body)
{
    std::fflush(stderr);
    const int kept = ::dup(STDERR_FILENO);
    const int memory = ::memfd_create("standard error", MFD_CLOEXEC);
    EXPECT_GE(::dup2(memory, STDERR_FILENO), 0);
    body();
    std::fflush(stderr);
    EXPECT_GE(::dup2(kept, STDERR_FILENO), 0);
    ::close(kept);
    std::string text(static_cast<std::size_t>(::lseek(memory, 0, SEEK_END)), '\0');
    EXPECT_EQ(::pread(memory, text.data(), text.size(), 0), static_cast<ssize_t>(text.size()));
    ::close(memory);
    return text;
}

}  // namespace durabilitytest
