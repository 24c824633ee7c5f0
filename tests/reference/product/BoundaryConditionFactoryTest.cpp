// SPDX-License-Identifier: Apache-2.0
// The factory of boundary conditions: each kind, in each kind of step.
#include "reference/product/ConditionFixture.h"

namespace {

using hlxtest::Outcome;
using hlxtest::OutcomeOf;

class BoundaryConditionFactory : public hlxtest::ConditionTest
{
protected:
    using Operation = HRESULT (HLXIBoundaryConditionsFact::*)(VEXISpecObject_var&, VEXDocument*,
                                                              VEXISamAnalysisSet_var&);
    struct Kind
    {
        const char* lateType;
        Operation create;
    };
    static constexpr Kind kinds[] = {
        {"HLXDisplacementBC", &HLXIBoundaryConditionsFact::CreateDisplacement},
        {"HLXClamp", &HLXIBoundaryConditionsFact::CreateClamp},
        {"HLXVelocityBCLT", &HLXIBoundaryConditionsFact::CreateVelocity}};

    static vex::Feature* ContainerOf(const vex::Feature& place)
    {
        return vex::FirstChildOfType(place, "HLXBoundaryConditionContainerLT");
    }

    /// Each kind is made, each behind the one before it.
    void ExpectMade(const vex::Feature& place)
    {
        for (const Kind& kind : kinds) {
            SCOPED_TRACE(kind.lateType);
            const std::size_t before = place.Tree()->Size();
            VEXISpecObject_var condition = vex::FaceOf<VEXISpecObject>(model);
            VEXISamAnalysisSet_var where = Set(place);
            ASSERT_EQ(OutcomeOf([&] {
                          return (conditions.Get()->*kind.create)(condition, analysis.Get(), where);
                      }),
                      (Outcome{S_OK, "", ""}));
            EXPECT_EQ(place.Tree()->Size(), before + 1);
            const vex::Feature& made = FeatureOf(condition);
            EXPECT_STREQ(made.IsA(), kind.lateType);
            EXPECT_EQ(made.Parent(), ContainerOf(place));
            EXPECT_EQ(made.NextSibling(), nullptr);
            EXPECT_FALSE(made.HasAlias());
            EXPECT_EQ(hlxtest::References(made), 1U);
            EXPECT_EQ(where, Set(place));
            EXPECT_TRUE(VEXIAlias_var(condition));
            EXPECT_TRUE(HLXICondition_var(condition));
            EXPECT_TRUE(HLXIBoundaryCondition_var(condition));
            EXPECT_TRUE(VEXISamAnalysisEntity_var(condition));
            EXPECT_TRUE(VEXISamAnalysisSupport_var(condition));
            EXPECT_TRUE(VEXISpecAttrAccess_var(condition));
            EXPECT_EQ(static_cast<bool>(HLXIDisplacementBC_var(condition)),
                      made.Kind().name == "HLXDisplacementBC");
            EXPECT_EQ(static_cast<bool>(HLXIMotionBC_var(condition)),
                      made.Kind().name == "HLXVelocityBCLT");
            EXPECT_FALSE(HLXILoad_var(condition));
            EXPECT_FALSE(HLXITemperature_var(condition));
        }
    }

    /// Each kind is refused, nothing is made, and what the caller held stays.
    void ExpectNone(VEXDocument* document, const VEXISamAnalysisSet_var& where, HRESULT result)
    {
        const std::size_t before = model->Tree()->Size();
        for (const Kind& kind : kinds) {
            SCOPED_TRACE(kind.lateType);
            VEXISamAnalysisSet_var given = where;
            VEXISpecObject_var condition = vex::FaceOf<VEXISpecObject>(model);
            EXPECT_EQ(OutcomeOf([&] {
                          return (conditions.Get()->*kind.create)(condition, document, given);
                      }),
                      (Outcome{result, "", ""}));
            EXPECT_EQ(&FeatureOf(condition), model);
            EXPECT_EQ(given, where);
        }
        EXPECT_EQ(model->Tree()->Size(), before);
    }
};

TEST_F(BoundaryConditionFactory, MakesEachKindAtTheEndOfTheStepsConditions)
{
    ExpectMade(*step);
    Make("HLXSubmodelBCLT", *ContainerOf(*step));
    ExpectMade(*step);
    EXPECT_EQ(ContainerOf(*step)->Children().size(), 7U);
    EXPECT_TRUE(loads->Children().empty());
}

TEST_F(BoundaryConditionFactory, MakesThemInTheInitialStep)
{
    ExpectMade(InitialStep());
    EXPECT_TRUE(ContainerOf(*step)->Children().empty());
}

TEST_F(BoundaryConditionFactory, MakesThemInEachKindOfStep)
{
    int steps = 0;
    for (const vex::LateType* const type : vex::LateTypes::Instance().All()) {
        std::string error;
        const vex::Feature* const added = type->IsKindOf("HLXStepLT")
                                              ? hlx::AddStep(*analysisCase, type->name, "", error)
                                              : nullptr;
        if (added != nullptr) {
            SCOPED_TRACE(type->name);
            ExpectMade(*added);
            ++steps;
        }
    }
    EXPECT_GE(steps, 7);
}

TEST_F(BoundaryConditionFactory, TakesAContainerOfAnExtendingType)
{
    std::string error;
    ASSERT_TRUE(vex::LateTypes::Instance().Add(
        {{"TstConditionContainer", "HLXBoundaryConditionContainerLT", {}}}, error))
        << error;
    step->Tree()->Delete(*ContainerOf(*step));
    Make("TstConditionContainer", *step);
    ExpectMade(*step);
}

TEST_F(BoundaryConditionFactory, RefusesOtherDocumentsAndSteps)
{
    hlxtest::AnalysisDocument other(1);
    ExpectNone(nullptr, Set(*step), E_INVALIDARG);
    ExpectNone(other.Get(), Set(*step), E_INVALIDARG);
    ExpectNone(&Open("box"), Set(*step), E_INVALIDARG);
    ExpectNone(analysis.Get(), {}, E_INVALIDARG);
    VEXDocument* const stale = other.Get();
    ASSERT_EQ(VEXDocumentServices::Remove(*other.Release(), 1), S_OK);
    ExpectNone(stale, Set(*step), E_INVALIDARG);
    const VEXISamAnalysisSet_var gone = Set(*step);
    step->Tree()->Delete(*step);
    ExpectNone(analysis.Get(), gone, E_INVALIDARG);
}

TEST_F(BoundaryConditionFactory, FailsInAStepWithoutThatContainer)
{
    step->Tree()->Delete(*ContainerOf(*step));
    ExpectNone(analysis.Get(), Set(*step), E_FAIL);
    step->Tree()->Delete(*ContainerOf(InitialStep()));
    ExpectNone(analysis.Get(), Set(InitialStep()), E_FAIL);
}

TEST_F(BoundaryConditionFactory, MakesConditionsThatTakeSupports)
{
    VEXDocument& box = Open("box");
    const VEXBody_var body = BodyOf(box);
    for (const Kind& kind : kinds) {
        VEXISpecObject_var condition;
        VEXISamAnalysisSet_var where = Set(*step);
        ASSERT_EQ((conditions.Get()->*kind.create)(condition, analysis.Get(), where), S_OK);
        const VEXISamAnalysisSupport_var entity = condition;
        ASSERT_EQ(entity->AddSupport(CellOf(body, 2), PartFeature(box), "GeometrySmartConnector"),
                  S_OK);
        EXPECT_EQ(Supports(entity).size(), 1U) << kind.lateType;
    }
}

}  // namespace
