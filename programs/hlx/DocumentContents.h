// SPDX-License-Identifier: Apache-2.0
// The ways into an open document. What cannot be had is told on standard error.
#pragma once

#include "VEXAnalysisModel.h"

namespace hlx {

/// The analysis manager of an analysis document; empty when it cannot be had.
VEXISamAnalysisManager_var AnalysisManagerOf(const VEXDocument& document);

/// The document manager of an analysis manager; empty when it cannot be had.
VEXISamDocumentManager_var DocumentManagerOf(const VEXISamAnalysisManager& manager);

/// Appends the analysis models. False when they could not all be had.
bool AppendModels(const VEXISamAnalysisManager& manager, VEXListValVEXBaseUnknown_var& models);

/// Appends the root objects of a product or part document. False when they could not be had.
bool AppendRoots(VEXDocument& document, VEXListValVEXBaseUnknown_var& roots);

}  // namespace hlx
