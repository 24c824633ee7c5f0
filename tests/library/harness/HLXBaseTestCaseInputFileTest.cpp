// SPDX-License-Identifier: Apache-2.0
// Input files written by a test case: of a case, and of a case of its list. No message has an end
// of line.
#include "support/AnalysisDocuments.h"
#include "support/ExposedTestCase.h"
#include "support/FlatFileOption.h"
#include "support/InputFileWriter.h"
#include "support/Outcome.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <climits>
#include <type_traits>
#include <utility>

namespace hlxtest {
namespace {

static_assert(std::is_same_v<decltype(std::declval<ExposedTestCase>().WriteInputFileForAnalysisCase(
                                 VEXISamAnalysisCase_var(), nullptr)),
                             HRESULT>);
static_assert(std::is_same_v<
              decltype(std::declval<ExposedTestCase>().WriteInputFileForAnalysisCase(1, nullptr)),
              HRESULT>);

class InputFileTest : public testing::Test
{
protected:
    InputFileTest()
    {
        testCase._Document = document.Get();
        EXPECT_EQ(testCase.InitializeAnalysisCaseFromDocument(), S_OK);
        testCase._HollexFile1Path = VEXUnicodeString(folder.File("default.inp"));
        SetFlatFileOption(1);
    }
    ~InputFileTest() override { EXPECT_EQ(FlatFileOption(), 1); }

    VEXISamAnalysisCase_var Case(int index) { return testCase._AnalysisCases[index]; }

    Outcome Write(const VEXISamAnalysisCase_var& analysisCase, const char* path,
                  std::string_view faults = "")
    {
        return RunWith(faults,
                       [&] { return testCase.WriteInputFileForAnalysisCase(analysisCase, path); });
    }

    Outcome Write(int index, const char* path)
    {
        return OutcomeOf([&] { return testCase.WriteInputFileForAnalysisCase(index, path); });
    }

