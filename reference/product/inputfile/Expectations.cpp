// SPDX-License-Identifier: Apache-2.0
// The table of what is not expected in a step (docs/input-file.md, "Unexpected conditions").
#include "product/inputfile/Expectations.h"

#include <algorithm>
#include <iterator>

namespace hlx {

namespace {

constexpr std::string_view mechanical[] = {"HLXPressure", "HLXGravity", "HLXRotationalBodyForce",
                                           "HLXConcentratedForce"};
constexpr std::string_view thermal[] = {"HLXHeatFlux", "HLXFilmCondition"};
constexpr std::string_view anyLoad[] = {"HLXLoad"};

constexpr StepExpectations rows[] = {
    {"HLXGeneralStaticStepLT", "a general static step", thermal},
    {"HLXStaticLPStepLT", "a static perturbation step", thermal},
    {"HLXRiksStepLT", "a Riks step", thermal},
    {"HLXHeatTransferStepLT", "a heat transfer step", mechanical},
    {"HLXExplicitDynamicStepLT", "an explicit dynamic step", thermal},
    {"HLXFrequencyStepLT", "a frequency step", anyLoad},
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
