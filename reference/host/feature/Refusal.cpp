// SPDX-License-Identifier: Apache-2.0
// The host's messages.
#include "host/feature/Refusal.h"

#include <cstdio>
#include <string>

namespace vex {

HRESULT Refuse(HRESULT result, std::string_view reason)
{
    const std::string line = "vex: " + std::string(reason) + '\n';
    std::fwrite(line.data(), 1, line.size(), stderr);
    return result;
}

}  // namespace vex
