// SPDX-License-Identifier: Apache-2.0
// The feature tree as text: one line a feature (docs/tree-dump.md).
#pragma once

#include "host/feature/Feature.h"

#include <string>

namespace hlx {

/// Appends the lines of `root` and of everything below it, indented by `depth` levels (below 0
/// counts as 0). `root` is in a tree.
VEX_EXPORT void AppendFeatureTree(std::string& text, vex::Feature& root, int depth);

}  // namespace hlx
