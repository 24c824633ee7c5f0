// SPDX-License-Identifier: Apache-2.0
// Short codes of analysis steps, as the command line of `hlx new` takes them.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace hlx {

struct StepCode
{
    std::string_view code;
    std::string_view namePrefix;  ///< the step's name is this and its position in the list
    std::string_view lateType;
    std::string_view meaning;
};

inline constexpr StepCode stepCodes[] = {
    {"GSS", "General_Static_Step_", "HLXGeneralStaticStepLT", "general static"},
    // "Staic_": the spelling is kept by contract; baselines hold it.
    {"SPS", "Staic_Perturbation_Step_", "HLXStaticLPStepLT", "static linear perturbation"},
    {"RS", "Riks_Step_", "HLXRiksStepLT", "Riks"},
    {"HTS", "Heat_Transfer_Step_", "HLXHeatTransferStepLT", "heat transfer"},
    {"EDS", "Explicit_Dynamic_Step_", "HLXExplicitDynamicLT", "explicit dynamic"},
};

/// The codes of a comma-separated list. False, with the reason in `error`, for a text that is no
/// code.
bool ParseStepCodes(std::string_view list, std::vector<StepCode>& codes, std::string& error);

}  // namespace hlx
