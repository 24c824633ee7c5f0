// SPDX-License-Identifier: Apache-2.0
// The timing log: its name, its head, what happens when there is none.
#include "library/harness/TimingFixture.h"
#include "support/FlushedOutput.h"
#include "support/ForeignNumbers.h"

#include <gmock/gmock.h>

#include <filesystem>

namespace hlxtest {

namespace {

using testing::ElementsAre;

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

TEST_F(TimingTest, ThePathIsPrintedBeforeTheLogIsOpened)
{
    std::string name = "Run";
    bool opened = true;
    {
        FlushedOutput output;
        output.atFlush = [&] { opened = FileExists(path); };
        testCase.CreateTimeLoggingFile(name.data());
    }
    EXPECT_FALSE(opened);
    EXPECT_TRUE(FileExists(path));
    testCase.StartTimer("");
    testCase.StopTimer();
}

TEST_F(TimingTest, ALogStillOpenIsNotClosedByTheNextOne)
{
    Create("First");
    testCase.StartTimer("");
    std::FILE* const first = testCase._TimeLogFile;
    Create("Second");
    EXPECT_NE(testCase._TimeLogFile, first);
    testCase.StartTimer("");
    testCase.StopTimer();
    EXPECT_EQ(std::fputs("still open\n", first) >= 0, true);
    EXPECT_EQ(std::fclose(first), 0);
    EXPECT_EQ(ReadFile(folder.File("First_System A_5_5_2008.txt")), kHead + "still open\n");
    EXPECT_EQ(ReadFile(folder.File("Second_System A_5_5_2008.txt")), kHead + "0.000\tseconds\n");
}

TEST_F(TimingTest, ALogOnAFullDiskIsNotReported)
{
    std::filesystem::create_symlink("/dev/full", path);
    std::string name = "Run";
    const std::string label(100'000, 'x');
    EXPECT_EQ(OutcomeOf([&] {
                  testCase.CreateTimeLoggingFile(name.data());
                  testCase.StartTimer(label.c_str());
                  testCase.StopTimer();
              }),
              (Outcome{0, "**********timelogging file : " + path + "\n", ""}));
}

TEST_F(TimingTest, AsksThePlatformForTheSystemAndThenJoinsThePath)
{
    EXPECT_THAT(CallsOf([&] { Create("Run"); }),
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
    const char* row;
    const char* name;
    const char* system;
    const char* fileName;
};

class LogName : public TimingTest, public testing::WithParamInterface<NameRow>
{};

TEST_P(LogName, IsNameSystemAndDateWithThreeSlashesReplaced)
{
    const EnvironmentVariable other("VEX_SYSTEM_NAME", GetParam().system);
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
    testing::Values(NameRow{"NoSystem", "Run", "", "Run__5_5_2008.txt"},
                    NameRow{"NoName", "", "s", "_s_5_5_2008.txt"},
                    NameRow{"OneSlash", "Run", "a/b", "Run_a_b_5_5_2008.txt"},
                    NameRow{"TwoSlashes", "Run", "a/b/c", "Run_a_b_c_5_5_2008.txt"},
                    NameRow{"ThreeSlashes", "Run", "a/b/c/d", "Run_a_b_c_d_5_5_2008.txt"},
                    NameRow{"FourSlashes", "Run", "a/b/c/d/e", "Run_a_b_c_d/e_5_5_2008.txt"},
                    NameRow{"FiveSlashes", "Run", "a/b/c/d/e/f", "Run_a_b_c_d/e/f_5_5_2008.txt"},
                    NameRow{"SlashesInTheName", "x/y/z", "a/b/c", "x_y_z_a_b/c_5_5_2008.txt"},
                    NameRow{"FormatInTheName", "50%s\\n", "s", "50%s\\n_s_5_5_2008.txt"},
                    NameRow{"Umlauts", "Größe", "Ü", "Größe_Ü_5_5_2008.txt"}),
    [](const auto& row) { return row.param.row; });

TEST_F(TimingTest, ANullNameIsAnEmptyOne)
{
    const std::string unnamed = folder.File("_System A_5_5_2008.txt");
    EXPECT_EQ(OutcomeOf([&] {
                  testCase.CreateTimeLoggingFile(nullptr);
                  testCase.StartTimer("");
                  testCase.StopTimer();
              }),
              (Outcome{0, "**********timelogging file : " + unnamed + "\n", ""}));
    EXPECT_THAT(folder.Names(), ElementsAre("_System A_5_5_2008.txt"));
    EXPECT_EQ(ReadFile(unnamed), kHead + "0.000\tseconds\n");
}

struct DateRow
{
    const char* row;
    const char* zone;
    std::time_t moment;
    const char* inName;
    const char* inHead;
};

class LogDate : public TimingTest, public testing::WithParamInterface<DateRow>
{};

TEST_P(LogDate, IsTheLocalMomentOfCreationInPlainDigits)
{
    const EnvironmentVariable other("TZ", GetParam().zone);
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
    testing::Values(DateRow{"Beginning", "UTC0", 0, "1_1_1970.txt",
                            "Date :\t\t\t\t\t1 1 1970\nStart Time :\t\t\t0 0 0"},
                    DateRow{"EndOfAYear", "UTC0", 946684799, "31_12_1999.txt",
                            "Date :\t\t\t\t\t31 12 1999\nStart Time :\t\t\t23 59 59"},
                    DateRow{"EastOfGreenwich", "XXX-5:30", kMoment, "5_5_2008.txt",
                            "Date :\t\t\t\t\t5 5 2008\nStart Time :\t\t\t11 37 8"},
                    DateRow{"WestOfGreenwich", "XXX7", kMoment, "4_5_2008.txt",
                            "Date :\t\t\t\t\t4 5 2008\nStart Time :\t\t\t23 7 8"},
                    // Past the 32-bit seconds of 2038 and 2106.
                    DateRow{"After2038", "UTC0", 4102444800, "1_1_2100.txt",
                            "Date :\t\t\t\t\t1 1 2100\nStart Time :\t\t\t0 0 0"},
                    DateRow{"After2106", "UTC0", 10413792000, "1_1_2300.txt",
                            "Date :\t\t\t\t\t1 1 2300\nStart Time :\t\t\t0 0 0"}),
    [](const auto& row) { return row.param.row; });

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
