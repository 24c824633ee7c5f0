// SPDX-License-Identifier: Apache-2.0
// The factory of temperatures: each type in its container, in the steps that have that one.
#include "reference/product/ConditionFactoryFixture.h"

namespace {

class TemperatureFactory : public hlxtest::ConditionFactoryTest
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

    Creation Of(const VEXUnicodeString& lateType) const
    {
        return [this, lateType](VEXISpecObject_var& temperature, VEXDocument* document,
                                VEXISamAnalysisSet_var& where) {
            return temperatures->CreateTemperature(temperature, lateType, document, where);
        };
    }

    void ExpectMade(const char* lateType, const vex::Feature& place, const vex::Feature* container)
    {
        SCOPED_TRACE(lateType);
        VEXISpecObject_var temperature;
        ASSERT_NO_FATAL_FAILURE(ConditionFactoryTest::ExpectMade(Of(lateType), lateType, place,
                                                                 container, temperature));
        EXPECT_TRUE(HLXITemperature_var(temperature));
        EXPECT_EQ(static_cast<bool>(HLXITemperatureHistory_var(temperature)),
                  FeatureOf(temperature).Kind().name == "HLXTemperatureHistoryLT");
        EXPECT_FALSE(HLXIBoundaryCondition_var(temperature));
    }

    void ExpectNone(const VEXUnicodeString& lateType, VEXDocument* document,
                    const VEXISamAnalysisSet_var& where, HRESULT result)
    {
        SCOPED_TRACE(lateType.View());
        ExpectNotMade(Of(lateType), document, where, result);
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
    InEachKindOfStep([&](const vex::Feature& added) {
        ExpectMade("HLXTemperatureLT", added, TemperaturesOf(added));
        ExpectMade("HLXTemperatureHistoryLT", added, TemperaturesOf(added));
    });
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
         {"", "HLXBaseTemperatureLT", "CndTemperature", "CndHistory", "HLXInitialVelocityLT",
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
    WithOtherDocumentsAndSteps({step, &InitialStep()},
                               [&](VEXDocument* document, const VEXISamAnalysisSet_var& where) {
                                   for (const char* const type : types) {
                                       ExpectNone(type, document, where, E_INVALIDARG);
                                   }
                               });
}

}  // namespace
