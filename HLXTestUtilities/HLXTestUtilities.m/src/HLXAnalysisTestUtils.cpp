// SPDX-License-Identifier: Apache-2.0
// Static utilities for analysis documents, in the order of their header.
#include "HLXAnalysisTestUtils.h"

#include "HLXConsole.h"
#include "HLXInputFileWriter.h"
#include "HLXProductUtilities.h"
#include "HLXToolsOptionsManager.h"

#include <fstream>

// --- Input files ------------------------------------------------------------------------------

namespace {

/// What both writers do: they differ only in how they come by the case's handle.
HRESULT WriteInputFile(const VEXBaseUnknown_var& analysisCase,
                       const VEXUnicodeString& inputFilePath)
{
    HLXToolsOptionsManager options;
    options.SetWriteFlatInputFileFlag(0);

    // An empty case is not checked, and kept so: the writer is called all the same.
    VEXListValVEXBaseUnknown_var cases;
    cases.Append(analysisCase);

    const VEXBaseUnknown* const writer = HLXInputFileWriter::Create();
    if (writer == nullptr) {
        // The two blanks are kept.
        HLXConsole::Print("Failed to get Traverser Interface  !\n");
        return E_FAIL;
    }
    HLXIIfwTraverser* traverser = nullptr;
    const HRESULT rc = HLXInputFileWriter::FindTraverser(*writer, traverser);
    if (FAILED(rc)) {
        // The leading blank is kept.
        HLXConsole::Print(" Could not get the IFW Traverser");
        HLXConsole::EndLineAndFlush();
        return rc;
    }
    if (traverser != nullptr) {
        // A writer's failure is not reported here; kept.
        traverser->WriteInputFile(inputFilePath, cases);
        traverser->Release();
    }
    return S_OK;
}

}  // namespace

HRESULT HLXAnalysisTestUtils::WriteInputFileForAnalysisCase(VEXISamAnalysisCase* analysisCase,
                                                            VEXUnicodeString inputFilePath)
{
    return WriteInputFile(VEXShare(analysisCase), inputFilePath);
}

HRESULT HLXAnalysisTestUtils::WriteInputFileForAnalysisCase(VEXISamAnalysisCase_var analysisCase,
                                                            VEXUnicodeString inputFilePath)
{
    return WriteInputFile(analysisCase, inputFilePath);
}

HRESULT HLXAnalysisTestUtils::WriteFeatTreeFileForAnalysisCase(VEXDocument*& document,
                                                               VEXUnicodeString fileName)
{
    VEXISamAnalysisManager_var manager;
    if (FAILED(HLXAnalysisDocUtils::GetAnalysisManager(manager, document))) return E_FAIL;

    VEXISamAnalysisModel* current = nullptr;
    if (manager) manager->GetCurrentAnalysisModel(current);
    if (current == nullptr) {
        HLXConsole::Print("Failed to get the Analysis Model\n");
        return E_FAIL;
    }
    VEXISamAnalysisModel_var model = VEXAdopt(current);
    const VEXINavigateObject_var navigateObject = model;
    model.Reset();

    HLXGenString tree;
    // A tree that cannot be dumped leaves the text empty and is not reported; kept.
    DumpFeatureTree(navigateObject.Get(), 0, tree);

    // Whether the file opens is not checked; kept.
    std::ofstream file(fileName.ConvertToChar(), std::ios::out);
    file << "   Propagation Load Test\n\nFeature tree:\n\n" << tree.c_str() << "\n";
    file.close();
    return S_OK;
}
