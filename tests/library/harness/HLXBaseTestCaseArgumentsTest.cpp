// SPDX-License-Identifier: Apache-2.0
// The command line: which counts and entries fill which members, what is printed of it, which
// entries are read at all.
#include "support/CommandLine.h"
#include "support/ExposedTestCase.h"
#include "support/ForeignNumbers.h"
#include "support/Outcome.h"

#include <gmock/gmock.h>

#include <array>
#include <bit>
#include <limits>

namespace hlxtest {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// The eight members that a command line fills.
struct Paths
{
    std::string inputDirectory, inputFileName, inputFilePath;
    std::string outputDirectory, file1Name, file1Path, file2Name, file2Path, intermediate;

    friend bool operator==(const Paths&, const Paths&) = default;
    friend void PrintTo(const Paths& paths, std::ostream* stream)
    {
        *stream << "input " << paths.inputDirectory << '|' << paths.inputFileName << '|'
                << paths.inputFilePath << " output " << paths.outputDirectory << " file 1 "
                << paths.file1Name << '|' << paths.file1Path << " file 2 " << paths.file2Name << '|'
                << paths.file2Path << " intermediate " << paths.intermediate;
    }
};

Paths PathsOf(const ExposedTestCase& testCase)
{
    const auto text = [](const VEXUnicodeString& member) {
        return std::string(member.ConvertToChar());
    };
    return {text(testCase._InputDirectory),
            text(testCase._InputFileName),
            text(testCase._InputFilePath),
            text(testCase._OutputDirectory),
            text(testCase._HollexFile1Name),
            text(testCase._HollexFile1Path),
            text(testCase._HollexFile2Name),
            text(testCase._HollexFile2Path),
            text(testCase._IntermediateInputFilePath)};
}

// What the four blocks of a command line print, for the entries in, doc, out, one, two.
const std::string kA = "**********HOLLEX file 2 name: out/two\n";
const std::string kB = "**********HOLLEX file 1 name: out/one\n";
const std::string kC = "**********Intermediate Input file name :out/doc\n";
const std::string kD = "**********Input file name : in/doc\n";

const std::vector<const char*> kEntries = {"program", "in", "doc", "out", "one", "two",
                                           "six",     "7",  "8",   "9",   "10"};

struct Row
{
    const char* name;
    int argc;
    std::vector<int> nullEntries;
    std::string out;
    Paths paths;
};

class CommandLineRow : public testing::TestWithParam<Row>
{};

TEST_P(CommandLineRow, FillsAndPrints)
{
    std::vector<const char*> entries = kEntries;
    for (const int index : GetParam().nullEntries) {
        entries[static_cast<std::size_t>(index)] = nullptr;
    }
    CommandLine line(entries);
    ExposedTestCase testCase;
    EXPECT_EQ(OutcomeOf([&] { return testCase.ProcessArguments(GetParam().argc, line.Values()); }),
              (Outcome{1, GetParam().out, ""}));
    EXPECT_EQ(PathsOf(testCase), GetParam().paths);
}

const Paths kInput = {"in", "doc", "in/doc", "", "", "", "", "", ""};
const Paths kFive = {"in", "doc", "in/doc", "out", "one", "out/one", "", "", "out/doc"};
const Paths kAll = {"in", "doc", "in/doc", "out", "one", "out/one", "two", "out/two", "out/doc"};

INSTANTIATE_TEST_SUITE_P(
    Counts, CommandLineRow,
    testing::Values(
        Row{"MinusOne", -1, {}, "", {}},
        Row{"Smallest", std::numeric_limits<int>::min(), {}, "", {}}, Row{"Zero", 0, {}, "", {}},
        Row{"One", 1, {}, "", {}}, Row{"Two", 2, {}, "", {}}, Row{"Three", 3, {}, kD, kInput},
        Row{"Four", 4, {}, "", {}}, Row{"Five", 5, {}, kB + kC + kD, kFive},
        Row{"Six", 6, {}, kA + kB + kC + kD, kAll}, Row{"Seven", 7, {}, kA + kB + kC + kD, kAll},
        Row{"Eight", 8, {}, kA + kB + kC + kD, kAll}, Row{"Nine", 9, {}, kA + kB + kC + kD, kAll},
        Row{"Ten", 10, {}, "", {}}, Row{"Eleven", 11, {}, "", {}},
        Row{"Largest", std::numeric_limits<int>::max(), {}, "", {}}),
    [](const auto& row) { return row.param.name; });

INSTANTIATE_TEST_SUITE_P(
    NullEntries, CommandLineRow,
    testing::Values(
        Row{"ThreeWithoutDirectory", 3, {1}, "", {}}, Row{"ThreeWithoutDocument", 3, {2}, "", {}},
        Row{"FiveWithoutDirectory",
            5,
            {1},
            kB + kC,
            {"", "doc", "", "out", "one", "out/one", "", "", "out/doc"}},
        Row{"FiveWithoutDocument", 5, {2}, kB, {"", "", "", "out", "one", "out/one", "", "", ""}},
        Row{"FiveWithoutOutput", 5, {3}, kD, kInput},
        Row{"FiveWithoutFile1",
            5,
            {4},
            kC + kD,
            {"in", "doc", "in/doc", "out", "", "", "", "", "out/doc"}},
        Row{"FiveWithoutAny", 5, {1, 2, 3, 4}, "", {}},
        Row{"SixWithoutDirectory",
            6,
            {1},
            kA + kB + kC,
            {"", "doc", "", "out", "one", "out/one", "two", "out/two", "out/doc"}},
        Row{"SixWithoutDocument",
            6,
            {2},
            kA + kB,
            {"", "", "", "out", "one", "out/one", "two", "out/two", ""}},
        Row{"SixWithoutOutput", 6, {3}, kD, kInput},
        Row{"SixWithoutFile1",
            6,
            {4},
            kA + kC + kD,
            {"in", "doc", "in/doc", "out", "", "", "two", "out/two", "out/doc"}},
        Row{"SixWithoutFile2", 6, {5}, kB + kC + kD, kFive},
        Row{"SixWithFile2Only",
            6,
            {1, 2, 4},
            kA,
            {"", "", "", "out", "", "", "two", "out/two", ""}},
        Row{"NineWithoutAny", 9, {1, 2, 3, 4, 5}, "", {}}),
    [](const auto& row) { return row.param.name; });

class ArgumentsTest : public testing::Test
{
protected:
    ExposedTestCase testCase;
};

TEST_F(ArgumentsTest, ReadsNoEntryThatTheCountDoesNotUse)
{
    // An entry that ends the process when it is read.
    char* const unreadable = std::bit_cast<char*>(std::uintptr_t{8});
    struct
    {
        int argc;
        std::vector<int> used;
        std::string out;
    } const rows[] = {
        {2, {}, ""},
        {3, {1, 2}, kD},
        {4, {}, ""},
        {5, {1, 2, 3, 4}, kB + kC + kD},
        {6, {1, 2, 3, 4, 5}, kA + kB + kC + kD},
        {9, {1, 2, 3, 4, 5}, kA + kB + kC + kD},
        {10, {}, ""},
    };
    for (const auto& row : rows) {
        CommandLine line(kEntries);
        std::array<char*, 10> entries;
        entries.fill(unreadable);
        for (const int index : row.used) {
            entries[static_cast<std::size_t>(index)] = line.Values()[index];
        }
        ExposedTestCase fresh;
        EXPECT_EQ(OutcomeOf([&] { return fresh.ProcessArguments(row.argc, entries.data()); }),
                  (Outcome{1, row.out, ""}))
            << row.argc;
    }
}

TEST_F(ArgumentsTest, RefusedCountChangesAndPrintsNothing)
{
    CommandLine first(kEntries);
    OutcomeOf([&] { return testCase.ProcessArguments(9, first.Values()); });
    int asked = 0;
    testCase.verifyArguments = [&](int argc) -> unsigned char {
        asked = argc;
        return 0;
    };
    CommandLine second{"program", "other", "other", "other", "other", "other"};
    std::vector<std::string> calls;
    for (const int argc : {3, 5, 6}) {
        EXPECT_EQ(OutcomeOf([&] {
                      calls = CallsOf([&] { testCase.ProcessArguments(argc, second.Values()); });
                      return testCase.ProcessArguments(argc, second.Values());
                  }),
                  (Outcome{0, "", ""}));
        EXPECT_EQ(asked, argc);
        EXPECT_THAT(calls, IsEmpty());
        EXPECT_EQ(PathsOf(testCase), kAll);
    }
}

TEST_F(ArgumentsTest, EveryVerdictButZeroAcceptsTheCount)
{
    for (const int verdict : {1, 2, 128, 255}) {
        ExposedTestCase fresh;
        fresh.verifyArguments = [&](int) { return static_cast<unsigned char>(verdict); };
        CommandLine line(kEntries);
        EXPECT_EQ(OutcomeOf([&] { return fresh.ProcessArguments(3, line.Values()); }),
                  (Outcome{1, kD, ""}));
    }
}

TEST_F(ArgumentsTest, WithoutEntriesNothingIsTaken)
{
    for (const int argc : {3, 4, 5, 6, 9}) {
        Recording recording;
        EXPECT_EQ(OutcomeOf([&] { return testCase.ProcessArguments(argc, nullptr); }),
                  (Outcome{1, "", ""}))
            << argc;
        EXPECT_THAT(recording.StopNames(), IsEmpty());
        EXPECT_EQ(PathsOf(testCase), Paths{});
    }
}

TEST_F(ArgumentsTest, VerifiesOnceBeforeAnythingElse)
{
    int times = 0;
    testCase.verifyArguments = [&](int) -> unsigned char {
        ++times;
        std::fputs("verified\n", stdout);
        return 1;
    };
    CommandLine line(kEntries);
    EXPECT_EQ(OutcomeOf([&] { return testCase.ProcessArguments(6, line.Values()); }),
              (Outcome{1, "verified\n" + kA + kB + kC + kD, ""}));
    EXPECT_EQ(times, 1);
}

TEST_F(ArgumentsTest, JoinsThroughThePlatformInTheOrderOfTheBlocks)
{
    CommandLine line(kEntries);
    const auto callsWith = [&](int argc) {
        return CallsOf([&] { Capture([&] { testCase.ProcessArguments(argc, line.Values()); }); });
    };
    const std::string a = "VEXMakePath(\"out\", \"two\", &)";
    const std::string b = "VEXMakePath(\"out\", \"one\", &)";
    const std::string c = "VEXMakePath(\"out\", \"doc\", &)";
    const std::string d = "VEXMakePath(\"in\", \"doc\", &)";
    EXPECT_THAT(callsWith(6), ElementsAre(a, b, c, d));
    EXPECT_THAT(callsWith(5), ElementsAre(b, c, d));
    EXPECT_THAT(callsWith(3), ElementsAre(d));
}

TEST_F(ArgumentsTest, WhatTheJoiningAnswersIsNotLookedAt)
{
    CommandLine line(kEntries);
    EXPECT_EQ(RunWith("VEXMakePath=E_FAIL,keep",
                      [&] { return testCase.ProcessArguments(6, line.Values()); }),
              (Outcome{1, kA + kB + kC + kD, ""}));
    EXPECT_EQ(PathsOf(testCase), kAll);
}

TEST_F(ArgumentsTest, APathThatCannotBeJoinedIsEmpty)
{
    CommandLine line(kEntries);
    EXPECT_EQ(
        RunWith("VEXMakePath=E_FAIL", [&] { return testCase.ProcessArguments(6, line.Values()); }),
        (Outcome{1,
                 "**********HOLLEX file 2 name: \n"
                 "**********HOLLEX file 1 name: \n"
                 "**********Intermediate Input file name :\n"
                 "**********Input file name : \n",
                 ""}));
    EXPECT_EQ(PathsOf(testCase), (Paths{"in", "doc", "", "out", "one", "", "two", "", ""}));
}

TEST_F(ArgumentsTest, ASecondCommandLineReplacesWhatItGives)
{
    CommandLine first(kEntries);
    OutcomeOf([&] { return testCase.ProcessArguments(6, first.Values()); });
    CommandLine second{"program", "here/", "b"};
    EXPECT_EQ(OutcomeOf([&] { return testCase.ProcessArguments(3, second.Values()); }),
              (Outcome{1, "**********Input file name : here/b\n", ""}));
    EXPECT_EQ(PathsOf(testCase), (Paths{"here/", "b", "here/b", "out", "one", "out/one", "two",
                                        "out/two", "out/doc"}));
}

TEST_F(ArgumentsTest, EmptyEntriesAreGiven)
{
    CommandLine line{"", "", "", "", "", ""};
    EXPECT_EQ(OutcomeOf([&] { return testCase.ProcessArguments(6, line.Values()); }),
              (Outcome{1,
                       "**********HOLLEX file 2 name: \n"
                       "**********HOLLEX file 1 name: \n"
                       "**********Intermediate Input file name :\n"
                       "**********Input file name : \n",
                       ""}));
    EXPECT_EQ(PathsOf(testCase), Paths());
}

TEST_F(ArgumentsTest, EntriesAreTakenAsTheyAre)
{
    const std::string longName(5000, 'n');
    CommandLine line{"%s%n", "in %d/", "Grö\n\xFFße", "out//", longName.c_str()};
    EXPECT_EQ(OutcomeOf([&] { return testCase.ProcessArguments(5, line.Values()); }),
              (Outcome{1,
                       "**********HOLLEX file 1 name: \n"
                       "**********Intermediate Input file name :out/Grö\n\xFFße\n"
                       "**********Input file name : in %d/Grö\n\xFFße\n",
                       ""}));
    EXPECT_EQ(PathsOf(testCase), (Paths{"in %d/", "Grö\n\xFFße", "in %d/Grö\n\xFFße", "out//",
                                        longName, "", "", "", "out/Grö\n\xFFße"}));
}

TEST_F(ArgumentsTest, PrintTheSameInAForeignLocale)
{
    CommandLine line{"program", "1234567", "1000.5", "1234567", "-1"};
    const ForeignNumbers foreign;
    EXPECT_EQ(OutcomeOf([&] { return testCase.ProcessArguments(5, line.Values()); }),
              (Outcome{1,
                       "**********HOLLEX file 1 name: 1234567/-1\n"
                       "**********Intermediate Input file name :1234567/1000.5\n"
                       "**********Input file name : 1234567/1000.5\n",
                       ""}));
}

}  // namespace

}  // namespace hlxtest
