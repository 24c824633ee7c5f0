// SPDX-License-Identifier: Apache-2.0
// The file-dump test case where something that it takes for granted is missing: the option, the
// file name, the document, the cases.
#include "HLXTestCaseDriver.h"
#include "library/harness/FileDumpFixture.h"

namespace hlxtest {
namespace {

const Outcome kAllWell{S_OK, std::string(kPostProcessBanner) + "Program Ends\n", ""};

constexpr const char* kNoAccess =
    "**********ERROR in getting the FEMERROR No analysis models found.\n";

// --- The option and the file name ---------------------------------------------------------------

class UnsetOptionTest : public FileDumpTest, public testing::WithParamInterface<const char*>
{};

TEST_P(UnsetOptionTest, LeavesTheFilesAsTheUserWantsThem)
{
    Open(1);
    const std::string tree = Tree();
    const std::string flat = FlatInputFile(Cases()[1]);
    ASSERT_NE(flat, StructuredInputFile(Cases()[1]));
    EXPECT_EQ(PostProcess(GetParam()), kAllWell);
    EXPECT_EQ(output.Names(), (std::vector<std::string>{"job.inp", "job.inp_FeatTree.txt"}));
    EXPECT_EQ(ReadFile(output.File("job.inp")), flat);
    EXPECT_EQ(ReadFile(dump), DumpOf(tree));
    EXPECT_EQ(FlatFileOption(), 1);
}

INSTANTIATE_TEST_SUITE_P(
    Without, UnsetOptionTest,
    testing::Values("HLXIZPKWBGeneralSettingAtt::SetWriteFlatInputFileFlag=E_FAIL",
                    "GetZPKWBGeneralSettingCtrl=E_FAIL", "GetZPKWBGeneralSettingCtrl=null"),
    [](const auto& row) { return "Number" + std::to_string(row.index + 1); });

TEST_F(FileDumpTest, WithoutAFileNameTheDumpHasItsEndingOnly)
{
    Open(1);
    const std::string tree = Tree();
    const std::string inputFile = StructuredInputFile(Cases()[1]);
    EXPECT_EQ(PostProcess("VEXSplitPath=E_FAIL"), kAllWell);
    EXPECT_EQ(output.Names(), (std::vector<std::string>{"_FeatTree.txt", "job.inp"}));
    EXPECT_EQ(ReadFile(output.File("_FeatTree.txt")), "   Feature Tree Dump:\n\n" + tree + "\n");
    EXPECT_EQ(ReadFile(output.File("job.inp")), inputFile);
}

TEST_F(FileDumpTest, WhatTheSplittingAnswersIsNotLookedAt)
{
    Open(1);
    const std::string tree = Tree();
    EXPECT_EQ(PostProcess("VEXSplitPath=E_FAIL,keep"), kAllWell);
    EXPECT_EQ(output.Names(), (std::vector<std::string>{"job.inp", "job.inp_FeatTree.txt"}));
    EXPECT_EQ(ReadFile(dump), DumpOf(tree));
}

// --- The document -------------------------------------------------------------------------------

TEST_F(FileDumpTest, WithoutADocumentNothingIsWrittenAndTheProgramEnds)
{
    testCase._OutputDirectory = VEXUnicodeString(output.Path());
    testCase._HollexFile1Path = VEXUnicodeString(output.File("job.inp"));
    EXPECT_EQ(PostProcess(), (Outcome{S_OK, kNoAccess + kAllWell.out, ""}));
    EXPECT_EQ(output.Names(), std::vector<std::string>{});
}

TEST_F(FileDumpTest, AnOpeningThatSucceedsWithoutADocumentRunsToTheEnd)
{
    StoreAnalysisDocument(documentPath, 1);
    HLXTestCaseDriver driver;
    driver.AddTestCase(&testCase);
    CommandLine line{"program", input.Path().c_str(), "model.VEXAnalysis", output.Path().c_str(),
                     "job.inp"};
    EXPECT_EQ(RunWith("VEXDocumentServices::OpenDocument=null",
                      [&] { driver.Run(line.Count(), line.Values()); }),
              (Outcome{0,
                       "\n In HLXBaseTestCase::PreProcess() \n"
                       "**********HOLLEX file 1 name: " +
                           output.File("job.inp") +
                           "\n"
                           "**********Intermediate Input file name :" +
                           output.File("model.VEXAnalysis") +
                           "\n"
                           "**********Input file name : " +
                           documentPath +
                           "\n"
                           "ERROR in opening document" +
                           documentPath + "\n" + kNoAccess + kAllWell.out,
                       ""}));
    EXPECT_EQ(output.Names(), std::vector<std::string>{});
}

TEST_F(FileDumpTest, ASecondPostProcessEndsAtTheCasesOfTheDocumentThatIsGone)
{
    Open(1);
    EXPECT_EQ(PostProcess(), kAllWell);
    EXPECT_EQ(testCase._AnalysisCases.Size(), 1);
    EXPECT_EQ(PostProcess(), (Outcome{E_FAIL, kNoAccess, ""}));
    EXPECT_EQ(FlatFileOption(), 1);
}

TEST_F(FileDumpTest, ASecondRunOfTheSameCaseWritesTheSameFiles)
{
    Open(2);
    EXPECT_EQ(PostProcess(), kAllWell);
    const std::vector<std::string> names = output.Names();
    std::vector<std::string> former;
    for (const std::string& name : names) {
        former.push_back(ReadFile(output.File(name)));
        WriteFile(output.File(name), "overwritten");
    }
    EXPECT_EQ(names, (std::vector<std::string>{"job.inp_FeatTree.txt", "job.inp_case_1",
                                               "job.inp_case_2"}));
    Open(2);
    EXPECT_EQ(PostProcess(), kAllWell);
    EXPECT_EQ(testCase._AnalysisCases.Size(), 2);
    EXPECT_EQ(output.Names(), names);
    for (std::size_t i = 0; i < names.size(); ++i) {
        EXPECT_EQ(ReadFile(output.File(names[i])), former[i]) << names[i];
    }
}

// --- The cases ----------------------------------------------------------------------------------

/// Loses its cases on the way to the navigate object.
class ForgetfulFileDump : public ExposedFileDumpTestCase
{
public:
    long InitializeNavigateObject(VEXISamAnalysisManager_var manager) override
    {
        _AnalysisCases.RemoveAll();
        return ExposedFileDumpTestCase::InitializeNavigateObject(manager);
    }
};

TEST_F(FileDumpTest, AnEmptyListAtTheEndOfTheWayIsDumpedWithoutAnInputFile)
{
    Open(2);
    const std::string tree = Tree();
    ForgetfulFileDump forgetful;
    forgetful._Document = std::exchange(testCase._Document, nullptr);
    forgetful._OutputDirectory = testCase._OutputDirectory;
    forgetful._HollexFile1Path = testCase._HollexFile1Path;
    Recording recording;
    EXPECT_EQ(OutcomeOf([&] { return forgetful.PostProcess(); }), kAllWell);
    // The option of the dump itself; the input file is given up before its writer is asked.
    EXPECT_EQ(recording.StopNames({"HLXIZPKWBGeneralSettingAtt::Set", "HLXZPKVersionManager",
                                   "VEXCreateExternalObject", "HLXIIfwTraverser"}),
              (std::vector<std::string>{"HLXIZPKWBGeneralSettingAtt::SetWriteFlatInputFileFlag",
                                        "HLXIZPKWBGeneralSettingAtt::SetWriteFlatInputFileFlag"}));
    EXPECT_EQ(output.Names(), (std::vector<std::string>{"job.inp_FeatTree.txt"}));
    EXPECT_EQ(ReadFile(dump), DumpOf(tree));
    EXPECT_EQ(forgetful._Document, nullptr);
}

}  // namespace
}  // namespace hlxtest
