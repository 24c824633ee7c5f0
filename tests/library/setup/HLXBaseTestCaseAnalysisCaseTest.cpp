// SPDX-License-Identifier: Apache-2.0
// The analysis cases of a document: all of them, one by its name, a new one.
#include "HLXProductUtilities.h"
#include "VEXComponents.h"
#include "support/AnalysisDocuments.h"
#include "support/ExposedTestCase.h"
#include "support/Outcome.h"

#include <gtest/gtest.h>

namespace hlxtest {
namespace {

class AnalysisCaseTest : public testing::Test
{
protected:
    AnalysisCaseTest() { testCase._Document = document.Get(); }

    VEXListValVEXBaseUnknown_var CasesOfDocument()
    {
        VEXListValVEXBaseUnknown_var cases;
        EXPECT_EQ(HLXAnalysisDocUtils::GetAllAnalysisCases(cases, document.Get()), S_OK);
        return cases;
    }

    void Name(int index, const char* name)
    {
        const VEXIAlias_var alias = CasesOfDocument()[index];
        ASSERT_EQ(alias->SetAlias(name), S_OK);
    }

    /// Entries that stand for what the list held before.
    void FillList()
    {
        testCase._AnalysisCases.Append(entry);
        testCase._AnalysisCases.Append(entry);
    }

