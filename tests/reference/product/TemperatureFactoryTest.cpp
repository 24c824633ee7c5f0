// SPDX-License-Identifier: Apache-2.0
// The factory of temperatures: each type in its container, in the steps that have that one.
#include "reference/product/ConditionFixture.h"

namespace {

using hlxtest::Outcome;
using hlxtest::OutcomeOf;

class TemperatureFactory : public hlxtest::ConditionTest
{
protected:
    static vex::Feature* TemperaturesOf(const vex::Feature& place)
    {
        return vex::FirstChildOfType(place, "HLXTemperatureContainerLT");
    }

    static vex::Feature* FieldsOf(const vex::Feature& place)
    {
        return vex::FirstChildOfType(place, "HLXHacFieldContainerLT");
    }

    void ExpectMade(const char* lateType, const vex::Feature& place, const vex::Feature* container)
    {
        SCOPED_TRACE(lateType);
        const std::size_t before = place.Tree()->Size();
        VEXISpecObject_var temperature = vex::FaceOf<VEXISpecObject>(model);
        VEXISamAnalysisSet_var where = Set(place);
        ASSERT_EQ(OutcomeOf([&] {
                      return temperatures->CreateTemperature(temperature, lateType, analysis.Get(),
                                                             where);
                  }),
                  (Outcome{S_OK, "", ""}));
        EXPECT_EQ(place.Tree()->Size(), before + 1);
        const vex::Feature& made = FeatureOf(temperature);
        EXPECT_STREQ(made.IsA(), lateType);
        EXPECT_EQ(made.Parent(), container);
        EXPECT_EQ(made.NextSibling(), nullptr);
        EXPECT_FALSE(made.HasAlias());
        EXPECT_EQ(hlxtest::References(made), 1U);
        EXPECT_EQ(where, Set(place));
        EXPECT_TRUE(VEXIAlias_var(temperature));
        EXPECT_TRUE(HLXICondition_var(temperature));
        EXPECT_TRUE(HLXITemperature_var(temperature));
        EXPECT_TRUE(VEXISamAnalysisEntity_var(temperature));
        EXPECT_TRUE(VEXISamAnalysisSupport_var(temperature));
        EXPECT_EQ(static_cast<bool>(HLXITemperatureHistory_var(temperature)),
                  made.Kind().name == "HLXTemperatureHistoryLT");
        EXPECT_FALSE(HLXILoad_var(temperature));
        EXPECT_FALSE(HLXIBoundaryCondition_var(temperature));
    }

    /// Nothing is made, and what the caller held stays.
    void ExpectNone(const VEXUnicodeString& lateType, VEXDocument* document,
                    const VEXISamAnalysisSet_var& where, HRESULT result)
    {
        SCOPED_TRACE(lateType.View());
        const std::size_t before = model->Tree()->Size();
        VEXISamAnalysisSet_var given = where;
        VEXISpecObject_var temperature = vex::FaceOf<VEXISpecObject>(model);
        EXPECT_EQ(OutcomeOf([&] {
                      return temperatures->CreateTemperature(temperature, lateType, document,
                                                             given);
                  }),
                  (Outcome{result, "", ""}));
        EXPECT_EQ(&FeatureOf(temperature), model);
        EXPECT_EQ(given, where);
        EXPECT_EQ(model->Tree()->Size(), before);
    }

    static constexpr const char* types[] = {"HLXTemperatureLT", "HLXTemperatureHistoryLT",
                                            "HLXInitialTemperatureLT"};
};

TEST_F(TemperatureFactory, MakesEachTypeAtTheEndOfItsContainer)
{
    for (int times = 0; times < 2; ++times) {
        ExpectMade("HLXTemperatureLT", *step, TemperaturesOf(*step));
        ExpectMade("HLXTemperatureHistoryLT", *step, TemperaturesOf(*step));
        ExpectMade("HLXInitialTemperatureLT", InitialStep(), FieldsOf(InitialStep()));
        Make("HLXTemperatureLT", *TemperaturesOf(*step));
        Make("HLXInitialVelocityLT", *FieldsOf(InitialStep()));
    }
    EXPECT_EQ(TemperaturesOf(*step)->Children().size(), 6U);
    EXPECT_EQ(FieldsOf(InitialStep())->Children().size(), 4U);
}

TEST_F(TemperatureFactory, MakesThemInEachKindOfStep)
{
    int steps = 0;
    for (const vex::LateType* const type : vex::LateTypes::Instance().All()) {
        std::string error;
        const vex::Feature* const added = type->IsKindOf("HLXStepLT")
                                              ? hlx::AddStep(*analysisCase, type->name, "", error)
                                              : nullptr;
        if (added != nullptr) {
            SCOPED_TRACE(type->name);
            ExpectMade("HLXTemperatureLT", *added, TemperaturesOf(*added));
            ExpectMade("HLXTemperatureHistoryLT", *added, TemperaturesOf(*added));
            ++steps;
        }
    }
    EXPECT_GE(steps, 7);
}

TEST_F(TemperatureFactory, FailsInAStepWithoutTheContainer)
{
    ExpectNone("HLXInitialTemperatureLT", analysis.Get(), Set(*step), E_FAIL);
    ExpectNone("HLXTemperatureLT", analysis.Get(), Set(InitialStep()), E_FAIL);
    ExpectNone("HLXTemperatureHistoryLT", analysis.Get(), Set(InitialStep()), E_FAIL);
    step->Tree()->Delete(*TemperaturesOf(*step));
    ExpectNone("HLXTemperatureLT", analysis.Get(), Set(*step), E_FAIL);
    step->Tree()->Delete(*FieldsOf(InitialStep()));
    ExpectNone("HLXInitialTemperatureLT", analysis.Get(), Set(InitialStep()), E_FAIL);
}

TEST_F(TemperatureFactory, MakesThreeTypesOnly)
{
    for (const char* const type :
         {"", "HLXBaseTemperatureLT", "TstTemperature", "TstHistory", "HLXInitialVelocityLT",
          "HLXClamp", "HLXEntity", "hlxTemperatureLT", "HLXTemperatureLT ", "HLXTemperature",
          "NoSuchType", "\xff"}) {
        ExpectNone(type, analysis.Get(), Set(*step), E_INVALIDARG);
        ExpectNone(type, analysis.Get(), Set(InitialStep()), E_INVALIDARG);
    }
    ExpectNone(VEXUnicodeString(std::string("HLXTemperatureLT\0", 17)), analysis.Get(), Set(*step),
               E_INVALIDARG);
}

TEST_F(TemperatureFactory, RefusesOtherDocumentsAndSteps)
{
    hlxtest::AnalysisDocument other(1);
    VEXDocument* const part = &Open("box");
    const auto expectNone = [&](VEXDocument* document, const VEXISamAnalysisSet_var& where) {
        for (const char* const type : types) {
            ExpectNone(type, document, where, E_INVALIDARG);
        }
    };
    for (vex::Feature* const place : {step, &InitialStep()}) {
        expectNone(nullptr, Set(*place));
        expectNone(other.Get(), Set(*place));
        expectNone(part, Set(*place));
    }
    expectNone(analysis.Get(), {});
    VEXDocument* const stale = other.Get();
    ASSERT_EQ(VEXDocumentServices::Remove(*other.Release(), 1), S_OK);
    expectNone(stale, Set(*step));
    const VEXISamAnalysisSet_var gone = Set(*step);
    step->Tree()->Delete(*step);
    expectNone(analysis.Get(), gone);
}

}  // namespace
