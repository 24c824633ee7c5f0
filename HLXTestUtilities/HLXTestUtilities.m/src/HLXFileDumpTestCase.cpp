// SPDX-License-Identifier: Apache-2.0
// The test case that dumps a document's feature tree and writes its input files.
#include "HLXFileDumpTestCase.h"

#include "HLXConsole.h"
#include "HLXNumber.h"
#include "HLXPath.h"
#include "HLXProductUtilities.h"
#include "HLXToolsOptionsManager.h"

long HLXFileDumpTestCase::Process()
{
    return S_OK;
}

unsigned char HLXFileDumpTestCase::VerifyArguments(int argc)
{
    if (argc == 5) return 1;
    HLXConsole::Print(
        "ERROR in arguments\n"
        "Args are:\n"
        "\t1) Input Dir\n"
        "\t2) Input File (.VEXAnalysis) Name\n"
        "\t3) Output Dir\n"
        "\t4) HOLLEX File Name (.inp)\n");
    return 0;
}

long HLXFileDumpTestCase::PostProcess()
{
    HLXToolsOptionsManager options;
    options.SetWriteFlatInputFileFlag(0);

    VEXISamAnalysisManager_var manager;
    long rc = InitializeAnalysisCaseFromDocument();
    if (SUCCEEDED(rc)) rc = GetAnalysisManager(manager);
    if (SUCCEEDED(rc)) rc = InitializeNavigateObject(manager);

    const int count = _AnalysisCases.Size();
    if (count >= 1) {
        // These returns leave the document loaded; kept.
        const VEXISamAnalysisCase_var firstCase = _AnalysisCases[1];
        if (firstCase == nullptr) return E_FAIL;
        VEXDocument* const document = HLXAnalysisDocUtils::GetDocument(firstCase);
        if (document == nullptr) return E_FAIL;
        // This takes the place of a failure above, so that the files are written after it; kept.
        rc = HLXZPKVersionManager::HandleZPKVersioning(document, 0);
        if (FAILED(rc)) return rc;
    }

    if (SUCCEEDED(rc)) {
        const VEXUnicodeString fileName = HLXPath::FileName(_HollexFile1Path);
        SetDumpTreeParameters((fileName + "_FeatTree.txt").ConvertToChar(),
                              ("   " + fileName + "Feature Tree Dump").ConvertToChar());
        char openMode[] = "w";
        DumpFeatTree(openMode);

        // A case that cannot be written does not stop the others; kept.
        if (count >= 2) {
            for (int i = 1; i <= count; ++i) {
                const VEXUnicodeString path = _HollexFile1Path + "_case_" + HLXNumber::Decimal(i);
                WriteInputFileForAnalysisCase(i, path.ConvertToChar());
            }
        } else {
            WriteInputFileForAnalysisCase(1, nullptr);
        }
    }

    rc = HLXBaseTestCase::PostProcess();
    if (SUCCEEDED(rc)) HLXConsole::Print("Program Ends\n");
    return rc;
}
