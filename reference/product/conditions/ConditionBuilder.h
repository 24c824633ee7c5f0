// SPDX-License-Identifier: Apache-2.0
// Makes conditions in steps.
#pragma once

#include "VEXAnalysisModel.h"

#include <string_view>

namespace hlx {

/// Makes a condition without an alias at the end of a container of a step.
/// @param lateType       of the condition; the program text names it
/// @param containerType  late type of the container
/// @param condition      receives it; left as it is on failure
/// @return S_OK; E_INVALIDARG for anything else than an open analysis document and a step of it;
/// E_FAIL for a step without that container
HRESULT MakeCondition(std::string_view lateType, std::string_view containerType,
                      VEXISpecObject_var& condition, const VEXDocument* document,
                      const VEXISamAnalysisSet_var& step);

}  // namespace hlx
