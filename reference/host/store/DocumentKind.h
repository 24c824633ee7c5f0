// SPDX-License-Identifier: Apache-2.0
// The kinds of documents and their names in files and paths.
#pragma once

#include "VEXTypes.h"

#include <cstdint>
#include <optional>
#include <string_view>

namespace vex::store {

enum class DocumentKind : std::uint8_t { Analysis, Product, Part };

/// "VEXAnalysis", "VEXProduct" or "VEXPart": the kind's name in the file and, after a dot, the file
/// ending of its documents.
VEX_EXPORT std::string_view NameOf(DocumentKind kind);

/// The kind with exactly this name.
VEX_EXPORT std::optional<DocumentKind> KindFromName(std::string_view name);

/// The kind that a type means: a bare name, or anything that has it as its file ending (a path, a
/// file name). Upper and lower case count.
VEX_EXPORT std::optional<DocumentKind> KindFromType(std::string_view type);

}  // namespace vex::store
