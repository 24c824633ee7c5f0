// SPDX-License-Identifier: Apache-2.0
// Input files written without a test case: the two static overloads, which differ only in how the
// analysis case is given.
#include "HLXAnalysisTestUtils.h"
#include "HLXProductUtilities.h"
#include "support/AnalysisDocuments.h"
#include "support/FlatFileOption.h"
#include "support/FlushedOutput.h"
#include "support/InputFileWriter.h"
#include "support/Outcome.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <tuple>
#include <type_traits>
#include <utility>

namespace hlxtest {
namespace {

static_assert(std::is_same_v<decltype(HLXAnalysisTestUtils::WriteInputFileForAnalysisCase(
                                 std::declval<VEXISamAnalysisCase*>(), "")),
                             HRESULT>);
static_assert(std::is_same_v<decltype(HLXAnalysisTestUtils::WriteInputFileForAnalysisCase(
                                 VEXISamAnalysisCase_var(), "")),
                             HRESULT>);

enum class CaseGiven { AsPointer, AsHandle };

std::string NameOf(CaseGiven given)
{
    return given == CaseGiven::AsPointer ? "AsPointer" : "AsHandle";
}

class StaticInputFile : public testing::Test
{
protected:
    StaticInputFile() { SetFlatFileOption(1); }
    ~StaticInputFile() override { EXPECT_EQ(FlatFileOption(), 1); }

    VEXISamAnalysisCase_var Case(int index)
    {
        VEXListValVEXBaseUnknown_var cases;
        EXPECT_EQ(HLXAnalysisDocUtils::GetAllAnalysisCases(cases, document.Get()), S_OK);
        return cases[index];
    }

    static long Write(CaseGiven given, const VEXISamAnalysisCase_var& analysisCase,
                      const std::string& path)
    {
        const VEXUnicodeString file(path);
        return given == CaseGiven::AsPointer
                   ? HLXAnalysisTestUtils::WriteInputFileForAnalysisCase(analysisCase.Get(), file)
                   : HLXAnalysisTestUtils::WriteInputFileForAnalysisCase(analysisCase, file);
    }

