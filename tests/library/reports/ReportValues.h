// SPDX-License-Identifier: Apache-2.0
// Values for the features to report on, given by the product's own interfaces. Each switches the
// amplitude on, without giving one.
#pragma once

#include "library/reports/ReportFeatures.h"

#include <vector>

namespace hlxtest::reports {

inline void UseAmplitude(const VEXISpecObject_var& feature)
{
    EXPECT_EQ(HLXICondition_var(feature)->SetUseAmplitude(1), S_OK);
}

inline void ValuePressure(const VEXISpecObject_var& feature)
{
    const HLXIPressureLoad_var pressure = feature;
    VEXIParameter_var parameter;
    EXPECT_EQ(pressure->GetPressureParameter(parameter), S_OK);
    EXPECT_EQ(parameter->Valuate(1234567), S_OK);
    EXPECT_EQ(pressure->SetUserSubroutine(1), S_OK);
    UseAmplitude(feature);
}

inline void ValueGravity(const VEXISpecObject_var& feature)
{
    VEXIParameter_var x;
    VEXIParameter_var y;
    VEXIParameter_var z;
    EXPECT_EQ(HLXIGravity_var(feature)->GetComponentParameters(x, y, z), S_OK);
    EXPECT_EQ(x->Valuate(0.5), S_OK);
    EXPECT_EQ(y->Valuate(1e-7), S_OK);
    EXPECT_EQ(z->Valuate(-9.81), S_OK);
    UseAmplitude(feature);
}

inline void ValueRotationalBodyForce(const VEXISpecObject_var& feature)
{
    VEXIParameter_var velocity;
    VEXIParameter_var acceleration;
    EXPECT_EQ(HLXIRotationalBodyForce_var(feature)->GetRotationParameters(velocity, acceleration),
              S_OK);
    EXPECT_EQ(velocity->Valuate(100000), S_OK);
    EXPECT_EQ(acceleration->Valuate(-1e100), S_OK);
    UseAmplitude(feature);
}

inline void ValueConcentratedForce(const VEXISpecObject_var& feature)
{
    const HLXIConcentratedForce_var force = feature;
    EXPECT_EQ(force->SetComponentX(1.0 / 3.0), S_OK);
    EXPECT_EQ(force->SetComponentY(-2.5e-12), S_OK);
    EXPECT_EQ(force->SetComponentZ(123456.4), S_OK);
    UseAmplitude(feature);
}

/// Sets a switch of a displacement.
inline void Switch(const VEXISpecObject_var& feature, const char* name, unsigned char value)
{
    const VEXISpecAttrAccess_var access = feature;
    ASSERT_TRUE(access);
    EXPECT_EQ(access->SetBoolean(access->GetAttrKey(name), value, 0), S_OK) << name;
}

/// Sets a value of a displacement.
inline void Displace(const VEXISpecObject_var& feature, const char* name, int row, double value)
{
    VEXIVectorParameter_var parameter;
    EXPECT_EQ(VEXISamAnalysisEntity_var(feature)->GetVectorParameter(name, parameter), S_OK);
    EXPECT_EQ(parameter->SetComponent(value, "", row, 1, 0), S_OK);
}

inline void ValueDisplacement(const VEXISpecObject_var& feature)
{
    Switch(feature, "userSub", 1);
    Switch(feature, "u1ON", 1);
    Switch(feature, "u3ON", 255);
    Switch(feature, "ur1ON", 2);
    Displace(feature, "DisplBCTrans", 1, 0.5);
    Displace(feature, "DisplBCTrans", 2, -2.25);
    Displace(feature, "DisplBCTrans", 3, 1e-7);
    Displace(feature, "DisplBCRotation", 1, 1234567);
    Displace(feature, "DisplBCRotation", 2, 3.14159265);
    Displace(feature, "DisplBCRotation", 3, 1e-323);
    UseAmplitude(feature);
}

inline void ValueTemperature(const VEXISpecObject_var& feature)
{
    const HLXITemperature_var temperature = feature;
    EXPECT_EQ(temperature->SetMagnitude(293.15), S_OK);
    EXPECT_EQ(temperature->SetUserSubroutine(1), S_OK);
    UseAmplitude(feature);
}

inline void ValueTemperatureHistory(const VEXISpecObject_var& feature)
{
    const HLXITemperatureHistory_var history = feature;
    EXPECT_EQ(history->SetUniformValue(-40.5), S_OK);
    EXPECT_EQ(history->SetUserSubroutine(1), S_OK);
    UseAmplitude(feature);
}

inline void ValueHeatFlux(const VEXISpecObject_var& feature)
{
    const HLXIHeatFlux_var flux = feature;
    EXPECT_EQ(flux->SetMagnitude(4.6589), S_OK);
    EXPECT_EQ(flux->SetUserSubroutine(255), S_OK);
    UseAmplitude(feature);
}

inline VEXRawColldouble ListOf(const std::vector<double>& numbers)
{
    VEXRawColldouble list;
    for (const double number : numbers) {
        list.Append(number);
    }
    return list;
}

inline void ValueFilmCondition(const VEXISpecObject_var& feature)
{
    const HLXIFilmCondition_var film = feature;
    EXPECT_EQ(film->SetTemperature(51), S_OK);
    EXPECT_EQ(film->SetTemperatureDependent(1), S_OK);
    EXPECT_EQ(film->SetFileName("film table.csv"), S_OK);
    EXPECT_EQ(film->SetUserSubroutine(1), S_OK);
    EXPECT_EQ(film->SetUseFilmAmplitude(1), S_OK);
    EXPECT_EQ(film->SetCoefficients(ListOf({1.2, 2.4, 3.5})), S_OK);
    EXPECT_EQ(film->SetTemperatures(ListOf({-10.5, 20})), S_OK);
    UseAmplitude(feature);
}

}  // namespace hlxtest::reports
