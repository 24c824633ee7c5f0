// SPDX-License-Identifier: Apache-2.0
// Static utilities for analysis documents, usable without a test case. Grouped by subject; the
// source has the same order. Nothing is kept between calls. Messages go to standard output.
#pragma once

#include "VEXAnalysisModel.h"

class VEX_EXPORT HLXAnalysisTestUtils
{
public:
    // --- Input files --------------------------------------------------------------------------

    /// Writes the solver input file of one analysis case, structured whatever the user's option
    /// says.
    /// @param analysisCase   the case; not checked: an empty one is handed to the writer as it is
    /// @param inputFilePath  full path of the file, its ending included
    /// @return S_OK, also when the writer failed; with a message E_FAIL when the writer component
    ///         cannot be made and the query's own result when it has no writing interface
    static HRESULT WriteInputFileForAnalysisCase(VEXISamAnalysisCase* analysisCase,
                                                 VEXUnicodeString inputFilePath);
    /// As above.
    static HRESULT WriteInputFileForAnalysisCase(VEXISamAnalysisCase_var analysisCase,
                                                 VEXUnicodeString inputFilePath);

    /// Writes the feature tree of the document's current analysis model into a text file, which is
    /// replaced: "Propagation Load Test", "Feature tree:", the tree. Whether the file could be
    /// opened is not checked.
    /// @param document  an open analysis document; not changed
    /// @param fileName  path of the file
    /// @return S_OK; E_FAIL without an analysis manager (no message) or without a current model
    ///         ("Failed to get the Analysis Model")
    static HRESULT WriteFeatTreeFileForAnalysisCase(VEXDocument*& document,
                                                    VEXUnicodeString fileName);
};
