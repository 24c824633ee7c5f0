// SPDX-License-Identifier: Apache-2.0
// HLXBaseTestCase: the analysis document and the way from it to manager, model and cases.
#include "HLXBaseTestCase.h"

#include "HLXConsole.h"
#include "HLXNavigation.h"
#include "HLXProductUtilities.h"
#include "VEXComponents.h"
#include "VEXDocumentServices.h"

long HLXBaseTestCase::OpenDocument()
{
    if (_InputFilePath.IsEmpty()) return E_FAIL;
    const long rc = VEXDocumentServices::OpenDocument(_InputFilePath, _Document, 0);
    if (SUCCEEDED(rc) && _Document != nullptr) {
        HLXConsole::Print("Open Document ", _InputFilePath, " OK\n");
    } else {
        // No blank before the path, and a success without a document stays one; both kept.
        HLXConsole::Print("ERROR in opening document", _InputFilePath, "\n");
    }
    return rc;
}

long HLXBaseTestCase::NewDocument()
{
    // The path of the document serves as its type; kept.
    const long rc = VEXDocumentServices::New(_InputFilePath, _Document);
    if (SUCCEEDED(rc) && _Document != nullptr) {
        HLXConsole::Print("**********create doc ok\n");
    } else {
        HLXConsole::Print("**********ERROR in creating analysis document:", _InputFilePath,
                          " hr:", std::to_string(rc));
        HLXConsole::EndLineAndFlush();
    }
    return rc;
}

long HLXBaseTestCase::SetCurrentDocument(const char* path)
{
    // The former document is forgotten, not removed; kept.
    _InputFilePath = path;
    _Document = nullptr;
    return OpenDocument();
}

long HLXBaseTestCase::GetAnalysisManager(VEXISamAnalysisManager_var& manager)
{
    const char* message = nullptr;
    const long rc =
        HLXNavigation::FindAnalysisManager(_Document, _AnalysisContainer, manager, message);
    // No message of this operation has an end of line; kept.
    HLXConsole::Print(message);
    return rc;
}

long HLXBaseTestCase::GetAnalysisModel(VEXISamAnalysisModel_var& model)
{
    // The result is not looked at, the handle tells; kept.
    VEXISamAnalysisManager_var manager;
    GetAnalysisManager(manager);

    VEXISamAnalysisModel* current = nullptr;
    long rc = E_FAIL;
    if (manager) rc = manager->GetCurrentAnalysisModel(current);
    if (current == nullptr) {
        // No end of line; kept.
        HLXConsole::Print("No current analysis model found");
        return E_FAIL;
    }
    // The pointer of a failed call is not touched; kept.
    if (SUCCEEDED(rc)) model = VEXAdopt(current);
    return rc;
}

long HLXBaseTestCase::InitializeAnalysisCaseFromDocument()
{
    VEXISamAnalysisManager_var manager;
    VEXListValVEXBaseUnknown_var models;
    long rc = GetAnalysisManager(manager);
    if (SUCCEEDED(rc) && manager) rc = manager->GetAllAnalysisModels(models);
    if (FAILED(rc) || models.Size() == 0) {
        HLXConsole::Print("ERROR No analysis models found.\n");
        return E_FAIL;
    }
    const VEXISamAnalysisModel_var model = models[1];
    if (model == nullptr) {
        HLXConsole::Print("ERROR AnalysisModel does not implement VEXISamAnalysisModel!??\n");
        return E_FAIL;
    }
    VEXListValVEXBaseUnknown_var cases;
    // The list tells, the result is not looked at; kept.
    model->GetAnalysisCases(cases);
    if (cases.Size() == 0) {
        HLXConsole::Print("ERROR Could not get the Analysis Case!\n");
        return E_FAIL;
    }
    _AnalysisCases = cases;
    return rc;
}

long HLXBaseTestCase::GetSpecificAnalysisCase(VEXUnicodeString& name,
                                              VEXISamAnalysisCase_var& analysisCase)
{
    VEXListValVEXBaseUnknown_var cases;
    const HRESULT rc = HLXAnalysisDocUtils::GetAllAnalysisCases(cases, _Document);
    if (FAILED(rc) || cases.Size() == 0) return E_FAIL;
    for (int i = 1; i <= cases.Size(); ++i) {
        const VEXIAlias_var alias = cases[i];
        // Ends the search even if a later case would match; kept.
        if (alias == nullptr) return E_FAIL;
        if (alias->GetAlias().Compare(name) == VEXUnicodeString::Identical) {
            analysisCase = cases[i];
            break;
        }
    }
    // Success also when no case bears the name; kept.
    return S_OK;
}

long HLXBaseTestCase::AddAnalysisCase(unsigned char withElementBehavior,
                                      HLXIAnalysisCase::analysisTypeEnum type)
{
    if (_Document == nullptr) {
        HLXConsole::Print("Failed to get the Analysis case\n");
        return E_FAIL;
    }
    // Neither factory is released; kept.
    void* factory = nullptr;
    long rc =
        VEXInstantiateComponent("HLXHacAnalysisCaseFact", IID_HLXIHacAnalysisCaseFact, &factory);
    if (factory == nullptr) return E_NOINTERFACE;

    VEXISamAnalysisCase* analysisCase = nullptr;
    if (SUCCEEDED(rc)) {
        rc = static_cast<HLXIHacAnalysisCaseFact*>(factory)->CreateAnalysisCase(analysisCase,
                                                                                _Document, type);
    }
    // A case that came with a failure is appended too; kept.
    if (analysisCase != nullptr) _AnalysisCases.Append(VEXAdopt(analysisCase));
    if (FAILED(rc)) {
        HLXConsole::Print("Failed to get the Analysis case\n");
        return rc;
    }
    if (withElementBehavior == 1) {
        void* behaviorFactory = nullptr;
        rc = VEXInstantiateComponent("HLXElementBehaviorFact", IID_HLXIElementBehaviorFact,
                                     &behaviorFactory);
        // Whether the behavior was made is not looked at; kept.
        if (behaviorFactory != nullptr) {
            static_cast<HLXIElementBehaviorFact*>(behaviorFactory)
                ->CreateElementBehavior(analysisCase);
        }
    }
    return rc;
}

long HLXBaseTestCase::InitializeNavigateObject(VEXISamAnalysisManager_var manager)
{
    VEXListValVEXBaseUnknown_var models;
    long rc = S_OK;
    if (manager) rc = manager->GetAllAnalysisModels(models);
    if (FAILED(rc)) return rc;
    // The size is not looked at first; kept.
    _NavigateObject = models[1];
    if (_NavigateObject == nullptr) {
        // No end of line; kept.
        HLXConsole::Print("Navigate Object not found");
        return E_FAIL;
    }
    return rc;
}

VEXListValVEXBaseUnknown_var* HLXBaseTestCase::GetChildren()
{
    return _RootProduct ? _RootProduct->GetChildren("VEXIProduct") : nullptr;
}