    AnalysisDocument document{3};
    ExposedTestCase testCase;
    VEXBaseUnknown_var entry = VEXAdopt(new VEXBaseUnknown());
};

struct Exit
{
    const char* name;
    const char* faults;
    long result;
    const char* out;
};

std::string NameOf(const testing::TestParamInfo<Exit>& row)
{
    return row.param.name;
}

constexpr const char* noModels = "ERROR No analysis models found.\n";
constexpr const char* noModel =
    "ERROR AnalysisModel does not implement VEXISamAnalysisModel!?"
    "?\n";
constexpr const char* noCase = "ERROR Could not get the Analysis Case!\n";
constexpr const char* notMade = "Failed to get the Analysis case\n";

// --- InitializeAnalysisCaseFromDocument
// -----------------------------------------------------------

TEST_F(AnalysisCaseTest, CasesOfTheDocumentReplaceTheList)
{
    FillList();
    EXPECT_EQ(OutcomeOf([&] { return testCase.InitializeAnalysisCaseFromDocument(); }),
              (Outcome{S_OK, "", ""}));
    ASSERT_EQ(testCase._AnalysisCases.Size(), 3);
    for (int i = 1; i <= 3; ++i) {
        EXPECT_TRUE(testCase._AnalysisCases[i] == CasesOfDocument()[i]) << i;
    }
}

TEST_F(AnalysisCaseTest, ADocumentWithoutCasesIsAnErrorThatKeepsTheList)
{
    AnalysisDocument empty(0);
    testCase._Document = empty.Get();
    FillList();
    EXPECT_EQ(OutcomeOf([&] { return testCase.InitializeAnalysisCaseFromDocument(); }),
              (Outcome{E_FAIL, noCase, ""}));
    EXPECT_EQ(testCase._AnalysisCases.Size(), 2);
}

TEST_F(AnalysisCaseTest, OneCaseIsEnough)
{
    AnalysisDocument single(1);
    testCase._Document = single.Get();
    EXPECT_EQ(OutcomeOf([&] { return testCase.InitializeAnalysisCaseFromDocument(); }),
              (Outcome{S_OK, "", ""}));
    EXPECT_EQ(testCase._AnalysisCases.Size(), 1);
}

TEST_F(AnalysisCaseTest, OnlyTheFirstModelIsAsked)
{
    AddModel(document.Get());
    EXPECT_EQ(OutcomeOf([&] { return testCase.InitializeAnalysisCaseFromDocument(); }),
              (Outcome{S_OK, "", ""}));
    EXPECT_EQ(testCase._AnalysisCases.Size(), 3);
    EXPECT_EQ(CallsOf([&] { testCase.InitializeAnalysisCaseFromDocument(); },
                      {"VEXISam", "cast:VEXSamAnalysisModel"}),
              (std::vector<std::string>{
                  "VEXISamAccess::GetSpecContainer(&)",
                  "VEXISamAnalysisContainer::GetAnalysisManager(&)",
                  "VEXISamAnalysisManager::GetAllAnalysisModels(&)",
                  "cast:VEXSamAnalysisModel->VEXISamAnalysisModel(&)",
                  "VEXISamAnalysisModel::GetAnalysisCases(&)",
              }));
}

class ListExitTest : public AnalysisCaseTest, public testing::WithParamInterface<Exit>
{};

TEST_P(ListExitTest, AnswersAndPrintsALineAndKeepsTheListOnFailure)
{
    FillList();
    EXPECT_EQ(
        RunWith(GetParam().faults, [&] { return testCase.InitializeAnalysisCaseFromDocument(); }),
        (Outcome{GetParam().result, GetParam().out, ""}));
    EXPECT_EQ(testCase._AnalysisCases.Size(), GetParam().result < 0 ? 2 : 3);
}

INSTANTIATE_TEST_SUITE_P(
    Of, ListExitTest,
    testing::Values(
        Exit{"NoAccess", "cast:VEXAnalysisDocument->VEXISamAccess=E_NOINTERFACE", E_FAIL,
             "**********ERROR in getting the FEMERROR No analysis models found.\n"},
        Exit{"FailingManager", "VEXISamAnalysisContainer::GetAnalysisManager=E_ACCESSDENIED",
             E_FAIL,
             "**********ERROR in getting the Analysis ManagerERROR No analysis models found.\n"},
        Exit{"FailingManagerThoughGiven",
             "VEXISamAnalysisContainer::GetAnalysisManager=E_ACCESSDENIED,keep", E_FAIL,
             "**********ERROR in getting the Analysis ManagerERROR No analysis models found.\n"},
        Exit{"NoManager", "VEXISamAnalysisContainer::GetAnalysisManager=null", E_FAIL, noModels},
        Exit{"FailingModels", "VEXISamAnalysisManager::GetAllAnalysisModels=E_ACCESSDENIED", E_FAIL,
             noModels},
        Exit{"FailingModelsThoughGiven",
             "VEXISamAnalysisManager::GetAllAnalysisModels=E_ACCESSDENIED,keep", E_FAIL, noModels},
        Exit{"NoModels", "VEXISamAnalysisManager::GetAllAnalysisModels=empty", E_FAIL, noModels},
        Exit{"NoModelInterface", "cast:VEXSamAnalysisModel->VEXISamAnalysisModel=E_NOINTERFACE",
             E_FAIL, noModel},
        Exit{"EmptyModel", "cast:VEXSamAnalysisModel->VEXISamAnalysisModel=null", E_FAIL, noModel},
        Exit{"FailingCases", "VEXISamAnalysisModel::GetAnalysisCases=E_ACCESSDENIED", E_FAIL,
             noCase},
        Exit{"NoCases", "VEXISamAnalysisModel::GetAnalysisCases=empty", E_FAIL, noCase},
        Exit{"FailingCasesThoughGiven",
             "VEXISamAnalysisModel::GetAnalysisCases=E_ACCESSDENIED,keep", S_OK, ""},
        Exit{"PositiveModels", "VEXISamAnalysisManager::GetAllAnalysisModels=S_FALSE,keep", S_FALSE,
             ""},
        Exit{"PositiveCases", "VEXISamAnalysisModel::GetAnalysisCases=7,keep", S_OK, ""}),
    NameOf);

TEST_F(AnalysisCaseTest, ListNeedsADocument)
{
    testCase._Document = nullptr;
    EXPECT_EQ(OutcomeOf([&] { return testCase.InitializeAnalysisCaseFromDocument(); }),
              (Outcome{E_FAIL,
                       "**********ERROR in getting the FEMERROR No analysis models found.\n", ""}));
}

// --- GetSpecificAnalysisCase
// ----------------------------------------------------------------------

class NamedCaseTest : public AnalysisCaseTest
{
protected:
    NamedCaseTest()
    {
        Name(1, "Braking");
        Name(2, "Cornering");
        Name(3, "Cornering");
        found = CasesOfDocument()[1];
    }

