// SPDX-License-Identifier: Apache-2.0
// HLXBaseTestCase: what it writes of a document: feature-tree dump, saved document, solver input
// files.
#include "HLXBaseTestCase.h"

#include "HLXConsole.h"
#include "HLXInputFileWriter.h"
#include "HLXPath.h"
#include "HLXProductUtilities.h"
#include "HLXToolsOptionsManager.h"
#include "VEXDocumentServices.h"

void HLXBaseTestCase::SetDumpTreeParameters(const char* fileName, const char* title)
{
    _DumpTreeTitle = title;
    _DumpTreeFileName = fileName;
}

void HLXBaseTestCase::DumpFeatTree(char* openMode)
{
    HLXGenString tree;
    DumpFeatureTree(_NavigateObject.Get(), 0, tree);

    const VEXUnicodeString path = HLXPath::Join(_OutputDirectory, _DumpTreeFileName);
    unsigned int descriptor = 0;
    // A null mode is an unknown one.
    const char* const mode = openMode == nullptr ? "" : openMode;
    if (FAILED(VEXFOpen(path.ConvertToChar(), mode, descriptor))) return;
    const VEXUnicodeString text = _DumpTreeTitle + ":\n\n" + tree.c_str() + "\n";
    VEXFWrite(descriptor, text.ConvertToChar(), text.View().size());
    VEXFClose(descriptor);
}

void HLXBaseTestCase::SaveAsDocument(VEXDocument* document, VEXUnicodeString name)
{
    if (document == nullptr) return;
    // The empty type keeps the document's own. A failure is not reported; kept.
    VEXDocumentServices::SaveAs(*document, HLXPath::Join(_OutputDirectory, name), "", 1);
}

HRESULT HLXBaseTestCase::WriteInputFileForAnalysisCase(const VEXISamAnalysisCase_var& analysisCase,
                                                       const char* inputFilePath)
{
    // No message of this operation has an end of line, so that two of them run together; kept.
    HLXToolsOptionsManager options;
    options.SetWriteFlatInputFileFlag(0);
    if (analysisCase == nullptr) return E_FAIL;

    VEXListValVEXBaseUnknown_var cases;
    cases.Append(analysisCase);

    HRESULT rc = E_FAIL;
    const VEXBaseUnknown* const writer = HLXInputFileWriter::Create();
    if (writer == nullptr) {
        HLXConsole::Print("Failed to get Traverser Interface  !");
    } else {
        HLXIIfwTraverser* traverser = nullptr;
        rc = HLXInputFileWriter::FindTraverser(*writer, traverser);
        if (FAILED(rc)) {
            HLXConsole::Print("Could not get the IFW Traverser");
        } else if (traverser != nullptr) {
            const VEXUnicodeString path =
                inputFilePath == nullptr ? _HollexFile1Path : VEXUnicodeString(inputFilePath);
            rc = traverser->WriteInputFile(path, cases);
            traverser->Release();
        }
    }
    if (FAILED(rc)) HLXConsole::Print("Input file writing failed");
    return rc;
}

HRESULT HLXBaseTestCase::WriteInputFileForAnalysisCase(int caseIndex, const char* inputFilePath)
{
    // Only the upper bound is tested; below 1 the list yields an empty entry. Kept.
    if (_AnalysisCases.Size() < caseIndex) return E_FAIL;
    const VEXISamAnalysisCase_var analysisCase = _AnalysisCases[caseIndex];
    return WriteInputFileForAnalysisCase(analysisCase, inputFilePath);
}
