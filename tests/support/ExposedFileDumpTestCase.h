// SPDX-License-Identifier: Apache-2.0
// The file-dump test case with what a test has to reach.
#pragma once

#include "HLXFileDumpTestCase.h"

namespace hlxtest {

class ExposedFileDumpTestCase : public HLXFileDumpTestCase
{
public:
    using HLXFileDumpTestCase::AddAnalysisCase;
    using HLXFileDumpTestCase::InitializeClassMembers;
    using HLXFileDumpTestCase::ProcessArguments;
    using HLXFileDumpTestCase::VerifyArguments;

    using HLXFileDumpTestCase::_AmplitudeFeature;
    using HLXFileDumpTestCase::_AnalysisCases;
    using HLXFileDumpTestCase::_AnalysisContainer;
    using HLXFileDumpTestCase::_Body;
    using HLXFileDumpTestCase::_Document;
    using HLXFileDumpTestCase::_DumpTreeFileName;
    using HLXFileDumpTestCase::_DumpTreeTitle;
    using HLXFileDumpTestCase::_HollexFile1Name;
    using HLXFileDumpTestCase::_HollexFile1Path;
    using HLXFileDumpTestCase::_HollexFile2Name;
    using HLXFileDumpTestCase::_HollexFile2Path;
    using HLXFileDumpTestCase::_InputDirectory;
    using HLXFileDumpTestCase::_InputFileName;
    using HLXFileDumpTestCase::_InputFilePath;
    using HLXFileDumpTestCase::_IntermediateInputFilePath;
    using HLXFileDumpTestCase::_LoadFactory;
    using HLXFileDumpTestCase::_MechanicalPart;
    using HLXFileDumpTestCase::_NavigateObject;
    using HLXFileDumpTestCase::_OutputDirectory;
    using HLXFileDumpTestCase::_PartDocContainer;
    using HLXFileDumpTestCase::_PartIndex;
    using HLXFileDumpTestCase::_PartLink;
    using HLXFileDumpTestCase::_RootProduct;
    using HLXFileDumpTestCase::_TimeLogFile;
    using HLXFileDumpTestCase::_TimeLogFilePath;
};

}  // namespace hlxtest
