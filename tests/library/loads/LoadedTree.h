// SPDX-License-Identifier: Apache-2.0
// The feature tree of a document with steps of all kinds, loads of all kinds, amplitudes and jobs,
// as the operations that make them give it.
#pragma once

#include <string>

namespace hlxtest::statics {

/// The tree but for its amplitudes, which stand at its end.
inline constexpr const char* typedTree = R"(VEXSamAnalysisModel "Finite Element Model.1"
  HLXHacAnalysisCaseLT "Analysis Case.1"
    HLXHacSimHistLT
      HLXHacInitialStepLT "Initial"
        HLXBoundaryConditionContainerLT
        HLXInteractionContainerLT
        HLXHacFieldContainerLT
      HLXGeneralStaticStepLT "Loading"
        HLXLoadContainerLT
        HLXBoundaryConditionContainerLT
        HLXInteractionContainerLT
        HLXTemperatureContainerLT
      HLXGeneralStaticStepLT "General_Static_Step_1"
        HLXLoadContainerLT
          HLXGravity Amplitude=HLXTabularAmplitudeLT[1] UseAmplitude=true ComponentZ=-9.81
            VEXSamSupport Document="box.VEXPart" Dimension=3 Index=1 Connector="GeometrySmartConnector"
          HLXPressure "Pressure-1" FollowsMesh=true Amplitude=HLXTabularAmplitudeLT[2] UseAmplitude=true Pressure=1.25
            VEXSamSupport Document="box.VEXPart" Dimension=2 Index=1 Connector="GeometrySmartConnector"
        HLXBoundaryConditionContainerLT
        HLXInteractionContainerLT
        HLXTemperatureContainerLT
      HLXStaticLPStepLT "Staic_Perturbation_Step_2"
        HLXLoadContainerLT
          HLXRotationalBodyForce Amplitude=HLXTabularAmplitudeLT[3] UseAmplitude=true Velocity=1.73205 Acceleration=5.25 AxisOfRotation="Analysis Case.1"/HLXHacSimHistLT[1]/"Staic_Perturbation_Step_2"/HLXLoadContainerLT[1]/HLXRotationalBodyForce[1]/VEXSamAxis[1]
            VEXSamAxis Document="box.VEXPart" Dimension=1 Index=1
            VEXSamSupport Document="box.VEXPart" Dimension=3 Index=1 Connector="GeometrySmartConnector"
        HLXBoundaryConditionContainerLT
        HLXInteractionContainerLT
        HLXTemperatureContainerLT
      HLXRiksStepLT "Riks_Step_3"
        HLXLoadContainerLT
          HLXConcentratedForce "Force-1" Amplitude=HLXTabularAmplitudeLT[4] UseAmplitude=true ForceX=1
            VEXSamSupport Document="box.VEXPart" Index=1
        HLXBoundaryConditionContainerLT
        HLXInteractionContainerLT
        HLXTemperatureContainerLT
      HLXHeatTransferStepLT "Heat_Transfer_Step_4"
        HLXLoadContainerLT
          HLXConcHeatFlux "Flux-1" Amplitude=HLXTabularAmplitudeLT[5] UseAmplitude=true UserSubroutine=true Magnitude=4.6589
            VEXSamSupport Document="box.VEXPart" Index=1
          HLXFilmCondition "Film-1" Amplitude=HLXTabularAmplitudeLT[6] UseAmplitude=true ReferenceTemperature=51 FilmAmplitude=HLXTabularAmplitudeLT[7] Coefficients=(1.2 2.4 3.5) Temperatures=(10 20 30)
            VEXSamSupport Document="box.VEXPart" Dimension=2 Index=1 Connector="GeometrySmartConnector"
        HLXBoundaryConditionContainerLT
        HLXInteractionContainerLT
        HLXTemperatureContainerLT
      HLXExplicitDynamicLT "Explicit_Dynamic_Step_5"
        HLXLoadContainerLT
        HLXBoundaryConditionContainerLT
        HLXInteractionContainerLT
        HLXTemperatureContainerLT
    HLXJobContainerLT
      HLXJobLT "Job-1" AnalysisCase="Analysis Case.1"
      HLXJobLT "Job-1_SinglePart" AnalysisCase="Analysis Case.1" SinglePart=true
    HLXHacSolutionLT
)";

inline std::string TypedAmplitudes()
{
    const std::string table =
        "Data=((0 0) (1 2) (2 4) (3 6) (4 8) (5 10) (6 12) (7 14) (8 16) "
        "(9 18))\n";
    std::string text;
    for (int i = 1; i <= 7; ++i) {
        text += "  HLXTabularAmplitudeLT " + table;
    }
    return text + "  HLXTabularAmplitudeLT TotalTime=true " + table +
           "  HLXSmoothStepAmplitudeLT " + table;
}

}  // namespace hlxtest::statics
