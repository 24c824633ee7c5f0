// SPDX-License-Identifier: Apache-2.0
// What temperatures have in common: magnitude, distribution, amplitude and flags.
#include "reference/product/ConditionFixture.h"

namespace {

using hlxtest::infinity;

constexpr std::int64_t most = std::numeric_limits<std::int64_t>::max();
constexpr std::int64_t least = std::numeric_limits<std::int64_t>::min();

class Temperatures : public hlxtest::ConditionTest
{
protected:
    /// Every kind.
    std::vector<HLXITemperature_var> All()
    {
        std::vector<HLXITemperature_var> all;
        for (const char* const type :
             {"HLXBaseTemperatureLT", "HLXTemperatureLT", "HLXInitialTemperatureLT",
              "HLXTemperatureHistoryLT", "CndTemperature", "CndHistory"}) {
            all.push_back(vex::FaceOf<HLXITemperature>(
                &Make(type, *vex::FirstChildOfType(*step, "HLXTemperatureContainerLT"))));
            EXPECT_TRUE(all.back()) << type;
        }
        return all;
    }

    /// Every kind behind each of the interfaces that have the common operations.
    std::vector<HLXICondition_var> AllFaces()
    {
        std::vector<HLXICondition_var> faces;
        for (const HLXITemperature_var& temperature : All()) {
            faces.push_back(VEXShare<HLXICondition>(temperature.Get()));
            void* common = nullptr;
            EXPECT_EQ(temperature->QueryInterface(IID_HLXICondition, &common), S_OK);
            faces.push_back(VEXAdopt(static_cast<HLXICondition*>(common)));
            if (const HLXITemperatureHistory_var history = temperature) {
                faces.push_back(VEXShare<HLXICondition>(history.Get()));
            }
        }
        EXPECT_EQ(faces.size(), 14U);
        return faces;
    }
};

TEST_F(Temperatures, HaveAnAmplitudeOfTheirDocument)
{
    for (const HLXICondition_var& condition : AllFaces()) {
        ExpectAmplitudes(*condition.Get());
    }
}

TEST_F(Temperatures, GiveNoAmplitudeWhereSomethingElseIsStored)
{
    for (const HLXICondition_var& condition : AllFaces()) {
        ASSERT_EQ(FeatureOf(condition).Set("Amplitude", vex::Reference{analysisCase->Id()}), S_OK);
        VEXISpecObject_var found = vex::FaceOf<VEXISpecObject>(step);
        EXPECT_EQ(condition->GetAmplitude(found), S_OK);
        EXPECT_FALSE(found);
    }
}

TEST_F(Temperatures, HaveAMagnitude)
{
    for (const HLXITemperature_var& temperature : All()) {
        SCOPED_TRACE(temperature->IsA());
        ExpectNumber([&](double value) { return temperature->SetMagnitude(value); },
                     [&](double& value) { return temperature->GetMagnitude(value); });
    }
}

TEST_F(Temperatures, HaveADistribution)
{
    for (const HLXITemperature_var& temperature : All()) {
        SCOPED_TRACE(temperature->IsA());
        int found = 7;
        EXPECT_EQ(temperature->GetDistribution(found), S_OK);
        EXPECT_EQ(found, 0) << "uniform is the default";
        for (const int distribution : {1, 2, 3, 0, 3}) {
            EXPECT_EQ(temperature->SetDistribution(distribution), S_OK);
            EXPECT_EQ(temperature->GetDistribution(found), S_OK);
            EXPECT_EQ(found, distribution);
        }
        for (const int other :
             {4, -1, 256, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()}) {
            EXPECT_EQ(temperature->SetDistribution(other), E_INVALIDARG);
            EXPECT_EQ(temperature->GetDistribution(found), S_OK);
            EXPECT_EQ(found, 3);
        }
    }
}

TEST_F(Temperatures, GiveAStoredDistributionAsItIs)
{
    for (const HLXITemperature_var& temperature : All()) {
        for (const std::int64_t stored : {most, least, std::int64_t{4}, std::int64_t{-1}}) {
            ASSERT_EQ(FeatureOf(temperature).Set("Distribution", stored), S_OK);
            int found = 2;
            EXPECT_EQ(temperature->GetDistribution(found), S_OK);
            EXPECT_FALSE(found >= 0 && found <= 3) << "none that was not stored";
            EXPECT_TRUE(found == stored || stored == most || stored == least) << found;
            EXPECT_EQ(temperature->SetDistribution(2), S_OK);
            EXPECT_EQ(temperature->GetDistribution(found), S_OK);
            EXPECT_EQ(found, 2);
        }
    }
}

TEST_F(Temperatures, HaveAFlag)
{
    for (const HLXITemperature_var& temperature : All()) {
        SCOPED_TRACE(temperature->IsA());
        ExpectFlag([&](unsigned char on) { return temperature->SetUserSubroutine(on); },
                   [&](unsigned char& on) { return temperature->GetUserSubroutine(on); });
        unsigned char use = 7;
        EXPECT_EQ(temperature->GetUseAmplitude(use), S_OK);
        EXPECT_EQ(use, 0);
    }
}

TEST_F(Temperatures, ThatAreGoneFail)
{
    const std::vector<HLXITemperature_var> all = All();
    const std::vector<HLXICondition_var> faces = AllFaces();
    const VEXISpecObject_var amplitude = Object("HLXTabularAmplitudeLT");
    for (const HLXITemperature_var& temperature : all) {
        ASSERT_EQ(temperature->SetAmplitude(amplitude), S_OK);
        ASSERT_EQ(temperature->SetMagnitude(3), S_OK);
        ASSERT_EQ(temperature->SetDistribution(3), S_OK);
        ASSERT_EQ(temperature->SetUserSubroutine(1), S_OK);
    }
    FeatureOf(all.front()).Tree()->Delete(FeatureOf(all.front()));
    RemoveAnalysis();
    for (const HLXICondition_var& condition : faces) {
        ExpectAmplitudesGone(*condition.Get(), amplitude);
    }
    for (const HLXITemperature_var& temperature : all) {
        ExpectAmplitudesGone(*temperature.Get(), amplitude);
        double magnitude = 7;
        int distribution = 7;
        unsigned char flag = 7;
        EXPECT_EQ(temperature->SetMagnitude(1), E_FAIL);
        EXPECT_EQ(temperature->SetMagnitude(infinity), E_FAIL);
        EXPECT_EQ(temperature->GetMagnitude(magnitude), E_FAIL);
        EXPECT_EQ(magnitude, 0);
        EXPECT_EQ(temperature->SetDistribution(1), E_FAIL);
        EXPECT_EQ(temperature->SetDistribution(4), E_FAIL);
        EXPECT_EQ(temperature->GetDistribution(distribution), E_FAIL);
        EXPECT_EQ(distribution, 7) << "left as it is";
        EXPECT_EQ(temperature->SetUserSubroutine(1), E_FAIL);
        EXPECT_EQ(temperature->GetUserSubroutine(flag), E_FAIL);
        EXPECT_EQ(flag, 7) << "left as it is";
    }
}

TEST_F(Temperatures, AreStored)
{
    std::vector<vex::FeatureId> stored;
    const VEXISpecObject_var amplitude = Object("HLXSmoothStepAmplitudeLT");
    for (const HLXITemperature_var& temperature : All()) {
        ASSERT_EQ(temperature->SetMagnitude(293.15), S_OK);
        ASSERT_EQ(temperature->SetDistribution(2), S_OK);
        ASSERT_EQ(temperature->SetUserSubroutine(1), S_OK);
        ASSERT_EQ(temperature->SetUseAmplitude(1), S_OK);
        ASSERT_EQ(temperature->SetAmplitude(amplitude), S_OK);
        stored.push_back(FeatureOf(temperature).Id());
    }
    const vex::FeatureId ofAmplitude = FeatureOf(amplitude).Id();
    const vex::FeatureTree& tree = *Reopened(stored.front()).Tree();
    for (const vex::FeatureId id : stored) {
        const auto temperature = vex::FaceOf<HLXITemperature>(tree.Find(id));
        ASSERT_TRUE(temperature);
        double magnitude = 7;
        int distribution = 7;
        unsigned char flag = 7;
        unsigned char use = 7;
        VEXISpecObject_var found;
        EXPECT_EQ(temperature->GetMagnitude(magnitude), S_OK);
        EXPECT_EQ(temperature->GetDistribution(distribution), S_OK);
        EXPECT_EQ(temperature->GetUserSubroutine(flag), S_OK);
        EXPECT_EQ(temperature->GetUseAmplitude(use), S_OK);
        EXPECT_EQ(temperature->GetAmplitude(found), S_OK);
        EXPECT_EQ(magnitude, 293.15);
        EXPECT_EQ(distribution, 2);
        EXPECT_EQ(flag, 1);
        EXPECT_EQ(use, 1);
        ASSERT_TRUE(found);
        EXPECT_EQ(FeatureOf(found).Id(), ofAmplitude);
    }
}

}  // namespace
