// SPDX-License-Identifier: Apache-2.0
// What keeps a short catalogue from costing stack or memory without end: it is read in the process
// that asks for it.
#pragma once

#include "host/feature/LateType.h"

namespace hlx {

/// The most dots of a line. Each dot of a key is a table within another, and the parser goes
/// through these by recursion.
inline constexpr std::size_t mostDotsOfALine = 256;

/// The number, from 1, of the first line that has more dots; 0 when there is none.
std::size_t LineWithTooManyDots(std::string_view text);

/// The most that all types together may hold, inherited things counted for each type anew: each
/// type of the registry has the attributes of its bases, with their defaults.
inline constexpr std::size_t mostThingsHeld = 250'000;

/// What an attribute counts: itself, and eight bytes of its default each.
std::size_t ThingsHeld(const vex::AttributeDefinition& attribute);

}  // namespace hlx
