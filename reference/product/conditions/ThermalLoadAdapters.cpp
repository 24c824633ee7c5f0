// SPDX-License-Identifier: Apache-2.0
// Thermal loads: each operation is an attribute, set or given.
#include "product/conditions/LoadAdapters.h"

namespace hlx {

using vex::In;
using vex::Out;
using vex::Probe;

HRESULT HeatFluxAdapter::SetMagnitude(double magnitude)
{
    return Probe<"HLXIHeatFlux::SetMagnitude">(
        [&] { return vex::SetNumber(Self(), "Magnitude", magnitude); }, In(magnitude));
}

HRESULT HeatFluxAdapter::GetMagnitude(double& magnitude) const
{
    return Probe<"HLXIHeatFlux::GetMagnitude">(
        [&] { return vex::GetNumber(Self(), "Magnitude", magnitude); }, Out(magnitude));
}

HRESULT FilmConditionAdapter::SetTemperature(double temperature)
{
    return Probe<"HLXIFilmCondition::SetTemperature">(
        [&] { return vex::SetNumber(Self(), "ReferenceTemperature", temperature); },
        In(temperature));
}

HRESULT FilmConditionAdapter::GetTemperature(double& temperature) const
{
    return Probe<"HLXIFilmCondition::GetTemperature">(
        [&] { return vex::GetNumber(Self(), "ReferenceTemperature", temperature); },
        Out(temperature));
}

HRESULT FilmConditionAdapter::SetFilmAmplitude(const VEXISpecObject_var& amplitude)
{
    return Probe<"HLXIFilmCondition::SetFilmAmplitude">(
        [&] { return vex::SetTarget<HLXIAmplitude>(Self(), "FilmAmplitude", amplitude); },
        In(amplitude));
}

HRESULT FilmConditionAdapter::GetFilmAmplitude(VEXISpecObject_var& amplitude) const
{
    return Probe<"HLXIFilmCondition::GetFilmAmplitude">(
        [&] { return vex::GetTarget<HLXIAmplitude>(Self(), "FilmAmplitude", amplitude); },
        Out(amplitude));
}

HRESULT FilmConditionAdapter::SetUseFilmAmplitude(unsigned char flag)
{
    return Probe<"HLXIFilmCondition::SetUseFilmAmplitude">(
        [&] { return vex::SetFlag(Self(), "UseFilmAmplitude", flag); }, In(flag));
}

HRESULT FilmConditionAdapter::GetUseFilmAmplitude(unsigned char& flag) const
{
    return Probe<"HLXIFilmCondition::GetUseFilmAmplitude">(
        [&] { return vex::GetFlag(Self(), "UseFilmAmplitude", flag); }, Out(flag));
}

HRESULT FilmConditionAdapter::SetCoefficients(const VEXRawColldouble& coefficients)
{
    return Probe<"HLXIFilmCondition::SetCoefficients">(
        [&] { return vex::SetNumbers(Self(), "Coefficients", coefficients); }, In(coefficients));
}

HRESULT FilmConditionAdapter::SetTemperatures(const VEXRawColldouble& temperatures)
{
    return Probe<"HLXIFilmCondition::SetTemperatures">(
        [&] { return vex::SetNumbers(Self(), "Temperatures", temperatures); }, In(temperatures));
}

HRESULT FilmConditionAdapter::GetCoefficients(VEXRawColldouble& coefficients) const
{
    return Probe<"HLXIFilmCondition::GetCoefficients">(
        [&] { return vex::GetNumbers(Self(), "Coefficients", coefficients); }, Out(coefficients));
}

HRESULT FilmConditionAdapter::GetTemperatures(VEXRawColldouble& temperatures) const
{
    return Probe<"HLXIFilmCondition::GetTemperatures">(
        [&] { return vex::GetNumbers(Self(), "Temperatures", temperatures); }, Out(temperatures));
}

HRESULT FilmConditionAdapter::SetTemperatureDependent(unsigned char flag)
{
    return Probe<"HLXIFilmCondition::SetTemperatureDependent">(
        [&] { return vex::SetFlag(Self(), "TemperatureDependent", flag); }, In(flag));
}

HRESULT FilmConditionAdapter::GetTemperatureDependent(unsigned char& flag) const
{
    return Probe<"HLXIFilmCondition::GetTemperatureDependent">(
        [&] { return vex::GetFlag(Self(), "TemperatureDependent", flag); }, Out(flag));
}

HRESULT FilmConditionAdapter::SetFileName(const VEXUnicodeString& name)
{
    return Probe<"HLXIFilmCondition::SetFileName">(
        [&] { return vex::SetText(Self(), "FileName", name); }, In(name));
}

HRESULT FilmConditionAdapter::GetFileName(VEXUnicodeString& name) const
{
    return Probe<"HLXIFilmCondition::GetFileName">(
        [&] { return vex::GetText(Self(), "FileName", name); }, Out(name));
}

}  // namespace hlx
