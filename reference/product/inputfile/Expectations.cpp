// SPDX-License-Identifier: Apache-2.0
// The table of what is not expected in a step (docs/input-file.md, "Unexpected conditions").
#include "product/inputfile/Expectations.h"

#include <algorithm>
#include <iterator>

namespace hlx {

namespace {

// Heat does nothing without temperatures to solve for. Velocities and accelerations want inertia:
// where there is none, displacements tell how a region moves.
constexpr std::string_view inStatics[] = {"HLXHeatFlux", "HLXFilmCondition", "HLXMotionBCLT"};
constexpr std::string_view inDynamics[] = {"HLXHeatFlux", "HLXFilmCondition"};
// Nothing moves, and temperatures are what is sought.
constexpr std::string_view inHeatTransfer[] = {
    "HLXPressure",       "HLXGravity", "HLXRotationalBodyForce", "HLXConcentratedForce",
    "HLXDisplacementBC", "HLXClamp",   "HLXMotionBCLT",          "HLXTemperatureHistoryLT"};
// Modes are of the structure as it is held, whatever drives or heats it.
constexpr std::string_view inFrequency[] = {"HLXLoad", "HLXMotionBCLT", "HLXBaseTemperatureLT"};

constexpr StepExpectations rows[] = {
    {"HLXGeneralStaticStepLT", "a general static step", inStatics},
    {"HLXStaticLPStepLT", "a static perturbation step", inStatics},
    {"HLXRiksStepLT", "a Riks step", inStatics},
    {"HLXHeatTransferStepLT", "a heat transfer step", inHeatTransfer},
    {"HLXExplicitDynamicStepLT", "an explicit dynamic step", inDynamics},
    {"HLXFrequencyStepLT", "a frequency step", inFrequency},
};

}  // namespace

bool StepExpectations::Expects(const vex::LateType& condition) const
{
    return std::ranges::none_of(unexpected,
                                [&](std::string_view type) { return condition.IsKindOf(type); });
}

const StepExpectations* ExpectationsOf(const vex::LateType& step)
{
    const auto* const row = std::ranges::find_if(
        rows, [&](const StepExpectations& each) { return step.IsKindOf(each.lateType); });
    return row != std::end(rows) ? row : nullptr;
}

}  // namespace hlx
