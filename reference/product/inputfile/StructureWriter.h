// SPDX-License-Identifier: Apache-2.0
// Writes the structure of the model: parts and the assembly of their instances, or all on one
// level, and the regions that the cases use. No mesh is kept yet; the place of each part's is held
// by a comment.
#pragma once

#include "product/inputfile/Deck.h"
#include "product/inputfile/Regions.h"

namespace hlx {

/// Parts with the regions that are used of them, then the assembly with each instance's place.
void WriteStructured(Deck& deck, const Structure& structure, const Regions& regions);

/// The instances on one level, without keywords of structure, each with its regions.
void WriteFlat(Deck& deck, const Structure& structure, const Regions& regions);

}  // namespace hlx
