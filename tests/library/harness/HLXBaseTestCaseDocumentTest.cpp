// SPDX-License-Identifier: Apache-2.0
// Opening, making and changing the document of a test case.
#include "support/AnalysisDocuments.h"
#include "support/ExposedTestCase.h"
#include "support/FlushedOutput.h"
#include "support/ForeignNumbers.h"
#include "support/Outcome.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace hlxtest {
namespace {

class DocumentTest : public testing::Test
{
protected:
    ~DocumentTest() override
    {
        if (testCase._Document != nullptr) {
            EXPECT_EQ(VEXDocumentServices::Remove(*testCase._Document, 1), S_OK);
        }
    }

    std::string Stored(const char* name)
    {
        const std::string path = folder.File(name);
        StoreAnalysisDocument(path, 0);
        return path;
    }

    VEXUnicodeString NameOfDocument() const { return testCase._Document->StorageName(); }

    Outcome Open(std::string_view faults = "")
    {
        return RunWith(faults, [&] { return testCase.OpenDocument(); });
    }

    Outcome New(std::string_view faults = "")
    {
        return RunWith(faults, [&] { return testCase.NewDocument(); });
    }

    TemporaryFolder folder;
    ExposedTestCase testCase;
};

// --- OpenDocument
// ---------------------------------------------------------------------------------

TEST_F(DocumentTest, OpenTellsThePathAndKeepsTheDocument)
{
    const std::string path = Stored("model.VEXAnalysis");
    testCase._InputFilePath = VEXUnicodeString(path);
    EXPECT_EQ(Open(), (Outcome{S_OK, "Open Document " + path + " OK\n", ""}));
    ASSERT_NE(testCase._Document, nullptr);
    EXPECT_EQ(NameOfDocument(), path.c_str());
}

TEST_F(DocumentTest, OpenOfAnEmptyPathFailsSilentlyAndAsksNobody)
{
    EXPECT_EQ(Open(), (Outcome{E_FAIL, "", ""}));
    EXPECT_EQ(CallsOf([&] { testCase.OpenDocument(); }), std::vector<std::string>{});
    EXPECT_EQ(testCase._Document, nullptr);
}

TEST_F(DocumentTest, OpenOfABlankPathIsNotAnEmptyOne)
{
    testCase._InputFilePath = " ";
    EXPECT_EQ(Open("VEXDocumentServices::OpenDocument=E_ACCESSDENIED"),
              (Outcome{E_ACCESSDENIED, "ERROR in opening document \n", ""}));
}

TEST_F(DocumentTest, OpenAsksForADocumentThatCanBeSaved)
{
    const std::string path = Stored("model.VEXAnalysis");
    testCase._InputFilePath = VEXUnicodeString(path);
    EXPECT_EQ(
        CallsOf([&] { testCase.OpenDocument(); }),
        (std::vector<std::string>{"VEXDocumentServices::OpenDocument(\"" + path + "\", &, 0)"}));
    EXPECT_EQ(VEXDocumentServices::Save(*testCase._Document), S_OK);
}

TEST_F(DocumentTest, OpenOfAMissingFileReportsItWithoutABlank)
{
    const std::string path = folder.File("missing.VEXAnalysis");
    testCase._InputFilePath = VEXUnicodeString(path);
    const Outcome outcome = Open();
    EXPECT_EQ(outcome.result, E_FAIL);
    EXPECT_EQ(outcome.out, "ERROR in opening document" + path + "\n");
    EXPECT_EQ(testCase._Document, nullptr);
}

struct Answer
{
    const char* fault;  ///< outcome of the platform's operation
    long result;
    bool succeeds;
    bool givesDocument;
};

const Answer answers[] = {
    {"E_FAIL", E_FAIL, false, false},
    {"E_ACCESSDENIED", E_ACCESSDENIED, false, false},
    {"E_ACCESSDENIED,keep", E_ACCESSDENIED, false, true},
    {"-1", -1, false, false},
    {"null", S_OK, false, false},
    {"S_FALSE", S_FALSE, false, false},
    {"S_FALSE,keep", S_FALSE, true, true},
    {"7,keep", 7, true, true},
};

class AnswerTest : public DocumentTest, public testing::WithParamInterface<Answer>
{};

TEST_P(AnswerTest, OpenPassesTheCodeUpAndReportsWhatIsNoDocument)
{
    const Answer& answer = GetParam();
    const std::string path = Stored("model.VEXAnalysis");
    testCase._InputFilePath = VEXUnicodeString(path);
    const std::string text = answer.succeeds ? "Open Document " + path + " OK\n"
                                             : "ERROR in opening document" + path + "\n";
    EXPECT_EQ(Open("VEXDocumentServices::OpenDocument=" + std::string(answer.fault)),
              (Outcome{answer.result, text, ""}));
    EXPECT_EQ(testCase._Document != nullptr, answer.givesDocument);
}

TEST_P(AnswerTest, NewPassesTheCodeUpAndReportsWhatIsNoDocument)
{
    const Answer& answer = GetParam();
    testCase._InputFilePath = "VEXAnalysis";
    const std::string text = answer.succeeds
                                 ? "**********create doc ok\n"
                                 : "**********ERROR in creating analysis document:VEXAnalysis hr:" +
                                       std::to_string(answer.result) + "\n";
    EXPECT_EQ(New("VEXDocumentServices::New=" + std::string(answer.fault)),
              (Outcome{answer.result, text, ""}));
    EXPECT_EQ(testCase._Document != nullptr, answer.givesDocument);
}

INSTANTIATE_TEST_SUITE_P(OfThePlatform, AnswerTest, testing::ValuesIn(answers),
                         [](const auto& row) { return "Number" + std::to_string(row.index + 1); });

// --- NewDocument
// ----------------------------------------------------------------------------------

TEST_F(DocumentTest, NewTakesThePathAsTheType)
{
    testCase._InputFilePath = "/somewhere/model.VEXAnalysis";
    EXPECT_EQ(New(), (Outcome{S_OK, "**********create doc ok\n", ""}));
    ASSERT_NE(testCase._Document, nullptr);
    EXPECT_EQ(testCase._Document->GetType(), "VEXAnalysis");
    EXPECT_EQ(NameOfDocument(), "");
}

TEST_F(DocumentTest, NewHandsTheWholePathToThePlatform)
{
    testCase._InputFilePath = "/somewhere/model.VEXAnalysis";
    EXPECT_EQ(CallsOf([&] { testCase.NewDocument(); }),
              (std::vector<std::string>{
                  "VEXDocumentServices::New(\"/somewhere/model.VEXAnalysis\", &)"}));
}

TEST_F(DocumentTest, NewAsksThePlatformAlsoWithAnEmptyType)
{
    EXPECT_EQ(
        New("VEXDocumentServices::New=E_FAIL"),
        (Outcome{E_FAIL, "**********ERROR in creating analysis document: hr:-2147467259\n", ""}));
    EXPECT_EQ(New("VEXDocumentServices::New=S_OK,keep").out,
              "**********ERROR in creating analysis document: hr:0\n");
}

TEST_F(DocumentTest, NewReportsAnUnknownTypeWithItsCode)
{
    testCase._InputFilePath = "VEXDrawing";
    const Outcome outcome = New();
    EXPECT_EQ(outcome.result, E_INVALIDARG);
    EXPECT_EQ(outcome.out,
              "**********ERROR in creating analysis document:VEXDrawing hr:-2147024809\n");
}

TEST_F(DocumentTest, NewFlushesItsError)
{
    testCase._InputFilePath = "VEXAnalysis";
    const Faults faults("VEXDocumentServices::New=E_FAIL");
    const FlushedOutput output;
    testCase.NewDocument();
    EXPECT_EQ(output.Text(),
              "**********ERROR in creating analysis document:VEXAnalysis hr:-2147467259\n");
}

TEST_F(DocumentTest, NewPrintsTheCodeInDecimalDigitsInAForeignLocale)
{
    testCase._InputFilePath = "VEXAnalysis";
    const ForeignNumbers foreign;
    EXPECT_EQ(New("VEXDocumentServices::New=E_FAIL"),
              (Outcome{E_FAIL,
                       "**********ERROR in creating analysis document:VEXAnalysis hr:-2147467259\n",
                       ""}));
}

// --- SetCurrentDocument
// ---------------------------------------------------------------------------

TEST_F(DocumentTest, SetCurrentDocumentOpensThePathAndKeepsIt)
{
    const std::string path = Stored("other.VEXAnalysis");
    testCase._InputFilePath = "former.VEXAnalysis";
    EXPECT_EQ(OutcomeOf([&] { return testCase.SetCurrentDocument(path.c_str()); }),
              (Outcome{S_OK, "Open Document " + path + " OK\n", ""}));
    EXPECT_EQ(testCase._InputFilePath, path.c_str());
    ASSERT_NE(testCase._Document, nullptr);
    EXPECT_EQ(NameOfDocument(), path.c_str());
}

TEST_F(DocumentTest, SetCurrentDocumentPassesTheCodeOfTheOpeningUp)
{
    EXPECT_EQ(RunWith("VEXDocumentServices::OpenDocument=E_ACCESSDENIED",
                      [&] { return testCase.SetCurrentDocument("some.VEXAnalysis"); }),
              (Outcome{E_ACCESSDENIED, "ERROR in opening documentsome.VEXAnalysis\n", ""}));
    EXPECT_EQ(testCase._InputFilePath, "some.VEXAnalysis");
}

TEST_F(DocumentTest, SetCurrentDocumentForgetsTheFormerOneButDoesNotRemoveIt)
{
    AnalysisDocument former(0);
    const std::string path = Stored("other.VEXAnalysis");
    testCase._Document = former.Get();
    EXPECT_EQ(
        CallsOf([&] { testCase.SetCurrentDocument(path.c_str()); }),
        (std::vector<std::string>{"VEXDocumentServices::OpenDocument(\"" + path + "\", &, 0)"}));
    EXPECT_NE(testCase._Document, former.Get());
    EXPECT_EQ(former.Get()->IsNull(), 0);
}

class EmptyPathTest : public DocumentTest, public testing::WithParamInterface<const char*>
{};

TEST_P(EmptyPathTest, SetCurrentDocumentForgetsDocumentAndPathAndFailsSilently)
{
    AnalysisDocument former(0);
    testCase._Document = former.Get();
    testCase._InputFilePath = "former.VEXAnalysis";
    EXPECT_EQ(OutcomeOf([&] { return testCase.SetCurrentDocument(GetParam()); }),
              (Outcome{E_FAIL, "", ""}));
    EXPECT_EQ(testCase._Document, nullptr);
    EXPECT_EQ(testCase._InputFilePath, "");
    EXPECT_EQ(former.Get()->IsNull(), 0);
}

INSTANTIATE_TEST_SUITE_P(EmptyOrNull, EmptyPathTest, testing::Values("", nullptr),
                         [](const auto& row) { return row.param == nullptr ? "Null" : "Empty"; });

}  // namespace
}  // namespace hlxtest
