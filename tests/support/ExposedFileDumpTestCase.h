// SPDX-License-Identifier: Apache-2.0
// The file-dump test case with what a test has to reach.
#pragma once

#include "HLXFileDumpTestCase.h"

namespace hlxtest {

class ExposedFileDumpTestCase : public HLXFileDumpTestCase
{
public:
    using HLXFileDumpTestCase::AddAnalysisCase;
    using HLXFileDumpTestCase::ProcessArguments;
    using HLXFileDumpTestCase::VerifyArguments;

    using HLXFileDumpTestCase::_AnalysisCases;
    using HLXFileDumpTestCase::_Document;
    using HLXFileDumpTestCase::_DumpTreeFileName;
    using HLXFileDumpTestCase::_DumpTreeTitle;
    using HLXFileDumpTestCase::_HollexFile1Path;
    using HLXFileDumpTestCase::_InputFilePath;
    using HLXFileDumpTestCase::_NavigateObject;
    using HLXFileDumpTestCase::_OutputDirectory;
    using HLXFileDumpTestCase::_PartIndex;
};

}  // namespace hlxtest
