// SPDX-License-Identifier: Apache-2.0
// What a program can ask of an open document, whatever it holds.
#pragma once

#include "VEXDocument.h"

namespace hlxfuzz {

/// Asks everything that the interfaces of documents, features, products and analysis models answer,
/// and writes an input file of each analysis case.
void WalkDocument(VEXDocument& document);

}  // namespace hlxfuzz
