// SPDX-License-Identifier: Apache-2.0
// The factory of boundary conditions: each kind, in each kind of step.
#include "reference/product/ConditionFactoryFixture.h"

namespace {

class BoundaryConditionFactory : public hlxtest::ConditionFactoryTest
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

    Creation By(const Kind& kind) const { return std::bind_front(kind.create, conditions.Get()); }

    static vex::Feature* ContainerOf(const vex::Feature& place)
    {
        return vex::FirstChildOfType(place, "HLXBoundaryConditionContainerLT");
    }

    /// Each kind is made, each behind the one before it.
    void ExpectAllMade(const vex::Feature& place)
    {
        for (const Kind& kind : kinds) {
            SCOPED_TRACE(kind.lateType);
            VEXISpecObject_var condition;
            ASSERT_NO_FATAL_FAILURE(
                ExpectMade(By(kind), kind.lateType, place, ContainerOf(place), condition));
            EXPECT_TRUE(HLXIBoundaryCondition_var(condition));
            EXPECT_TRUE(VEXISpecAttrAccess_var(condition));
            const std::string_view made = FeatureOf(condition).Kind().name;
            EXPECT_EQ(static_cast<bool>(HLXIDisplacementBC_var(condition)),
                      made == "HLXDisplacementBC");
            EXPECT_EQ(static_cast<bool>(HLXIMotionBC_var(condition)), made == "HLXVelocityBCLT");
            EXPECT_FALSE(HLXITemperature_var(condition));
        }
    }

    /// Each kind is refused.
    void ExpectNone(VEXDocument* document, const VEXISamAnalysisSet_var& where, HRESULT result)
    {
        for (const Kind& kind : kinds) {
            SCOPED_TRACE(kind.lateType);
            ExpectNotMade(By(kind), document, where, result);
        }
    }
};

TEST_F(BoundaryConditionFactory, MakesEachKindAtTheEndOfTheStepsConditions)
{
    ExpectAllMade(*step);
    Make("HLXSubmodelBCLT", *ContainerOf(*step));
    ExpectAllMade(*step);
    EXPECT_EQ(ContainerOf(*step)->Children().size(), 7U);
    EXPECT_TRUE(loads->Children().empty());
}

TEST_F(BoundaryConditionFactory, MakesThemInTheInitialStep)
{
    ExpectAllMade(InitialStep());
    EXPECT_TRUE(ContainerOf(*step)->Children().empty());
}

TEST_F(BoundaryConditionFactory, MakesThemInEachKindOfStep)
{
    InEachKindOfStep([&](const vex::Feature& added) { ExpectAllMade(added); });
}

TEST_F(BoundaryConditionFactory, TakesAContainerOfAnExtendingType)
{
    std::string error;
    ASSERT_TRUE(vex::LateTypes::Instance().Add(
        {{"CndConditionContainer", "HLXBoundaryConditionContainerLT", {}}}, error))
        << error;
    step->Tree()->Delete(*ContainerOf(*step));
    Make("CndConditionContainer", *step);
    ExpectAllMade(*step);
}

TEST_F(BoundaryConditionFactory, RefusesOtherDocumentsAndSteps)
{
    WithOtherDocumentsAndSteps({step},
                               [&](VEXDocument* document, const VEXISamAnalysisSet_var& where) {
                                   ExpectNone(document, where, E_INVALIDARG);
                               });
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
