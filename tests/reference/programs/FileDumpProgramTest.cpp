// SPDX-License-Identifier: Apache-2.0
// HLXFileDump from end to end: files, messages, exit codes.
#include "reference/programs/SampleAnalysis.h"
#include "support/AnalysisDocuments.h"

namespace hlxtest {

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

TEST(FileDumpProgram, WithoutCasesTheDocumentIsOnlyRemoved)
{
    const SampleAnalysis sample(0);
    const Ended ended = RunFileDump(sample.Input(), sample.Output());
    EXPECT_EQ(ended, (Ended{0,
                            DumpMessages(sample.Input(), sample.Output(),
                                         "ERROR Could not get the Analysis Case!\n"),
                            ""}));
    EXPECT_THAT(FilesIn(sample.Output()), IsEmpty());
}

TEST(FileDumpProgram, OneCaseIsWrittenUnderThePlainName)
{
    const SampleAnalysis sample(1);
    const Ended ended = RunFileDump(sample.Input(), sample.Output());
    EXPECT_EQ(ended, (Ended{0, DumpMessages(sample.Input(), sample.Output()), ""}));
    const Files files = FilesIn(sample.Output());
    EXPECT_THAT(NamesOf(files), ElementsAre("job.inp", "job.inp_FeatTree.txt"));
    EXPECT_THAT(files.at("job.inp"), StartsWith("*HEADING\n\"Analysis Case.1\"\n** structure\n"
                                                "*PART, NAME=\"Bracket\"\n"));
    EXPECT_THAT(files.at("job.inp_FeatTree.txt"),
                StartsWith("   job.inpFeature Tree Dump:\n\n"
                           "VEXSamAnalysisModel \"Finite Element Model.1\"\n"
                           "  HLXHacAnalysisCaseLT \"Analysis Case.1\"\n"));
}

TEST(FileDumpProgram, ThreeCasesAreNumbered)
{
    const SampleAnalysis sample(3);
    const Ended ended = RunFileDump(sample.Input(), sample.Output());
    EXPECT_EQ(ended, (Ended{0, DumpMessages(sample.Input(), sample.Output()), ""}));
    const Files files = FilesIn(sample.Output());
    EXPECT_THAT(NamesOf(files), ElementsAre("job.inp_FeatTree.txt", "job.inp_case_1",
                                            "job.inp_case_2", "job.inp_case_3"));
    for (const char* const number : {"1", "2", "3"}) {
        EXPECT_THAT(files.at(std::string("job.inp_case_") + number),
                    StartsWith(std::string("*HEADING\n\"Analysis Case.") + number + "\"\n"));
    }
}

// --- Other ends ---------------------------------------------------------------------------------

constexpr const char* kUsage =
    "ERROR in arguments\n"
    "Args are:\n"
    "\t1) Input Dir\n"
    "\t2) Input File (.VEXAnalysis) Name\n"
    "\t3) Output Dir\n"
    "\t4) HOLLEX File Name (.inp)\n";

class FileDumpEndTest : public testing::Test
{
protected:
    FileDumpEndTest() { StoreAnalysisDocument(folder.File("sample.VEXAnalysis"), 1); }

    TemporaryFolder folder;
    TemporaryFolder output;
};

TEST_F(FileDumpEndTest, AWrongCountOfArgumentsIsToldAndNothingOpened)
{
    const std::vector<std::string> all = {Program("HLXFileDump"),
                                          folder.Path(),
                                          "sample.VEXAnalysis",
                                          output.Path(),
                                          "job.inp",
                                          "more.inp",
                                          "more",
                                          "more",
                                          "more",
                                          "more"};
    for (const std::ptrdiff_t count : {1, 3, 4, 6, 9, 10}) {
        EXPECT_EQ(RunProgram({all.begin(), all.begin() + count}),
                  (Ended{1, std::string("\n In HLXBaseTestCase::PreProcess() \n") + kUsage, ""}))
            << count;
    }
    EXPECT_THAT(output.Names(), IsEmpty());
}

TEST_F(FileDumpEndTest, HelpIsAskedForWithOneArgument)
{
    for (const char* const option : {"--help", "-h"}) {
        const Ended ended = RunProgram({Program("HLXFileDump"), option});
        EXPECT_EQ(ended.code, 0);
        EXPECT_THAT(ended.out, StartsWith("usage: HLXFileDump INPUT_DIR DOCUMENT.VEXAnalysis "
                                          "OUTPUT_DIR INPUT_FILE.inp\n"));
        EXPECT_THAT(ended.out, HasSubstr("exit codes: 0 "));
        EXPECT_EQ(ended.err, "");
    }
}

TEST_F(FileDumpEndTest, AMissingDocumentIsAFailure)
{
    const std::string path = folder.File("missing.VEXAnalysis");
    const Ended ended = RunProgram(
        {Program("HLXFileDump"), folder.Path(), "missing.VEXAnalysis", output.Path(), "job.inp"});
    EXPECT_EQ(ended.code, 1);
    EXPECT_THAT(ended.out, testing::EndsWith("\nERROR in opening document" + path + "\n"));
    EXPECT_THAT(ended.err, HasSubstr("'" + path + "': there is no such file"));
    EXPECT_THAT(output.Names(), IsEmpty());
}

TEST_F(FileDumpEndTest, ATruncatedDocumentIsAFailure)
{
    const std::string path = folder.File("sample.VEXAnalysis");
    const std::string bytes = ReadFile(path);
    WriteFile(path, bytes.substr(0, bytes.size() / 2));
    const Ended ended = RunFileDump(folder.Path(), output.Path());
    EXPECT_EQ(ended.code, 1);
    EXPECT_THAT(ended.out, testing::EndsWith("\nERROR in opening document" + path + "\n"));
    EXPECT_THAT(ended.err, HasSubstr("'" + path + "': the file is damaged"));
    EXPECT_THAT(output.Names(), IsEmpty());
}

TEST_F(FileDumpEndTest, AMissingOutputFolderIsToldByTheWriterAndChangesNoResult)
{
    const Ended ended = RunFileDump(folder.Path(), output.File("none"));
    EXPECT_EQ(ended.code, 0);
    EXPECT_THAT(ended.out, HasSubstr("\nInput file writing failed\n"
                                     " In HLXBaseTestCase::PostProcess() \nProgram Ends\n"));
    EXPECT_THAT(ended.err, HasSubstr(output.File("none")));
}

}  // namespace

}  // namespace hlxtest
