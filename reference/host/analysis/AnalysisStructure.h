// SPDX-License-Identifier: Apache-2.0
// What a new analysis document holds: the container with its manager and one model, which is the
// current one, and the container of B-rep accesses. No case.
#pragma once

#include "host/feature/Document.h"

namespace vex {

VEX_EXPORT void MakeAnalysisStructure(Document& document);

}  // namespace vex
