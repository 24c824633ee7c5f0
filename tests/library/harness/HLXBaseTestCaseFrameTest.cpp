// SPDX-License-Identifier: Apache-2.0
// What comes before and after a test's own body: PreProcess and PostProcess.
#include "support/AnalysisDocuments.h"
#include "support/CommandLine.h"
#include "support/ExposedTestCase.h"
#include "support/Outcome.h"
#include "support/TemporaryFolder.h"

#include <gmock/gmock.h>

#include <limits>

namespace hlxtest {

namespace {

// --- PreProcess ---------------------------------------------------------------------------------

using testing::IsEmpty;

using Case = ExposedTestCase;

const char kPreProcess[] = "\n In HLXBaseTestCase::PreProcess() \n";
const char kPostProcess[] = "\n In HLXBaseTestCase::PostProcess() \n";

class PreProcessTest : public testing::Test
{
protected:
    void TearDown() override
    {
        if (testCase._Document != nullptr) {
            EXPECT_EQ(VEXDocumentServices::Remove(*testCase._Document, 1), S_OK);
        }
    }

    Outcome PreProcess(int mode, std::string_view faults = "")
    {
        CommandLine line{"program", folder.Path().c_str(), "a.VEXAnalysis"};
        return RunWith(faults, [&] {
            return testCase.PreProcess(line.Count(), line.Values(),
                                       static_cast<HLXBaseTestCase::FileMode>(mode));
        });
    }

