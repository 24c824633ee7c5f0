// SPDX-License-Identifier: Apache-2.0
// Writes the structure of the model: parts and the assembly of their instances, or all on one
// level. No mesh is kept yet; the place of each part's is held by a comment.
#pragma once

#include "product/inputfile/Deck.h"
#include "product/inputfile/Structure.h"

namespace hlx {

/// Parts, then the assembly with each instance's place.
void WriteStructured(Deck& deck, const Structure& structure);

/// The instances on one level, without keywords of structure.
void WriteFlat(Deck& deck, const Structure& structure);

}  // namespace hlx
