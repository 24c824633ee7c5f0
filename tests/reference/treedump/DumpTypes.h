// SPDX-License-Identifier: Apache-2.0
// Late types for tests of texts: what is expected of them is typed by hand, so they are no
// catalogue's.
#pragma once

#include "host/feature/LateType.h"

namespace hlxtest {

/// TstPlain has no attribute; TstLoad has X, Y and Target; TstAll has one attribute of each kind,
/// with defaults.
void AddDumpTypes();

inline const vex::LateType& Type(const char* name)
{
    AddDumpTypes();
    return vex::LateTypes::Instance().Require(name);
}

}  // namespace hlxtest
