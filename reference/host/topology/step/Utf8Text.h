// SPDX-License-Identifier: Apache-2.0
// The kernel's names as UTF-8.
#pragma once

#include <TCollection_ExtendedString.hxx>

#include <string>

namespace vex::topology {

// Valid UTF-8 without NUL, whatever a file held: half a surrogate pair becomes U+FFFD.
std::string Utf8Text(const TCollection_ExtendedString& text);

}  // namespace vex::topology
