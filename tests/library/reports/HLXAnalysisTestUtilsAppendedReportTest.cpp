// SPDX-License-Identifier: Apache-2.0
// The file that reports are appended to, and what of the program around has no part in it.
#include "library/reports/ReportFixture.h"
#include "support/ForeignNumbers.h"

#include <filesystem>
#include <fstream>
#include <iomanip>
#include <iostream>

namespace hlxtest::reports {
namespace {

using AppendedReport = ReportKindTest;

TEST_P(AppendedReport, FollowsTheOneBefore)
{
    const VEXISpecObject_var feature = Valued(kind);
    EXPECT_EQ(Write(kind, feature), kWritten);
    EXPECT_EQ(Write(kind, feature), kWritten);
    EXPECT_EQ(Write(kind, kind.create(place)), kWritten);
    EXPECT_EQ(Taken(), kind.valued + kind.valued + kind.defaults);
}

TEST_P(AppendedReport, FollowsThatOfAnotherKind)
{
    std::string typed;
    for (const ReportKind& other : kAllReports) {
        EXPECT_EQ(Write(other, Valued(other)), kWritten);
        EXPECT_EQ(Write(kind, Valued(kind)), kWritten);
        typed += other.valued + kind.valued;
    }
    EXPECT_EQ(Taken(), typed);
}

TEST_P(AppendedReport, KeepsWhatTheFileHolds)
{
    const VEXISpecObject_var feature = Valued(kind);
    for (const std::string& before :
         {std::string("one line\n"), std::string("a line that does not end"), std::string("\r\n"),
          std::string("\x1A\0\xFF\xFE\0", 5), std::string(100'000, '\n')}) {
        WriteFile(path, before);
        EXPECT_EQ(Write(kind, feature), kWritten);
        EXPECT_TRUE(Taken() == before + kind.valued) << before.substr(0, 100);
    }
}

TEST_P(AppendedReport, SharesTheFileWithOthers)
{
    const VEXISpecObject_var feature = Valued(kind);
    std::ofstream writer(path, std::ios::app);
    writer << "before\n" << std::flush;
    const std::ifstream reader(path);
    EXPECT_EQ(Write(kind, feature), kWritten);
    writer << "after\n" << std::flush;
    EXPECT_EQ(Taken(), "before\n" + kind.valued + "after\n");
}

TEST_P(AppendedReport, GoesToAnyNameOfAFile)
{
    const VEXISpecObject_var feature = Valued(kind);
    for (const char* const name : {"a report", "100%s", "\xC3\xBC \xE6\x97\xA5.txt", "back\\slash",
                                   "line\nend", "\xFF", "-"}) {
        EXPECT_EQ(
            OutcomeOf([&] { return kind.report(feature, VEXUnicodeString(folder.File(name))); }),
            kWritten);
        EXPECT_EQ(ReadFile(folder.File(name)), kind.valued) << name;
    }
    EXPECT_EQ(folder.Names().size(), 7U);
}

// --- Files that cannot be written ---------------------------------------------------------------

TEST_P(AppendedReport, GoesNowhereWithoutAWordWhenTheFileCannotBeOpened)
{
    const VEXISpecObject_var feature = Valued(kind);
    std::filesystem::create_directory(folder.File("folder"));
    WriteFile(folder.File("file"), "before");
    const std::string zero("x\0y", 3);
    for (const std::string& name :
         {folder.Path(), folder.File("folder"), folder.File("folder/"),
          folder.File("missing/report.txt"), folder.File("file/report.txt"), std::string(),
          folder.File(zero), zero, folder.File(std::string(5000, 'x'))}) {
        EXPECT_EQ(OutcomeOf([&] { return kind.report(feature, VEXUnicodeString(name)); }), kWritten)
            << name;
        EXPECT_EQ(OutcomeOf([&] { return kind.report(VEXISpecObject_var(), name.c_str()); }),
                  kRefused)
            << name;
    }
    EXPECT_EQ(folder.Names(), (Lines{"file", "folder"}));
    EXPECT_TRUE(std::filesystem::is_empty(folder.File("folder")));
    EXPECT_EQ(ReadFile(folder.File("file")), "before");
    EXPECT_FALSE(FileExists("x"));
}

TEST_P(AppendedReport, OnAFullDiskIsNotMissed)
{
    std::filesystem::create_symlink("/dev/full", path);
    EXPECT_EQ(Write(kind, Valued(kind)), kWritten);
}

std::ptrdiff_t OpenFiles()
{
    return std::distance(std::filesystem::directory_iterator("/proc/self/fd"), {});
}

TEST_P(AppendedReport, ClosesTheFileWhateverHappened)
{
    const VEXISpecObject_var feature = Valued(kind);
    const std::ptrdiff_t before = OpenFiles();
    WriteUnseen(kind, feature);
    EXPECT_EQ(OpenFiles(), before);
    for (const std::string& getter : kind.getters) {
        const Faults faults(getter.substr(0, getter.find('(')) + "=E_FAIL");
        WriteUnseen(kind, feature);
        EXPECT_EQ(OpenFiles(), before) << getter;
    }
}

// --- The program around -------------------------------------------------------------------------

TEST_P(AppendedReport, IsTheSameInAForeignLocale)
{
    const VEXISpecObject_var feature = Valued(kind);
    const ForeignNumbers foreign;
    EXPECT_EQ(Write(kind, feature), kWritten);
    EXPECT_EQ(Taken(), kind.valued);
}

/// Writes letters to files in upper case.
class UpperCaseFiles : public std::codecvt<char, char, std::mbstate_t>
{
protected:
    bool do_always_noconv() const noexcept override { return false; }
    int do_encoding() const noexcept override { return 1; }
    result do_out(std::mbstate_t&, const char* from, const char* fromEnd, const char*& fromNext,
                  char* to, char* toEnd, char*& toNext) const override
    {
        while (from != fromEnd && to != toEnd) {
            *to++ = 'a' <= *from && *from <= 'z' ? static_cast<char>(*from - 'a' + 'A') : *from;
            ++from;
        }
        fromNext = from;
        toNext = to;
        return from == fromEnd ? ok : partial;
    }
};

TEST_P(AppendedReport, IsTheSameInALocaleThatChangesWhatGoesToFiles)
{
    const VEXISpecObject_var feature = Valued(kind);
    const std::locale former =
        std::locale::global(std::locale(std::locale::classic(), new UpperCaseFiles));
    std::ofstream(folder.File("changed")) << "text";
    const Outcome outcome = Write(kind, feature);
    std::locale::global(former);
    EXPECT_EQ(ReadFile(folder.File("changed")), "TEXT");
    EXPECT_EQ(outcome, kWritten);
    EXPECT_EQ(Taken(), kind.valued);
}

TEST_P(AppendedReport, LeavesTheLocaleAndTheStreamsOfTheProgramAlone)
{
    const VEXISpecObject_var feature = Valued(kind);
    const ForeignNumbers foreign;
    std::cout << std::setprecision(3) << std::setw(40) << std::setfill('*');
    const std::ios::fmtflags flags = std::cout.flags();
    const std::locale global;
    EXPECT_EQ(Write(kind, feature), kWritten);
    EXPECT_EQ(std::cout.flags(), flags);
    EXPECT_EQ(std::cout.precision(), 3);
    EXPECT_EQ(std::cout.width(), 40);
    EXPECT_EQ(std::cout.fill(), '*');
    EXPECT_TRUE(std::cout.good());
    EXPECT_TRUE(std::locale() == global);
    std::cout << std::setprecision(6) << std::setw(0) << std::setfill(' ');
    EXPECT_EQ(Taken(), kind.valued);
}

INSTANTIATE_TEST_SUITE_P(Of, AppendedReport, testing::ValuesIn(kAllReports), NameOfReport);

}  // namespace
}  // namespace hlxtest::reports
