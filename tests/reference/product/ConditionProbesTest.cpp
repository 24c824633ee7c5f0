// SPDX-License-Identifier: Apache-2.0
// Conditions, their attributes and their factories as probes see them.
#include "HLXJobs.h"
#include "HLXProductUtilities.h"
#include "reference/product/ConditionFixture.h"

namespace {

using hlxtest::CallsOf;
using hlxtest::Faults;
using testing::ElementsAre;

using ConditionProbes = hlxtest::ConditionTest;

TEST_F(ConditionProbes, ShowCommonOperationsUnderTheInterfaceThatDeclaresThem)
{
    const auto amplitude = Object("HLXTabularAmplitudeLT");
    for (const char* const type : {"HLXClamp", "HLXDisplacementBC", "HLXVelocityBCLT",
                                   "HLXTemperatureLT", "HLXTemperatureHistoryLT", "HLXPressure"}) {
        const auto object = Condition<VEXISpecObject>(type);
        const HLXICondition_var common = object;
        std::vector<HLXICondition_var> faces{common};
        const auto add = [&](const auto& face) {
            if (face != nullptr) {
                faces.push_back(VEXShare<HLXICondition>(face.Get()));
            }
        };
        add(HLXIBoundaryCondition_var(object));
        add(HLXIDisplacementBC_var(object));
        add(HLXIMotionBC_var(object));
        add(HLXITemperature_var(object));
        add(HLXITemperatureHistory_var(object));
        add(HLXILoad_var(object));
        EXPECT_GE(faces.size(), 2U) << type;
        for (const HLXICondition_var& face : faces) {
            VEXISpecObject_var found;
            unsigned char use = 0;
            EXPECT_THAT(
                CallsOf([&] {
                    face->SetAmplitude(amplitude);
                    face->SetAmplitude({});
                    face->SetUseAmplitude(255);
                    face->GetAmplitude(found);
                    face->GetUseAmplitude(use);
                }),
                ElementsAre("HLXICondition::SetAmplitude(HLXTabularAmplitudeLT)",
                            "HLXICondition::SetAmplitude(null)",
                            "HLXICondition::SetUseAmplitude(255)", "HLXICondition::GetAmplitude(&)",
                            "HLXICondition::GetUseAmplitude(&)"))
                << type;
        }
    }
}

TEST_F(ConditionProbes, ShowBoundaryConditions)
{
    const auto displacement = Condition<HLXIDisplacementBC>("HLXDisplacementBC");
    const auto velocity = Condition<HLXIMotionBC>("HLXVelocityBCLT");
    const VEXISpecAttrAccess_var access = displacement;
    const VEXISamAnalysisEntity_var entity = displacement;
    VEXISpecAttrKey_var key;
    VEXIVectorParameter_var parameter;
    double value = 0;
    unsigned char flag = 0;
    EXPECT_THAT(
        CallsOf([&] {
            key = access->GetAttrKey("u1ON");
            access->SetBoolean(key, 1, 0);
            access->GetBoolean({}, flag, 7);
            key->GetName();
            entity->GetVectorParameter("DisplBCTrans", parameter);
            parameter->SetComponent(1, "", 2, 1, 0);
            parameter->GetComponent(value, 2, 1);
            displacement->GetValue(2, value);
            displacement->GetSwitch(1, flag);
            displacement->GetUserSubroutine(flag);
        }),
        ElementsAre("VEXISpecAttrAccess::GetAttrKey(\"u1ON\")",
                    "VEXISpecAttrAccess::SetBoolean(VEXSpecAttribute, 1, 0)",
                    "VEXISpecAttrAccess::GetBoolean(null, &, 7)", "VEXISpecAttrKey::GetName()",
                    "VEXISamAnalysisEntity::GetVectorParameter(\"DisplBCTrans\", &)",
                    "VEXIVectorParameter::SetComponent(1, \"\", 2, 1, 0)",
                    "VEXIVectorParameter::GetComponent(&, 2, 1)",
                    "HLXIDisplacementBC::GetValue(2, &)", "HLXIDisplacementBC::GetSwitch(1, &)",
                    "HLXIDisplacementBC::GetUserSubroutine(&)"));
    EXPECT_THAT(
        CallsOf([&] {
            velocity->SetValue(6, -2.5);
            velocity->GetValue(6, value);
            velocity->SetSwitch(7, 2);
            velocity->GetSwitch(6, flag);
            velocity->SetUserSubroutine(1);
            velocity->GetUserSubroutine(flag);
        }),
        ElementsAre("HLXIMotionBC::SetValue(6, -2.5)", "HLXIMotionBC::GetValue(6, &)",
                    "HLXIMotionBC::SetSwitch(7, 2)", "HLXIMotionBC::GetSwitch(6, &)",
                    "HLXIMotionBC::SetUserSubroutine(1)", "HLXIMotionBC::GetUserSubroutine(&)"));
}

TEST_F(ConditionProbes, ShowTemperatures)
{
    const auto temperature = Condition<HLXITemperature>("HLXInitialTemperatureLT");
    double value = 0;
    int number = 0;
    unsigned char flag = 0;
    EXPECT_THAT(
        CallsOf([&] {
            temperature->SetMagnitude(51);
            temperature->GetMagnitude(value);
            temperature->SetDistribution(4);
            temperature->GetDistribution(number);
            temperature->SetUserSubroutine(1);
            temperature->GetUserSubroutine(flag);
        }),
        ElementsAre("HLXITemperature::SetMagnitude(51)", "HLXITemperature::GetMagnitude(&)",
                    "HLXITemperature::SetDistribution(4)", "HLXITemperature::GetDistribution(&)",
                    "HLXITemperature::SetUserSubroutine(1)",
                    "HLXITemperature::GetUserSubroutine(&)"));
}

TEST_F(ConditionProbes, ShowHistoriesButNotWhatTheyAskTheirJob)
{
    const auto history = Condition<HLXITemperatureHistory>("HLXTemperatureHistoryLT");
    const auto job = Object("HLXJobLT");
    const auto itsCase = vex::FaceOf<VEXISpecObject>(analysisCase);
    ASSERT_EQ(HLXIJob_var(job)->SetAnalysisCase(itsCase), S_OK);
    VEXISpecObject_var found;
    double value = 0;
    EXPECT_THAT(
        CallsOf([&] {
            history->SetJob(job, 0);
            history->SetJob({}, 1);
            history->GetJob(found);
            history->GetAnalysisCase(found);
            history->SetUniformValue(1.5);
            history->GetUniformValue(value);
            history->SetBeginStep(1);
            history->SetStartIncrement(2);
            history->SetEndStep(0);
            history->SetEndIncrement(4);
            history->GetEndIncrement();
            history->SetUserSubroutine(0);
        }),
        ElementsAre(
            "HLXITemperatureHistory::SetJob(HLXJobLT, 0)",
            "HLXITemperatureHistory::SetJob(null, 1)", "HLXITemperatureHistory::GetJob(&)",
            "HLXITemperatureHistory::GetAnalysisCase(&)",
            "HLXITemperatureHistory::SetUniformValue(1.5)",
            "HLXITemperatureHistory::GetUniformValue(&)", "HLXITemperatureHistory::SetBeginStep(1)",
            "HLXITemperatureHistory::SetStartIncrement(2)", "HLXITemperatureHistory::SetEndStep(0)",
            "HLXITemperatureHistory::SetEndIncrement(4)",
            "HLXITemperatureHistory::GetEndIncrement()",
            "HLXITemperatureHistory::SetUserSubroutine(0)"));
    EXPECT_EQ(found, itsCase);
    const Faults faults("HLXIJob::*=E_FAIL;cast:*->HLXIJob=E_NOINTERFACE");
    found.Reset();
    EXPECT_EQ(history->GetAnalysisCase(found), S_OK);
    EXPECT_EQ(found, itsCase) << "faults meet what a program calls";
}

TEST_F(ConditionProbes, ShowFactoriesAndTheSearchForTheInitialStep)
{
    VEXISpecObject_var made;
    VEXISamAnalysisSet_var place = Set(*step);
    VEXISamAnalysisSet* initial = nullptr;
    VEXUnicodeString name("Initial");
    EXPECT_THAT(CallsOf([&] {
                    conditions->CreateDisplacement(made, analysis.Get(), place);
                    conditions->CreateClamp(made, nullptr, place);
                    conditions->CreateVelocity(made, analysis.Get(), place);
                    temperatures->CreateTemperature(made, "HLXTemperatureLT", analysis.Get(),
                                                    place);
                    HLXAnalysisDocUtils::ValidateStep(initial, "HLXHacFieldContainerLT", name, 1,
                                                      analysis.Get());
                }),
                ElementsAre("HLXIBoundaryConditionsFact::CreateDisplacement(&, "
                            "VEXAnalysisDocument, HLXGeneralStaticStepLT)",
                            "HLXIBoundaryConditionsFact::CreateClamp(&, null, "
                            "HLXGeneralStaticStepLT)",
                            "HLXIBoundaryConditionsFact::CreateVelocity(&, "
                            "VEXAnalysisDocument, HLXGeneralStaticStepLT)",
                            "HLXITemperatureFact::CreateTemperature(&, \"HLXTemperatureLT\", "
                            "VEXAnalysisDocument, HLXGeneralStaticStepLT)",
                            "HLXAnalysisDocUtils::ValidateStep(&, \"HLXHacFieldContainerLT\", &, "
                            "1, VEXAnalysisDocument)"));
    EXPECT_TRUE(VEXAdopt(initial));
}

}  // namespace
