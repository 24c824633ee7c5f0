// SPDX-License-Identifier: Apache-2.0
// The kinds of load through their interfaces.
#pragma once

#include "product/conditions/LoadAdapter.h"

namespace hlx {

class PressureAdapter final : public LoadAdapter<HLXIPressureLoad>
{
public:
    using LoadAdapter::LoadAdapter;
    HRESULT GetPressureParameter(VEXIParameter_var& pressure) override;
    HRESULT GetPressure(double& pressure) const override;
};

class GravityAdapter final : public LoadAdapter<HLXIGravity>
{
public:
    using LoadAdapter::LoadAdapter;
    HRESULT GetComponentParameters(VEXIParameter_var& x, VEXIParameter_var& y,
                                   VEXIParameter_var& z) override;
    HRESULT GetComponentX(double& acceleration) const override;
    HRESULT GetComponentY(double& acceleration) const override;
    HRESULT GetComponentZ(double& acceleration) const override;
};

class RotationalBodyForceAdapter final : public LoadAdapter<HLXIRotationalBodyForce>
{
public:
    using LoadAdapter::LoadAdapter;
    HRESULT GetRotationParameters(VEXIParameter_var& velocity,
                                  VEXIParameter_var& acceleration) override;
    HRESULT SetAxis(const VEXILinkableObject_var& edge, const VEXISpecObject_var& part) override;
    HRESULT GetVelocity(double& velocity) const override;
    HRESULT GetAcceleration(double& acceleration) const override;
};

class ConcentratedForceAdapter final : public LoadAdapter<HLXIConcentratedForce>
{
public:
    using LoadAdapter::LoadAdapter;
    HRESULT SetComponentX(double force) override;
    HRESULT SetComponentY(double force) override;
    HRESULT SetComponentZ(double force) override;
    HRESULT GetComponentX(double& force) const override;
    HRESULT GetComponentY(double& force) const override;
    HRESULT GetComponentZ(double& force) const override;
};

class HeatFluxAdapter final : public LoadAdapter<HLXIHeatFlux>
{
public:
    using LoadAdapter::LoadAdapter;
    HRESULT SetMagnitude(double magnitude) override;
    HRESULT GetMagnitude(double& magnitude) const override;
};

class FilmConditionAdapter final : public LoadAdapter<HLXIFilmCondition>
{
public:
    using LoadAdapter::LoadAdapter;
    HRESULT SetTemperature(double temperature) override;
    HRESULT GetTemperature(double& temperature) const override;
    HRESULT SetFilmAmplitude(const VEXISpecObject_var& amplitude) override;
    HRESULT GetFilmAmplitude(VEXISpecObject_var& amplitude) const override;
    HRESULT SetUseFilmAmplitude(unsigned char flag) override;
    HRESULT GetUseFilmAmplitude(unsigned char& flag) const override;
    HRESULT SetCoefficients(const VEXRawColldouble& coefficients) override;
    HRESULT SetTemperatures(const VEXRawColldouble& temperatures) override;
    HRESULT GetCoefficients(VEXRawColldouble& coefficients) const override;
    HRESULT GetTemperatures(VEXRawColldouble& temperatures) const override;
    HRESULT SetTemperatureDependent(unsigned char flag) override;
    HRESULT GetTemperatureDependent(unsigned char& flag) const override;
    HRESULT SetFileName(const VEXUnicodeString& name) override;
    HRESULT GetFileName(VEXUnicodeString& name) const override;
};

}  // namespace hlx
