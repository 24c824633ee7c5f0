// SPDX-License-Identifier: Apache-2.0
// The values of each kind of load: set, given, refused, and of loads that are gone.
#include "reference/analysis/EntityFixture.h"

#include <cmath>
#include <limits>

namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();

class LoadValues : public hlxtest::EntityTest
{
protected:
    /// A setter and a getter of one number agree, and refuse what is no number of finite size.
    template <class Interface>
    static void CheckNumber(const VEXVar<Interface>& load, HRESULT (Interface::*set)(double),
                            HRESULT (Interface::*get)(double&) const, const char* attribute)
    {
        SCOPED_TRACE(attribute);
        double found = 7;
        EXPECT_EQ((load.Get()->*get)(found), S_OK);
        EXPECT_EQ(found, 0);
        for (const double number : {1.5, -0.0, std::numeric_limits<double>::max(), 5e-324, -2.25}) {
            EXPECT_EQ((load.Get()->*set)(number), S_OK);
            EXPECT_EQ((load.Get()->*get)(found), S_OK);
            EXPECT_EQ(found, number);
        }
        for (const double number : {infinity, -infinity, std::nan("")}) {
            EXPECT_EQ((load.Get()->*set)(number), E_INVALIDARG);
            EXPECT_EQ((load.Get()->*get)(found), S_OK);
            EXPECT_EQ(found, -2.25);
        }
        EXPECT_EQ(FeatureOf(load).template GetAs<double>(attribute), -2.25);
        EXPECT_EQ(FeatureOf(load).Set(attribute, 0.0), S_OK);
    }

    template <class Interface>
    static void CheckGone(const VEXVar<Interface>& load, HRESULT (Interface::*set)(double),
                          HRESULT (Interface::*get)(double&) const)
    {
        double found = 7;
        EXPECT_EQ((load.Get()->*get)(found), E_FAIL);
        EXPECT_EQ(found, 0);
        if (set != nullptr) {
            EXPECT_EQ((load.Get()->*set)(1), E_FAIL);
            EXPECT_EQ((load.Get()->*set)(infinity), E_FAIL);
        }
    }

    /// A parameter and the getter beside it mean the same number, and no other.
    template <class Interface>
    static void CheckParameter(const VEXVar<Interface>& load, const VEXIParameter_var& parameter,
                               HRESULT (Interface::*get)(double&) const, double number)
    {
        ASSERT_TRUE(parameter);
        double found = 7;
        EXPECT_EQ(parameter->GetValue(found), S_OK);
        EXPECT_EQ(found, 0);
        EXPECT_EQ(parameter->Valuate(number), S_OK);
        EXPECT_EQ(parameter->Valuate(infinity), E_INVALIDARG);
        EXPECT_EQ(parameter->Valuate(std::nan("")), E_INVALIDARG);
        EXPECT_EQ(parameter->GetValue(found), S_OK);
        EXPECT_EQ(found, number);
        found = 7;
        EXPECT_EQ((load.Get()->*get)(found), S_OK);
        EXPECT_EQ(found, number);
        EXPECT_EQ(parameter->IsNull(), 0);
    }
};

TEST_F(LoadValues, OfAPressure)
{
    const auto load = Load<HLXIPressureLoad>("HLXPressure");
    VEXIParameter_var pressure;
    ASSERT_EQ(load->GetPressureParameter(pressure), S_OK);
    CheckParameter(load, pressure, &HLXIPressureLoad::GetPressure, 1.25);
    EXPECT_EQ(FeatureOf(load).GetAs<double>("Pressure"), 1.25);
}

TEST_F(LoadValues, OfGravity)
{
    const auto load = Load<HLXIGravity>("HLXGravity");
    VEXIParameter_var x;
    VEXIParameter_var y;
    VEXIParameter_var z;
    ASSERT_EQ(load->GetComponentParameters(x, y, z), S_OK);
    CheckParameter(load, x, &HLXIGravity::GetComponentX, 1);
    CheckParameter(load, y, &HLXIGravity::GetComponentY, 2);
    CheckParameter(load, z, &HLXIGravity::GetComponentZ, -9.81);
    EXPECT_EQ(FeatureOf(load).GetAs<double>("ComponentX"), 1);
    EXPECT_EQ(FeatureOf(load).GetAs<double>("ComponentY"), 2);
    EXPECT_EQ(FeatureOf(load).GetAs<double>("ComponentZ"), -9.81);
}

