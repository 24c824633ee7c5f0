// SPDX-License-Identifier: Apache-2.0
#include "LimitedChild.h"

#include "support/ChildProcess.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <cstring>
#include <exception>

#include <fcntl.h>
#include <poll.h>
#include <sys/mman.h>
#include <sys/resource.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

namespace damagetest {

namespace {

constexpr int kWallSeconds = kMostSeconds + 60;

void Limit(int resource, rlim_t most)
{
    const rlimit limit{most, most};
    if (setrlimit(static_cast<__rlimit_resource>(resource), &limit) != 0) {
        std::perror("setrlimit");
        _exit(kNotLimited);
    }
}

[[noreturn]] void RunAsChild(const std::function<int()>& work, int err)
{
    dup2(err, STDERR_FILENO);
    Limit(RLIMIT_CPU, kMostSeconds);
    Limit(RLIMIT_CORE, 0);
    // A sanitizer reserves far more address space than it uses.
    if (!kSanitized) {
        Limit(RLIMIT_AS, static_cast<rlim_t>(kMostKibibytes) * 1024);
    }
    const bool failedBefore = testing::Test::HasFailure();
    int code = kThrew;
    try {
        code = work();
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "exception: %s\n", failure.what());
    }
    std::fflush(nullptr);
    // What the child expects in vain would otherwise be known to the child alone.
    _exit(!failedBefore && testing::Test::HasFailure() ? kExpectedInVain : code);
}

std::string ReadAll(int file)
{
    std::string text(static_cast<std::size_t>(lseek(file, 0, SEEK_END)), '\0');
    const ssize_t count = pread(file, text.data(), text.size(), 0);
    text.resize(count < 0 ? 0 : static_cast<std::size_t>(count));
    return text;
}

void WaitFor(pid_t child)
{
    // The header of pidfd_open lacks C linkage in this C library.
    const auto handle = static_cast<int>(syscall(SYS_pidfd_open, child, 0));
    ASSERT_GE(handle, 0) << std::strerror(errno);
    pollfd ended{handle, POLLIN, 0};
    int result = 0;
    do {
        result = poll(&ended, 1, kWallSeconds * 1000);
    } while (result < 0 && errno == EINTR);
    close(handle);
    if (result == 0) {
        kill(child, SIGKILL);
    }
}

double Seconds(const timeval& time)
{
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) * 1e-6;
}

}  // namespace

ChildEnd RunLimited(const std::function<int()>& work)
{
    const int err = memfd_create("err", MFD_CLOEXEC);
    EXPECT_GE(err, 0) << std::strerror(errno);
    const pid_t child = hlxtest::StartChild([&] { RunAsChild(work, err); });
    ChildEnd end;
    if (child > 0) {
        WaitFor(child);
        int status = 0;
        rusage usage{};
        EXPECT_EQ(wait4(child, &status, 0, &usage), child);
        end.code = WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
        end.seconds = Seconds(usage.ru_utime) + Seconds(usage.ru_stime);
        end.kibibytes = usage.ru_maxrss;
        EXPECT_LT(end.kibibytes, kMostKibibytes);
        end.err = ReadAll(err);
    }
    close(err);
    return end;
}

void ExpectLimited(const std::function<void()>& work)
{
    const ChildEnd end = RunLimited([&] { return work(), 0; });
    EXPECT_EQ(end.code, 0) << testing::PrintToString(end);
}

}  // namespace damagetest
