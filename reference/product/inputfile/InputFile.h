// SPDX-License-Identifier: Apache-2.0
// Makes the text of an input file from analysis cases: heading, structure, model, cases
// (docs/input-file.md).
#pragma once

#include "host/feature/Feature.h"

#include <string>
#include <vector>

namespace hlx {

enum class InputFileForm { Structured, Flat };

/// Appends the text of the input file. The cases are in trees and of one analysis model. False,
/// with the reason in `error`, when the structure that the analysis is linked to cannot be read or
/// a region is not found in its part.
bool MakeInputFile(const std::vector<vex::Feature*>& cases, InputFileForm form, std::string& text,
                   std::string& error);

}  // namespace hlx
