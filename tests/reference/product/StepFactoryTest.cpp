// SPDX-License-Identifier: Apache-2.0
// Steps by HLXStepUtils and by the factory of steps.
#include "reference/analysis/EntityFixture.h"

#include "HLXProductUtilities.h"
#include "HLXSteps.h"

namespace {

using hlxtest::Outcome;
using hlxtest::OutcomeOf;
using testing::AllOf;
using testing::EndsWith;
using testing::HasSubstr;
using testing::StartsWith;

const char* const kinds[] = {"HLXGeneralStaticStepLT", "HLXStaticLPStepLT",
                             "HLXRiksStepLT",          "HLXFrequencyStepLT",
                             "HLXHeatTransferStepLT",  "HLXExplicitDynamicStepLT",
                             "HLXExplicitDynamicLT"};

class StepFactory : public hlxtest::EntityTest
{
protected:
    VEXISamAnalysisCase_var Case() const { return vex::FaceOf<VEXISamAnalysisCase>(analysisCase); }
    vex::Feature& History() const
    {
        return *vex::FirstChildOfType(*analysisCase, "HLXHacSimHistLT");
    }
    static VEXISamAnalysisScan_var Scan(const vex::Feature& feature)
    {
        return vex::FaceOf<VEXISamAnalysisScan>(&feature);
    }
    std::size_t StepCount() const { return History().Children().size(); }

    const VEXVar<HLXIAnalysisStepFact> factory =
        hlxtest::Service<HLXIAnalysisStepFact>("HLXAnalysisStepFact");
};

TEST_F(StepFactory, AddsEachKindOfStepAtTheEndWithItsContainers)
{
    for (const char* const kind : kinds) {
        SCOPED_TRACE(kind);
        VEXISamAnalysisSet* raw = nullptr;
        ASSERT_EQ(
            OutcomeOf([&] { return HLXStepUtils::AddStep("Tür 1", Case().Get(), raw, kind); }),
            (Outcome{S_OK, "", ""}));
        const auto made = VEXAdopt(raw);
        vex::Feature& feature = FeatureOf(made);
        EXPECT_EQ(hlxtest::References(feature), 1U);
        EXPECT_STREQ(feature.IsA(), kind);
        EXPECT_EQ(feature.Alias(), "Tür 1");
        EXPECT_EQ(feature.Parent(), &History());
        EXPECT_EQ(feature.NextSibling(), nullptr);
        EXPECT_NE(vex::FirstChildOfType(feature, "HLXLoadContainerLT"), nullptr);

        ASSERT_EQ(factory->CreateStep(nullptr, Case().Get(), raw, kind), S_OK);
        const auto other = VEXAdopt(raw);
        const vex::Feature& second = FeatureOf(other);
        EXPECT_FALSE(second.HasAlias());
        EXPECT_STREQ(second.IsA(), kind);
        EXPECT_EQ(second.Children().size(), feature.Children().size());
        EXPECT_EQ(hlxtest::References(second), 1U);
    }
}

TEST_F(StepFactory, TakesTheHistoryOfTheCaseOnly)
{
    VEXISamAnalysisSet* raw = nullptr;
    ASSERT_EQ(factory->CreateStep(Scan(History()).Get(), Case().Get(), raw, kinds[0]), S_OK);
    VEXAdopt(raw);
    const std::size_t before = StepCount();
    vex::Feature& other = Make("HLXHacAnalysisCaseLT", *model);
    vex::Feature& itsHistory = Make("HLXHacSimHistLT", other);
    for (const vex::Feature* const history : {&itsHistory, step, analysisCase}) {
        VEXISamAnalysisSet* made = raw;
        EXPECT_EQ(OutcomeOf([&] {
                      return factory->CreateStep(Scan(*history).Get(), Case().Get(), made,
                                                 kinds[0]);
                  }),
                  (Outcome{E_INVALIDARG, "", ""}));
        EXPECT_EQ(made, nullptr);
    }
    EXPECT_EQ(StepCount(), before);
    EXPECT_TRUE(itsHistory.Children().empty());
}

TEST_F(StepFactory, RefusesANullCase)
{
    VEXISamAnalysisSet* made = vex::FaceOf<VEXISamAnalysisSet>(step).Get();
    EXPECT_EQ(OutcomeOf([&] { return HLXStepUtils::AddStep("a", nullptr, made, kinds[0]); }),
              (Outcome{E_INVALIDARG, "", ""}));
    EXPECT_EQ(made, nullptr);
    EXPECT_EQ(factory->CreateStep(nullptr, nullptr, made, kinds[0]), E_INVALIDARG);
    EXPECT_EQ(factory->CreateStep(Scan(History()).Get(), nullptr, made, kinds[0]), E_INVALIDARG);
}

TEST_F(StepFactory, RefusesWhatIsNoStepOrNoName)
{
    struct Row
    {
        const char* name;
        const char* lateType;
        const char* told;
    };
    const Row rows[] = {{"a", "", "\"\" is no kind of step"},
                        {"a", "HLXStepLT", "\"HLXStepLT\" is no kind of step"},
                        {"a", "HLXIncrementedStepLT", "is no kind of step"},
                        {"a", "HLXHacInitialStepLT", "is no kind of step"},
                        {"a", "HLXGravity", "is no kind of step"},
                        {"a", "NoSuch\n", "\"NoSuch\\n\" is no kind of step"},
                        {"a\xff", "HLXRiksStepLT", "\"a\\xff\" is not valid UTF-8"}};
    const std::size_t before = StepCount();
    for (const Row& row : rows) {
        VEXISamAnalysisSet* made = vex::FaceOf<VEXISamAnalysisSet>(step).Get();
        const Outcome outcome = OutcomeOf(
            [&] { return HLXStepUtils::AddStep(row.name, Case().Get(), made, row.lateType); });
        EXPECT_EQ(outcome.result, E_FAIL);
        EXPECT_EQ(outcome.out, "");
        EXPECT_THAT(outcome.err, AllOf(StartsWith("vex: "), HasSubstr(row.told), EndsWith("\n")));
        EXPECT_EQ(made, nullptr);
    }
    EXPECT_EQ(StepCount(), before);
}

TEST_F(StepFactory, RefusesACaseThatIsGoneOrHasNoHistory)
{
    VEXISamAnalysisSet* made = nullptr;
    const auto bare = vex::FaceOf<VEXISamAnalysisCase>(&Make("HLXHacAnalysisCaseLT", *model));
    EXPECT_THAT(
        OutcomeOf([&] { return factory->CreateStep(nullptr, bare.Get(), made, kinds[0]); }).err,
        HasSubstr("no analysis case with a simulation history"));
    const auto gone = Case();
    const auto history = Scan(History());
    RemoveAnalysis();
    for (VEXISamAnalysisScan* const given : {history.Get(), decltype(history.Get()){}}) {
        const Outcome outcome =
            OutcomeOf([&] { return factory->CreateStep(given, gone.Get(), made, kinds[0]); });
        EXPECT_EQ(outcome.result, E_FAIL);
        EXPECT_THAT(outcome.err, HasSubstr("the analysis case is gone"));
    }
    EXPECT_EQ(
        OutcomeOf([&] { return HLXStepUtils::AddStep("", gone.Get(), made, kinds[0]); }).result,
        E_FAIL);
    EXPECT_EQ(made, nullptr);
}

}  // namespace
