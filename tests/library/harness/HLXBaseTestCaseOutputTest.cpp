// SPDX-License-Identifier: Apache-2.0
// The feature-tree dump, saved documents and the error message: bytes, order of platform calls,
// silence about failures.
#include "HLXProductUtilities.h"
#include "support/AnalysisDocuments.h"
#include "support/ExposedTestCase.h"
#include "support/ForeignNumbers.h"
#include "support/Outcome.h"
#include "support/TemporaryFolder.h"

#include <gmock/gmock.h>

#include <filesystem>

namespace hlxtest {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class OutputTest : public testing::Test
{
protected:
    OutputTest() { testCase._OutputDirectory = folder.Path().c_str(); }

    const TemporaryFolder folder;
    ExposedTestCase testCase;
};

// --- LogError -----------------------------------------------------------------------------------

struct ErrorRow
{
    const char* row;
    const char* text;
    const char* out;
};

class LogErrorText : public OutputTest, public testing::WithParamInterface<ErrorRow>
{};

TEST_P(LogErrorText, IsPrintedWithoutALineEndAndFails)
{
    EXPECT_EQ(OutcomeOf([&] {
                  const long result = testCase.LogError(GetParam().text);
                  EXPECT_EQ(testCase.LogError("|"), E_FAIL);
                  return result;
              }),
              (Outcome{-2147467259L, std::string(GetParam().out) + "|", ""}));
}

INSTANTIATE_TEST_SUITE_P(Texts, LogErrorText,
                         testing::Values(ErrorRow{"Plain", "No such step", "No such step"},
                                         ErrorRow{"Empty", "", ""}, ErrorRow{"Null", nullptr, ""},
                                         ErrorRow{"Format", "100%s %n\n", "100%s %n\n"},
                                         ErrorRow{"NotUtf8", "Größe \xFF", "Größe \xFF"}),
                         [](const auto& row) { return row.param.row; });

// --- Feature-tree dump --------------------------------------------------------------------------

class DumpTest : public OutputTest
{
protected:
    DumpTest()
    {
        VEXISamAnalysisManager_var manager;
        EXPECT_EQ(HLXAnalysisDocUtils::GetAnalysisManager(manager, document.Get()), S_OK);
        EXPECT_EQ(testCase.InitializeNavigateObject(manager), S_OK);
        HLXGenString text;
        EXPECT_EQ(DumpFeatureTree(testCase._NavigateObject.Get(), 0, text), S_OK);
        tree = text.c_str();
        EXPECT_NE(tree, "");
        testCase.SetDumpTreeParameters("tree.txt", "Title");
    }

    Outcome Dump(const char* mode, std::string_view faults = "")
    {
        std::string text = mode;
        return RunWith(faults, [&] { testCase.DumpFeatTree(text.data()); });
    }

    std::string Written() const { return ReadFile(folder.File("tree.txt")); }

