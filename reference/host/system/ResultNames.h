// SPDX-License-Identifier: Apache-2.0
// Names of the platform's result codes.
#pragma once

#include "VEXTypes.h"

#include <optional>
#include <string_view>

namespace vex {

/// "E_FAIL" and so on; empty for a code without a name.
std::string_view NameOfResult(HRESULT result);

std::optional<HRESULT> ResultOfName(std::string_view name);

}  // namespace vex
