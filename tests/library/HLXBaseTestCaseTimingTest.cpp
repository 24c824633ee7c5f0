// SPDX-License-Identifier: Apache-2.0
// The timing log: its name, its bytes, the clock readings, what happens without it.
#include "support/ExposedTestCase.h"
#include "support/FakeClock.h"
#include "support/FlushedOutput.h"
#include "support/ForeignNumbers.h"
#include "support/Outcome.h"
#include "support/TemporaryFolder.h"

#include <fcntl.h>
#include <gmock/gmock.h>
#include <stdlib.h>

#include <filesystem>
#include <limits>
#include <optional>

namespace hlxtest {

namespace {

using testing::ElementsAre;

constexpr std::time_t kMoment = 1209967628;  // 5 May 2008, 06:07:08 UTC

/// Sets an environment variable while it lives.
class Environment
{
public:
    Environment(const char* name, const char* value) : _name(name)
    {
        if (const char* const former = std::getenv(name); former != nullptr) {
            _former = former;
        }
        setenv(name, value, 1);
        tzset();
    }
    ~Environment()
    {
        if (_former) {
            setenv(_name, _former->c_str(), 1);
        } else {
            unsetenv(_name);
        }
        tzset();
    }
    Environment(const Environment&) = delete;
    Environment& operator=(const Environment&) = delete;

private:
    const char* _name;
    std::optional<std::string> _former;
};

class TimingTest : public testing::Test
{
protected:
    TimingTest()
    {
        clock.time = [] { return kMoment; };
        clock.clock = [this] { return ticks; };
        testCase._OutputDirectory = folder.Path().c_str();
    }

    void Create(const char* name)
    {
        std::string text = name;
        Capture([&] { testCase.CreateTimeLoggingFile(text.data()); });
    }

    /// A whole log with one section that took so long. Answers what follows the log's head.
    std::string Section(std::clock_t started, const char* label, std::clock_t stopped)
    {
        Create("Run");
        ticks = started;
        testCase.StartTimer(label);
        ticks = stopped;
        testCase.StopTimer();
        const std::string log = ReadFile(path);
        EXPECT_TRUE(log.starts_with(kHead)) << log;
        return log.substr(std::min(kHead.size(), log.size()));
    }

    inline static const std::string kHead =
        "********************\n"
        "* Timelogging File *\n"
        "********************\n"
        "\n"
        "System A\n"
        "Date :\t\t\t\t\t5 5 2008\n"
        "Start Time :\t\t\t6 7 8\n"
        "\n";

