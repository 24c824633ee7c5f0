// SPDX-License-Identifier: Apache-2.0
// What operations find from the document that they are given.
#pragma once

#include "VEXDocument.h"
#include "host/feature/Document.h"

namespace hlx {

/// The open analysis document behind a pointer, which is not followed; null for another one.
const vex::Document* AnalysisDocument(const VEXDocument* document);

/// The current analysis model of a document; null when there is none.
vex::Feature* CurrentModelOf(const vex::Document& document);

}  // namespace hlx
