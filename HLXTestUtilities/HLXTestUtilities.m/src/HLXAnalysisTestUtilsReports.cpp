// SPDX-License-Identifier: Apache-2.0
// Static utilities that write parameter reports, in the order of their header. Loads and
// displacements are gathered first, temperatures written as they go. Labels are kept as they are,
// misspelt words, "Feature" for the force, and "User Amplitude" included. Nothing is printed.
#include "HLXAnalysisTestUtils.h"
#include "HLXBoundaryConditions.h"
#include "HLXLoads.h"
#include "HLXReport.h"
#include "HLXTemperatures.h"

using namespace HLXReport;

namespace {

constexpr const char* loadHeader = "\n**************Load Feature Properties************** ";
constexpr const char* bcHeader = "\n**************BC Feature Properties************** ";
constexpr const char* fieldHeader = "\n**************Field Feature Properties************** ";
/// Has a blank and no word for the kind; kept.
constexpr const char* plainHeader = "\n************** Feature Properties************** ";

/// The line of a condition's amplitude.
template <class Interface>
constexpr Line<Interface> AmplitudeLine(const char* label)
{
    return {label, nullptr, &Feature<&HLXICondition::GetAmplitude, Interface>};
}

}  // namespace

// --- Gathered first ---------------------------------------------------------------------------

HRESULT HLXAnalysisTestUtils::DumpPressureParams(VEXISpecObject_var feature,
                                                 VEXUnicodeString reportFilePath)
{
    using Source = HLXIPressureLoad;
    static constexpr Line<Source> lines[] = {
        {" Pressure User Sunroutine is :", &Flag<&Source::GetUserSubroutine>},
        {" Pressure Pressure is :", &Number<&Source::GetPressure>},
        {" Pressure Use Amplitude is :", &Flag<&Source::GetUseAmplitude>},
        AmplitudeLine<Source>(" Pressure Amplitude Spec is :"),
    };
    return WriteGathered<Source>(feature, reportFilePath, loadHeader, lines);
}

HRESULT HLXAnalysisTestUtils::DumpGravityParams(VEXISpecObject_var feature,
                                                VEXUnicodeString reportFilePath)
{
    using Source = HLXIGravity;
    static constexpr Line<Source> lines[] = {
        {" Gravity (x) is :", &Number<&Source::GetComponentX>},
        {" Gravity (y) is :", &Number<&Source::GetComponentY>},
        {" Gravity (z) is :", &Number<&Source::GetComponentZ>},
        {" Gravity Use Amplitude is :", &Flag<&Source::GetUseAmplitude>},
        AmplitudeLine<Source>(" Gravity Amplitude Spec is :"),
    };
    return WriteGathered<Source>(feature, reportFilePath, loadHeader, lines);
}

HRESULT HLXAnalysisTestUtils::DumpRBFParams(VEXISpecObject_var feature,
                                            VEXUnicodeString reportFilePath)
{
    using Source = HLXIRotationalBodyForce;
    static constexpr Line<Source> lines[] = {
        {" RBF Velocity is :", &Number<&Source::GetVelocity>},
        {" RBF Accelaration is :", &Number<&Source::GetAcceleration>},
        {" RBF Use Amplitude is :", &Flag<&Source::GetUseAmplitude>},
        AmplitudeLine<Source>(" RBF Amplitude Spec is :"),
    };
    return WriteGathered<Source>(feature, reportFilePath, loadHeader, lines);
}

HRESULT HLXAnalysisTestUtils::DumpConcForceParams(VEXISpecObject_var feature,
                                                  VEXUnicodeString reportFilePath)
{
    using Source = HLXIConcentratedForce;
    static constexpr Line<Source> lines[] = {
        {" Feature ConcForce(x) is :", &Number<&Source::GetComponentX>},
        {" Feature ConcForce(y) is :", &Number<&Source::GetComponentY>},
        {" Feature ConcForce(z) is :", &Number<&Source::GetComponentZ>},
        {" Feature User Amplitude is :", &Flag<&Source::GetUseAmplitude>},
        AmplitudeLine<Source>(" Feature Amplitude Spec is :"),
    };
    return WriteGathered<Source>(feature, reportFilePath, loadHeader, lines);
}

HRESULT HLXAnalysisTestUtils::DumpDispBCParams(VEXISpecObject_var feature,
                                               VEXUnicodeString reportFilePath)
{
    using Source = HLXIDisplacementBC;
    static constexpr Line<Source> lines[] = {
        {" DispBC User Sunroutine is :", &Flag<&Source::GetUserSubroutine>},
        {" DispBC Disp1 Flag is :", &FlagAt<&Source::GetSwitch, 1>},
        {" DispBC Disp1 is :", &NumberAt<&Source::GetValue, 1>},
        {" DispBC Disp2 Flag is :", &FlagAt<&Source::GetSwitch, 2>},
        {" DispBC Disp2 is :", &NumberAt<&Source::GetValue, 2>},
        {" DispBC Disp3 Flag is :", &FlagAt<&Source::GetSwitch, 3>},
        {" DispBC Disp3 is :", &NumberAt<&Source::GetValue, 3>},
        {" DispBC Rot1 Flag is :", &FlagAt<&Source::GetSwitch, 4>},
        {" DispBC Rot1 is :", &NumberAt<&Source::GetValue, 4>},
        {" DispBC Rot2 Flag is :", &FlagAt<&Source::GetSwitch, 5>},
        {" DispBC Rot2 is :", &NumberAt<&Source::GetValue, 5>},
        {" DispBC Rot3 Flag is :", &FlagAt<&Source::GetSwitch, 6>},
        {" DispBC Rot3 is :", &NumberAt<&Source::GetValue, 6>},
        {" DispBC User Amplitude is :", &Flag<&Source::GetUseAmplitude>},
        AmplitudeLine<Source>(" DispBC Amplitude Spec is :"),
    };
    return WriteGathered<Source>(feature, reportFilePath, bcHeader, lines);
}