    const Outcome silence{0, "", ""};
    AnalysisDocument document{1};
    std::string tree;
};

TEST_F(DumpTest, ParametersAreTwoTextsAndNothingElse)
{
    EXPECT_THAT(CallsOf([&] { testCase.SetDumpTreeParameters("file name", "the title"); }),
                IsEmpty());
    EXPECT_EQ(testCase._DumpTreeFileName, "file name");
    EXPECT_EQ(testCase._DumpTreeTitle, "the title");
    EXPECT_EQ(OutcomeOf([&] { testCase.SetDumpTreeParameters(nullptr, nullptr); }), silence);
    EXPECT_TRUE(testCase._DumpTreeFileName.IsEmpty());
    EXPECT_TRUE(testCase._DumpTreeTitle.IsEmpty());
    EXPECT_THAT(folder.Names(), IsEmpty());
}

TEST_F(DumpTest, HoldsTitleTreeAndALineEnd)
{
    EXPECT_EQ(Dump("w"), silence);
    EXPECT_EQ(Written(), "Title:\n\n" + tree + "\n");
    EXPECT_THAT(folder.Names(), ElementsAre("tree.txt"));
}

TEST_F(DumpTest, AnEmptyTitleStillHasItsColon)
{
    testCase.SetDumpTreeParameters("tree.txt", "");
    EXPECT_EQ(Dump("w"), silence);
    EXPECT_EQ(Written(), ":\n\n" + tree + "\n");
}

TEST_F(DumpTest, TheTitleIsWrittenAsItIs)
{
    testCase.SetDumpTreeParameters("tree.txt", "%s Größe\n\xFF");
    EXPECT_EQ(Dump("w"), silence);
    EXPECT_EQ(Written(), "%s Größe\n\xFF:\n\n" + tree + "\n");
}

TEST_F(DumpTest, TheModeIsTheCallers)
{
    const std::string once = "Title:\n\n" + tree + "\n";
    EXPECT_EQ(Dump("a"), silence);
    EXPECT_EQ(Dump("a"), silence);
    EXPECT_EQ(Written(), once + once);
    EXPECT_EQ(Dump("w"), silence);
    EXPECT_EQ(Written(), once);
}

TEST_F(DumpTest, AnImpossibleModeDumpsNothing)
{
    EXPECT_EQ(Dump("x"), silence);
    EXPECT_EQ(OutcomeOf([&] { testCase.DumpFeatTree(nullptr); }), silence);
    EXPECT_THAT(folder.Names(), IsEmpty());
}

TEST_F(DumpTest, AFileThatCannotBeOpenedIsNotReported)
{
    testCase._OutputDirectory = folder.File("missing").c_str();
    EXPECT_EQ(Dump("w"), silence);
    EXPECT_THAT(folder.Names(), IsEmpty());
}

TEST_F(DumpTest, CallsThePlatformInOrderAndWritesOnce)
{
    testCase.SetDumpTreeParameters("tree.txt", "Größe");
    const std::string length = std::to_string(std::string("Größe:\n\n").size() + tree.size() + 1);
    Recording recording;
    EXPECT_EQ(Dump("w"), silence);
    const std::vector<vex::probe::Call> calls = recording.Stop();
    ASSERT_EQ(calls.size(), 5U);
    EXPECT_EQ(calls[0].name, "DumpFeatureTree");
    EXPECT_EQ(calls[0].arguments.at(1), "0");
    EXPECT_EQ(calls[1].name, "VEXMakePath");
    EXPECT_THAT(calls[1].arguments, ElementsAre("\"" + folder.Path() + "\"", "\"tree.txt\"", "&"));
    EXPECT_EQ(calls[2].name, "VEXFOpen");
    EXPECT_THAT(calls[2].arguments,
                ElementsAre("\"" + folder.File("tree.txt") + "\"", "\"w\"", "&"));
    EXPECT_EQ(calls[3].name, "VEXFWrite");
    EXPECT_EQ(calls[3].arguments.at(2), length);
    EXPECT_EQ(calls[4].name, "VEXFClose");
    EXPECT_EQ(calls[4].arguments.at(0), calls[3].arguments.at(0));
}

struct DumpFault
{
    const char* name;
    const char* faults;
    std::vector<std::string> calls;
};

class DumpFaultTest : public DumpTest, public testing::WithParamInterface<DumpFault>
{
protected:
    std::vector<std::string> NamesOfCalls()
    {
        Recording recording;
        EXPECT_EQ(Dump("w", GetParam().faults), silence);
        return recording.StopNames();
    }
};

class DumpWrites : public DumpFaultTest
{};

TEST_P(DumpWrites, TheWholeDumpAllTheSame)
{
    EXPECT_EQ(NamesOfCalls(), GetParam().calls);
    EXPECT_EQ(Written(), "Title:\n\n" + tree + "\n");
}

const std::vector<std::string> kWholeDump = {"DumpFeatureTree", "VEXMakePath", "VEXFOpen",
                                             "VEXFWrite", "VEXFClose"};
const std::vector<std::string> kUnopenedDump = {"DumpFeatureTree", "VEXMakePath", "VEXFOpen"};

INSTANTIATE_TEST_SUITE_P(
    NotLookedAt, DumpWrites,
    testing::Values(DumpFault{"Tree", "DumpFeatureTree=E_FAIL,keep", kWholeDump},
                    DumpFault{"Path", "VEXMakePath=E_FAIL,keep", kWholeDump},
                    DumpFault{"OpenWithASuccessCode", "VEXFOpen=1,keep", kWholeDump},
                    DumpFault{"Write", "VEXFWrite=E_FAIL,keep", kWholeDump},
                    DumpFault{"Close", "VEXFClose=E_FAIL,keep", kWholeDump}),
    [](const auto& row) { return row.param.name; });

class DumpStops : public DumpFaultTest
{};

TEST_P(DumpStops, WithoutAFile)
{
    EXPECT_EQ(NamesOfCalls(), GetParam().calls);
    EXPECT_THAT(folder.Names(), IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(
    Unopened, DumpStops,
    testing::Values(DumpFault{"Refused", "VEXFOpen=E_FAIL", kUnopenedDump},
                    DumpFault{"RefusedWithAnotherCode", "VEXFOpen=-1", kUnopenedDump},
                    DumpFault{"WithoutAPath", "VEXMakePath=E_FAIL", kUnopenedDump},
                    DumpFault{"SucceededWithoutADescriptor", "VEXFOpen=S_OK", kWholeDump},
                    DumpFault{"SucceededWithOneWithoutADescriptor", "VEXFOpen=1", kWholeDump}),
    [](const auto& row) { return row.param.name; });

TEST_F(DumpTest, ATreeThatCannotBeDumpedIsEmpty)
{
    EXPECT_EQ(Dump("w", "DumpFeatureTree=E_FAIL"), silence);
    EXPECT_EQ(Written(), "Title:\n\n\n");
}

TEST_F(DumpTest, WithoutANavigateObjectTheTreeIsEmpty)
{
    testCase._NavigateObject.Reset();
    EXPECT_EQ(Dump("w"), silence);
    EXPECT_EQ(Written(), "Title:\n\n\n");
}

TEST_F(DumpTest, AFileThatCannotBeWrittenIsClosedAllTheSame)
{
    Recording recording;
    EXPECT_EQ(Dump("w", "VEXFWrite=E_FAIL"), silence);
    EXPECT_EQ(recording.StopNames(), kWholeDump);
    EXPECT_EQ(Written(), "");
}

TEST_F(DumpTest, WithoutADescriptorNoneIsWrittenToAndClosed)
{
    EXPECT_EQ(
        CallsOf([&] { EXPECT_EQ(Dump("w", "VEXFOpen=1"), silence); }, {"VEXFW", "VEXFC"}).back(),
        "VEXFClose(0)");
}

TEST_F(DumpTest, IsTheSameInAForeignLocale)
{
    const ForeignNumbers foreign;
    EXPECT_EQ(Dump("w"), silence);
    EXPECT_EQ(Written(), "Title:\n\n" + tree + "\n");
}

// --- Saved documents ----------------------------------------------------------------------------

class SaveTest : public OutputTest
{
protected:
    Outcome Save(std::string_view faults = "")
    {
        return RunWith(faults, [&] { testCase.SaveAsDocument(document.Get(), "b.VEXAnalysis"); });
    }

    const std::string path = folder.File("b.VEXAnalysis");
    AnalysisDocument document{0};
};

TEST_F(SaveTest, StoresTheDocumentInTheOutputDirectoryUnderItsOwnType)
{
    Recording recording;
    EXPECT_EQ(Save(), (Outcome{0, "", ""}));
    const std::vector<vex::probe::Call> calls = recording.Stop();
    ASSERT_EQ(calls.size(), 2U);
    EXPECT_EQ(calls[0].name, "VEXMakePath");
    EXPECT_THAT(calls[0].arguments,
                ElementsAre("\"" + folder.Path() + "\"", "\"b.VEXAnalysis\"", "&"));
    EXPECT_EQ(calls[1].name, "VEXDocumentServices::SaveAs");
    EXPECT_THAT(calls[1].arguments, ElementsAre(testing::_, "\"" + path + "\"", "\"\"", "1"));
    EXPECT_EQ(calls[1].result, "S_OK");
    EXPECT_EQ(document.Get()->StorageName(), path.c_str());
    EXPECT_THAT(folder.Names(), ElementsAre("b.VEXAnalysis"));
}

TEST_F(SaveTest, ReplacesAnExistingFile)
{
    WriteFile(path, "something else");
    EXPECT_EQ(Save(), (Outcome{0, "", ""}));
    EXPECT_THAT(folder.Names(), ElementsAre("b.VEXAnalysis"));
    const std::string replaced = ReadFile(path);
    std::filesystem::remove(path);
    EXPECT_EQ(Save(), (Outcome{0, "", ""}));
    EXPECT_EQ(replaced, ReadFile(path));
}

TEST_F(SaveTest, SavesTheDocumentGivenNotTheCasesOwn)
{
    AnalysisDocument own(0);
    testCase._Document = own.Get();
    EXPECT_EQ(Save(), (Outcome{0, "", ""}));
    EXPECT_TRUE(own.Get()->StorageName().IsEmpty());
    EXPECT_EQ(document.Get()->StorageName(), path.c_str());
}

TEST_F(SaveTest, AFailureIsNotReported)
{
    EXPECT_EQ(Save("VEXDocumentServices::SaveAs=E_FAIL"), (Outcome{0, "", ""}));
    EXPECT_EQ(Save("VEXDocumentServices::SaveAs=E_FAIL,keep"), (Outcome{0, "", ""}));
    EXPECT_THAT(folder.Names(), ElementsAre("b.VEXAnalysis"));
}

TEST_F(SaveTest, WhatTheJoiningAnswersIsNotLookedAt)
{
    EXPECT_EQ(Save("VEXMakePath=E_FAIL,keep"), (Outcome{0, "", ""}));
    EXPECT_THAT(folder.Names(), ElementsAre("b.VEXAnalysis"));
}

TEST_F(SaveTest, APathThatCannotBeJoinedIsHandedOnEmpty)
{
    EXPECT_EQ(
        CallsOf([&] {
            EXPECT_EQ(Save("VEXMakePath=E_FAIL;VEXDocumentServices::SaveAs=E_FAIL"),
                      (Outcome{0, "", ""}));
        }),
        (std::vector<std::string>{"VEXMakePath(\"" + folder.Path() + "\", \"b.VEXAnalysis\", &)",
                                  "VEXDocumentServices::SaveAs(VEXAnalysis, \"\", \"\", 1)"}));
    EXPECT_EQ(Save("VEXMakePath=E_FAIL").out, "");
    EXPECT_THAT(folder.Names(), IsEmpty());
    EXPECT_TRUE(document.Get()->StorageName().IsEmpty());
}

TEST_F(SaveTest, AMissingOutputDirectoryIsNeitherMadeNorReported)
{
    testCase._OutputDirectory = folder.File("missing").c_str();
    const Outcome outcome = Save();
    EXPECT_EQ(outcome.result, 0);
    EXPECT_EQ(outcome.out, "");
    EXPECT_THAT(folder.Names(), IsEmpty());
    EXPECT_TRUE(document.Get()->StorageName().IsEmpty());
}

TEST_F(SaveTest, NoDocumentSavesNothing)
{
    EXPECT_EQ(OutcomeOf([&] { testCase.SaveAsDocument(nullptr, "b.VEXAnalysis"); }),
              (Outcome{0, "", ""}));
    EXPECT_THAT(CallsOf([&] { testCase.SaveAsDocument(nullptr, "b.VEXAnalysis"); },
                        {"VEXDocumentServices"}),
                IsEmpty());
    EXPECT_THAT(folder.Names(), IsEmpty());
}

}  // namespace

}  // namespace hlxtest
