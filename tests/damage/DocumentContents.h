// SPDX-License-Identifier: Apache-2.0
// All that an open document holds, as one text: two documents are the same when their texts are.
#pragma once

#include "host/feature/Document.h"

#include <string>

namespace damagetest {

/// Kind, data version, each feature with its place, name and every attribute that is set, each
/// geometry blob with its bytes, and the tree dump. False, with the reason in `error`, when a
/// geometry blob cannot be read.
bool ContentsOf(vex::Document& document, std::string& contents, std::string& error);

/// The contents without the geometry: what is in memory once the document is open.
std::string FeaturesOf(const vex::Document& document);

}  // namespace damagetest
