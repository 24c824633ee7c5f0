// SPDX-License-Identifier: Apache-2.0
// The factory of loads: each kind, in each kind of step.
#include "reference/analysis/EntityFixture.h"

#include <functional>

namespace {

using hlxtest::Outcome;
using hlxtest::OutcomeOf;

class LoadFactory : public hlxtest::EntityTest
{
protected:
    using Creation =
        std::function<HRESULT(VEXISpecObject_var&, VEXDocument*, VEXISamAnalysisSet_var&)>;
    struct Kind
    {
        const char* lateType;
        Creation create;
    };

    Creation HeatFlux(const char* lateType) const
    {
        return [this, lateType](VEXISpecObject_var& load, VEXDocument* document,
                                VEXISamAnalysisSet_var& where) {
            return factory->CreateHeatFlux(load, lateType, document, where);
        };
    }

    template <class Operation>
    Creation By(Operation operation) const
    {
        return [this, operation](VEXISpecObject_var& load, VEXDocument* document,
                                 VEXISamAnalysisSet_var& where) {
            return (factory.Get()->*operation)(load, document, where);
        };
    }

    std::vector<Kind> Kinds() const
    {
        return {{"HLXPressure", By(&HLXILoadFact::CreatePressure)},
                {"HLXConcHeatFlux", HeatFlux("HLXConcHeatFlux")},
                {"HLXSurfaceHeatFlux", HeatFlux("HLXSurfaceHeatFlux")},
                {"HLXBodyHeatFlux", HeatFlux("HLXBodyHeatFlux")},
                {"HLXGravity", By(&HLXILoadFact::CreateGravity)},
                {"HLXRotationalBodyForce", By(&HLXILoadFact::CreateRotationalBodyForce)},
                {"HLXConcentratedForce", By(&HLXILoadFact::CreateConcentratedForce)},
                {"HLXFilmCondition", By(&HLXILoadFact::CreateFilmCondition)}};
    }

    static VEXISamAnalysisSet_var Set(const vex::Feature& feature)
    {
        return vex::FaceOf<VEXISamAnalysisSet>(&feature);
    }

    /// Each kind of load is refused, nothing is made, and what the caller held stays.
    void ExpectNone(VEXDocument* document, const VEXISamAnalysisSet_var& where, HRESULT result)
    {
        const std::size_t before = loads->Tree()->Size();
        for (const Kind& kind : Kinds()) {
            SCOPED_TRACE(kind.lateType);
            VEXISamAnalysisSet_var given = where;
            VEXISpecObject_var load = vex::FaceOf<VEXISpecObject>(analysisCase);
            EXPECT_EQ(OutcomeOf([&] { return kind.create(load, document, given); }),
                      (Outcome{result, "", ""}));
            EXPECT_EQ(&FeatureOf(load), analysisCase);
            EXPECT_EQ(given, where);
        }
        EXPECT_EQ(loads->Tree()->Size(), before);
    }

    const VEXVar<HLXILoadFact> factory = hlxtest::Service<HLXILoadFact>("HLXLoadFact");
};

TEST_F(LoadFactory, MakesEachKindAtTheEndOfTheStepsLoads)
{
    for (const Kind& kind : Kinds()) {
        SCOPED_TRACE(kind.lateType);
        VEXISpecObject_var load;
        VEXISamAnalysisSet_var where = Set(*step);
        ASSERT_EQ(OutcomeOf([&] { return kind.create(load, analysis.Get(), where); }),
                  (Outcome{S_OK, "", ""}));
        const vex::Feature& made = FeatureOf(load);
        EXPECT_STREQ(made.IsA(), kind.lateType);
        EXPECT_EQ(made.Parent(), loads);
        EXPECT_EQ(made.NextSibling(), nullptr);
        EXPECT_FALSE(made.HasAlias());
        EXPECT_EQ(hlxtest::References(made), 1U);
        EXPECT_EQ(where, Set(*step));
        EXPECT_TRUE(HLXILoad_var(load));
        EXPECT_TRUE(VEXISamAnalysisEntity_var(load));
        EXPECT_EQ(static_cast<bool>(HLXIPressureLoad_var(load)),
                  made.Kind().IsKindOf("HLXPressure"));
        EXPECT_EQ(static_cast<bool>(HLXIHeatFlux_var(load)), made.Kind().IsKindOf("HLXHeatFlux"));
        EXPECT_EQ(static_cast<bool>(HLXIGravity_var(load)), made.Kind().IsKindOf("HLXGravity"));
        EXPECT_EQ(static_cast<bool>(HLXIRotationalBodyForce_var(load)),
                  made.Kind().IsKindOf("HLXRotationalBodyForce"));
        EXPECT_EQ(static_cast<bool>(HLXIConcentratedForce_var(load)),
                  made.Kind().IsKindOf("HLXConcentratedForce"));
        EXPECT_EQ(static_cast<bool>(HLXIFilmCondition_var(load)),
                  made.Kind().IsKindOf("HLXFilmCondition"));
    }
    EXPECT_EQ(loads->Children().size(), Kinds().size());
}

TEST_F(LoadFactory, MakesThemInEachKindOfStep)
{
    for (const vex::LateType* const type : vex::LateTypes::Instance().All()) {
        if (!type->IsKindOf("HLXStepLT")) {
            continue;
        }
        SCOPED_TRACE(type->name);
        std::string error;
        vex::Feature* const added = hlx::AddStep(*analysisCase, type->name, "", error);
        for (const Kind& kind : Kinds()) {
            VEXISpecObject_var load;
            VEXISamAnalysisSet_var where = added == nullptr ? nullptr : Set(*added);
            EXPECT_EQ(kind.create(load, analysis.Get(), where),
                      added == nullptr ? E_INVALIDARG : S_OK);
        }
    }
}

TEST_F(LoadFactory, RefusesOtherDocumentsAndSteps)
{
    hlxtest::AnalysisDocument other(1);
    ExpectNone(nullptr, Set(*step), E_INVALIDARG);
    ExpectNone(other.Get(), Set(*step), E_INVALIDARG);
    ExpectNone(&Open("box"), Set(*step), E_INVALIDARG);
    ExpectNone(analysis.Get(), nullptr, E_INVALIDARG);
    VEXDocument* const stale = other.Get();
    ASSERT_EQ(VEXDocumentServices::Remove(*other.Release(), 1), S_OK);
    ExpectNone(stale, Set(*step), E_INVALIDARG);
    const VEXISamAnalysisSet_var gone = Set(*step);
    vex::Feature* const parent = step->Parent();
    parent->Tree()->Delete(*step);
    loads = parent;
    ExpectNone(analysis.Get(), gone, E_INVALIDARG);
}

TEST_F(LoadFactory, FailsInAStepWithoutALoadContainer)
{
    const vex::Feature* const initial =
        vex::FirstChildOfType(*step->Parent(), "HLXHacInitialStepLT");
    ExpectNone(analysis.Get(), Set(*initial), E_FAIL);
}

TEST_F(LoadFactory, MakesHeatFluxesOfThreeTypesOnly)
{
    for (const char* const lateType : {"", "HLXHeatFlux", "HLXPressure", "HLXLoad",
                                       "hlxConcHeatFlux", "HLXConcHeatFlux ", "NoSuchType"}) {
        VEXISpecObject_var load;
        VEXISamAnalysisSet_var where = Set(*step);
        EXPECT_EQ(factory->CreateHeatFlux(load, lateType, analysis.Get(), where), E_INVALIDARG)
            << lateType;
        EXPECT_FALSE(load);
    }
    EXPECT_TRUE(loads->Children().empty());
}

}  // namespace
