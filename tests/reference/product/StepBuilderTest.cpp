// SPDX-License-Identifier: Apache-2.0
// Steps of a case.
#include "reference/analysis/AnalysisFixture.h"

namespace {

using hlxtest::AliasesOf;
using Names = std::vector<std::string>;

class Steps : public hlxtest::AnalysisTest
{
protected:
    Steps() : AnalysisTest(1) {}

    Names StepNames()
    {
        VEXListValVEXBaseUnknown_var sets;
        EXPECT_EQ(Case(1)->GetAnalysisSets(sets), S_OK);
        return AliasesOf(sets);
    }

    std::string Refusal(const char* lateType, std::string_view name)
    {
        std::string error;
        EXPECT_EQ(hlx::AddStep(FeatureOf(Case(1)), lateType, name, error), nullptr);
        EXPECT_EQ(StepNames(), Names{"Initial"});
        return error;
    }
};

TEST_F(Steps, StandInTheOrderInWhichTheyAreAdded)
{
    const char* const types[] = {"HLXGeneralStaticStepLT",  "HLXStaticLPStepLT",
                                 "HLXRiksStepLT",           "HLXHeatTransferStepLT",
                                 "HLXExplicitDynamicLT",    "HLXFrequencyStepLT",
                                 "HLXExplicitDynamicStepLT"};
    Names expected{"Initial"};
    for (const char* const type : types) {
        EXPECT_EQ(AddStep(1, type, type).Kind().name, type);
        expected.emplace_back(type);
    }
    EXPECT_EQ(StepNames(), expected);
}

TEST_F(Steps, HaveTheirContainersButNoneForOutput)
{
    const vex::Feature& step = AddStep(1, "HLXGeneralStaticStepLT", "S");
    Names containers;
    for (const vex::Feature* const child : step.Children()) {
        containers.push_back(child->Kind().name);
        EXPECT_TRUE(child->Kind().IsKindOf("HLXContainerLT"));
    }
    EXPECT_EQ(containers, (Names{"HLXLoadContainerLT", "HLXBoundaryConditionContainerLT",
                                 "HLXInteractionContainerLT", "HLXTemperatureContainerLT"}));
    EXPECT_EQ(step.GetAs<double>("TimePeriod"), 1.0);
    EXPECT_FALSE(step.GetAs<bool>("NonlinearGeometry"));
}

TEST_F(Steps, MayBeWithoutAName)
{
    EXPECT_FALSE(AddStep(1, "HLXRiksStepLT", "").HasAlias());
}

TEST_F(Steps, RefuseWhatIsNoStep)
{
    for (const char* const type : {"HLXGravity", "HLXStepLT", "HLXIncrementedStepLT",
                                   "HLXHacInitialStepLT", "", "Nothing"}) {
        EXPECT_EQ(Refusal(type, "S"),
                  std::string("\"") + type +
                      "\" is no kind of step that can be added; give one such as "
                      "HLXGeneralStaticStepLT");
    }
    EXPECT_EQ(Refusal("HLXRiksStepLT", "\xc3("),
              "the step's name \"\\xc3(\" is not valid UTF-8; give another name");
}

TEST_F(Steps, NeedACase)
{
    std::string error;
    EXPECT_EQ(hlx::AddStep(FeatureOf(Model()), "HLXRiksStepLT", "S", error), nullptr);
    EXPECT_EQ(error,
              "the feature is no analysis case with a simulation history; give an analysis case");
}

}  // namespace