    const Environment zone{"TZ", "UTC0"};
    const Environment system{"VEX_SYSTEM_NAME", "System A"};
    const TemporaryFolder folder;
    const std::string path = folder.File("Run_System A_5_5_2008.txt");
    FakeClock clock;
    std::clock_t ticks = 0;
    ExposedTestCase testCase;
};

// --- The log's name and head --------------------------------------------------------------------

TEST_F(TimingTest, ALogBeginsWithItsHead)
{
    Create("Run");
    EXPECT_EQ(testCase._TimeLogFilePath, path.c_str());
    testCase.StartTimer("");
    testCase.StartTimer("");
    testCase.StopTimer();
    EXPECT_THAT(folder.Names(), ElementsAre("Run_System A_5_5_2008.txt"));
    EXPECT_EQ(ReadFile(path), kHead + "0.000\tseconds\n");
}

TEST_F(TimingTest, PrintsThePathAndFlushesIt)
{
    std::string name = "Run";
    const std::string line = "**********timelogging file : " + path + "\n";
    EXPECT_EQ(OutcomeOf([&] { testCase.CreateTimeLoggingFile(name.data()); }),
              (Outcome{0, line, ""}));
    testCase.StartTimer("");
    testCase.StopTimer();
    {
        const FlushedOutput output;
        testCase.CreateTimeLoggingFile(name.data());
        EXPECT_EQ(output.Text(), line);
    }
    EXPECT_EQ(OutcomeOf([&] {
                  testCase.StartTimer("label");
                  testCase.StopTimer();
              }),
              (Outcome{0, "", ""}));
}

TEST_F(TimingTest, AsksThePlatformForTheSystemAndThenJoinsThePath)
{
    std::string name = "Run";
    EXPECT_THAT(CallsOf([&] { testCase.CreateTimeLoggingFile(name.data()); }),
                ElementsAre("VEXGetSystemInfo()", "VEXMakePath(\"" + folder.Path() +
                                                      "\", \"Run_System A_5_5_2008.txt\", &)"));
    EXPECT_THAT(CallsOf([&] {
                    testCase.StartTimer("label");
                    testCase.StopTimer();
                }),
                testing::IsEmpty());
}

struct NameRow
{
    const char* name;
    const char* system;
    const char* fileName;
};

class LogName : public TimingTest, public testing::WithParamInterface<NameRow>
{};

TEST_P(LogName, IsNameSystemAndDateWithThreeSlashesReplaced)
{
    const Environment other("VEX_SYSTEM_NAME", GetParam().system);
    const std::string expected = folder.File(GetParam().fileName);
    std::filesystem::create_directories(std::filesystem::path(expected).parent_path());
    std::string name = GetParam().name;
    EXPECT_EQ(OutcomeOf([&] { testCase.CreateTimeLoggingFile(name.data()); }),
              (Outcome{0, "**********timelogging file : " + expected + "\n", ""}));
    EXPECT_EQ(testCase._TimeLogFilePath, expected.c_str());
    testCase.StartTimer("");
    testCase.StopTimer();
    // The head has the system as it is.
    EXPECT_EQ(ReadFile(expected),
              "********************\n* Timelogging File *\n********************\n\n" +
                  std::string(GetParam().system) +
                  "\nDate :\t\t\t\t\t5 5 2008\nStart Time :\t\t\t6 7 8\n\n0.000\tseconds\n");
}

INSTANTIATE_TEST_SUITE_P(
    Names, LogName,
    testing::Values(NameRow{"Run", "", "Run__5_5_2008.txt"}, NameRow{"", "s", "_s_5_5_2008.txt"},
                    NameRow{"Run", "a/b", "Run_a_b_5_5_2008.txt"},
                    NameRow{"Run", "a/b/c", "Run_a_b_c_5_5_2008.txt"},
                    NameRow{"Run", "a/b/c/d", "Run_a_b_c_d_5_5_2008.txt"},
                    NameRow{"Run", "a/b/c/d/e", "Run_a_b_c_d/e_5_5_2008.txt"},
                    NameRow{"Run", "a/b/c/d/e/f", "Run_a_b_c_d/e/f_5_5_2008.txt"},
                    NameRow{"x/y/z", "a/b/c", "x_y_z_a_b/c_5_5_2008.txt"},
                    NameRow{"50%s\\n", "s", "50%s\\n_s_5_5_2008.txt"},
                    NameRow{"Größe", "Ü", "Größe_Ü_5_5_2008.txt"}));

TEST_F(TimingTest, ANullNameIsAnEmptyOne)
{
    Capture([&] { testCase.CreateTimeLoggingFile(nullptr); });
    testCase.StartTimer("");
    testCase.StopTimer();
    EXPECT_THAT(folder.Names(), ElementsAre("_System A_5_5_2008.txt"));
}

struct DateRow
{
    const char* zone;
    std::time_t moment;
    const char* inName;
    const char* inHead;
};

class LogDate : public TimingTest, public testing::WithParamInterface<DateRow>
{};

TEST_P(LogDate, IsTheLocalMomentOfCreationInPlainDigits)
{
    const Environment other("TZ", GetParam().zone);
    clock.time = [] { return GetParam().moment; };
    Create("Run");
    clock.time = [] { return std::time_t{0}; };
    testCase.StartTimer("");
    testCase.StopTimer();
    const std::string log = ReadFile(folder.File("Run_System A_" + std::string(GetParam().inName)));
    EXPECT_EQ(log,
              "********************\n* Timelogging File *\n********************\n\nSystem A\n" +
                  std::string(GetParam().inHead) + "\n\n0.000\tseconds\n");
}

INSTANTIATE_TEST_SUITE_P(
    Dates, LogDate,
    testing::Values(DateRow{"UTC0", 0, "1_1_1970.txt",
                            "Date :\t\t\t\t\t1 1 1970\nStart Time :\t\t\t0 0 0"},
                    DateRow{"UTC0", 946684799, "31_12_1999.txt",
                            "Date :\t\t\t\t\t31 12 1999\nStart Time :\t\t\t23 59 59"},
                    DateRow{"XXX-5:30", kMoment, "5_5_2008.txt",
                            "Date :\t\t\t\t\t5 5 2008\nStart Time :\t\t\t11 37 8"},
                    DateRow{"XXX7", kMoment, "4_5_2008.txt",
                            "Date :\t\t\t\t\t4 5 2008\nStart Time :\t\t\t23 7 8"},
                    // Past the 32-bit seconds of 2038 and 2106.
                    DateRow{"UTC0", 4102444800, "1_1_2100.txt",
                            "Date :\t\t\t\t\t1 1 2100\nStart Time :\t\t\t0 0 0"},
                    DateRow{"UTC0", 10413792000, "1_1_2300.txt",
                            "Date :\t\t\t\t\t1 1 2300\nStart Time :\t\t\t0 0 0"}));

TEST_F(TimingTest, AnExistingLogIsReplacedAndTheNewOneCanBeReadBack)
{
    WriteFile(path, std::string(10'000, 'x'));
    Create("Run");
    char line[64] = "";
    std::rewind(testCase._TimeLogFile);
    EXPECT_NE(std::fgets(line, sizeof line, testCase._TimeLogFile), nullptr);
    EXPECT_STREQ(line, "********************\n");
    std::fseek(testCase._TimeLogFile, 0, SEEK_END);
    testCase.StartTimer("");
    testCase.StopTimer();
    EXPECT_EQ(ReadFile(path), kHead + "0.000\tseconds\n");
}

// --- The timed section --------------------------------------------------------------------------

TEST_F(TimingTest, ALabelWithoutALineEndRunsIntoTheFigure)
{
    EXPECT_EQ(Section(0, "Propagate: ", 1'500'000), "Propagate: 1.500\tseconds\n");
    EXPECT_EQ(Section(0, "Propagate\n", 250'000), "Propagate\n0.250\tseconds\n");
}

struct LabelRow
{
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
                         testing::Values(LabelRow{"", ""}, LabelRow{nullptr, ""},
                                         LabelRow{"a\tb\n\n", "a\tb\n\n"},
                                         LabelRow{"100%%", "100%"}, LabelRow{"Größe", "Größe"}));

static_assert(CLOCKS_PER_SEC == 1'000'000);

struct ElapsedRow
{
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

INSTANTIATE_TEST_SUITE_P(Times, Elapsed,
                         testing::Values(ElapsedRow{0, 0, "0.000"}, ElapsedRow{0, 250'000, "0.250"},
                                         ElapsedRow{1'000'000, 2'500'000, "1.500"},
                                         ElapsedRow{7, 1'234'574, "1.235"},
                                         ElapsedRow{0, 499, "0.000"}, ElapsedRow{0, 501, "0.001"},
                                         ElapsedRow{0, 999'400, "0.999"},
                                         ElapsedRow{0, 999'600, "1.000"},
                                         ElapsedRow{0, 12'345'678, "12.346"},
                                         // A clock that was set back.
                                         ElapsedRow{2'000'000, 500'000, "-1.500"},
                                         // Past 2^31 and 2^32 ticks: 36 and 72 minutes.
                                         ElapsedRow{0, 2'147'483'648, "2147.484"},
                                         ElapsedRow{0, 4'294'967'296, "4294.967"},
                                         ElapsedRow{1'000'000, 1'234'568'891'000, "1234567.891"}));

TEST_F(TimingTest, TheClockIsReadAfterTheLabelAndBeforeTheFigure)
{
    Create("Run");
    std::vector<long> written;
    clock.clock = [&] {
        written.push_back(std::ftell(testCase._TimeLogFile));
        return std::clock_t{0};
    };
    testCase.StartTimer("label");
    testCase.StartTimer("");
    testCase.StopTimer();
    const long afterLabel = static_cast<long>(kHead.size()) + 5;
    EXPECT_THAT(written, ElementsAre(afterLabel, afterLabel));
}

TEST_F(TimingTest, StopTimerClosesTheLogAndKeepsThePointer)
{
    Create("Run");
    const auto former = reinterpret_cast<std::uintptr_t>(testCase._TimeLogFile);
    const int descriptor = fileno(testCase._TimeLogFile);
    EXPECT_NE(fcntl(descriptor, F_GETFD), -1);
    testCase.StartTimer("");
    testCase.StopTimer();
    EXPECT_EQ(fcntl(descriptor, F_GETFD), -1);
    EXPECT_EQ(reinterpret_cast<std::uintptr_t>(testCase._TimeLogFile), former);
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

// --- Without a log, and in a foreign locale -----------------------------------------------------

TEST_F(TimingTest, ALogThatCannotBeOpenedIsAnnouncedAndNothingIsWritten)
{
    const std::string missing = folder.File("missing");
    testCase._OutputDirectory = missing.c_str();
    std::string name = "Run";
    EXPECT_EQ(
        OutcomeOf([&] {
            testCase.CreateTimeLoggingFile(name.data());
            testCase.StartTimer("label");
            testCase.StopTimer();
            testCase.StartTimer(nullptr);
            testCase.StopTimer();
        }),
        (Outcome{0, "**********timelogging file : " + missing + "/Run_System A_5_5_2008.txt\n",
                 ""}));
    EXPECT_EQ(testCase._TimeLogFile, nullptr);
    EXPECT_FALSE(FileExists(missing));
}

TEST_F(TimingTest, APathThatCannotBeJoinedIsEmptyAndNoLogIsOpened)
{
    std::string name = "Run";
    EXPECT_EQ(RunWith("VEXMakePath=E_FAIL",
                      [&] {
                          testCase.CreateTimeLoggingFile(name.data());
                          testCase.StartTimer("");
                          testCase.StopTimer();
                      }),
              (Outcome{0, "**********timelogging file : \n", ""}));
    EXPECT_TRUE(testCase._TimeLogFilePath.IsEmpty());
    EXPECT_EQ(testCase._TimeLogFile, nullptr);
    EXPECT_THAT(folder.Names(), testing::IsEmpty());
}

TEST_F(TimingTest, WhatTheJoiningAnswersIsNotLookedAt)
{
    std::string name = "Run";
    EXPECT_EQ(RunWith("VEXMakePath=E_FAIL,keep",
                      [&] {
                          testCase.CreateTimeLoggingFile(name.data());
                          testCase.StartTimer("");
                          testCase.StopTimer();
                      }),
              (Outcome{0, "**********timelogging file : " + path + "\n", ""}));
    EXPECT_EQ(ReadFile(path), kHead + "0.000\tseconds\n");
}

TEST_F(TimingTest, TimersWithoutALogWriteNothing)
{
    EXPECT_EQ(OutcomeOf([&] {
                  testCase.StartTimer("label");
                  testCase.StopTimer();
              }),
              (Outcome{0, "", ""}));
    EXPECT_THAT(folder.Names(), testing::IsEmpty());
}

TEST_F(TimingTest, NameHeadAndFigureAreTheSameInAForeignLocale)
{
    const ForeignNumbers foreign;
    std::string name = "Run";
    EXPECT_EQ(OutcomeOf([&] { testCase.CreateTimeLoggingFile(name.data()); }),
              (Outcome{0, "**********timelogging file : " + path + "\n", ""}));
    testCase.StartTimer("");
    ticks = 1'234'567'891'000;
    testCase.StopTimer();
    EXPECT_EQ(ReadFile(path), kHead + "1234567.891\tseconds\n");
}

}  // namespace

}  // namespace hlxtest
