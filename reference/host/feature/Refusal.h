// SPDX-License-Identifier: Apache-2.0
// What the host has to say goes to standard error, one line a refusal.
#pragma once

#include "VEXTypes.h"

#include <string_view>

namespace vex {

/// Writes one line. Never throws: it may be the end of an operation that ran out of memory.
VEX_EXPORT void Tell(std::string_view line) noexcept;

/// Writes why an operation was refused and answers its result. @param reason names the file or
/// object and a remedy
VEX_EXPORT HRESULT Refuse(HRESULT result, std::string_view reason) noexcept;

}  // namespace vex
