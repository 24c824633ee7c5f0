// SPDX-License-Identifier: Apache-2.0
// The writer of solver input files: object type "HLXIfwTraverser" of the component library
// "HLXIfwExportTraverser".
#pragma once

#include "VEXAnalysisModel.h"

class HLXIIfwTraverser : public VEXBaseUnknown
{
public:
    /// Writes one input file for the analysis cases of the list. Whether it is structured or flat
    /// is the option "write flat input file" of the general settings. An existing file is replaced,
    /// whole or not at all.
    /// @return S_OK; E_INVALIDARG for an impossible path, an empty list, an entry that is no
    /// analysis case, or cases of two models; E_FAIL for a deleted case and when the file could not
    /// be written. The reason goes to standard error
    virtual HRESULT WriteInputFile(const VEXUnicodeString& inputFilePath,
                                   VEXListValVEXBaseUnknown_var& cases) = 0;
};

VEX_INTERFACE(HLXIIfwTraverser);
