// SPDX-License-Identifier: Apache-2.0
// The other kinds of feature that there are reports on: displacements, film conditions,
// temperatures.
#pragma once

#include "library/reports/ReportKinds.h"

namespace hlxtest::reports {

inline const ReportKind kDisplacementReport{
    .name = "Displacement",
    .report = &HLXAnalysisTestUtils::DumpDispBCParams,
    .casts = {"HLXIDisplacementBC"},
    .create = &Displacement,
    .value = &ValueDisplacement,
    .getters = {"HLXIDisplacementBC::GetUserSubroutine(&)", "HLXIDisplacementBC::GetSwitch(1, &)",
                "HLXIDisplacementBC::GetValue(1, &)", "HLXIDisplacementBC::GetSwitch(2, &)",
                "HLXIDisplacementBC::GetValue(2, &)", "HLXIDisplacementBC::GetSwitch(3, &)",
                "HLXIDisplacementBC::GetValue(3, &)", "HLXIDisplacementBC::GetSwitch(4, &)",
                "HLXIDisplacementBC::GetValue(4, &)", "HLXIDisplacementBC::GetSwitch(5, &)",
                "HLXIDisplacementBC::GetValue(5, &)", "HLXIDisplacementBC::GetSwitch(6, &)",
                "HLXIDisplacementBC::GetValue(6, &)", "HLXICondition::GetUseAmplitude(&)",
                "HLXICondition::GetAmplitude(&)"},
    .defaults =
        "\n"
        "**************BC Feature Properties************** \n"
        " DispBC User Sunroutine is :FALSE\n"
        " DispBC Disp1 Flag is :FALSE\n"
        " DispBC Disp1 is :0\n"
        " DispBC Disp2 Flag is :FALSE\n"
        " DispBC Disp2 is :0\n"
        " DispBC Disp3 Flag is :FALSE\n"
        " DispBC Disp3 is :0\n"
        " DispBC Rot1 Flag is :FALSE\n"
        " DispBC Rot1 is :0\n"
        " DispBC Rot2 Flag is :FALSE\n"
        " DispBC Rot2 is :0\n"
        " DispBC Rot3 Flag is :FALSE\n"
        " DispBC Rot3 is :0\n"
        " DispBC User Amplitude is :FALSE\n"
        " DispBC Amplitude Spec is :NULL\n"
        "\n"
        "\n",
    .valued =
        "\n"
        "**************BC Feature Properties************** \n"
        " DispBC User Sunroutine is :TRUE \n"
        " DispBC Disp1 Flag is :TRUE \n"
        " DispBC Disp1 is :0.5\n"
        " DispBC Disp2 Flag is :FALSE\n"
        " DispBC Disp2 is :-2.25\n"
        " DispBC Disp3 Flag is :TRUE \n"
        " DispBC Disp3 is :1e-007\n"
        " DispBC Rot1 Flag is :TRUE \n"
        " DispBC Rot1 is :1.23457e+006\n"
        " DispBC Rot2 Flag is :FALSE\n"
        " DispBC Rot2 is :3.14159\n"
        " DispBC Rot3 Flag is :FALSE\n"
        " DispBC Rot3 is :9.88131e-324\n"
        " DispBC User Amplitude is :TRUE \n"
        " DispBC Amplitude Spec is :Ramp\n"
        "\n"
        "\n",
};

inline const ReportKind kFilmConditionReport{
    .name = "FilmCondition",
    .report = &HLXAnalysisTestUtils::DumpFilmConditionParams,
    .casts = {"HLXIFilmCondition"},
    .create = &FilmCondition,
    .value = &ValueFilmCondition,
    .getters = {"HLXIFilmCondition::GetTemperature(&)",
                "HLXIFilmCondition::GetTemperatureDependent(&)",
                "HLXIFilmCondition::GetFileName(&)", "HLXILoad::GetUserSubroutine(&)",
                "HLXICondition::GetUseAmplitude(&)", "HLXIFilmCondition::GetUseFilmAmplitude(&)",
                "HLXIFilmCondition::GetCoefficients(&)", "HLXIFilmCondition::GetTemperatures(&)",
                "HLXICondition::GetAmplitude(&)", "HLXIFilmCondition::GetFilmAmplitude(&)"},
    .defaults =
        "\n"
        "************** Feature Properties************** \n"
        " FilmCondition Temperature is :0\n"
        " FilmCondition Temp Dependent Flag is :FALSE\n"
        " FilmCondition File Name is :\n"
        " FilmCondition Use Subroutine Flag is :FALSE\n"
        " FilmCondition Use Amplitude is :FALSE\n"
        " FilmCondition Amplitude Spec is :NULL\n"
        " FilmCondition Use Film Amplitude is :FALSE\n"
        " FilmCondition Film Amplitude Spec is :NULL\n"
        " FilmCondition Coeff is :0\n"
        " FilmCondition Temp is :0\n"
        "\n"
        "\n",
    .valued =
        "\n"
        "************** Feature Properties************** \n"
        " FilmCondition Temperature is :51\n"
        " FilmCondition Temp Dependent Flag is :TRUE \n"
        " FilmCondition File Name is :film table.csv\n"
        " FilmCondition Use Subroutine Flag is :TRUE \n"
        " FilmCondition Use Amplitude is :TRUE \n"
        " FilmCondition Amplitude Spec is :Ramp\n"
        " FilmCondition Use Film Amplitude is :TRUE \n"
        " FilmCondition Film Amplitude Spec is :NULL\n"
        " FilmCondition Coeff is :1.2\n"
        " FilmCondition Temp is :-10.5\n"
        "\n"
        "\n",
};

inline const ReportKind kTemperatureReport{
    .name = "Temperature",
    .report = &HLXAnalysisTestUtils::DumpTempBCParams,
    .casts = {"HLXITemperature"},
    .create = &Temperature,
    .value = &ValueTemperature,
    .getters = {"HLXITemperature::GetMagnitude(&)", "HLXITemperature::GetUserSubroutine(&)",
                "HLXICondition::GetUseAmplitude(&)", "HLXICondition::GetAmplitude(&)"},
    .defaults =
        "\n"
        "**************Field Feature Properties************** \n"
        " TempBC Temperature is :0\n"
        " TempBC Use Sunroutine is :FALSE\n"
        " TempBC Use Amplitude is :FALSE\n"
        " TempBC Amplitude Spec is :NULL\n"
        "\n"
        "\n",
    .valued =
        "\n"
        "**************Field Feature Properties************** \n"
        " TempBC Temperature is :293.15\n"
        " TempBC Use Sunroutine is :TRUE \n"
        " TempBC Use Amplitude is :TRUE \n"
        " TempBC Amplitude Spec is :Ramp\n"
        "\n"
        "\n",
};

inline const ReportKind kTemperatureHistoryReport{
    .name = "TemperatureHistory",
    .report = &HLXAnalysisTestUtils::DumpTempHistParams,
    .casts = {"HLXITemperatureHistory", "HLXITemperature"},
    .create = &TemperatureHistory,
    .value = &ValueTemperatureHistory,
    .getters = {"HLXITemperature::GetDistribution(&)", "HLXITemperatureHistory::GetUniformValue(&)",
                "HLXITemperatureHistory::GetUserSubroutine(&)", "HLXICondition::GetUseAmplitude(&)",
                "HLXICondition::GetAmplitude(&)"},
    .defaults =
        "\n"
        "**************Field Feature Properties************** \n"
        " TempHist Temperature Value is :0\n"
        " TempHist Use Sunroutine is :FALSE\n"
        " TempHist Use Amplitude is :FALSE\n"
        " TempHist Amplitude Spec is :NULL\n"
        "\n"
        "\n",
    .valued =
        "\n"
        "**************Field Feature Properties************** \n"
        " TempHist Temperature Value is :-40.5\n"
        " TempHist Use Sunroutine is :TRUE \n"
        " TempHist Use Amplitude is :TRUE \n"
        " TempHist Amplitude Spec is :Ramp\n"
        "\n"
        "\n",
};

/// Those whose values are all read before anything is written.
inline const std::vector<ReportKind> kGatheringReports{
    kPressureReport, kGravityReport,      kRotationalBodyForceReport, kConcentratedForceReport,
    kHeatFluxReport, kDisplacementReport, kFilmConditionReport};

inline const std::vector<ReportKind> kAllReports = [] {
    std::vector<ReportKind> all = kGatheringReports;
    all.push_back(kTemperatureReport);
    all.push_back(kTemperatureHistoryReport);
    return all;
}();

}  // namespace hlxtest::reports