TEST_F(LoadValues, OfARotationalBodyForce)
{
    const auto load = Load<HLXIRotationalBodyForce>("HLXRotationalBodyForce");
    VEXIParameter_var velocity;
    VEXIParameter_var acceleration;
    ASSERT_EQ(load->GetRotationParameters(velocity, acceleration), S_OK);
    CheckParameter(load, velocity, &HLXIRotationalBodyForce::GetVelocity, 1.73205);
    CheckParameter(load, acceleration, &HLXIRotationalBodyForce::GetAcceleration, 5.25);
    EXPECT_EQ(FeatureOf(load).GetAs<double>("Velocity"), 1.73205);
    EXPECT_EQ(FeatureOf(load).GetAs<double>("Acceleration"), 5.25);
}

TEST_F(LoadValues, OfAConcentratedForce)
{
    using Force = HLXIConcentratedForce;
    const auto load = Load<Force>("HLXConcentratedForce");
    CheckNumber(load, &Force::SetComponentX, &Force::GetComponentX, "ForceX");
    CheckNumber(load, &Force::SetComponentY, &Force::GetComponentY, "ForceY");
    CheckNumber(load, &Force::SetComponentZ, &Force::GetComponentZ, "ForceZ");
}

TEST_F(LoadValues, OfAHeatFlux)
{
    for (const char* const type : {"HLXConcHeatFlux", "HLXSurfaceHeatFlux", "HLXBodyHeatFlux"}) {
        CheckNumber(Load<HLXIHeatFlux>(type), &HLXIHeatFlux::SetMagnitude,
                    &HLXIHeatFlux::GetMagnitude, "Magnitude");
    }
}

TEST_F(LoadValues, OfLoadsThatAreGone)
{
    const auto pressure = Load<HLXIPressureLoad>("HLXPressure");
    const auto gravity = Load<HLXIGravity>("HLXGravity");
    const auto turning = Load<HLXIRotationalBodyForce>("HLXRotationalBodyForce");
    const auto force = Load<HLXIConcentratedForce>("HLXConcentratedForce");
    const auto flux = Load<HLXIHeatFlux>("HLXBodyHeatFlux");
    VEXIParameter_var parameter;
    ASSERT_EQ(pressure->GetPressureParameter(parameter), S_OK);
    ASSERT_EQ(parameter->Valuate(3), S_OK);
    ASSERT_EQ(force->SetComponentX(3), S_OK);
    RemoveAnalysis();

    double found = 7;
    EXPECT_EQ(parameter->GetValue(found), E_FAIL);
    EXPECT_EQ(found, 0);
    EXPECT_EQ(parameter->Valuate(1), E_FAIL);
    EXPECT_EQ(parameter->Valuate(infinity), E_FAIL);
    EXPECT_EQ(parameter->IsNull(), 1);
    VEXIParameter_var x = parameter;
    VEXIParameter_var y = parameter;
    VEXIParameter_var z = parameter;
    EXPECT_EQ(gravity->GetComponentParameters(x, y, z), E_FAIL);
    EXPECT_FALSE(x || y || z);
    x = parameter;
    y = parameter;
    EXPECT_EQ(turning->GetRotationParameters(x, y), E_FAIL);
    EXPECT_FALSE(x || y);
    EXPECT_EQ(pressure->GetPressureParameter(parameter), E_FAIL);
    EXPECT_FALSE(parameter);
    CheckGone<HLXIPressureLoad>(pressure, nullptr, &HLXIPressureLoad::GetPressure);
    CheckGone<HLXIGravity>(gravity, nullptr, &HLXIGravity::GetComponentX);
    CheckGone<HLXIGravity>(gravity, nullptr, &HLXIGravity::GetComponentY);
    CheckGone<HLXIGravity>(gravity, nullptr, &HLXIGravity::GetComponentZ);
    using Turning = HLXIRotationalBodyForce;
    CheckGone<Turning>(turning, nullptr, &Turning::GetVelocity);
    CheckGone<Turning>(turning, nullptr, &Turning::GetAcceleration);
    using Force = HLXIConcentratedForce;
    CheckGone(force, &Force::SetComponentX, &Force::GetComponentX);
    CheckGone(force, &Force::SetComponentY, &Force::GetComponentY);
    CheckGone(force, &Force::SetComponentZ, &Force::GetComponentZ);
    CheckGone(flux, &HLXIHeatFlux::SetMagnitude, &HLXIHeatFlux::GetMagnitude);
}

TEST_F(LoadValues, AParameterHoldsItsLoadAndNothingElse)
{
    const auto load = Load<HLXIPressureLoad>("HLXPressure");
    const unsigned long before = hlxtest::References(FeatureOf(load));
    VEXIParameter_var parameter;
    ASSERT_EQ(load->GetPressureParameter(parameter), S_OK);
    EXPECT_EQ(hlxtest::References(*parameter.Get()), 1U);
    EXPECT_EQ(hlxtest::References(FeatureOf(load)), before + 1);
    parameter.Reset();
    EXPECT_EQ(hlxtest::References(FeatureOf(load)), before);
}

}  // namespace
