// SPDX-License-Identifier: Apache-2.0
// Brings a STEP file in as documents: one .VEXPart a part, one .VEXProduct a product or
// sub-assembly, linked to each other.
#pragma once

#include "VEXTypes.h"

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>

namespace vex {

/// Told before each document is stored: how many are, how many there will be, and the file name at
/// hand.
using ImportProgress =
    std::function<void(std::size_t done, std::size_t total, const std::string& fileName)>;

/// Reads `stepPath` and stores its products and parts in `folder`, which must exist. A STEP file
/// with a part only gives one part.
/// @param baseName          name of the root document without ending; empty: the name in the STEP
/// file. The other documents are named
///                          after their products and parts (DocumentNames)
/// @param rootDocumentPath  receives the path of the root document: a .VEXProduct, or the .VEXPart
/// @param progress          may be empty
/// @return false, with file and remedy in `error`, when the file cannot be read, a document of such
/// a name is there already, or
///         one cannot be stored; no document of this import is there then
VEX_EXPORT bool ImportStep(const std::string& stepPath, const std::string& folder,
                           std::string_view baseName, std::string& rootDocumentPath,
                           std::string& error, const ImportProgress& progress = {});

}  // namespace vex
