// SPDX-License-Identifier: Apache-2.0
// What the host has to say goes to standard error, one line a refusal.
#pragma once

#include "VEXTypes.h"

#include <string_view>

namespace vex {

/// Writes why an operation was refused and answers its result. @param reason names the file or
/// object and a remedy
VEX_EXPORT HRESULT Refuse(HRESULT result, std::string_view reason);

}  // namespace vex
