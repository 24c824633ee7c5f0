// SPDX-License-Identifier: Apache-2.0
// A test case whose operations and members a test can reach, with a body and a verdict on the count
// of arguments that the test gives.
#pragma once

#include "HLXBaseTestCase.h"

#include <functional>

namespace hlxtest {

class ExposedTestCase : public HLXBaseTestCase
{
public:
    /// What Process does; nothing given: it answers S_OK.
    std::function<long()> process;
    /// What VerifyArguments answers; nothing given: 1 for every count.
    std::function<unsigned char(int)> verifyArguments;

    long Process() override { return process ? process() : S_OK; }
    unsigned char VerifyArguments(int argc) override
    {
        return verifyArguments ? verifyArguments(argc) : 1;
    }

    using HLXBaseTestCase::AddAnalysisCase;
    using HLXBaseTestCase::CreateStep;
    using HLXBaseTestCase::CreateTabularAmplitude;
    using HLXBaseTestCase::CreateTimeLoggingFile;
    using HLXBaseTestCase::DumpFeatTree;
    using HLXBaseTestCase::GetAnalysisManager;
    using HLXBaseTestCase::GetAnalysisModel;
    using HLXBaseTestCase::GetBRepContainer;
    using HLXBaseTestCase::GetChildren;
    using HLXBaseTestCase::GetEdgeList;
    using HLXBaseTestCase::GetFaceList;
    using HLXBaseTestCase::GetGeometricalElement;
    using HLXBaseTestCase::GetLoadFactory;
    using HLXBaseTestCase::GetPartDocument;
    using HLXBaseTestCase::GetSpecificAnalysisCase;
    using HLXBaseTestCase::GetVertexList;
    using HLXBaseTestCase::InitializeAnalysisCaseFromDocument;
    using HLXBaseTestCase::InitializeBody;
    using HLXBaseTestCase::InitializeClassMembers;
    using HLXBaseTestCase::InitializeContainerOfPartDocument;
    using HLXBaseTestCase::InitializeEdgeSupportByIteration;
    using HLXBaseTestCase::InitializeFaceSupportByIteration;
    using HLXBaseTestCase::InitializeLoadFactory;
    using HLXBaseTestCase::InitializeMechanicalPart;
    using HLXBaseTestCase::InitializeNavigateObject;
    using HLXBaseTestCase::InitializeRootProduct;
    using HLXBaseTestCase::InitializeVertexSupportByIteration;
    using HLXBaseTestCase::LogError;
    using HLXBaseTestCase::NewDocument;
    using HLXBaseTestCase::OpenDocument;
    using HLXBaseTestCase::ProcessArguments;
    using HLXBaseTestCase::SaveAsDocument;
    using HLXBaseTestCase::SetCurrentDocument;
    using HLXBaseTestCase::SetDumpTreeParameters;
    using HLXBaseTestCase::StartTimer;
    using HLXBaseTestCase::StopTimer;
    using HLXBaseTestCase::WriteInputFileForAnalysisCase;

    using HLXBaseTestCase::_AmplitudeFeature;
    using HLXBaseTestCase::_AnalysisCases;
    using HLXBaseTestCase::_AnalysisContainer;
    using HLXBaseTestCase::_Body;
    using HLXBaseTestCase::_Document;
    using HLXBaseTestCase::_DumpTreeFileName;
    using HLXBaseTestCase::_DumpTreeTitle;
    using HLXBaseTestCase::_HollexFile1Name;
    using HLXBaseTestCase::_HollexFile1Path;
    using HLXBaseTestCase::_HollexFile2Name;
    using HLXBaseTestCase::_HollexFile2Path;
    using HLXBaseTestCase::_InputDirectory;
    using HLXBaseTestCase::_InputFileName;
    using HLXBaseTestCase::_InputFilePath;
    using HLXBaseTestCase::_IntermediateInputFilePath;
    using HLXBaseTestCase::_LoadFactory;
    using HLXBaseTestCase::_MechanicalPart;
    using HLXBaseTestCase::_NavigateObject;
    using HLXBaseTestCase::_OutputDirectory;
    using HLXBaseTestCase::_PartDocContainer;
    using HLXBaseTestCase::_PartIndex;
    using HLXBaseTestCase::_PartLink;
    using HLXBaseTestCase::_RootProduct;
    using HLXBaseTestCase::_TimeLogFile;
    using HLXBaseTestCase::_TimeLogFilePath;
};

}  // namespace hlxtest