    Outcome Find(const char* name, std::string_view faults = "")
    {
        VEXUnicodeString text(name);
        return RunWith(faults, [&] { return testCase.GetSpecificAnalysisCase(text, found); });
    }

    /// Position in the document of what was found; 0 for an empty handle.
    int Found()
    {
        for (int i = 1; i <= 3; ++i) {
            if (found == CasesOfDocument()[i]) {
                return i;
            }
        }
        return found == nullptr ? 0 : -1;
    }

    VEXISamAnalysisCase_var found;  ///< before the search the first case
};

TEST_F(NamedCaseTest, TheFirstOfThatNameIsFoundSilently)
{
    EXPECT_EQ(Find("Cornering"), (Outcome{S_OK, "", ""}));
    EXPECT_EQ(Found(), 2);
}

TEST_F(NamedCaseTest, TheLastOneIsFoundToo)
{
    Name(3, "Kerb");
    EXPECT_EQ(Find("Kerb"), (Outcome{S_OK, "", ""}));
    EXPECT_EQ(Found(), 3);
}

TEST_F(NamedCaseTest, TheSearchStopsAtTheFirstMatch)
{
    VEXUnicodeString name("Cornering");
    EXPECT_EQ(CallsOf([&] { testCase.GetSpecificAnalysisCase(name, found); },
                      {"HLXAnalysisDocUtils", "VEXIAlias", "cast:HLXHacAnalysisCaseLT->"}),
              (std::vector<std::string>{
                  "HLXAnalysisDocUtils::GetAllAnalysisCases(&, VEXAnalysisDocument)",
                  "cast:HLXHacAnalysisCaseLT->VEXIAlias(&)",
                  "VEXIAlias::GetAlias()",
                  "cast:HLXHacAnalysisCaseLT->VEXIAlias(&)",
                  "VEXIAlias::GetAlias()",
                  "cast:HLXHacAnalysisCaseLT->VEXISamAnalysisCase(&)",
              }));
}

TEST_F(NamedCaseTest, ANameThatMatchesNothingSucceedsAndLeavesTheHandle)
{
    for (const char* const name : {"Corner", "Cornering ", "cornering", "A", "Z", ""}) {
        found = CasesOfDocument()[1];
        EXPECT_EQ(Find(name), (Outcome{S_OK, "", ""})) << name;
        EXPECT_EQ(Found(), 1) << name;
    }
}

TEST_F(NamedCaseTest, ACaseThatIsNoneWhenCastEmptiesTheHandle)
{
    EXPECT_EQ(Find("Cornering", "cast:HLXHacAnalysisCaseLT->VEXISamAnalysisCase=E_NOINTERFACE"),
              (Outcome{S_OK, "", ""}));
    EXPECT_EQ(found, nullptr);
}

struct Search
{
    const char* name;
    const char* faults;
    long result;
    int found;
};

class SearchTest : public NamedCaseTest, public testing::WithParamInterface<Search>
{};

TEST_P(SearchTest, EndsSilently)
{
    EXPECT_EQ(Find("Cornering", GetParam().faults), (Outcome{GetParam().result, "", ""}));
    EXPECT_EQ(Found(), GetParam().found);
}

INSTANTIATE_TEST_SUITE_P(
    Broken, SearchTest,
    testing::Values(
        Search{"FailingList", "HLXAnalysisDocUtils::GetAllAnalysisCases=E_ACCESSDENIED", E_FAIL, 1},
        Search{"FailingListThoughGiven",
               "HLXAnalysisDocUtils::GetAllAnalysisCases=E_ACCESSDENIED,keep", E_FAIL, 1},
        Search{"PositiveList", "HLXAnalysisDocUtils::GetAllAnalysisCases=S_FALSE,keep", S_OK, 2},
        Search{"EmptyList", "HLXAnalysisDocUtils::GetAllAnalysisCases=empty", E_FAIL, 1},
        Search{"FirstWithoutName", "cast:HLXHacAnalysisCaseLT->VEXIAlias#1=E_NOINTERFACE", E_FAIL,
               1},
        Search{"MatchWithoutName", "cast:HLXHacAnalysisCaseLT->VEXIAlias#2=null", E_FAIL, 1},
        Search{"NameUnread", "VEXIAlias::GetAlias#2=empty", S_OK, 3},
        Search{"NoNameRead", "VEXIAlias::GetAlias=empty", S_OK, 1}),
    [](const auto& row) { return std::string(row.param.name); });

TEST_F(NamedCaseTest, WithoutCasesOrDocumentTheSearchFailsSilently)
{
    AnalysisDocument empty(0);
    testCase._Document = empty.Get();
    EXPECT_EQ(Find("Cornering"), (Outcome{E_FAIL, "", ""}));
    testCase._Document = nullptr;
    const Outcome outcome = Find("Cornering");
    EXPECT_EQ(outcome.result, E_FAIL);
    EXPECT_EQ(outcome.out, "");
    EXPECT_EQ(Found(), 1);
}

// --- AddAnalysisCase
// ------------------------------------------------------------------------------

class NewCaseTest : public AnalysisCaseTest
{
protected:
    Outcome Add(unsigned char withElementBehavior, std::string_view faults = "")
    {
        return RunWith(faults, [&] {
            return testCase.AddAnalysisCase(withElementBehavior,
                                            HLXIAnalysisCase::StructuralAnalysis);
        });
    }
};

TEST_F(NewCaseTest, ANewCaseIsAppendedToDocumentAndList)
{
    FillList();
    EXPECT_EQ(Add(0), (Outcome{S_OK, "", ""}));
    ASSERT_EQ(testCase._AnalysisCases.Size(), 3);
    EXPECT_TRUE(testCase._AnalysisCases[1] == entry);
    ASSERT_EQ(CasesOfDocument().Size(), 4);
    EXPECT_TRUE(testCase._AnalysisCases[3] == CasesOfDocument()[4]);
}

TEST_F(NewCaseTest, TheTypeIsPassedOnUnchanged)
{
    for (const int type : {0, 1, 2, 3, 4}) {
        const auto wanted = static_cast<HLXIAnalysisCase::analysisTypeEnum>(type);
        EXPECT_EQ(CallsOf([&] { testCase.AddAnalysisCase(0, wanted); }, {"HLXIHac"}),
                  (std::vector<std::string>{
                      "HLXIHacAnalysisCaseFact::CreateAnalysisCase(&, VEXAnalysisDocument, " +
                      std::to_string(type) + ")"}));
        const HLXIAnalysisCase_var made = testCase._AnalysisCases[testCase._AnalysisCases.Size()];
        ASSERT_NE(made, nullptr);
        HLXIAnalysisCase::analysisTypeEnum stored{};
        EXPECT_EQ(made->GetAnalysisType(stored), S_OK);
        EXPECT_EQ(stored, wanted);
    }
}

TEST_F(NewCaseTest, WithoutElementBehaviorOnlyTheCaseIsMade)
{
    for (const int flag : {0, 2, 255}) {
        EXPECT_EQ(CallsOf(
                      [&] {
                          EXPECT_EQ(Add(static_cast<unsigned char>(flag)), (Outcome{S_OK, "", ""}));
                      },
                      {"VEXInstantiate", "HLXIHac", "HLXIElement"}),
                  (std::vector<std::string>{
                      "VEXInstantiateComponent(\"HLXHacAnalysisCaseFact\", "
                      "HLXIHacAnalysisCaseFact, &)",
                      "HLXIHacAnalysisCaseFact::CreateAnalysisCase(&, VEXAnalysisDocument, 0)",
                  }))
            << flag;
    }
}

TEST_F(NewCaseTest, WithElementBehaviorItIsMadeAfterTheCase)
{
    EXPECT_EQ(CallsOf(
                  [&] {
                      EXPECT_EQ(Add(1), (Outcome{S_OK, "", ""}));
                  },
                  {"VEXInstantiate", "HLXIHac", "HLXIElement"}),
              (std::vector<std::string>{
                  "VEXInstantiateComponent(\"HLXHacAnalysisCaseFact\", "
                  "HLXIHacAnalysisCaseFact, &)",
                  "HLXIHacAnalysisCaseFact::CreateAnalysisCase(&, VEXAnalysisDocument, 0)",
                  "VEXInstantiateComponent(\"HLXElementBehaviorFact\", "
                  "HLXIElementBehaviorFact, &)",
                  "HLXIElementBehaviorFact::CreateElementBehavior(HLXHacAnalysisCaseLT)",
              }));
    const VEXISamAnalysisScan_var made = testCase._AnalysisCases[1];
    ASSERT_NE(made, nullptr);
    VEXListValVEXBaseUnknown_var behaviors;
    EXPECT_EQ(made->GetChildren("HLXElementBehaviorLT", behaviors, 1), S_OK);
    EXPECT_EQ(behaviors.Size(), 1);
}

TEST_F(NewCaseTest, TheFactoriesAreNotReleased)
{
    void* cases = nullptr;
    void* behaviors = nullptr;
    ASSERT_EQ(
        VEXInstantiateComponent("HLXHacAnalysisCaseFact", IID_HLXIHacAnalysisCaseFact, &cases),
        S_OK);
    ASSERT_EQ(
        VEXInstantiateComponent("HLXElementBehaviorFact", IID_HLXIElementBehaviorFact, &behaviors),
        S_OK);
    const auto caseFactory = VEXAdopt(static_cast<HLXIHacAnalysisCaseFact*>(cases));
    const auto behaviorFactory = VEXAdopt(static_cast<HLXIElementBehaviorFact*>(behaviors));
    const unsigned long caseBefore = References(*caseFactory.Get());
    const unsigned long behaviorBefore = References(*behaviorFactory.Get());
    EXPECT_EQ(Add(0), (Outcome{S_OK, "", ""}));
    ASSERT_EQ(References(*caseFactory.Get()), caseBefore + 1);
    ASSERT_EQ(References(*behaviorFactory.Get()), behaviorBefore);
    EXPECT_EQ(Add(1), (Outcome{S_OK, "", ""}));
    ASSERT_EQ(References(*caseFactory.Get()), caseBefore + 2);
    ASSERT_EQ(References(*behaviorFactory.Get()), behaviorBefore + 1);
    caseFactory->Release();
    caseFactory->Release();
    behaviorFactory->Release();
}

TEST_F(NewCaseTest, TheReferenceToTheCaseIsTheLists)
{
    const VEXBaseUnknown_var former = CasesOfDocument()[3];
    for (const int flag : {0, 1}) {
        EXPECT_EQ(Add(static_cast<unsigned char>(flag)), (Outcome{S_OK, "", ""}));
        const VEXBaseUnknown_var made = CasesOfDocument()[CasesOfDocument().Size()];
        EXPECT_EQ(References(*made.Get()), References(*former.Get()) + 1);
        testCase._AnalysisCases.RemoveAll();
        EXPECT_EQ(References(*made.Get()), References(*former.Get()));
    }
}

TEST_F(NewCaseTest, WithoutADocumentNobodyIsAsked)
{
    testCase._Document = nullptr;
    EXPECT_EQ(Add(1), (Outcome{E_FAIL, notMade, ""}));
    EXPECT_EQ(CallsOf([&] { Add(1); }), std::vector<std::string>{});
    EXPECT_EQ(testCase._AnalysisCases.Size(), 0);
}

struct Making
{
    const char* name;
    unsigned char withElementBehavior;
    const char* faults;
    long result;
    const char* out;
    int appended;
    int behaviorCalls;
};

class MakingTest : public NewCaseTest, public testing::WithParamInterface<Making>
{};

TEST_P(MakingTest, AnswersPrintsAndAppends)
{
    const Making& making = GetParam();
    Recording recording;
    EXPECT_EQ(Add(making.withElementBehavior, making.faults),
              (Outcome{making.result, making.out, ""}));
    EXPECT_EQ(testCase._AnalysisCases.Size(), making.appended);
    const std::vector<std::string> calls = recording.StopNames({"HLXIElementBehaviorFact::"});
    EXPECT_EQ(static_cast<int>(calls.size()), making.behaviorCalls);
}

INSTANTIATE_TEST_SUITE_P(
    Broken, MakingTest,
    testing::Values(
        Making{"NoFactory", 0, "VEXInstantiateComponent=null", E_NOINTERFACE, "", 0, 0},
        Making{"FailingFactory", 1, "VEXInstantiateComponent=E_ACCESSDENIED", E_NOINTERFACE, "", 0,
               0},
        Making{"FailingFactoryThoughGiven", 1, "VEXInstantiateComponent#1=E_ACCESSDENIED,keep",
               E_ACCESSDENIED, notMade, 0, 0},
        Making{"PositiveFactory", 0, "VEXInstantiateComponent=S_FALSE,keep", S_OK, "", 1, 0},
        Making{"FailingCase", 1, "HLXIHacAnalysisCaseFact::CreateAnalysisCase=E_ACCESSDENIED",
               E_ACCESSDENIED, notMade, 0, 0},
        Making{"FailingCaseThoughGiven", 1,
               "HLXIHacAnalysisCaseFact::CreateAnalysisCase=E_UNEXPECTED,keep", E_UNEXPECTED,
               notMade, 1, 0},
        Making{"NoCase", 0, "HLXIHacAnalysisCaseFact::CreateAnalysisCase=null", S_OK, "", 0, 0},
        Making{"PositiveCase", 0, "HLXIHacAnalysisCaseFact::CreateAnalysisCase=S_FALSE,keep",
               S_FALSE, "", 1, 0},
        Making{"PositiveCaseWithBehavior", 1,
               "HLXIHacAnalysisCaseFact::CreateAnalysisCase=S_FALSE,keep", S_OK, "", 1, 1},
        Making{"NoBehaviorFactory", 1, "VEXInstantiateComponent#2=null", S_OK, "", 1, 0},
        Making{"FailingBehaviorFactory", 1, "VEXInstantiateComponent#2=E_ACCESSDENIED",
               E_ACCESSDENIED, "", 1, 0},
        Making{"FailingBehaviorFactoryThoughGiven", 1,
               "VEXInstantiateComponent#2=E_ACCESSDENIED,keep", E_ACCESSDENIED, "", 1, 1},
        Making{"PositiveBehaviorFactory", 1, "VEXInstantiateComponent#2=S_FALSE,keep", S_FALSE, "",
               1, 1},
        Making{"FailingBehavior", 1, "HLXIElementBehaviorFact::CreateElementBehavior=E_FAIL", S_OK,
               "", 1, 1},
        Making{"NoCaseForTheBehavior", 1,
               "HLXIHacAnalysisCaseFact::CreateAnalysisCase=null;"
               "HLXIElementBehaviorFact::CreateElementBehavior=E_FAIL",
               S_OK, "", 0, 1}),
    [](const auto& row) { return std::string(row.param.name); });

}  // namespace
}  // namespace hlxtest