    AnalysisDocument document{2};
    TemporaryFolder folder;
    const std::string path = folder.File("job.inp");
};

class StaticInputFileTest : public StaticInputFile, public testing::WithParamInterface<CaseGiven>
{
protected:
    Outcome Write(const VEXISamAnalysisCase_var& analysisCase, std::string_view faults = "")
    {
        return RunWith(faults,
                       [&] { return StaticInputFile::Write(GetParam(), analysisCase, path); });
    }
};

TEST_P(StaticInputFileTest, ACaseIsWrittenStructuredWithoutAWord)
{
    EXPECT_EQ(Write(Case(2)), (Outcome{S_OK, "", ""}));
    EXPECT_EQ(folder.Names(), (std::vector<std::string>{"job.inp"}));
    EXPECT_EQ(ReadFile(path), StructuredInputFile(Case(2)));
}

TEST_P(StaticInputFileTest, TheOptionIsOffAroundTheWholeWriting)
{
    EXPECT_EQ(
        CallsOf([&] { Write(Case(1)); }, inputFileCalls),
        (std::vector<std::string>{
            "HLXIZPKWBGeneralSettingAtt::SetWriteFlatInputFileFlag(0)",
            "VEXCreateExternalObject(\"HLXIfwTraverser\", null, \"HLXIfwExportTraverser\", null)",
            "cast:HLXIfwTraverser->HLXIIfwTraverser(&)",
            "HLXIIfwTraverser::WriteInputFile(\"" + path + "\", [1])",
            "HLXIZPKWBGeneralSettingAtt::SetWriteFlatInputFileFlag(1)",
        }));
}

TEST_P(StaticInputFileTest, AnOptionThatWasOffStaysOff)
{
    SetFlatFileOption(0);
    EXPECT_EQ(Write(Case(1)), (Outcome{S_OK, "", ""}));
    EXPECT_EQ(FlatFileOption(), 0);
    SetFlatFileOption(1);
}

TEST_P(StaticInputFileTest, AnEmptyCaseIsHandedToTheWriterAllTheSame)
{
    const Faults faults("HLXIIfwTraverser::WriteInputFile=S_OK");
    EXPECT_EQ(OutcomeOf([&] { return StaticInputFile::Write(GetParam(), nullptr, path); }),
              (Outcome{S_OK, "", ""}));
    EXPECT_EQ(
        CallsOf([&] { StaticInputFile::Write(GetParam(), nullptr, path); }, {"HLXIIfwTraverser::"}),
        (std::vector<std::string>{"HLXIIfwTraverser::WriteInputFile(\"" + path + "\", [1])"}));
}

TEST_P(StaticInputFileTest, AnEmptyCaseThatTheWriterRefusesSucceedsAndWritesNothing)
{
    const Outcome outcome = Write(nullptr);
    EXPECT_EQ(outcome.result, S_OK);
    EXPECT_EQ(outcome.out, "");
    EXPECT_EQ(folder.Names(), std::vector<std::string>{});
}

TEST_P(StaticInputFileTest, AnEmptyPathIsPassedOn)
{
    const VEXISamAnalysisCase_var analysisCase = Case(1);
    EXPECT_EQ(CallsOf([&] { StaticInputFile::Write(GetParam(), analysisCase, ""); },
                      {"HLXIIfwTraverser::"}),
              (std::vector<std::string>{"HLXIIfwTraverser::WriteInputFile(\"\", [1])"}));
}

TEST_P(StaticInputFileTest, AnEmptyPathThatTheWriterRefusesSucceedsAndWritesNothing)
{
    const VEXISamAnalysisCase_var analysisCase = Case(1);
    EXPECT_EQ(RunWith("HLXIIfwTraverser::WriteInputFile=E_INVALIDARG",
                      [&] { return StaticInputFile::Write(GetParam(), analysisCase, ""); }),
              (Outcome{S_OK, "", ""}));
    const Outcome outcome =
        OutcomeOf([&] { return StaticInputFile::Write(GetParam(), analysisCase, ""); });
    EXPECT_EQ(outcome.result, S_OK);
    EXPECT_EQ(outcome.out, "");
    EXPECT_EQ(folder.Names(), std::vector<std::string>{});
}

TEST_P(StaticInputFileTest, AnOptionThatCannotBeSetDoesNotStopTheWriting)
{
    const VEXISamAnalysisCase_var analysisCase = Case(1);
    const std::string flat = FlatInputFile(analysisCase);
    ASSERT_NE(flat, StructuredInputFile(analysisCase));
    for (const char* const fault :
         {"HLXIZPKWBGeneralSettingAtt::SetWriteFlatInputFileFlag=E_FAIL",
          "GetZPKWBGeneralSettingCtrl=E_FAIL", "GetZPKWBGeneralSettingCtrl=null"}) {
        WriteFile(path, "former");
        EXPECT_EQ(Write(analysisCase, fault), (Outcome{S_OK, "", ""})) << fault;
        EXPECT_EQ(ReadFile(path), flat) << fault;
    }
}

TEST_P(StaticInputFileTest, WriterAndCaseKeepNoReference)
{
    const HLXIIfwTraverser_var writer = InputFileWriter();
    const VEXISamAnalysisCase_var analysisCase = Case(1);
    const unsigned long writerBefore = References(*writer.Get());
    const unsigned long caseBefore = References(*analysisCase.Get());
    Write(analysisCase);
    Write(analysisCase, "HLXIIfwTraverser::WriteInputFile=E_FAIL");
    Write(analysisCase, "VEXCreateExternalObject=null");
    EXPECT_EQ(References(*writer.Get()), writerBefore);
    EXPECT_EQ(References(*analysisCase.Get()), caseBefore);
}

TEST_P(StaticInputFileTest, AFailedQueryIsFlushed)
{
    const VEXISamAnalysisCase_var analysisCase = Case(1);
    const Faults faults("cast:HLXIfwTraverser->HLXIIfwTraverser=E_NOINTERFACE");
    const FlushedOutput output;
    StaticInputFile::Write(GetParam(), analysisCase, path);
    EXPECT_EQ(output.Text(), " Could not get the IFW Traverser\n");
}

INSTANTIATE_TEST_SUITE_P(Case, StaticInputFileTest,
                         testing::Values(CaseGiven::AsPointer, CaseGiven::AsHandle),
                         [](const auto& row) { return NameOf(row.param); });

struct Exit
{
    const char* name;
    const char* faults;
    long result;
    const char* out;
    bool writes;
};

class StaticInputFileExitTest : public StaticInputFile,
                                public testing::WithParamInterface<std::tuple<CaseGiven, Exit>>
{};

TEST_P(StaticInputFileExitTest, AnswersAndPrintsALine)
{
    const CaseGiven given = std::get<CaseGiven>(GetParam());
    const Exit exit = std::get<Exit>(GetParam());
    const VEXISamAnalysisCase_var analysisCase = Case(1);
    EXPECT_EQ(RunWith(exit.faults, [&] { return Write(given, analysisCase, path); }),
              (Outcome{exit.result, exit.out, ""}));
    EXPECT_EQ(FileExists(path), exit.writes);
    EXPECT_EQ(FlatFileOption(), 1);
}

INSTANTIATE_TEST_SUITE_P(
    Of, StaticInputFileExitTest,
    testing::Combine(
        testing::Values(CaseGiven::AsPointer, CaseGiven::AsHandle),
        testing::Values(
            Exit{"NoWriter", "VEXCreateExternalObject=null", E_FAIL,
                 "Failed to get Traverser Interface  !\n", false},
            Exit{"NoInterface", "cast:HLXIfwTraverser->HLXIIfwTraverser=E_NOINTERFACE",
                 E_NOINTERFACE, " Could not get the IFW Traverser\n", false},
            Exit{"FailingQuery", "cast:HLXIfwTraverser->HLXIIfwTraverser=E_ACCESSDENIED",
                 E_ACCESSDENIED, " Could not get the IFW Traverser\n", false},
            Exit{"FailingQueryThoughGiven",
                 "cast:HLXIfwTraverser->HLXIIfwTraverser=E_UNEXPECTED,keep", E_UNEXPECTED,
                 " Could not get the IFW Traverser\n", false},
            Exit{"PositiveQuery", "cast:HLXIfwTraverser->HLXIIfwTraverser=S_FALSE,keep", S_OK, "",
                 true},
            Exit{"EmptyQuery", "cast:HLXIfwTraverser->HLXIIfwTraverser=null", S_OK, "", false},
            Exit{"FailingFile", "HLXIIfwTraverser::WriteInputFile=E_ACCESSDENIED", S_OK, "", false},
            Exit{"FailingFileThoughWritten", "HLXIIfwTraverser::WriteInputFile=E_UNEXPECTED,keep",
                 S_OK, "", true},
            Exit{"PositiveFile", "HLXIIfwTraverser::WriteInputFile=S_FALSE,keep", S_OK, "", true})),
    [](const auto& row) {
        return std::string(std::get<1>(row.param).name) + NameOf(std::get<0>(row.param));
    });

}  // namespace
}  // namespace hlxtest
