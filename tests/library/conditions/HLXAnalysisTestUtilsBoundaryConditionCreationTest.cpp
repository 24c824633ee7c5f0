// SPDX-License-Identifier: Apache-2.0
// What the creations of displacement, velocity and clamp share up to the part: factory, condition,
// its casts, the handle.
#include "library/conditions/BoundaryConditionKinds.h"

namespace hlxtest::statics {
namespace {

class BoundaryConditionCreationTest : public BoundaryConditionTest,
                                      public testing::WithParamInterface<ConditionKind>
{
protected:
    const ConditionKind& kind = GetParam();
    const Outcome done{S_OK, "", ""};
    const Outcome silent{E_FAIL, "", ""};
    const Outcome notCreated{E_FAIL, kind.notCreated, ""};
    const Outcome noEntity{E_FAIL, kind.noEntity, ""};
    const Outcome noPointer{E_FAIL, kNoPointer, ""};
};

TEST_P(BoundaryConditionCreationTest, PutsTheConditionIntoTheStepAndGivesIt)
{
    ExpectExit(kind, {"", "", done, kind.Whole()});
}

TEST_P(BoundaryConditionCreationTest, TheConditionStandsInTheContainerOfBoundaryConditions)
{
    EXPECT_EQ(Create(kind.create), done);
    EXPECT_EQ(condition->GetFather()->GetType(), "HLXBoundaryConditionContainerLT");
    EXPECT_TRUE(condition->GetFather()->GetFather() == step);
}

TEST_P(BoundaryConditionCreationTest, AnEmptyHandleIsFilled)
{
    ASSERT_FALSE(condition);
    EXPECT_EQ(Create(kind.create), done);
    EXPECT_TRUE(condition && condition == Last());
}

TEST_P(BoundaryConditionCreationTest, AHandleThatHoldsTheStepIsReplaced)
{
    condition = step;
    EXPECT_EQ(Create(kind.create), done);
    EXPECT_TRUE(condition == Last());
    EXPECT_EQ(AliasOf(step), "Loading");
}

TEST_P(BoundaryConditionCreationTest, OnlyTheConditionIsHeld)
{
    condition = former;
    HeldCounts held = HeldAfter([&] { Create(kind.create); });
    held.erase("HLXBoundaryConditionsFact");
    EXPECT_EQ(held, (HeldCounts{{kind.type, 1}}));
    EXPECT_EQ(References(*condition.Get()), 1U);
    EXPECT_EQ(References(*former.Get()), 1U);
    EXPECT_EQ(References(*step.Get()), 1U);
}

TEST_P(BoundaryConditionCreationTest, ASecondCallGivesASecondConditionAndLeavesTheFirst)
{
    EXPECT_EQ(Create(kind.create), done);
    const VEXISpecObject_var first = condition;
    EXPECT_EQ(Create(kind.create), done);
    EXPECT_EQ(TextsIn(step), (std::vector{kind.Whole(), kind.Whole()}));
    EXPECT_TRUE(first == ConditionsIn(step).front());
    EXPECT_TRUE(condition == Last());
    EXPECT_FALSE(first == condition);
}

TEST_P(BoundaryConditionCreationTest, TheNameIsNotUsed)
{
    for (const char* const name : {"", "Name", "100% \"of\" \xC3\xA4\n\\", "\xFF"}) {
        EXPECT_EQ(Create(kind.create, "", name), done) << name;
        EXPECT_EQ(AliasOf(condition), "") << name;
    }
    EXPECT_EQ(CallsOf([&] { kind.create(analysis.Get(), "Name", condition, step); },
                      {"VEXIAlias::", "HLXIAmplitude", "HLXICondition::SetAmplitude"}),
              std::vector<std::string>{});
}

// --- Factory ------------------------------------------------------------------------------------

TEST_P(BoundaryConditionCreationTest, WithoutAFactoryThereIsNoCondition)
{
    for (const char* const outcome : {"E_FAIL", "E_ACCESSDENIED", "null", "S_FALSE"}) {
        ExpectExit(kind, {"", std::string("VEXInstantiateComponent#1=") + outcome, notCreated, "",
                          Handle::Former});
    }
    EXPECT_EQ(FlushedBy(kind, "VEXInstantiateComponent#1=E_FAIL"), "");
}

TEST_P(BoundaryConditionCreationTest, AFactoryGivenAlongWithAFailureIsTaken)
{
    ExpectExit(kind, {"", "VEXInstantiateComponent#1=E_UNEXPECTED,keep", done, kind.Whole()});
}

TEST_P(BoundaryConditionCreationTest, AFactoryGivenWithAPositiveResultIsTaken)
{
    ExpectExit(kind, {"", "VEXInstantiateComponent#1=S_FALSE,keep", done, kind.Whole()});
}

// --- Condition ----------------------------------------------------------------------------------

TEST_P(BoundaryConditionCreationTest, AConditionThatCannotBeCreatedIsTold)
{
    for (const char* const outcome : {"E_FAIL", "E_ACCESSDENIED", "null", "S_FALSE"}) {
        // The platform empties the handle itself.
        ExpectExit(kind, {"", std::string("FACTORY=") + outcome, notCreated, "", Handle::Empty});
    }
    EXPECT_EQ(FlushedBy(kind, "FACTORY=E_FAIL"), "");
}

TEST_P(BoundaryConditionCreationTest, AConditionCreatedAlongWithAFailureStays)
{
    ExpectExit(kind, {"", "FACTORY=E_UNEXPECTED,keep", notCreated, kind.created});
}

TEST_P(BoundaryConditionCreationTest, AConditionCreatedWithAPositiveResultIsTaken)
{
    ExpectExit(kind, {"", "FACTORY=S_FALSE,keep", done, kind.Whole()});
}

// --- Casts --------------------------------------------------------------------------------------

class BoundaryConditionQueryTest : public BoundaryConditionCreationTest
{};

TEST_P(BoundaryConditionQueryTest, OneThatIsNoFeatureFailsWithoutAWord)
{
    ExpectExit(kind, {"", "cast:TYPE->VEXISpecObject#1=E_NOINTERFACE", silent, kind.created});
}

TEST_P(BoundaryConditionQueryTest, OneThatIsDeniedFailsWithoutAWord)
{
    ExpectExit(kind, {"", "cast:TYPE->VEXISpecObject#1=E_ACCESSDENIED", silent, kind.created});
}

TEST_P(BoundaryConditionQueryTest, OneThatIsNullFailsWithoutAWord)
{
    ExpectExit(kind, {"", "cast:TYPE->VEXISpecObject#1=null", silent, kind.created});
}

TEST_P(BoundaryConditionQueryTest, OneGivenAlongWithAFailureIsAFailure)
{
    ExpectExit(kind, {"", "cast:TYPE->VEXISpecObject#1=E_UNEXPECTED,keep", silent, kind.created});
}

TEST_P(BoundaryConditionQueryTest, OneGivenWithAPositiveResultIsTaken)
{
    ExpectExit(kind, {"", "cast:TYPE->VEXISpecObject#1=S_FALSE,keep", done, kind.Whole()});
}

TEST_P(BoundaryConditionQueryTest, OneThatIsNoEntityFails)
{
    const Handle handle = noEntity == noPointer ? Handle::Empty : Handle::New;
    for (const char* const outcome : {"E_NOINTERFACE", "null"}) {
        SCOPED_TRACE(outcome);
        condition = former;
        const std::string faults =
            std::string("cast:") + kind.type + "->VEXISamAnalysisEntity=" + outcome;
        EXPECT_EQ(Create(kind.create, faults), noEntity);
        EXPECT_EQ(TextOf(Last()), kind.created);
        EXPECT_EQ(static_cast<bool>(condition), handle == Handle::New);
        condition.Reset();
        ExpectNothingHeld(kind, faults);
    }
    ExpectFormerUntouched();
}

// --- The handle ---------------------------------------------------------------------------------

TEST_P(BoundaryConditionQueryTest, OneThatIsNoFeatureTheSecondTimeIsToldAndNotGiven)
{
    ExpectExit(kind, {"", "cast:TYPE->VEXISpecObject#2=E_NOINTERFACE", noPointer, kind.attached,
                      Handle::Empty});
}

TEST_P(BoundaryConditionQueryTest, OneThatIsNullTheSecondTimeIsToldAndNotGiven)
{
    ExpectExit(kind,
               {"", "cast:TYPE->VEXISpecObject#2=null", noPointer, kind.attached, Handle::Empty});
}

TEST_P(BoundaryConditionQueryTest, OneGivenAlongWithAFailureTheSecondTimeIsNotGiven)
{
    ExpectExit(kind, {"", "cast:TYPE->VEXISpecObject#2=E_UNEXPECTED,keep", noPointer, kind.attached,
                      Handle::Empty});
}

TEST_P(BoundaryConditionQueryTest, OneGivenWithAPositiveResultTheSecondTimeIsGiven)
{
    ExpectExit(kind, {"", "cast:TYPE->VEXISpecObject#2=S_FALSE,keep", done, kind.Whole()});
}

TEST_P(BoundaryConditionQueryTest, TheMessageOfTheHandleIsNotFlushed)
{
    EXPECT_EQ(FlushedBy(kind, "cast:TYPE->VEXISpecObject#2=E_NOINTERFACE"), "");
}

INSTANTIATE_TEST_SUITE_P(Of, BoundaryConditionCreationTest, testing::ValuesIn(kAllConditions),
                         NameOfCondition);
INSTANTIATE_TEST_SUITE_P(Of, BoundaryConditionQueryTest, testing::ValuesIn(kAllConditions),
                         NameOfCondition);

}  // namespace
}  // namespace hlxtest::statics
