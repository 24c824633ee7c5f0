// SPDX-License-Identifier: Apache-2.0
// The timed section of a log: label, clock readings, figure, end.
#include "library/harness/TimingFixture.h"

#include <fcntl.h>
#include <gmock/gmock.h>

#include <bit>

namespace hlxtest {

namespace {

using testing::ElementsAre;

TEST_F(TimingTest, ALabelWithoutALineEndRunsIntoTheFigure)
{
    EXPECT_EQ(Section(0, "Propagate: ", 1'500'000), "Propagate: 1.500\tseconds\n");
    EXPECT_EQ(Section(0, "Propagate\n", 250'000), "Propagate\n0.250\tseconds\n");
}

struct LabelRow
{
    const char* row;
    const char* label;
    const char* written;
};

class Label : public TimingTest, public testing::WithParamInterface<LabelRow>
{};

TEST_P(Label, IsAPrintfFormatToWhichNothingIsAdded)
{
    EXPECT_EQ(Section(0, GetParam().label, 0),
              GetParam().written + std::string("0.000\tseconds\n"));
}

INSTANTIATE_TEST_SUITE_P(Labels, Label,
                         testing::Values(LabelRow{"Empty", "", ""}, LabelRow{"Null", nullptr, ""},
                                         LabelRow{"LineEnds", "a\tb\n\n", "a\tb\n\n"},
                                         LabelRow{"PercentSign", "100%%", "100%"},
                                         LabelRow{"Umlauts", "Größe", "Größe"}),
                         [](const auto& row) { return row.param.row; });

static_assert(CLOCKS_PER_SEC == 1'000'000);

struct ElapsedRow
{
    const char* row;
    std::clock_t start;
    std::clock_t stop;
    const char* text;
};

class Elapsed : public TimingTest, public testing::WithParamInterface<ElapsedRow>
{};

TEST_P(Elapsed, IsWrittenInSecondsWithThreeDecimals)
{
    EXPECT_EQ(Section(GetParam().start, "", GetParam().stop),
              GetParam().text + std::string("\tseconds\n"));
}

INSTANTIATE_TEST_SUITE_P(
    Times, Elapsed,
    testing::Values(ElapsedRow{"None", 0, 0, "0.000"}, ElapsedRow{"AQuarter", 0, 250'000, "0.250"},
                    ElapsedRow{"OneAndAHalf", 1'000'000, 2'500'000, "1.500"},
                    ElapsedRow{"RoundedUp", 7, 1'234'574, "1.235"},
                    ElapsedRow{"LessThanHalfAThousandth", 0, 499, "0.000"},
                    ElapsedRow{"MoreThanHalfAThousandth", 0, 501, "0.001"},
                    ElapsedRow{"JustBelowOne", 0, 999'400, "0.999"},
                    ElapsedRow{"RoundedToOne", 0, 999'600, "1.000"},
                    ElapsedRow{"TwoDigits", 0, 12'345'678, "12.346"},
                    // A clock that was set back.
                    ElapsedRow{"Backwards", 2'000'000, 500'000, "-1.500"},
                    // Past 2^31 and 2^32 ticks: 36 and 72 minutes.
                    ElapsedRow{"Past36Minutes", 0, 2'147'483'648, "2147.484"},
                    ElapsedRow{"Past72Minutes", 0, 4'294'967'296, "4294.967"},
                    ElapsedRow{"TwoWeeks", 1'000'000, 1'234'568'891'000, "1234567.891"}),
    [](const auto& row) { return row.param.row; });

TEST_F(TimingTest, TheClockIsReadAfterTheLabelAndBeforeTheFigure)
{
    Create("Run");
    std::vector<long> written;
    clock.clock = [&] {
        written.push_back(std::ftell(testCase._TimeLogFile));
        return std::clock_t{0};
    };
    testCase.StartTimer("label");
    testCase.StopTimer();
    const long afterLabel = static_cast<long>(kHead.size()) + 5;
    EXPECT_THAT(written, ElementsAre(afterLabel, afterLabel));
}

TEST_F(TimingTest, StopTimerClosesTheLogAndKeepsThePointer)
{
    Create("Run");
    const auto former = std::bit_cast<std::uintptr_t>(testCase._TimeLogFile);
    const int descriptor = fileno(testCase._TimeLogFile);
    EXPECT_NE(fcntl(descriptor, F_GETFD), -1);
    testCase.StartTimer("");
    testCase.StopTimer();
    EXPECT_EQ(fcntl(descriptor, F_GETFD), -1);
    EXPECT_EQ(std::bit_cast<std::uintptr_t>(testCase._TimeLogFile), former);
}

TEST_F(TimingTest, ANewLogMayFollowAClosedOne)
{
    EXPECT_EQ(Section(0, "one ", 1'000'000), "one 1.000\tseconds\n");
    EXPECT_EQ(Section(5'000'000, "two ", 7'000'000), "two 2.000\tseconds\n");
}

TEST_F(TimingTest, TheReadingsAreOneForTheWholeLibrary)
{
    ExposedTestCase other;
    const TemporaryFolder otherFolder;
    other._OutputDirectory = otherFolder.Path().c_str();
    Create("Run");
    std::string name = "Run";
    Capture([&] { other.CreateTimeLoggingFile(name.data()); });
    ticks = 1'000'000;
    testCase.StartTimer("");
    ticks = 3'000'000;
    other.StartTimer("");
    ticks = 4'000'000;
    testCase.StopTimer();
    ticks = 4'500'000;
    other.StopTimer();
    EXPECT_EQ(ReadFile(path), kHead + "1.000\tseconds\n");
    EXPECT_EQ(ReadFile(otherFolder.File("Run_System A_5_5_2008.txt")), kHead + "1.500\tseconds\n");
}

}  // namespace

}  // namespace hlxtest
