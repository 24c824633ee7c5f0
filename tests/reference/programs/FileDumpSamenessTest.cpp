// SPDX-License-Identifier: Apache-2.0
// What HLXFileDump writes does not depend on where, from where and in which locale it runs.
#include "reference/programs/SampleAnalysis.h"
#include "support/ForeignNumbers.h"

#include <clocale>

namespace hlxtest {

namespace {

namespace fs = std::filesystem;

class FileDumpSamenessTest : public testing::Test
{
protected:
    FileDumpSamenessTest()
    {
        EXPECT_EQ(RunFileDump(sample.Input(), sample.Output()).code, 0);
        first = FilesIn(sample.Output());
        EXPECT_EQ(first.size(), 3u);
        EXPECT_THAT(first.at("job.inp_case_1"), testing::HasSubstr("=0.06"));
        again = sample.Path() + "/again";
        fs::create_directory(again);
    }

    const SampleAnalysis sample{2, "GSS,RS,EDS"};
    Files first;
    std::string again;  ///< an empty folder
};

TEST_F(FileDumpSamenessTest, FromAnotherFolderWithRelativePaths)
{
    const Ended ended = RunFileDump("in", "again", {{}, sample.Path()});
    EXPECT_EQ(ended, (Ended{0, DumpMessages("in", "again"), ""}));
    EXPECT_EQ(FilesIn(again), first);
}

TEST_F(FileDumpSamenessTest, OfACopyOfTheDocumentsElsewhere)
{
    const TemporaryFolder elsewhere;
    const std::string input = elsewhere.File("a folder/that is deeper");
    fs::create_directories(input);
    fs::copy(sample.Input(), input, fs::copy_options::recursive);
    fs::rename(sample.Input(), sample.Path() + "/gone");
    EXPECT_EQ(RunFileDump(input, again, {{}, "/"}), (Ended{0, DumpMessages(input, again), ""}));
    EXPECT_EQ(FilesIn(again), first);
}

TEST_F(FileDumpSamenessTest, OverFilesOfAFormerRun)
{
    for (const auto& [name, bytes] : first) {
        WriteFile(sample.Output() + "/" + name, bytes + bytes);
    }
    EXPECT_EQ(RunFileDump(sample.Input(), sample.Output()).code, 0);
    EXPECT_EQ(FilesIn(sample.Output()), first);
}

TEST_F(FileDumpSamenessTest, InAnEnvironmentWithAForeignLocale)
{
    const ForeignNumbers foreign;
    ASSERT_TRUE(foreign.AreInForceInC()) << "no locale with a decimal comma can be had or built";
    const std::string locale = std::setlocale(LC_ALL, nullptr);
    EXPECT_EQ(RunFileDump(sample.Input(), again, {{"LC_ALL=" + locale, "LANG=" + locale}}),
              (Ended{0, DumpMessages(sample.Input(), again), ""}));
    EXPECT_EQ(FilesIn(again), first);
}

TEST_F(FileDumpSamenessTest, InAProgramThatSetsAForeignLocale)
{
    const Ended ended =
        RunFileDump(sample.Input(), again, {}, HLX_BINARY_DIR "/tests/specimens/foreign_file_dump");
    EXPECT_EQ(ended, (Ended{0, DumpMessages(sample.Input(), again), "1.234,5 in C and C++\n"}));
    EXPECT_EQ(FilesIn(again), first);
}

}  // namespace

}  // namespace hlxtest
