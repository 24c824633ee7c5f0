// SPDX-License-Identifier: Apache-2.0
// Attributes of a feature in their packed form (store/PackedAttributes.h), sound or nearly so.
#pragma once

#include "InputReader.h"

namespace hlxfuzz {

/// Up to three attributes whose names, kinds and values the input gives; their number, and the
/// counts within them, are mostly what is there.
std::string PackedAttributesOf(InputReader& input);

}  // namespace hlxfuzz
