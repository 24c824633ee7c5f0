// SPDX-License-Identifier: Apache-2.0
// The host's messages.
#include "host/feature/Refusal.h"

#include <cstdio>

namespace vex {

void Tell(std::string_view line) noexcept
{
    std::fprintf(stderr, "vex: %.*s\n", static_cast<int>(line.size()), line.data());
}

HRESULT Refuse(HRESULT result, std::string_view reason) noexcept
{
    Tell(reason);
    return result;
}

}  // namespace vex
