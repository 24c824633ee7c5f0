// SPDX-License-Identifier: Apache-2.0
// Steps from a list of codes where one of them cannot be made.
#include "library/setup/StepCodes.h"

#include "support/FlushedOutput.h"

#include <tuple>

namespace hlxtest::statics {
namespace {

using Utils = HLXAnalysisTestUtils;

constexpr const char* failed = "Add Step failed !\n";

/// What the platform itself has to say when a step cannot be made.
std::string ComplaintOf(VEXISamAnalysisCase* analysisCase)
{
    return StandardErrorOf([&] {
        VEXISamAnalysisSet* step = nullptr;
        EXPECT_LT(HLXStepUtils::AddStep("Name", analysisCase, step, "HLXRiksStepLT"), 0);
        EXPECT_EQ(step, nullptr);
    });
}

struct Refusal
{
    const char* name;
    const char* outcome;  ///< of making the second step

    friend void PrintTo(const Refusal& refusal, std::ostream* stream)
    {
        *stream << refusal.outcome;
    }
};

constexpr Refusal refusals[] = {
    {"Fails", "E_FAIL"},      {"FailsOtherwise", "E_ACCESSDENIED"}, {"FailsWithMinusOne", "-1"},
    {"GivesNothing", "null"}, {"GivesNothingWithOne", "1"},
};

/// Each kind of step, refused in each way.
class StepRefusalTest : public StepCodesTest,
                        public testing::WithParamInterface<std::tuple<StepKind, Refusal>>
{
protected:
    const StepKind& Kind() const { return std::get<0>(GetParam()); }
    std::string Fault() const
    {
        return std::string("HLXStepUtils::AddStep#2=") + std::get<1>(GetParam()).outcome;
    }
};

TEST_P(StepRefusalTest, EndsTheListAndKeepsWhatWasMade)
{
    EXPECT_EQ(
        Create({"RS", "x", Kind().code, "GSS"}, Fault()),
        (Outcome{E_FAIL,
                 "RS\nAdding Riks step succeeded !\nx\n" + std::string(Kind().code) + "\n" + failed,
                 ""}));
    EXPECT_EQ(Made(), (Lines{"HLXRiksStepLT: Riks_Step_1"}));
    EXPECT_EQ(StepsOf(Case(1)), (Lines{"HLXRiksStepLT: Riks_Step_1"}));
    EXPECT_EQ(References(*steps[1]), 1U);
}

TEST_P(StepRefusalTest, IsFollowedByNoCall)
{
    EXPECT_EQ(QuietCallsOf(
                  [&] {
                      CreateUnseen({"RS", Kind().code, "GSS"});
                  },
                  {}, Fault()),
              (Lines{stepKinds[2].Call(1), Kind().Call(2)}));
}

TEST_P(StepRefusalTest, OfTheFirstLeavesTheListAsItWas)
{
    steps.Append(nullptr);
    std::string fault = Fault();
    fault.replace(fault.find("#2"), 2, "#1");
    EXPECT_EQ(Create({Kind().code}, fault),
              (Outcome{E_FAIL, std::string(Kind().code) + "\n" + failed, ""}));
    ASSERT_EQ(steps.Size(), 1);
    EXPECT_EQ(steps[1], nullptr);
    steps.RemoveAll();
}

INSTANTIATE_TEST_SUITE_P(Of, StepRefusalTest,
                         testing::Combine(testing::ValuesIn(stepKinds),
                                          testing::ValuesIn(refusals)),
                         [](const auto& row) {
                             return std::string(std::get<0>(row.param).code) +
                                    std::get<1>(row.param).name;
                         });

class StepResultTest : public StepCodesTest, public testing::WithParamInterface<StepKind>
{};

TEST_P(StepResultTest, AStepGivenAlongWithAFailureIsNotTaken)
{
    EXPECT_EQ(Create({GetParam().code}, "HLXStepUtils::AddStep=E_UNEXPECTED,keep"),
              (Outcome{E_FAIL, std::string(GetParam().code) + "\n" + failed, ""}));
    EXPECT_EQ(steps.Size(), 0);
    EXPECT_EQ(StepsOf(Case(1)), (Lines{GetParam().Step(1)}));
    VEXISpecObject_var left = Below(Case(1), GetParam().lateType)[1];
    LetGo(std::move(left));
}

TEST_P(StepResultTest, AStepGivenWithAPositiveResultIsTaken)
{
    EXPECT_EQ(Create({GetParam().code}, "HLXStepUtils::AddStep=S_FALSE,keep"),
              (Outcome{S_OK, std::string(GetParam().code) + "\n" + GetParam().told, ""}));
    EXPECT_EQ(Made(), (Lines{GetParam().Step(1)}));
}

INSTANTIATE_TEST_SUITE_P(Of, StepResultTest, testing::ValuesIn(stepKinds), NameOfKind);

TEST_F(StepCodesTest, ARefusalIsFlushed)
{
    const Faults faults("HLXStepUtils::AddStep=E_FAIL");
    VEXListValVEXUnicodeString list = ListOf({"GSS"});
    Lines seen;
    {
        FlushedOutput output;
        output.atFlush = [&] { seen.push_back(output.Text()); };
        EXPECT_EQ(Utils::CreateSteps(list, analysisCase.Get(), steps), E_FAIL);
    }
    EXPECT_EQ(seen, (Lines{"GSS\n", "GSS\nAdd Step failed !\n"}));
}

// --- Cases that take no steps --------------------------------------------------------------------

TEST_F(StepCodesTest, NoCaseIsRefusedByThePlatform)
{
    analysisCase.Reset();
    EXPECT_EQ(Create({"HTS", "GSS"}),
              (Outcome{E_FAIL, std::string("HTS\n") + failed, ComplaintOf(nullptr)}));
    EXPECT_EQ(steps.Size(), 0);
    EXPECT_EQ(QuietCallsOf([&] { CreateUnseen({"RS"}); }),
              (Lines{"HLXStepUtils::AddStep(\"Riks_Step_1\", null, &, \"HLXRiksStepLT\")"}));
}

TEST_F(StepCodesTest, NoCaseIsNoFailureWhenNoStepIsAskedFor)
{
    analysisCase.Reset();
    EXPECT_EQ(Create({"x", "y"}), (Outcome{S_OK, "x\ny\n", ""}));
}

TEST_F(StepCodesTest, ACaseWithoutAHistoryTakesNoStep)
{
    analysisCase = BareCase();
    const std::string complaint = ComplaintOf(analysisCase.Get());
    EXPECT_NE(complaint, "");
    EXPECT_EQ(Create({"GSS"}), (Outcome{E_FAIL, std::string("GSS\n") + failed, complaint}));
    EXPECT_EQ(steps.Size(), 0);
}

TEST_F(StepCodesTest, ACaseWhoseDocumentIsGoneTakesNoStep)
{
    ASSERT_EQ(VEXDocumentServices::Remove(*analysis.Release(), 1), S_OK);
    const std::string complaint = ComplaintOf(analysisCase.Get());
    EXPECT_EQ(Create({"GSS"}), (Outcome{E_FAIL, std::string("GSS\n") + failed, complaint}));
    EXPECT_EQ(steps.Size(), 0);
}

}  // namespace
}  // namespace hlxtest::statics