    const TemporaryFolder folder;
    const std::string path = folder.File("a.VEXAnalysis");
    const std::string inputLine = "**********Input file name : " + path + "\n";
    Case testCase;
};

TEST_F(PreProcessTest, OpensAnExistingDocument)
{
    StoreAnalysisDocument(path, 0);
    EXPECT_EQ(PreProcess(0),
              (Outcome{S_OK, kPreProcess + inputLine + "Open Document " + path + " OK\n", ""}));
    ASSERT_NE(testCase._Document, nullptr);
    EXPECT_EQ(testCase._Document->StorageName(), path.c_str());
}

TEST_F(PreProcessTest, MakesANewDocument)
{
    EXPECT_EQ(PreProcess(1),
              (Outcome{S_OK, kPreProcess + inputLine + "**********create doc ok\n", ""}));
    ASSERT_NE(testCase._Document, nullptr);
    EXPECT_TRUE(testCase._Document->StorageName().IsEmpty());
    EXPECT_FALSE(FileExists(path));
}

TEST_F(PreProcessTest, TouchesNoDocumentInAnotherMode)
{
    StoreAnalysisDocument(path, 0);
    for (const int mode : {2, -1, 255, 256, std::numeric_limits<int>::max()}) {
        EXPECT_EQ(PreProcess(mode), (Outcome{S_OK, kPreProcess + inputLine, ""})) << mode;
        EXPECT_EQ(testCase._Document, nullptr);
    }
    EXPECT_THAT(CallsOf([&] { PreProcess(2); }, {"VEXDocumentServices"}), IsEmpty());
}

TEST_F(PreProcessTest, AnswersWhatOpeningAnswers)
{
    StoreAnalysisDocument(path, 0);
    EXPECT_EQ(PreProcess(0, "VEXDocumentServices::OpenDocument=E_ACCESSDENIED"),
              (Outcome{E_ACCESSDENIED,
                       kPreProcess + inputLine + "ERROR in opening document" + path + "\n", ""}));
    EXPECT_EQ(testCase._Document, nullptr);
    EXPECT_EQ(PreProcess(0, "VEXDocumentServices::OpenDocument=1,keep"),
              (Outcome{1, kPreProcess + inputLine + "Open Document " + path + " OK\n", ""}));
    EXPECT_NE(testCase._Document, nullptr);
}

TEST_F(PreProcessTest, AnswersWhatMakingAnswers)
{
    EXPECT_EQ(PreProcess(1, "VEXDocumentServices::New=E_FAIL"),
              (Outcome{E_FAIL,
                       kPreProcess + inputLine + "**********ERROR in creating analysis document:" +
                           path + " hr:-2147467259\n",
                       ""}));
    EXPECT_EQ(testCase._Document, nullptr);
    EXPECT_EQ(PreProcess(1, "VEXDocumentServices::New=1,keep"),
              (Outcome{1, kPreProcess + inputLine + "**********create doc ok\n", ""}));
    EXPECT_NE(testCase._Document, nullptr);
}

TEST_F(PreProcessTest, MakesADocumentOfTheEmptyTypeAfterARefusedCommandLine)
{
    testCase.verifyArguments = [](int) { return static_cast<unsigned char>(0); };
    Recording recording;
    EXPECT_EQ(PreProcess(1, "VEXDocumentServices::New=E_FAIL"),
              (Outcome{E_FAIL,
                       std::string(kPreProcess) +
                           "**********ERROR in creating analysis document: hr:-2147467259\n",
                       ""}));
    const std::vector<vex::probe::Call> calls = recording.Stop();
    ASSERT_EQ(calls.size(), 1U);
    EXPECT_EQ(calls[0].name, "VEXDocumentServices::New");
    EXPECT_EQ(calls[0].arguments.at(0), "\"\"");
    EXPECT_EQ(testCase._Document, nullptr);
}

TEST_F(PreProcessTest, GoesOnAfterARefusedCommandLine)
{
    StoreAnalysisDocument(path, 0);
    testCase._InputFilePath = path.c_str();
    testCase.verifyArguments = [](int) -> unsigned char {
        std::fputs("usage\n", stdout);
        return 0;
    };
    EXPECT_EQ(
        PreProcess(0),
        (Outcome{S_OK, std::string(kPreProcess) + "usage\nOpen Document " + path + " OK\n", ""}));
    EXPECT_NE(testCase._Document, nullptr);
}

TEST_F(PreProcessTest, FailsWithoutAWordOnTheEmptyPathOfARefusedCommandLine)
{
    testCase.verifyArguments = [](int) { return static_cast<unsigned char>(0); };
    EXPECT_EQ(PreProcess(0), (Outcome{E_FAIL, kPreProcess, ""}));
    EXPECT_EQ(testCase._Document, nullptr);
}

TEST_F(PreProcessTest, FailsOnTheEmptyPathOfFourArguments)
{
    CommandLine line{"program", folder.Path().c_str(), "a.VEXAnalysis", folder.Path().c_str()};
    StoreAnalysisDocument(path, 0);
    EXPECT_EQ(OutcomeOf([&] {
                  return testCase.PreProcess(line.Count(), line.Values(), Case::OpenExisting);
              }),
              (Outcome{E_FAIL, kPreProcess, ""}));
}

TEST(HLXBaseTestCasePreProcess, HandsTheCommandLineToAnOverride)
{
    class Overriding : public Case
    {
    public:
        int argc = 0;
        char** argv = nullptr;
        unsigned char ProcessArguments(int count, char** const values) override
        {
            std::fputs("override\n", stdout);
            argc = count;
            argv = values;
            return 0;
        }
    } testCase;
    CommandLine line{"program", "in", "a.VEXAnalysis", "out", "one", "two"};
    EXPECT_EQ(OutcomeOf([&] {
                  return testCase.PreProcess(5, line.Values(),
                                             static_cast<HLXBaseTestCase::FileMode>(2));
              }),
              (Outcome{S_OK, std::string(kPreProcess) + "override\n", ""}));
    EXPECT_EQ(testCase.argc, 5);
    EXPECT_EQ(testCase.argv, line.Values());
}

// --- PostProcess --------------------------------------------------------------------------------

TEST(HLXBaseTestCasePostProcess, WithoutADocumentPrintsItsBannerOnly)
{
    Case testCase;
    EXPECT_EQ(OutcomeOf([&] { return testCase.PostProcess(); }), (Outcome{S_OK, kPostProcess, ""}));
    EXPECT_THAT(CallsOf([&] { Capture([&] { testCase.PostProcess(); }); }), IsEmpty());
}

TEST(HLXBaseTestCasePostProcess, RemovesTheDocumentWhateverLinksToIt)
{
    AnalysisDocument document(0);
    // Its destructor removes it and expects that to succeed.
    AnalysisDocument other(0);
    Case testCase;
    testCase._Document = document.Release();
    Recording recording;
    EXPECT_EQ(OutcomeOf([&] { return testCase.PostProcess(); }), (Outcome{S_OK, kPostProcess, ""}));
    const std::vector<vex::probe::Call> calls = recording.Stop();
    ASSERT_EQ(calls.size(), 1U);
    EXPECT_EQ(calls[0].name, "VEXDocumentServices::Remove");
    EXPECT_EQ(calls[0].arguments, (std::vector<std::string>{"VEXAnalysis", "1"}));
    EXPECT_EQ(calls[0].result, "S_OK");
    EXPECT_EQ(testCase._Document, nullptr);

    EXPECT_EQ(OutcomeOf([&] { return testCase.PostProcess(); }), (Outcome{S_OK, kPostProcess, ""}));
}

TEST(HLXBaseTestCasePostProcess, ForgetsADocumentThatCouldNotBeRemoved)
{
    for (const long code : {static_cast<long>(E_FAIL), static_cast<long>(E_ACCESSDENIED), -1L}) {
        AnalysisDocument document(0);
        Case testCase;
        testCase._Document = document.Get();
        EXPECT_EQ(
            RunWith("VEXDocumentServices::Remove=" + std::to_string(code),
                    [&] { return testCase.PostProcess(); }),
            (Outcome{code, std::string(kPostProcess) + "Failure removing the document.", ""}));
        EXPECT_EQ(testCase._Document, nullptr);
        EXPECT_EQ(OutcomeOf([&] { return testCase.PostProcess(); }),
                  (Outcome{S_OK, kPostProcess, ""}));
    }
}

TEST(HLXBaseTestCasePostProcess, APositiveResultIsNoFailureAndIsPassedUp)
{
    AnalysisDocument document(0);
    Case testCase;
    testCase._Document = document.Release();
    EXPECT_EQ(RunWith("VEXDocumentServices::Remove=1,keep", [&] { return testCase.PostProcess(); }),
              (Outcome{1, kPostProcess, ""}));
    EXPECT_EQ(testCase._Document, nullptr);
}

}  // namespace

}  // namespace hlxtest