HRESULT HLXAnalysisTestUtils::DumpConcHeatFluxParams(VEXISpecObject_var feature,
                                                     VEXUnicodeString reportFilePath)
{
    using Source = HLXIHeatFlux;
    static constexpr Line<Source> lines[] = {
        {" ConcHeatFlux ConcHeatFlux Magnitude is :", &Number<&Source::GetMagnitude>},
        {" ConcHeatFlux Use Subroutine Flag is :", &Flag<&Source::GetUserSubroutine>},
        {" ConcHeatFlux Use Amplitude is :", &Flag<&Source::GetUseAmplitude>},
        AmplitudeLine<Source>(" ConcHeatFlux Amplitude Spec is :"),
    };
    return WriteGathered<Source>(feature, reportFilePath, plainHeader, lines);
}

HRESULT HLXAnalysisTestUtils::DumpFilmConditionParams(VEXISpecObject_var feature,
                                                      VEXUnicodeString reportFilePath)
{
    using Source = HLXIFilmCondition;
    static constexpr Line<Source> lines[] = {
        {" FilmCondition Temperature is :", &Number<&Source::GetTemperature>},
        {" FilmCondition Temp Dependent Flag is :", &Flag<&Source::GetTemperatureDependent>},
        {" FilmCondition File Name is :", &Text<&Source::GetFileName>},
        {" FilmCondition Use Subroutine Flag is :", &Flag<&Source::GetUserSubroutine>},
        {" FilmCondition Use Amplitude is :", &Flag<&Source::GetUseAmplitude>},
        AmplitudeLine<Source>(" FilmCondition Amplitude Spec is :"),
        {" FilmCondition Use Film Amplitude is :", &Flag<&Source::GetUseFilmAmplitude>},
        {" FilmCondition Film Amplitude Spec is :", nullptr, &Feature<&Source::GetFilmAmplitude>},
        {" FilmCondition Coeff is :", &FirstNumber<&Source::GetCoefficients>},
        {" FilmCondition Temp is :", &FirstNumber<&Source::GetTemperatures>},
    };
    return WriteGathered<Source>(feature, reportFilePath, plainHeader, lines);
}

// --- Written as they go -----------------------------------------------------------------------

HRESULT HLXAnalysisTestUtils::DumpTempHistParams(VEXISpecObject_var feature,
                                                 VEXUnicodeString reportFilePath)
{
    using Source = HLXITemperatureHistory;
    static constexpr Line<Source> uniformLine = {" TempHist Temperature Value is :",
                                                 &Number<&Source::GetUniformValue>};
    static constexpr Line<Source> jobLines[] = {
        {" TempHist Begin Step is :", &Integer<&Source::GetBeginStep>},
        {" TempHist Start Increment is :", &Integer<&Source::GetStartIncrement>},
        {" TempHist End Step is :", &Integer<&Source::GetEndStep>},
        {" TempHist End Increment is :", &Integer<&Source::GetEndIncrement>},
        {" TempHist Analysis Case is :", nullptr, &Feature<&Source::GetAnalysisCase>},
    };
    static constexpr Line<Source> commonLines[] = {
        {" TempHist Use Sunroutine is :", &Flag<&Source::GetUserSubroutine>},
        {" TempHist Use Amplitude is :", &Flag<&Source::GetUseAmplitude>},
        AmplitudeLine<Source>(" TempHist Amplitude Spec is :"),
    };
    const VEXVar<Source> history = feature;
    if (history == nullptr) return E_FAIL;
    Block block(reportFilePath, fieldHeader);

    constexpr int uniform = 0;
    constexpr int userDefined = 2;
    // Without an answer there is no line for the kind; kept.
    int distribution = userDefined;
    if (const HLXITemperature_var temperature = feature) temperature->GetDistribution(distribution);
    if (distribution == uniform) {
        if (FAILED(block.WriteChecked(*history.Get(), uniformLine))) return E_FAIL;
    } else if (distribution != userDefined) {
        for (const Line<Source>& line : jobLines)
            block.Write(*history.Get(), line);
    }
    for (const Line<Source>& line : commonLines)
        block.Write(*history.Get(), line);
    block.End();
    return S_OK;
}

HRESULT HLXAnalysisTestUtils::DumpTempBCParams(VEXISpecObject_var feature,
                                               VEXUnicodeString reportFilePath)
{
    using Source = HLXITemperature;
    static constexpr Line<Source> temperatureLine = {" TempBC Temperature is :",
                                                     &Number<&Source::GetMagnitude>};
    static constexpr Line<Source> commonLines[] = {
        {" TempBC Use Sunroutine is :", &Flag<&Source::GetUserSubroutine>},
        {" TempBC Use Amplitude is :", &Flag<&Source::GetUseAmplitude>},
        AmplitudeLine<Source>(" TempBC Amplitude Spec is :"),
    };
    const VEXVar<Source> temperature = feature;
    if (temperature == nullptr) return E_FAIL;
    Block block(reportFilePath, fieldHeader);
    // What else cannot be read is not looked at; kept.
    if (FAILED(block.WriteChecked(*temperature.Get(), temperatureLine))) return E_FAIL;
    for (const Line<Source>& line : commonLines)
        block.Write(*temperature.Get(), line);
    block.End();
    return S_OK;
}
