// SPDX-License-Identifier: Apache-2.0
// Work in a child process: what it returns, says and throws comes back, and whatever else it does
// ends with it.
#include "host/topology/ChildProcess.h"

#include "support/Capture.h"

#include <gmock/gmock.h>

#include <atomic>
#include <csignal>
#include <cstdio>
#include <new>
#include <stdexcept>

#include <sys/resource.h>
#include <unistd.h>

namespace {

using vex::topology::ChildLimits;
using vex::topology::ChildOutcome;
using vex::topology::ChildReport;
using vex::topology::ChildWork;
using vex::topology::RunInChild;
using End = ChildOutcome::End;
using Bytes = std::vector<std::byte>;

/// Long enough for anything but what never ends.
constexpr ChildLimits kAMinute{.seconds = 60};

/// Takes processor time until it is ended.
Bytes Loop()
{
    for (std::atomic<unsigned> turn = 0;; ++turn) {
    }
}

ChildOutcome RunWork(const std::function<Bytes()>& work, const ChildLimits& limits = kAMinute)
{
    return RunInChild([&](const ChildReport&) { return work(); }, limits);
}

TEST(ChildProcess, BringsBackWhatTheWorkReturns)
{
    for (const std::size_t size : {std::size_t{0}, std::size_t{1}, std::size_t{5'000'000}}) {
        const ChildOutcome outcome = RunWork([&] { return Bytes(size, std::byte{0x5A}); });
        EXPECT_EQ(outcome.end, End::Done);
        EXPECT_EQ(outcome.result, Bytes(size, std::byte{0x5A}));
    }
}

TEST(ChildProcess, BringsBackWhatTheWorkSays)
{
    const ChildOutcome outcome = RunInChild(
        [](const ChildReport& report) -> Bytes {
            report.phase("reading");
            report.warning("one");
            report.phase("counting");
            report.warning("");
            raise(SIGKILL);
            return {};
        },
        kAMinute);
    EXPECT_EQ(outcome.end, End::Broken);
    EXPECT_EQ(outcome.text, "signal 9");
    EXPECT_EQ(outcome.phase, "counting");
    EXPECT_THAT(outcome.warnings, testing::ElementsAre("one", ""));
}

TEST(ChildProcess, TellsWhatTheWorkThrows)
{
    const ChildOutcome outcome = RunWork([]() -> Bytes { throw std::runtime_error("thrown"); });
    EXPECT_EQ(outcome.end, End::Failed);
    EXPECT_EQ(outcome.text, "thrown");
    const ChildOutcome other = RunWork([]() -> Bytes { throw 1; });
    EXPECT_EQ(other.end, End::Broken);
    EXPECT_EQ(other.text, "status 1");
}

TEST(ChildProcess, OutlivesACrashOfTheWork)
{
    for (const int number : {SIGSEGV, SIGFPE, SIGABRT}) {
        const ChildOutcome outcome = RunWork([&]() -> Bytes {
            std::signal(number, SIG_DFL);
            raise(number);
            return {};
        });
        EXPECT_EQ(outcome.end, End::Broken);
        EXPECT_EQ(outcome.text, "signal " + std::to_string(number));
    }
    EXPECT_EQ(RunWork([]() -> Bytes { _exit(3); }).text, "status 3");
}

TEST(ChildProcess, EndsWorkThatTakesTooLongByTheClock)
{
    const ChildOutcome waiting =
        RunWork([]() -> Bytes { return sleep(600), Bytes(); }, {.seconds = 1});
    EXPECT_EQ(waiting.end, End::TimedOut);
    EXPECT_EQ(RunWork(Loop, {.seconds = 1}).end, End::TimedOut);
}

TEST(ChildProcess, EndsWorkThatTakesTooMuchProcessorTime)
{
    EXPECT_EQ(RunWork(Loop, {.seconds = 100, .processorSeconds = 1}).end, End::TimedOut);
    const ChildOutcome waiting = RunWork([]() -> Bytes { return usleep(1'500'000), Bytes(); },
                                         {.seconds = 100, .processorSeconds = 1});
    EXPECT_EQ(waiting.end, End::Done) << "waiting takes none";
}

TEST(ChildProcess, EndsWorkThatTakesTooMuchMemory)
{
    constexpr std::size_t mebibyte = std::size_t{1} << 20U;
    const ChildLimits limits{.seconds = 60, .processorSeconds = 0, .bytes = 64 * mebibyte};
    const auto take = [](std::size_t count) {
        return [count] { return Bytes(Bytes(count, std::byte{1}).back() == std::byte{1} ? 1 : 2); };
    };
    EXPECT_EQ(RunWork(take(32 * mebibyte), limits).end, End::Done);
    const ChildOutcome endless = RunWork(
        [&]() -> Bytes {
            for (std::vector<Bytes> all;; usleep(1000))
                all.emplace_back(mebibyte, std::byte{1});
        },
        limits);
    EXPECT_EQ(endless.end, End::OutOfMemory);
    EXPECT_EQ(RunWork([]() -> Bytes { throw std::bad_alloc(); }).end, End::OutOfMemory);
    // What the parent has already is not counted.
    const Bytes large(100 * mebibyte, std::byte{1});
    EXPECT_EQ(RunWork(take(32 * mebibyte), limits).end, End::Done);
    EXPECT_EQ(large.back(), std::byte{1});
}

TEST(ChildProcess, ChangesNothingOfItsParent)
{
    int number = 1;
    ChildOutcome outcome;
    const hlxtest::Captured captured = hlxtest::Capture([&] {
        outcome = RunInChild(
            [&](const ChildReport&) {
                number = 2;
                std::puts("to standard output");
                std::fflush(stdout);
                return Bytes();
            },
            {.seconds = 60, .processorSeconds = 7});
    });
    EXPECT_EQ(outcome.end, End::Done);
    EXPECT_EQ(number, 1);
    EXPECT_EQ(captured.out, "");
    rlimit limit{};
    ASSERT_EQ(getrlimit(RLIMIT_CPU, &limit), 0);
    EXPECT_NE(limit.rlim_cur, 7U);
}

}  // namespace
