// SPDX-License-Identifier: Apache-2.0
// What the tests of damage rely on: nothing that goes wrong in a child is lost on the way back.
#include "LimitedChild.h"

#include <gmock/gmock.h>

#include <csignal>
#include <cstdio>
#include <stdexcept>
#include <vector>

#include <fcntl.h>
#include <unistd.h>

namespace {

using namespace damagetest;

/// Runs work whose expectations are meant to fail: what it prints is no news.
ChildEnd RunUnheard(const std::function<void()>& work)
{
    return RunLimited([&] {
        dup2(open("/dev/null", O_WRONLY | O_CLOEXEC), STDOUT_FILENO);
        return work(), 0;
    });
}

TEST(LimitedChild, AnswersWhatItsWorkAnswers)
{
    const ChildEnd end = RunLimited([] { return std::fputs("said\n", stderr), 10; });
    EXPECT_EQ(end.code, 10);
    EXPECT_EQ(end.err, "said\n");
    EXPECT_GT(end.kibibytes, 0);
}

TEST(LimitedChild, TellsOfExpectationsThatFailInIt)
{
    EXPECT_EQ(RunUnheard([] { EXPECT_EQ(1, 2); }).code, kExpectedInVain);
    EXPECT_EQ(RunUnheard([] { ASSERT_TRUE(false); }).code, kExpectedInVain);
    EXPECT_EQ(RunUnheard([] { ADD_FAILURE(); }).code, kExpectedInVain);
    EXPECT_EQ(RunUnheard([] { EXPECT_EQ(1, 1); }).code, 0);
    EXPECT_FALSE(HasFailure()) << "they are the child's";
}

TEST(LimitedChild, TellsOfWhatItsWorkThrows)
{
    const ChildEnd end = RunLimited([]() -> int { throw std::runtime_error("thrown"); });
    EXPECT_EQ(end.code, kThrew);
    EXPECT_EQ(end.err, "exception: thrown\n");
}

TEST(LimitedChild, TellsOfTheSignalThatEndsIt)
{
    EXPECT_EQ(RunLimited([] { return raise(SIGKILL); }).code, -SIGKILL);
}

// A sanitizer refuses such an amount in a way of its own.
TEST(LimitedChild, GetsNoMoreMemoryThanItMayHave)
{
    constexpr auto more = static_cast<std::size_t>(kMostKibibytes) * 1024 * (kSanitized ? 0 : 1);
    const ChildEnd end = RunLimited([] {
        const std::vector<char> bytes(more);
        return static_cast<int>(bytes.size());
    });
    EXPECT_EQ(end.code, kSanitized ? 0 : kThrew);
}

}  // namespace
