// SPDX-License-Identifier: Apache-2.0
// Attribute values as text, as the tree dump and the input file share them. What is appended to, a
// `Text`, is a std::string or a TextBuffer.
#pragma once

#include "product/treedump/FeaturePaths.h"

#include <string>

namespace hlx {

/// Appends a boolean (true, false), integer, double (shortest text that reads back), text (quoted),
/// reference (path, or none) or link (see AppendLink) of `owner`. Nothing for a list or a table:
/// each text has its own form of those.
template <class Text>
VEX_EXPORT void AppendScalar(Text& out, const vex::Value& value, const vex::Feature& owner,
                             FeaturePaths& paths);

/// Appends, quoted, where a linked document stands relative to the folder of the document that
/// links it; only its file name when it stands elsewhere than in or below that folder, or the
/// folder is not known yet.
template <class Text>
VEX_EXPORT void AppendLink(Text& out, const vex::DocumentLink& link, const vex::Feature& owner);

}  // namespace hlx
