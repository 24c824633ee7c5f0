// SPDX-License-Identifier: Apache-2.0
// The ready-made test case that dumps the feature tree and writes the input files of a document.
#include "HLXTestCaseDriver.h"
#include "library/harness/FileDumpFixture.h"
#include "library/harness/FullCase.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace hlxtest {
namespace {

constexpr const char* banner = kPostProcessBanner;

// Each argument of a call is typed once.
const std::string flagOff = "HLXIZPKWBGeneralSettingAtt::SetWriteFlatInputFileFlag(0)";
const std::string flagOn = "HLXIZPKWBGeneralSettingAtt::SetWriteFlatInputFileFlag(1)";
const std::string removal = "VEXDocumentServices::Remove(VEXAnalysis, 1)";

// --- Process and VerifyArguments
// ------------------------------------------------------------------

TEST_F(FileDumpTest, ProcessDoesNothing)
{
    Open(1);
    EXPECT_EQ(OutcomeOf([&] { return testCase.Process(); }), (Outcome{S_OK, "", ""}));
    EXPECT_EQ(CallsOf([&] { testCase.Process(); }), std::vector<std::string>{});
    EXPECT_EQ(output.Names(), std::vector<std::string>{});
}

constexpr const char* usage =
    "ERROR in arguments\n"
    "Args are:\n"
    "\t1) Input Dir\n"
    "\t2) Input File (.VEXAnalysis) Name\n"
    "\t3) Output Dir\n"
    "\t4) HOLLEX File Name (.inp)\n";

TEST_F(FileDumpTest, FiveArgumentsAreAcceptedSilently)
{
    EXPECT_EQ(OutcomeOf([&] { return testCase.VerifyArguments(5); }), (Outcome{1, "", ""}));
}

TEST_F(FileDumpTest, OtherCountsPrintHowToCallTheProgram)
{
    for (const int count : {4, 6, 3, 7, 1, 0, -5, 5 + 256}) {
        EXPECT_EQ(OutcomeOf([&] { return testCase.VerifyArguments(count); }),
                  (Outcome{0, usage, ""}))
            << count;
    }
}

// --- Run-time class and copies
// --------------------------------------------------------------------

TEST_F(FileDumpTest, TheRunTimeClassIsThatOfTheFrame)
{
    EXPECT_STREQ(testCase.IsA(), "HLXBaseTestCase");
    EXPECT_EQ(testCase.GetMetaObject(), HLXBaseTestCase::MetaObject());
    EXPECT_EQ(testCase.IsAKindOf("HLXBaseTestCase"), 1);
    EXPECT_EQ(testCase.IsAKindOf("HLXFileDumpTestCase"), 0);
}

using FullFileDumpCase = FullCaseOf<ExposedFileDumpTestCase>;

TEST_F(FullFileDumpCase, ACopyHasEveryMemberAndCountsTheHandlesOnly)
{
    ExposedFileDumpTestCase copy(*held);
    ExpectAllMembers(copy);
    ExpectAllMembers(*held);
    ExpectCounts(2);
    copy.InitializeClassMembers();
}

TEST_F(FullFileDumpCase, AssignmentGivesEveryMemberAndCountsTheHandlesOnly)
{
    ExposedFileDumpTestCase other;
    ExposedFileDumpTestCase& answer = (other = *held);
    EXPECT_EQ(&answer, &other);
    ExpectAllMembers(other);
    ExpectAllMembers(*held);
    ExpectCounts(2);
    other.InitializeClassMembers();
}

// --- Files of a document with some cases
// ----------------------------------------------------------

struct Files
{
    int cases;
    std::vector<std::string> names;  ///< input files, in the order of the cases
};

class FilesTest : public FileDumpTest, public testing::WithParamInterface<Files>
{};

TEST_P(FilesTest, OneDumpAndOneInputFileACaseStandInTheOutputFolder)
{
    const auto& [count, names] = GetParam();
    Open(count);
    const std::string tree = Tree();
    const VEXListValVEXBaseUnknown_var cases = Cases();
    std::vector<std::string> expected;
    for (int i = 1; i <= count; ++i) {
        expected.push_back(StructuredInputFile(cases[i]));
    }

    EXPECT_EQ(PostProcess(), (Outcome{S_OK, std::string(banner) + "Program Ends\n", ""}));

    std::vector<std::string> all = {"job.inp_FeatTree.txt"};
    all.insert(all.end(), names.begin(), names.end());
    std::sort(all.begin(), all.end());
    EXPECT_EQ(output.Names(), all);
    EXPECT_EQ(input.Names(), (std::vector<std::string>{"model.VEXAnalysis"}));
    for (std::size_t i = 0; i < names.size(); ++i) {
        EXPECT_EQ(ReadFile(output.File(names[i])), expected[i]) << names[i];
    }
    EXPECT_NE(tree, "");
    EXPECT_EQ(ReadFile(dump), DumpOf(tree));
    EXPECT_EQ(testCase._Document, nullptr);
}

INSTANTIATE_TEST_SUITE_P(
    Of, FilesTest,
    testing::Values(Files{1, {"job.inp"}}, Files{2, {"job.inp_case_1", "job.inp_case_2"}},
                    Files{3, {"job.inp_case_1", "job.inp_case_2", "job.inp_case_3"}},
                    Files{10,
                          {"job.inp_case_1", "job.inp_case_2", "job.inp_case_3", "job.inp_case_4",
                           "job.inp_case_5", "job.inp_case_6", "job.inp_case_7", "job.inp_case_8",
                           "job.inp_case_9", "job.inp_case_10"}}),
    [](const auto& row) { return std::to_string(row.param.cases) + "Cases"; });

TEST_F(FileDumpTest, ADocumentWithoutCasesIsOnlyRemoved)
{
    Open(0);
    EXPECT_EQ(PostProcess(), (Outcome{S_OK,
                                      "ERROR Could not get the Analysis Case!\n" +
                                          std::string(banner) + "Program Ends\n",
                                      ""}));
    EXPECT_EQ(output.Names(), std::vector<std::string>{});
    EXPECT_EQ(testCase._Document, nullptr);
}

TEST_F(FileDumpTest, AFormerDumpIsReplaced)
{
    WriteFile(dump, std::string(100000, 'x'));
    Open(1);
    const std::string tree = Tree();
    EXPECT_EQ(PostProcess(), (Outcome{S_OK, std::string(banner) + "Program Ends\n", ""}));
    EXPECT_EQ(ReadFile(dump), DumpOf(tree));
}

TEST_F(FileDumpTest, DumpAndTitleAreNamedAfterTheInputFile)
{
    Open(1);
    EXPECT_EQ(PostProcess(), (Outcome{S_OK, std::string(banner) + "Program Ends\n", ""}));
    EXPECT_EQ(testCase._DumpTreeFileName, "job.inp_FeatTree.txt");
    EXPECT_EQ(testCase._DumpTreeTitle, "   job.inpFeature Tree Dump");
}

TEST_F(FileDumpTest, TheNumberOfACaseIsAppendedToTheWholePath)
{
    Open(2);
    testCase._HollexFile1Path = VEXUnicodeString(output.File("a.b/../other"));
    EXPECT_EQ(
        CallsOf([&] { PostProcess("HLXIIfwTraverser::WriteInputFile=S_OK"); },
                {"VEXSplitPath", "HLXIIfwTraverser::"}),
        (std::vector<std::string>{
            "VEXSplitPath(\"" + output.File("a.b/../other") + "\", &, &)",
            "HLXIIfwTraverser::WriteInputFile(\"" + output.File("a.b/../other_case_1") + "\", [1])",
            "HLXIIfwTraverser::WriteInputFile(\"" + output.File("a.b/../other_case_2") + "\", [1])",
        }));
    EXPECT_EQ(output.Names(), (std::vector<std::string>{"other_FeatTree.txt"}));
}

// --- Order of calls
// -------------------------------------------------------------------------------

const std::vector<std::string> theCalls = {"HLXIZPKWBGeneralSettingAtt::SetWriteFlatInputFileFlag",
                                           "VEXISam",
                                           "cast:VEXSamAnalysisModel",
                                           "cast:HLXHacAnalysisCaseLT",
                                           "HLXAnalysisDocUtils::",
                                           "HLXZPKVersionManager::",
                                           "VEXSplitPath",
                                           "DumpFeatureTree",
                                           "HLXIIfwTraverser::",
                                           "VEXDocumentServices::"};

using Lines = std::vector<std::string>;

Lines Joined(std::initializer_list<Lines> parts)
{
    Lines all;
    for (const Lines& part : parts) {
        all.insert(all.end(), part.begin(), part.end());
    }
    return all;
}

const Lines wayToManager = {
    "VEXISamAccess::GetSpecContainer(&)",
    "VEXISamAnalysisContainer::GetAnalysisManager(&)",
};

const Lines wayToCases = Joined({wayToManager,
                                 {
                                     "VEXISamAnalysisManager::GetAllAnalysisModels(&)",
                                     "cast:VEXSamAnalysisModel->VEXISamAnalysisModel(&)",
                                     "VEXISamAnalysisModel::GetAnalysisCases(&)",
                                 }});

const Lines wayToNavigateObject = Joined({wayToManager,
                                          {
                                              "VEXISamAnalysisManager::GetAllAnalysisModels(&)",
                                              "cast:VEXSamAnalysisModel->VEXINavigateObject(&)",
                                          }});

const Lines upgrade = {
    "cast:HLXHacAnalysisCaseLT->VEXISamAnalysisCase(&)",
    "HLXAnalysisDocUtils::GetDocument(HLXHacAnalysisCaseLT)",
    "HLXZPKVersionManager::HandleZPKVersioning(VEXAnalysisDocument, 0)",
};

Lines Written(const std::string& path)
{
    return {
        "cast:HLXHacAnalysisCaseLT->VEXISamAnalysisCase(&)",
        flagOff,
        "HLXIIfwTraverser::WriteInputFile(\"" + path + "\", [1])",
        flagOff,
    };
}

TEST_F(FileDumpTest, ThePlatformIsCalledInThisOrder)
{
    Open(2);
    const std::string path = output.File("job.inp");
    EXPECT_EQ(CallsOf([&] { testCase.PostProcess(); }, theCalls),
              Joined({{flagOff},
                      wayToCases,
                      wayToNavigateObject,
                      upgrade,
                      {"VEXSplitPath(\"" + path + "\", &, &)",
                       "DumpFeatureTree(VEXSamAnalysisModel, 0, &)"},
                      Written(path + "_case_1"),
                      Written(path + "_case_2"),
                      {removal, flagOn}}));
}

TEST_F(FileDumpTest, ASingleCaseIsWrittenByIndexWithoutAPath)
{
    Open(1);
    const std::string path = output.File("job.inp");
    EXPECT_EQ(CallsOf([&] { testCase.PostProcess(); }, theCalls),
              Joined({{flagOff},
                      wayToCases,
                      wayToNavigateObject,
                      upgrade,
                      {"VEXSplitPath(\"" + path + "\", &, &)",
                       "DumpFeatureTree(VEXSamAnalysisModel, 0, &)"},
                      Written(path),
                      {removal, flagOn}}));
}

TEST_F(FileDumpTest, WithoutCasesOnlyTheWayToThemIsGone)
{
    Open(0);
    EXPECT_EQ(CallsOf([&] { testCase.PostProcess(); }, theCalls),
              Joined({{flagOff}, wayToCases, {removal, flagOn}}));
}

TEST_F(FileDumpTest, AnOptionThatWasOffStaysOff)
{
    SetFlatFileOption(0);
    Open(1);
    EXPECT_EQ(PostProcess().result, S_OK);
    EXPECT_EQ(FlatFileOption(), 0);
    SetFlatFileOption(1);
}

// --- Early returns
// --------------------------------------------------------------------------------

struct EarlyReturn
{
    const char* name;
    const char* faults;
    long result;
    Lines calls;  ///< after the way to the navigate object
};

class EarlyReturnTest : public FileDumpTest, public testing::WithParamInterface<EarlyReturn>
{};

TEST_P(EarlyReturnTest, LeavesTheDocumentLoadedAndRestoresTheOption)
{
    Open(2);
    EXPECT_EQ(PostProcess(GetParam().faults), (Outcome{GetParam().result, "", ""}));
    ASSERT_NE(testCase._Document, nullptr);
    EXPECT_EQ(testCase._Document->IsNull(), 0);
    EXPECT_EQ(FlatFileOption(), 1);
    EXPECT_EQ(output.Names(), std::vector<std::string>{});
    const Faults faults(GetParam().faults);
    EXPECT_EQ(CallsOf([&] { testCase.PostProcess(); }, theCalls),
              Joined({{flagOff}, wayToCases, wayToNavigateObject, GetParam().calls, {flagOn}}));
}

const EarlyReturn earlyReturns[] = {
    {"NoCase", "cast:HLXHacAnalysisCaseLT->VEXISamAnalysisCase=E_ACCESSDENIED", E_FAIL,
     Lines(upgrade.begin(), upgrade.begin() + 1)},
    {"EmptyCase", "cast:HLXHacAnalysisCaseLT->VEXISamAnalysisCase=null", E_FAIL,
     Lines(upgrade.begin(), upgrade.begin() + 1)},
    {"NoDocument", "HLXAnalysisDocUtils::GetDocument=null", E_FAIL,
     Lines(upgrade.begin(), upgrade.begin() + 2)},
    {"NoUpgrade", "HLXZPKVersionManager::HandleZPKVersioning=E_ACCESSDENIED", E_ACCESSDENIED,
     upgrade},
    {"NoUpgradeWithAnotherCode", "HLXZPKVersionManager::HandleZPKVersioning=-1", -1, upgrade},
};

INSTANTIATE_TEST_SUITE_P(Of, EarlyReturnTest, testing::ValuesIn(earlyReturns),
                         [](const auto& row) { return std::string(row.param.name); });

TEST_F(FileDumpTest, OnlyTheFirstEntryHasToBeACase)
{
    Open(2);
    EXPECT_EQ(PostProcess("cast:HLXHacAnalysisCaseLT->VEXISamAnalysisCase#2=E_NOINTERFACE"),
              (Outcome{S_OK, std::string(banner) + "Program Ends\n", ""}));
    EXPECT_EQ(output.Names(), (std::vector<std::string>{"job.inp_FeatTree.txt", "job.inp_case_2"}));
}

TEST_F(FileDumpTest, AnUpgradeWithAPositiveResultGoesOn)
{
    Open(1);
    EXPECT_EQ(PostProcess("HLXZPKVersionManager::HandleZPKVersioning=S_FALSE,keep"),
              (Outcome{S_OK, std::string(banner) + "Program Ends\n", ""}));
    EXPECT_EQ(output.Names(), (std::vector<std::string>{"job.inp", "job.inp_FeatTree.txt"}));
}

// --- Failures on the way
// --------------------------------------------------------------------------

struct Failure
{
    const char* name;
    const char* faults;
    const char* out;  ///< in front of the banner
};

constexpr const char* noManager = "**********ERROR in getting the Analysis Manager";

/// Failures of the way to cases, manager and navigate object, with cases in the list from before:
/// the upgrade's success takes the place of the failure.
class FailureWithCasesTest : public FileDumpTest, public testing::WithParamInterface<Failure>
{};

TEST_P(FailureWithCasesTest, DoesNotKeepTheFilesFromBeingWritten)
{
    Open(2);
    testCase._AnalysisCases = Cases();
    const std::string first = StructuredInputFile(testCase._AnalysisCases[1]);
    const std::string second = StructuredInputFile(testCase._AnalysisCases[2]);
    EXPECT_EQ(PostProcess(GetParam().faults),
              (Outcome{S_OK, GetParam().out + std::string(banner) + "Program Ends\n", ""}));
    EXPECT_EQ(output.Names(), (std::vector<std::string>{"job.inp_FeatTree.txt", "job.inp_case_1",
                                                        "job.inp_case_2"}));
    // Nothing to dump was found.
    EXPECT_EQ(ReadFile(dump), DumpOf(""));
    EXPECT_EQ(ReadFile(output.File("job.inp_case_1")), first);
    EXPECT_EQ(ReadFile(output.File("job.inp_case_2")), second);
    EXPECT_EQ(testCase._Document, nullptr);
}

const Failure failuresWithCases[] = {
    {"NoModels", "VEXISamAnalysisManager::GetAllAnalysisModels#1=E_ACCESSDENIED",
     "ERROR No analysis models found.\n"},
    {"NoManagerForTheCases", "VEXISamAnalysisContainer::GetAnalysisManager#1=E_ACCESSDENIED",
     "**********ERROR in getting the Analysis ManagerERROR No analysis models found.\n"},
    {"NoManager", "VEXISamAnalysisContainer::GetAnalysisManager#2=E_ACCESSDENIED", noManager},
    {"NoModelsForTheDump", "VEXISamAnalysisManager::GetAllAnalysisModels#2=E_ACCESSDENIED", ""},
    {"NoNavigateObject", "cast:VEXSamAnalysisModel->VEXINavigateObject=E_NOINTERFACE",
     "Navigate Object not found"},
};

INSTANTIATE_TEST_SUITE_P(Of, FailureWithCasesTest, testing::ValuesIn(failuresWithCases),
                         [](const auto& row) { return std::string(row.param.name); });

/// The same, no case being in the list: nothing is written, the document is removed all the same.
class FailureWithoutCasesTest : public FileDumpTest, public testing::WithParamInterface<Failure>
{};

TEST_P(FailureWithoutCasesTest, WritesNothingAndRemovesTheDocument)
{
    Open(2);
    EXPECT_EQ(PostProcess(GetParam().faults),
              (Outcome{S_OK, GetParam().out + std::string(banner) + "Program Ends\n", ""}));
    EXPECT_EQ(output.Names(), std::vector<std::string>{});
    EXPECT_EQ(testCase._Document, nullptr);
}

const Failure failuresWithoutCases[] = {
    {"NoModels", "VEXISamAnalysisManager::GetAllAnalysisModels=E_ACCESSDENIED",
     "ERROR No analysis models found.\n"},
    {"NoCases", "VEXISamAnalysisModel::GetAnalysisCases=empty",
     "ERROR Could not get the Analysis Case!\n"},
    {"NoAccess", "cast:VEXAnalysisDocument->VEXISamAccess=E_NOINTERFACE",
     "**********ERROR in getting the FEMERROR No analysis models found.\n"},
};

INSTANTIATE_TEST_SUITE_P(Of, FailureWithoutCasesTest, testing::ValuesIn(failuresWithoutCases),
                         [](const auto& row) { return std::string(row.param.name); });

TEST_F(FileDumpTest, AFailureOfOneStepEndsTheWay)
{
    Open(1);
    const Faults faults("VEXISamAnalysisModel::GetAnalysisCases=empty");
    EXPECT_EQ(CallsOf([&] { testCase.PostProcess(); }, theCalls),
              Joined({{flagOff}, wayToCases, {removal, flagOn}}));
}

TEST_F(FileDumpTest, AFailingManagerKeepsTheNavigateObjectFromBeingAskedFor)
{
    Open(1);
    const Faults faults("VEXISamAnalysisContainer::GetAnalysisManager#2=E_FAIL,keep");
    const Lines calls =
        CallsOf([&] { testCase.PostProcess(); }, {"VEXISamAnalysisManager::GetAllAnalysisModels"});
    EXPECT_EQ(calls, (Lines{"VEXISamAnalysisManager::GetAllAnalysisModels(&)"}));
}

TEST_F(FileDumpTest, AFailingCaseDoesNotStopTheOthers)
{
    Open(3);
    EXPECT_EQ(PostProcess("HLXIIfwTraverser::WriteInputFile#1=E_ACCESSDENIED;"
                          "HLXIIfwTraverser::WriteInputFile#2=E_FAIL"),
              (Outcome{S_OK,
                       "Input file writing failedInput file writing failed" + std::string(banner) +
                           "Program Ends\n",
                       ""}));
    EXPECT_EQ(output.Names(), (std::vector<std::string>{"job.inp_FeatTree.txt", "job.inp_case_3"}));
}

TEST_F(FileDumpTest, AFailingSingleCaseDoesNotChangeTheResult)
{
    Open(1);
    EXPECT_EQ(PostProcess("VEXCreateExternalObject=null"),
              (Outcome{S_OK,
                       "Failed to get Traverser Interface  !Input file writing failed" +
                           std::string(banner) + "Program Ends\n",
                       ""}));
}

TEST_F(FileDumpTest, AFailingDumpIsNotReported)
{
    Open(1);
    const std::string inputFile = StructuredInputFile(Cases()[1]);
    EXPECT_EQ(PostProcess("DumpFeatureTree=E_FAIL"),
              (Outcome{S_OK, std::string(banner) + "Program Ends\n", ""}));
    EXPECT_EQ(ReadFile(dump), DumpOf(""));
    EXPECT_EQ(ReadFile(output.File("job.inp")), inputFile);
}

TEST_F(FileDumpTest, AFailingRemovalIsAnsweredAndTheProgramDoesNotEnd)
{
    Open(1);
    VEXDocument* const document = testCase._Document;
    EXPECT_EQ(
        PostProcess("VEXDocumentServices::Remove=E_ACCESSDENIED"),
        (Outcome{E_ACCESSDENIED, std::string(banner) + "Failure removing the document.", ""}));
    EXPECT_EQ(testCase._Document, nullptr);
    EXPECT_EQ(FlatFileOption(), 1);
    EXPECT_EQ(VEXDocumentServices::Remove(*document, 1), S_OK);
}

TEST_F(FileDumpTest, ARemovalWithAPositiveResultEndsTheProgramWithIt)
{
    Open(1);
    EXPECT_EQ(PostProcess("VEXDocumentServices::Remove=S_FALSE,keep"),
              (Outcome{S_FALSE, std::string(banner) + "Program Ends\n", ""}));
}

// --- Under the driver
// -----------------------------------------------------------------------------

class FileDumpRunTest : public testing::Test
{
protected:
    Outcome RunOn(std::initializer_list<const char*> entries)
    {
        CommandLine line(entries);
        return OutcomeOf([&] { driver.Run(line.Count(), line.Values()); });
    }

