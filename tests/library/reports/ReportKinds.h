// SPDX-License-Identifier: Apache-2.0
// The kinds of feature that there are reports on, and what a report says of each.
#pragma once

#include "HLXAnalysisTestUtils.h"
#include "library/reports/ReportValues.h"

#include <ostream>
#include <string>
#include <vector>

namespace hlxtest::reports {

/// An operation that writes a report.
using Report = HRESULT (*)(VEXISpecObject_var, VEXUnicodeString);

struct ReportKind
{
    const char* name;
    Report report;
    std::vector<std::string> casts;  ///< interfaces that the feature is cast to, in order
    VEXISpecObject_var (*create)(Place&);
    void (*value)(const VEXISpecObject_var&);
    std::vector<std::string> getters;  ///< calls in order; those of amplitudes come last
    std::string defaults;              ///< the report on a new feature
    std::string valued;                ///< when valued, with an amplitude of the name "Ramp"

    friend void PrintTo(const ReportKind& kind, std::ostream* stream) { *stream << kind.name; }
};

inline std::string NameOfReport(const testing::TestParamInfo<ReportKind>& row)
{
    return row.param.name;
}

/// The report when valued, with an amplitude of that name.
inline std::string ValuedWith(const ReportKind& kind, const std::string& amplitude)
{
    const std::string typed = "Amplitude Spec is :Ramp\n";
    std::string text = kind.valued;
    return text.replace(text.find(typed), typed.size(), "Amplitude Spec is :" + amplitude + "\n");
}

inline const ReportKind kPressureReport{
    .name = "Pressure",
    .report = &HLXAnalysisTestUtils::DumpPressureParams,
    .casts = {"HLXIPressureLoad"},
    .create = &Pressure,
    .value = &ValuePressure,
    .getters = {"HLXILoad::GetUserSubroutine(&)", "HLXIPressureLoad::GetPressure(&)",
                "HLXICondition::GetUseAmplitude(&)", "HLXICondition::GetAmplitude(&)"},
    .defaults =
        "\n"
        "**************Load Feature Properties************** \n"
        " Pressure User Sunroutine is :FALSE\n"
        " Pressure Pressure is :0\n"
        " Pressure Use Amplitude is :FALSE\n"
        " Pressure Amplitude Spec is :NULL\n"
        "\n"
        "\n",
    .valued =
        "\n"
        "**************Load Feature Properties************** \n"
        " Pressure User Sunroutine is :TRUE \n"
        " Pressure Pressure is :1.23457e+006\n"
        " Pressure Use Amplitude is :TRUE \n"
        " Pressure Amplitude Spec is :Ramp\n"
        "\n"
        "\n",
};

inline const ReportKind kGravityReport{
    .name = "Gravity",
    .report = &HLXAnalysisTestUtils::DumpGravityParams,
    .casts = {"HLXIGravity"},
    .create = &Gravity,
    .value = &ValueGravity,
    .getters = {"HLXIGravity::GetComponentX(&)", "HLXIGravity::GetComponentY(&)",
                "HLXIGravity::GetComponentZ(&)", "HLXICondition::GetUseAmplitude(&)",
                "HLXICondition::GetAmplitude(&)"},
    .defaults =
        "\n"
        "**************Load Feature Properties************** \n"
        " Gravity (x) is :0\n"
        " Gravity (y) is :0\n"
        " Gravity (z) is :0\n"
        " Gravity Use Amplitude is :FALSE\n"
        " Gravity Amplitude Spec is :NULL\n"
        "\n"
        "\n",
    .valued =
        "\n"
        "**************Load Feature Properties************** \n"
        " Gravity (x) is :0.5\n"
        " Gravity (y) is :1e-007\n"
        " Gravity (z) is :-9.81\n"
        " Gravity Use Amplitude is :TRUE \n"
        " Gravity Amplitude Spec is :Ramp\n"
        "\n"
        "\n",
};

inline const ReportKind kRotationalBodyForceReport{
    .name = "RotationalBodyForce",
    .report = &HLXAnalysisTestUtils::DumpRBFParams,
    .casts = {"HLXIRotationalBodyForce"},
    .create = &RotationalBodyForce,
    .value = &ValueRotationalBodyForce,
    .getters = {"HLXIRotationalBodyForce::GetVelocity(&)",
                "HLXIRotationalBodyForce::GetAcceleration(&)", "HLXICondition::GetUseAmplitude(&)",
                "HLXICondition::GetAmplitude(&)"},
    .defaults =
        "\n"
        "**************Load Feature Properties************** \n"
        " RBF Velocity is :0\n"
        " RBF Accelaration is :0\n"
        " RBF Use Amplitude is :FALSE\n"
        " RBF Amplitude Spec is :NULL\n"
        "\n"
        "\n",
    .valued =
        "\n"
        "**************Load Feature Properties************** \n"
        " RBF Velocity is :100000\n"
        " RBF Accelaration is :-1e+100\n"
        " RBF Use Amplitude is :TRUE \n"
        " RBF Amplitude Spec is :Ramp\n"
        "\n"
        "\n",
};

inline const ReportKind kConcentratedForceReport{
    .name = "ConcentratedForce",
    .report = &HLXAnalysisTestUtils::DumpConcForceParams,
    .casts = {"HLXIConcentratedForce"},
    .create = &ConcentratedForce,
    .value = &ValueConcentratedForce,
    .getters = {"HLXIConcentratedForce::GetComponentX(&)",
                "HLXIConcentratedForce::GetComponentY(&)",
                "HLXIConcentratedForce::GetComponentZ(&)", "HLXICondition::GetUseAmplitude(&)",
                "HLXICondition::GetAmplitude(&)"},
    .defaults =
        "\n"
        "**************Load Feature Properties************** \n"
        " Feature ConcForce(x) is :0\n"
        " Feature ConcForce(y) is :0\n"
        " Feature ConcForce(z) is :0\n"
        " Feature User Amplitude is :FALSE\n"
        " Feature Amplitude Spec is :NULL\n"
        "\n"
        "\n",
    .valued =
        "\n"
        "**************Load Feature Properties************** \n"
        " Feature ConcForce(x) is :0.333333\n"
        " Feature ConcForce(y) is :-2.5e-012\n"
        " Feature ConcForce(z) is :123456\n"
        " Feature User Amplitude is :TRUE \n"
        " Feature Amplitude Spec is :Ramp\n"
        "\n"
        "\n",
};

inline const ReportKind kHeatFluxReport{
    .name = "HeatFlux",
    .report = &HLXAnalysisTestUtils::DumpConcHeatFluxParams,
    .casts = {"HLXIHeatFlux"},
    .create = &ConcentratedHeatFlux,
    .value = &ValueHeatFlux,
    .getters = {"HLXIHeatFlux::GetMagnitude(&)", "HLXILoad::GetUserSubroutine(&)",
                "HLXICondition::GetUseAmplitude(&)", "HLXICondition::GetAmplitude(&)"},
    .defaults =
        "\n"
        "************** Feature Properties************** \n"
        " ConcHeatFlux ConcHeatFlux Magnitude is :0\n"
        " ConcHeatFlux Use Subroutine Flag is :FALSE\n"
        " ConcHeatFlux Use Amplitude is :FALSE\n"
        " ConcHeatFlux Amplitude Spec is :NULL\n"
        "\n"
        "\n",
    .valued =
        "\n"
        "************** Feature Properties************** \n"
        " ConcHeatFlux ConcHeatFlux Magnitude is :4.6589\n"
        " ConcHeatFlux Use Subroutine Flag is :TRUE \n"
        " ConcHeatFlux Use Amplitude is :TRUE \n"
        " ConcHeatFlux Amplitude Spec is :Ramp\n"
        "\n"
        "\n",
};

}  // namespace hlxtest::reports
