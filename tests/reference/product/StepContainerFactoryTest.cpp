// SPDX-License-Identifier: Apache-2.0
// Containers of output requests, made once on demand.
#include "HLXIContainerFactoryStep.h"
#include "reference/analysis/AnalysisFixture.h"

namespace {

using Names = std::vector<std::string>;

class StepContainers : public hlxtest::AnalysisTest
{
protected:
    StepContainers() : AnalysisTest(1) {}

    static HLXIContainerFactoryStep_var FactoryOf(vex::Feature& step)
    {
        return VEXShare<VEXBaseUnknown>(&step);
    }

    static Names KindsBelow(const vex::Feature& step)
    {
        Names kinds;
        for (const vex::Feature* const child : step.Children()) {
            kinds.push_back(child->Kind().name);
        }
        return kinds;
    }
};

TEST_F(StepContainers, AreMadeOnceAtTheEnd)
{
    vex::Feature& step = AddStep(1, "HLXGeneralStaticStepLT", "S");
    Names expected = KindsBelow(step);
    for (int times = 0; times < 2; ++times) {
        EXPECT_EQ(FactoryOf(step)->CreateHistoryOutputRequestContainer(), S_OK);
        EXPECT_EQ(FactoryOf(step)->CreateFieldOutputRequestContainer(), S_OK);
    }
    expected.insert(expected.end(),
                    {"HLXHistoryOutputRequestContainerLT", "HLXFieldOutputRequestContainerLT"});
    EXPECT_EQ(KindsBelow(step), expected);
}

TEST_F(StepContainers, AreMadeByStepsOfEveryKind)
{
    VEXListValVEXBaseUnknown_var steps;
    AddStep(1, "HLXFrequencyStepLT", "F");
    AddStep(1, "HLXExplicitDynamicLT", "E");
    ASSERT_EQ(Case(1)->GetAnalysisSets(steps), S_OK);
    ASSERT_EQ(steps.Size(), 3);
    for (int i = 1; i <= steps.Size(); ++i) {
        EXPECT_TRUE(HLXIContainerFactoryStep_var(steps[i])) << steps[i]->IsA();
    }
    EXPECT_FALSE(HLXIContainerFactoryStep_var(Case(1)));
}

TEST_F(StepContainers, OfAStepThatIsGoneAreRefused)
{
    vex::Feature& step = AddStep(1, "HLXGeneralStaticStepLT", "S");
    const HLXIContainerFactoryStep_var factory = FactoryOf(step);
    step.Tree()->Delete(step);
    EXPECT_EQ(factory->CreateFieldOutputRequestContainer(), E_FAIL);
    EXPECT_EQ(factory->CreateHistoryOutputRequestContainer(), E_FAIL);
}

}  // namespace
