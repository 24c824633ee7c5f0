// SPDX-License-Identifier: Apache-2.0
// The initial step of the current case: found, or made with what is missing of it.
#include "reference/product/ValidateStepFixture.h"

namespace {

constexpr const char* fieldContainer = "HLXHacFieldContainerLT";
constexpr const char* containers[] = {"HLXBoundaryConditionContainerLT",
                                      "HLXInteractionContainerLT", fieldContainer};

using ValidateStep = hlxtest::ValidateStepTest;

TEST_F(ValidateStep, FindsTheInitialStep)
{
    const std::size_t before = Size();
    EXPECT_EQ(Found(""), &initial);
    EXPECT_EQ(Found(fieldContainer), &initial);
    EXPECT_EQ(Found("HLXBoundaryConditionContainerLT"), &initial);
    EXPECT_EQ(Found("HLXInteractionContainerLT", "Initial"), &initial);
    for (const unsigned char make : std::initializer_list<unsigned char>{0, 1, 2, 255}) {
        EXPECT_EQ(Found(fieldContainer, "Initial", make), &initial);
    }
    EXPECT_EQ(Size(), before);
}

TEST_F(ValidateStep, TakesItWhateverItsName)
{
    for (const char* const name : {"", "Load up", "größer \"7\"\n", "HLXStepLT"}) {
        ASSERT_EQ(initial.SetAlias(name), S_OK);
        EXPECT_EQ(Found(fieldContainer), &initial);
        EXPECT_EQ(Found(fieldContainer, name), &initial);
    }
    Delete(initial);
    vex::Feature& unnamed =
        vex::AddFeature(*step->Parent(), "HLXHacInitialStepLT", step->Parent()->Children().front());
    EXPECT_EQ(Found(""), &unnamed) << "it has no name at all";
}

TEST_F(ValidateStep, MakesOneOfAnotherName)
{
    vex::Feature* const made = Found(fieldContainer, "größer", 1);
    EXPECT_NE(made, &initial);
    EXPECT_STREQ(made->IsA(), "HLXHacInitialStepLT");
    EXPECT_EQ(made->Parent(), step->Parent());
    EXPECT_EQ(made->Alias(), "größer");
    EXPECT_EQ(initial.Alias(), "Initial");
    const std::size_t before = Size();
    EXPECT_EQ(Found(fieldContainer, "größer", 1), made);
    EXPECT_EQ(Found("", "größer"), made);
    EXPECT_EQ(Found("", "Initial"), &initial);
    EXPECT_EQ(Size(), before);
    EXPECT_NE(Found("", "Load up", 1), step) << "which is no initial step";
}

TEST_F(ValidateStep, MakesTheContainerOnce)
{
    for (const char* const container : containers) {
        const std::size_t before = Size();
        Delete(*vex::FirstChildOfType(initial, container));
        for (const unsigned char make : std::initializer_list<unsigned char>{255, 1, 0}) {
            EXPECT_EQ(Found(container, "", make), &initial);
            EXPECT_EQ(Size(), before);
        }
        EXPECT_STREQ(vex::FirstChildOfType(initial, container)->IsA(), container);
    }
}

TEST_F(ValidateStep, TakesAContainerOfAnExtendingType)
{
    Delete(*vex::FirstChildOfType(initial, fieldContainer));
    Make("CndFieldContainer", initial);
    const std::size_t before = Size();
    EXPECT_EQ(Found(fieldContainer), &initial);
    EXPECT_EQ(Found(fieldContainer, "", 1), &initial);
    EXPECT_EQ(Size(), before);
}

TEST_F(ValidateStep, IsTheFirstOfSeveral)
{
    vex::Feature& last = AddInitial("Last");
    EXPECT_EQ(Found(""), &initial);
    EXPECT_EQ(Found("", "Last"), &last);
    vex::Feature& first = AddInitial("First", &initial);
    AddInitial("Last");
    EXPECT_EQ(Found(""), &first);
    EXPECT_EQ(Found("", "Initial"), &initial);
    EXPECT_EQ(Found("", "Last"), &last);
}

TEST_F(ValidateStep, IsTheFirstOfSeveralThatHasTheContainer)
{
    vex::Feature& first = AddInitial("First", &initial);
    EXPECT_EQ(Found(fieldContainer), &initial) << "only one that has it is taken";
    EXPECT_EQ(Found(fieldContainer, "First", 1), &first) << "it is made";
    EXPECT_EQ(Found(fieldContainer), &first);
    const std::size_t before = Size();
    EXPECT_EQ(Found("HLXInteractionContainerLT", "", 1), &first) << "the first one is taken";
    EXPECT_EQ(Size(), before + 1);
    EXPECT_EQ(Found("HLXBoundaryConditionContainerLT"), &initial);
}

TEST_F(ValidateStep, IsMadeInFrontOfTheOthers)
{
    Delete(initial);
    ExpectNone("");
    ExpectNone(fieldContainer, "Initial");
    vex::Feature* const made = Found(fieldContainer, "", 1);
    EXPECT_EQ(made->Alias(), "Initial");
    EXPECT_EQ(made, step->Parent()->Children().front());
    EXPECT_EQ(made->NextSibling(), step);
    const std::size_t before = Size();
    EXPECT_EQ(Found(fieldContainer), made);
    EXPECT_EQ(Found("HLXBoundaryConditionContainerLT", "Initial", 1), made);
    EXPECT_EQ(Size(), before);
    VEXListValVEXBaseUnknown_var sets;
    ASSERT_EQ(vex::FaceOf<VEXISamAnalysisCase>(analysisCase)->GetAnalysisSets(sets), S_OK);
    ASSERT_EQ(sets.Size(), 2);
    EXPECT_EQ(&FeatureOf(sets[1]), made);
}

TEST_F(ValidateStep, IsMadeWithTheHistoryItStandsIn)
{
    Delete(*step->Parent());
    step = analysisCase;
    ExpectNone(E_FAIL, analysis.Get(), "", "", 0);
    vex::Feature* const made = Found(fieldContainer, "Start", 1);
    EXPECT_TRUE(made->Parent()->Kind().IsKindOf("HLXHacSimHistLT"));
    EXPECT_EQ(made->Parent()->Parent(), analysisCase);
    EXPECT_EQ(Found(fieldContainer, "Start"), made);
    std::string error;
    EXPECT_NE(hlx::AddStep(*analysisCase, "HLXGeneralStaticStepLT", "Next", error), nullptr)
        << error;

    Delete(*analysisCase);
    analysisCase = &Make("HLXHacAnalysisCaseLT", *model);
    EXPECT_EQ(Found("", "", 1)->Parent()->Parent(), analysisCase) << "nothing else is below it";
}

TEST_F(ValidateStep, TakesStepsAndHistoriesOfExtendingTypes)
{
    vex::Feature* const history = step->Parent();
    vex::Feature& other = vex::AddFeature(*analysisCase, "CndHistoryOfSteps", history);
    Delete(*history);
    step = analysisCase;
    vex::Feature& foreign = Make("CndInitialStep", other);
    EXPECT_EQ(Found(""), &foreign);
    const std::size_t before = Size();
    EXPECT_EQ(Found(fieldContainer, "", 1), &foreign);
    EXPECT_EQ(Size(), before + 1);
}

TEST_F(ValidateStep, IsThatOfTheFirstCaseOfTheCurrentModel)
{
    hlxtest::AddCase(analysis.Get());
    EXPECT_EQ(Found(""), &initial);
    Delete(initial);
    ExpectNone("");
    EXPECT_EQ(Found("", "", 1)->Parent(), step->Parent());

    vex::Feature& manager = *model->Parent();
    hlxtest::AddModel(analysis.Get());
    vex::Feature& second = *model->NextSibling();
    EXPECT_EQ(Found("")->Parent(), step->Parent());
    ASSERT_EQ(manager.Set("CurrentModel", vex::Reference{second.Id()}), S_OK);
    ExpectNone("");
    ExpectNone(fieldContainer, "Initial", 1);
    hlxtest::AddCase(analysis.Get());
    EXPECT_EQ(Found(fieldContainer)->Parent()->Parent()->Parent(), &second);
}

TEST_F(ValidateStep, IsFoundAgainOnceStored)
{
    Delete(initial);
    const vex::FeatureId made = Found(fieldContainer, "Start", 1)->Id();
    model = &Reopened(model->Id());
    const std::size_t before = Size();
    EXPECT_EQ(Found(fieldContainer, "Start", 1)->Id(), made);
    EXPECT_EQ(Found(fieldContainer)->Id(), made);
    EXPECT_EQ(Size(), before);
}

}  // namespace