    AnalysisDocument document{3};
    TemporaryFolder folder;
    ExposedTestCase testCase;
};

// --- By handle
// ------------------------------------------------------------------------------------

TEST_F(InputFileTest, ACaseIsWrittenStructuredToThePathWithoutAWord)
{
    const std::string path = folder.File("job.inp");
    EXPECT_EQ(Write(Case(2), path.c_str()), (Outcome{S_OK, "", ""}));
    EXPECT_EQ(folder.Names(), (std::vector<std::string>{"job.inp"}));
    EXPECT_EQ(ReadFile(path), StructuredInputFile(Case(2)));
}

TEST_F(InputFileTest, ThePathIsNotCompleted)
{
    EXPECT_EQ(Write(Case(1), folder.File("job").c_str()), (Outcome{S_OK, "", ""}));
    EXPECT_EQ(folder.Names(), (std::vector<std::string>{"job"}));
}

TEST_F(InputFileTest, WithoutAPathTheFirstInputFileIsWritten)
{
    testCase._HollexFile2Path = VEXUnicodeString(folder.File("second.inp"));
    EXPECT_EQ(Write(Case(3), nullptr), (Outcome{S_OK, "", ""}));
    EXPECT_EQ(folder.Names(), (std::vector<std::string>{"default.inp"}));
    EXPECT_EQ(ReadFile(folder.File("default.inp")), StructuredInputFile(Case(3)));
}

TEST_F(InputFileTest, AnEmptyPathIsPassedOn)
{
    EXPECT_EQ(CallsOf([&] { testCase.WriteInputFileForAnalysisCase(Case(1), ""); },
                      {"HLXIIfwTraverser::"}),
              (std::vector<std::string>{"HLXIIfwTraverser::WriteInputFile(\"\", [1])"}));
    const Outcome outcome = Write(Case(1), "");
    EXPECT_EQ(outcome.result, E_INVALIDARG);
    EXPECT_EQ(outcome.out, "Input file writing failed");
    EXPECT_EQ(folder.Names(), std::vector<std::string>{});
}

TEST_F(InputFileTest, WithoutAPathAnEmptyFirstInputFileIsPassedOn)
{
    testCase._HollexFile1Path = "";
    Outcome outcome{};
    EXPECT_EQ(CallsOf(
                  [&] {
                      outcome =
                          Write(Case(1), nullptr, "HLXIIfwTraverser::WriteInputFile=E_INVALIDARG");
                  },
                  {"HLXIIfwTraverser::"}),
              (std::vector<std::string>{"HLXIIfwTraverser::WriteInputFile(\"\", [1])"}));
    EXPECT_EQ(outcome, (Outcome{E_INVALIDARG, "Input file writing failed", ""}));
    outcome = Write(Case(1), nullptr);
    EXPECT_EQ(outcome.result, E_INVALIDARG);
    EXPECT_EQ(outcome.out, "Input file writing failed");
    EXPECT_EQ(folder.Names(), std::vector<std::string>{});
}

TEST_F(InputFileTest, AnOptionThatCannotBeSetDoesNotStopTheWriting)
{
    const std::string flat = FlatInputFile(Case(1));
    ASSERT_NE(flat, StructuredInputFile(Case(1)));
    for (const char* const fault :
         {"HLXIZPKWBGeneralSettingAtt::SetWriteFlatInputFileFlag=E_FAIL",
          "GetZPKWBGeneralSettingCtrl=E_FAIL", "GetZPKWBGeneralSettingCtrl=null"}) {
        const std::string path = folder.File("default.inp");
        WriteFile(path, "former");
        EXPECT_EQ(Write(Case(1), nullptr, fault), (Outcome{S_OK, "", ""})) << fault;
        EXPECT_EQ(ReadFile(path), flat) << fault;
    }
}

TEST_F(InputFileTest, TheOptionIsOffAroundTheWholeWriting)
{
    const std::string path = folder.File("job.inp");
    EXPECT_EQ(
        CallsOf([&] { testCase.WriteInputFileForAnalysisCase(Case(1), path.c_str()); },
                inputFileCalls),
        (std::vector<std::string>{
            "HLXIZPKWBGeneralSettingAtt::SetWriteFlatInputFileFlag(0)",
            "VEXCreateExternalObject(\"HLXIfwTraverser\", null, \"HLXIfwExportTraverser\", null)",
            "cast:HLXIfwTraverser->HLXIIfwTraverser(&)",
            "HLXIIfwTraverser::WriteInputFile(\"" + path + "\", [1])",
            "HLXIZPKWBGeneralSettingAtt::SetWriteFlatInputFileFlag(1)",
        }));
}

TEST_F(InputFileTest, AnOptionThatWasOffStaysOff)
{
    SetFlatFileOption(0);
    EXPECT_EQ(Write(Case(1), nullptr), (Outcome{S_OK, "", ""}));
    EXPECT_EQ(FlatFileOption(), 0);
    SetFlatFileOption(1);
}

TEST_F(InputFileTest, WriterAndCaseKeepNoReference)
{
    const HLXIIfwTraverser_var writer = InputFileWriter();
    const VEXISamAnalysisCase_var analysisCase = Case(1);
    const unsigned long writerBefore = References(*writer.Get());
    const unsigned long caseBefore = References(*analysisCase.Get());
    EXPECT_EQ(Write(analysisCase, nullptr), (Outcome{S_OK, "", ""}));
    EXPECT_EQ(Write(analysisCase, nullptr, "HLXIIfwTraverser::WriteInputFile=E_FAIL").result,
              E_FAIL);
    EXPECT_EQ(References(*writer.Get()), writerBefore);
    EXPECT_EQ(References(*analysisCase.Get()), caseBefore);
}

TEST_F(InputFileTest, AnEmptyCaseFailsSilentlyBeforeTheWriterIsMade)
{
    EXPECT_EQ(Write(nullptr, nullptr), (Outcome{E_FAIL, "", ""}));
    EXPECT_EQ(
        CallsOf([&] { testCase.WriteInputFileForAnalysisCase(nullptr, nullptr); }, inputFileCalls),
        (std::vector<std::string>{
            "HLXIZPKWBGeneralSettingAtt::SetWriteFlatInputFileFlag(0)",
            "HLXIZPKWBGeneralSettingAtt::SetWriteFlatInputFileFlag(1)",
        }));
    EXPECT_EQ(folder.Names(), std::vector<std::string>{});
}

struct Exit
{
    const char* name;
    const char* faults;
    long result;
    const char* out;
    bool writes;
};

class InputFileExitTest : public InputFileTest, public testing::WithParamInterface<Exit>
{};

TEST_P(InputFileExitTest, AnswersAndPrintsWithoutAnEndOfLine)
{
    EXPECT_EQ(Write(Case(1), nullptr, GetParam().faults),
              (Outcome{GetParam().result, GetParam().out, ""}));
    EXPECT_EQ(FileExists(folder.File("default.inp")), GetParam().writes);
    EXPECT_EQ(FlatFileOption(), 1);
}

INSTANTIATE_TEST_SUITE_P(
    Of, InputFileExitTest,
    testing::Values(
        Exit{"NoWriter", "VEXCreateExternalObject=null", E_FAIL,
             "Failed to get Traverser Interface  !Input file writing failed", false},
        Exit{"NoInterface", "cast:HLXIfwTraverser->HLXIIfwTraverser=E_NOINTERFACE", E_NOINTERFACE,
             "Could not get the IFW TraverserInput file writing failed", false},
        Exit{"FailingQuery", "cast:HLXIfwTraverser->HLXIIfwTraverser=E_ACCESSDENIED",
             E_ACCESSDENIED, "Could not get the IFW TraverserInput file writing failed", false},
        Exit{"FailingQueryThoughGiven", "cast:HLXIfwTraverser->HLXIIfwTraverser=E_UNEXPECTED,keep",
             E_UNEXPECTED, "Could not get the IFW TraverserInput file writing failed", false},
        Exit{"PositiveQuery", "cast:HLXIfwTraverser->HLXIIfwTraverser=S_FALSE,keep", S_OK, "",
             true},
        Exit{"EmptyQuery", "cast:HLXIfwTraverser->HLXIIfwTraverser=null", S_OK, "", false},
        Exit{"FailingFile", "HLXIIfwTraverser::WriteInputFile=E_ACCESSDENIED", E_ACCESSDENIED,
             "Input file writing failed", false},
        Exit{"FailingFileThoughWritten", "HLXIIfwTraverser::WriteInputFile=E_UNEXPECTED,keep",
             E_UNEXPECTED, "Input file writing failed", true},
        Exit{"PositiveFile", "HLXIIfwTraverser::WriteInputFile=S_FALSE,keep", S_FALSE, "", true}),
    [](const auto& row) { return std::string(row.param.name); });

// --- By index
// -------------------------------------------------------------------------------------

class IndexTest : public InputFileTest, public testing::WithParamInterface<int>
{};

TEST_P(IndexTest, FromOneToTheSizeWritesThatCase)
{
    const std::string path = folder.File("job.inp");
    EXPECT_EQ(Write(GetParam(), path.c_str()), (Outcome{S_OK, "", ""}));
    EXPECT_EQ(folder.Names(), (std::vector<std::string>{"job.inp"}));
    EXPECT_EQ(ReadFile(path), StructuredInputFile(Case(GetParam())));
}

INSTANTIATE_TEST_SUITE_P(InTheList, IndexTest, testing::Values(1, 2, 3));

TEST_F(InputFileTest, AnIndexWithoutAPathWritesTheFirstInputFile)
{
    EXPECT_EQ(Write(3, nullptr), (Outcome{S_OK, "", ""}));
    EXPECT_EQ(folder.Names(), (std::vector<std::string>{"default.inp"}));
}

TEST_F(InputFileTest, AnIndexPassesTheWritersFailureUp)
{
    const Faults faults("HLXIIfwTraverser::WriteInputFile=E_ACCESSDENIED");
    EXPECT_EQ(Write(2, nullptr), (Outcome{E_ACCESSDENIED, "Input file writing failed", ""}));
}

class IndexBeyondTest : public InputFileTest, public testing::WithParamInterface<int>
{};

TEST_P(IndexBeyondTest, FailsSilentlyAndAsksNobody)
{
    EXPECT_EQ(Write(GetParam(), nullptr), (Outcome{E_FAIL, "", ""}));
    EXPECT_EQ(CallsOf([&] { testCase.WriteInputFileForAnalysisCase(GetParam(), nullptr); }),
              std::vector<std::string>{});
    EXPECT_EQ(folder.Names(), std::vector<std::string>{});
}

INSTANTIATE_TEST_SUITE_P(TheSize, IndexBeyondTest, testing::Values(4, 5, INT_MAX));

class IndexBelowTest : public InputFileTest, public testing::WithParamInterface<int>
{};

TEST_P(IndexBelowTest, PassesTheSizeTestAndFailsSilentlyAsAnEmptyCase)
{
    EXPECT_EQ(Write(GetParam(), nullptr), (Outcome{E_FAIL, "", ""}));
    EXPECT_EQ(CallsOf([&] { testCase.WriteInputFileForAnalysisCase(GetParam(), nullptr); },
                      inputFileCalls),
              (std::vector<std::string>{
                  "HLXIZPKWBGeneralSettingAtt::SetWriteFlatInputFileFlag(0)",
                  "HLXIZPKWBGeneralSettingAtt::SetWriteFlatInputFileFlag(1)",
              }));
    EXPECT_EQ(folder.Names(), std::vector<std::string>{});
}

INSTANTIATE_TEST_SUITE_P(One, IndexBelowTest, testing::Values(0, -1, INT_MIN),
                         [](const auto& row) { return "Number" + std::to_string(row.index + 1); });

TEST_F(InputFileTest, AnIndexIntoAnEmptyListFailsSilently)
{
    testCase._AnalysisCases.RemoveAll();
    EXPECT_EQ(Write(1, nullptr), (Outcome{E_FAIL, "", ""}));
    EXPECT_EQ(Write(0, nullptr), (Outcome{E_FAIL, "", ""}));
}

TEST_F(InputFileTest, AnEntryThatIsNoCaseFailsSilently)
{
    testCase._AnalysisCases.Append(VEXAdopt(new VEXBaseUnknown()));
    EXPECT_EQ(Write(4, nullptr), (Outcome{E_FAIL, "", ""}));
    EXPECT_EQ(folder.Names(), std::vector<std::string>{});
}

}  // namespace
}  // namespace hlxtest