    FileDumpRunTest() { driver.AddTestCase(&testCase); }

    TemporaryFolder input;
    TemporaryFolder output;
    HLXFileDumpTestCase testCase;
    HLXTestCaseDriver driver;
};

TEST_F(FileDumpRunTest, WritesTheFilesOfThreeCases)
{
    const std::string document = input.File("model.VEXAnalysis");
    StoreAnalysisDocument(document, 3);
    EXPECT_EQ(RunOn({"program", input.Path().c_str(), "model.VEXAnalysis", output.Path().c_str(),
                     "job.inp"}),
              (Outcome{0,
                       "\n In HLXBaseTestCase::PreProcess() \n"
                       "**********HOLLEX file 1 name: " +
                           output.File("job.inp") +
                           "\n"
                           "**********Intermediate Input file name :" +
                           output.File("model.VEXAnalysis") +
                           "\n"
                           "**********Input file name : " +
                           document +
                           "\n"
                           "Open Document " +
                           document +
                           " OK\n"
                           "\n In HLXBaseTestCase::PostProcess() \n"
                           "Program Ends\n",
                       ""}));
    EXPECT_EQ(output.Names(), (std::vector<std::string>{"job.inp_FeatTree.txt", "job.inp_case_1",
                                                        "job.inp_case_2", "job.inp_case_3"}));
}

TEST_F(FileDumpRunTest, WithAWrongCountPrintsHowToCallAndSkipsTheCase)
{
    StoreAnalysisDocument(input.File("model.VEXAnalysis"), 1);
    const Outcome expected{0, "\n In HLXBaseTestCase::PreProcess() \n" + std::string(usage), ""};
    EXPECT_EQ(RunOn({"program", input.Path().c_str(), "model.VEXAnalysis", output.Path().c_str()}),
              expected);
    EXPECT_EQ(RunOn({"program", input.Path().c_str(), "model.VEXAnalysis", output.Path().c_str(),
                     "job.inp", "job2.inp"}),
              expected);
    EXPECT_EQ(output.Names(), std::vector<std::string>{});
}

TEST_F(FileDumpRunTest, ADocumentThatCannotBeOpenedIsSkipped)
{
    const std::string document = input.File("missing.VEXAnalysis");
    const Outcome outcome = RunOn(
        {"program", input.Path().c_str(), "missing.VEXAnalysis", output.Path().c_str(), "job.inp"});
    EXPECT_EQ(outcome.out,
              "\n In HLXBaseTestCase::PreProcess() \n"
              "**********HOLLEX file 1 name: " +
                  output.File("job.inp") +
                  "\n"
                  "**********Intermediate Input file name :" +
                  output.File("missing.VEXAnalysis") +
                  "\n"
                  "**********Input file name : " +
                  document +
                  "\n"
                  "ERROR in opening document" +
                  document + "\n");
    EXPECT_EQ(output.Names(), std::vector<std::string>{});
}

}  // namespace
}  // namespace hlxtest
