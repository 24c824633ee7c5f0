// SPDX-License-Identifier: Apache-2.0
// Broken calls of conditions, their attributes and their factories: what is not done then, and what
// is emptied.
#include "HLXJobs.h"
#include "HLXProductUtilities.h"
#include "reference/product/ConditionFixture.h"

namespace {

using hlxtest::Faults;

using ConditionFaults = hlxtest::ConditionTest;

TEST_F(ConditionFaults, SettersSetNothing)
{
    const auto velocity = Condition<HLXIMotionBC>("HLXVelocityBCLT");
    const auto displacement = Condition<HLXIDisplacementBC>("HLXDisplacementBC");
    const auto history = Condition<HLXITemperatureHistory>("HLXTemperatureHistoryLT");
    const HLXITemperature_var temperature = history;
    const VEXISpecAttrAccess_var access = displacement;
    const VEXISpecAttrKey_var key = access->GetAttrKey("fixON");
    VEXIVectorParameter_var parameter;
    ASSERT_EQ(
        VEXISamAnalysisEntity_var(displacement)->GetVectorParameter("DisplBCTrans", parameter),
        S_OK);
    const auto amplitude = Object("HLXTabularAmplitudeLT");
    const std::uint64_t before = model->Tree()->Changes();
    const Faults faults(
        "HLXIMotionBC::Set*=E_FAIL;HLXICondition::Set*=E_FAIL;HLXITemperature::Set*=E_FAIL;"
        "HLXITemperatureHistory::Set*=E_FAIL;VEXISpecAttrAccess::SetBoolean=E_FAIL;"
        "VEXIVectorParameter::SetComponent=E_FAIL");
    for (const HRESULT result :
         {velocity->SetValue(1, 1), velocity->SetSwitch(1, 1), velocity->SetUserSubroutine(1),
          displacement->SetAmplitude(amplitude), displacement->SetUseAmplitude(1),
          temperature->SetMagnitude(1), temperature->SetDistribution(1),
          temperature->SetUserSubroutine(1), history->SetUniformValue(1), history->SetBeginStep(2),
          history->SetStartIncrement(2), history->SetEndStep(2), history->SetEndIncrement(2),
          history->SetJob({}, 0), history->SetUserSubroutine(1), access->SetBoolean(key, 1, 0),
          parameter->SetComponent(1, "", 1, 1, 0)}) {
        EXPECT_EQ(result, E_FAIL);
    }
    EXPECT_EQ(model->Tree()->Changes(), before);
}

TEST_F(ConditionFaults, GettersEmptyHandles)
{
    const auto history = Condition<HLXITemperatureHistory>("HLXTemperatureHistoryLT");
    const auto amplitude = Object("HLXTabularAmplitudeLT");
    const auto job = Object("HLXJobLT");
    ASSERT_EQ(HLXIJob_var(job)->SetAnalysisCase(vex::FaceOf<VEXISpecObject>(analysisCase)), S_OK);
    ASSERT_EQ(history->SetAmplitude(amplitude), S_OK);
    ASSERT_EQ(history->SetJob(job, 0), S_OK);
    for (const auto& [outcome, result] : {std::pair{"E_FAIL", E_FAIL}, std::pair{"null", S_OK}}) {
        const std::string is = std::string("=") + outcome;
        const Faults faults("HLXICondition::GetAmplitude" + is + ";HLXITemperatureHistory::GetJob" +
                            is + ";HLXITemperatureHistory::GetAnalysisCase" + is);
        VEXISpecObject_var found = job;
        EXPECT_EQ(history->GetAmplitude(found), result);
        EXPECT_FALSE(found);
        found = job;
        EXPECT_EQ(history->GetJob(found), result);
        EXPECT_FALSE(found);
        found = job;
        EXPECT_EQ(history->GetAnalysisCase(found), result);
        EXPECT_FALSE(found);
    }
    const Faults faults(
        "HLXITemperatureHistory::GetJob=E_FAIL,keep;"
        "HLXITemperatureHistory::GetEndStep=-1;"
        "HLXITemperatureHistory::GetUniformValue=E_FAIL");
    VEXISpecObject_var found;
    EXPECT_EQ(history->GetJob(found), E_FAIL);
    EXPECT_EQ(found, job);
    EXPECT_EQ(history->GetEndStep(), -1);
    double value = 7;
    EXPECT_EQ(history->GetUniformValue(value), E_FAIL);
    EXPECT_EQ(value, 7) << "numbers are left as they are";
}

TEST_F(ConditionFaults, KeysAndParametersAreEmpty)
{
    const auto displacement = Condition<VEXISamAnalysisEntity>("HLXDisplacementBC");
    const VEXISpecAttrAccess_var access = displacement;
    VEXIVectorParameter_var parameter;
    for (const char* const outcome : {"E_FAIL", "null"}) {
        ASSERT_EQ(displacement->GetVectorParameter("DisplBCTrans", parameter), S_OK);
        const Faults faults(std::string("VEXISpecAttrAccess::GetAttrKey=null;"
                                        "VEXISamAnalysisEntity::GetVectorParameter=") +
                            outcome);
        displacement->GetVectorParameter("DisplBCTrans", parameter);
        EXPECT_FALSE(parameter) << outcome;
        EXPECT_FALSE(access->GetAttrKey("fixON"));
    }
}

TEST_F(ConditionFaults, FactoriesMakeNothing)
{
    VEXISamAnalysisSet_var place = Set(*step);
    VEXISamAnalysisSet* initial = nullptr;
    VEXUnicodeString name("Another");
    const std::size_t before = model->Tree()->Size();
    {
        const Faults faults(
            "HLXIBoundaryConditionsFact::*=E_FAIL;HLXITemperatureFact::*=E_FAIL;"
            "HLXAnalysisDocUtils::ValidateStep=E_FAIL");
        const auto expectNothing = [&](auto create) {
            VEXISpecObject_var made = vex::FaceOf<VEXISpecObject>(step);
            EXPECT_EQ(create(made), E_FAIL);
            EXPECT_FALSE(made);
        };
        VEXDocument* const document = analysis.Get();
        expectNothing(
            [&](auto& made) { return conditions->CreateDisplacement(made, document, place); });
        expectNothing([&](auto& made) { return conditions->CreateClamp(made, document, place); });
        expectNothing(
            [&](auto& made) { return conditions->CreateVelocity(made, document, place); });
        expectNothing([&](auto& made) {
            return temperatures->CreateTemperature(made, "HLXTemperatureLT", document, place);
        });
        EXPECT_EQ(HLXAnalysisDocUtils::ValidateStep(initial, "", name, 1, analysis.Get()), E_FAIL);
        EXPECT_EQ(initial, nullptr);
    }
    EXPECT_EQ(model->Tree()->Size(), before);
    const Faults faults("HLXIBoundaryConditionsFact::CreateClamp=E_FAIL,keep");
    VEXISpecObject_var made;
    EXPECT_EQ(conditions->CreateClamp(made, analysis.Get(), place), E_FAIL);
    ASSERT_TRUE(made) << "it is made all the same";
    EXPECT_STREQ(made->IsA(), "HLXClamp");
}

}  // namespace
