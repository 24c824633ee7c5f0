// SPDX-License-Identifier: Apache-2.0
// What a fault makes of a call, which calls it fits, and what can be made of a call at all.
#pragma once

#include "host/system/Probe.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace vex::probe {

struct VEX_EXPORT FaultOutcome
{
    enum class Kind : std::uint8_t {
        Code,   ///< a result code by name, or a number
        Null,   ///< success without a result
        Empty,  ///< success with an empty list or text
    };
    Kind kind = Kind::Code;
    bool byName = false;  ///< the code was given by its name: it fits no number
    bool keep = false;    ///< the body runs and its outputs are kept
    std::int64_t value = 0;

    bool Fits(const PointDefinition& point) const;
};

/// Reads "E_FAIL", "-1", "0x80004005", "null", "empty" or a code with ",keep".
VEX_EXPORT bool ParseOutcome(std::string_view text, FaultOutcome& outcome, std::string& error);

/// The outcomes that fit the operation and change what its caller sees, the plainest first.
std::vector<std::string_view> WaysToBreak(const PointDefinition& point);

/// What fits the operation, for messages.
std::string FittingOutcomes(const PointDefinition& point);

}  // namespace vex::probe
