// SPDX-License-Identifier: Apache-2.0
#include "support/AnalysisDocuments.h"

#include "HLXProductUtilities.h"
#include "VEXComponents.h"

#include <gtest/gtest.h>

namespace hlxtest {

void AddCase(VEXDocument* document)
{
    void* object = nullptr;
    ASSERT_EQ(
        VEXInstantiateComponent("HLXHacAnalysisCaseFact", IID_HLXIHacAnalysisCaseFact, &object),
        S_OK);
    const auto factory = VEXAdopt(static_cast<HLXIHacAnalysisCaseFact*>(object));
    VEXISamAnalysisCase* analysisCase = nullptr;
    ASSERT_EQ(
        factory->CreateAnalysisCase(analysisCase, document, HLXIAnalysisCase::StructuralAnalysis),
        S_OK);
    analysisCase->Release();
}

void AddModel(VEXDocument* document)
{
    const VEXISamAccess_var access = VEXShare(document);
    VEXIContainer* container = nullptr;
    ASSERT_EQ(access->GetSpecContainer(container), S_OK);
    const VEXISamAnalysisModelFactory_var factory = VEXAdopt(container);
    VEXISamAnalysisManager_var manager;
    ASSERT_EQ(HLXAnalysisDocUtils::GetAnalysisManager(manager, document), S_OK);
    const VEXISpecObject_var father = manager;
    const auto model =
        VEXAdopt(factory->CreateFeature("VEXSamAnalysisModel", "Second", father.Get()));
    ASSERT_NE(model, nullptr);
}

AnalysisDocument::AnalysisDocument(int cases)
{
    EXPECT_EQ(VEXDocumentServices::New("VEXAnalysis", _document), S_OK);
    for (int i = 0; i < cases; ++i) {
        AddCase(_document);
    }
}

AnalysisDocument::~AnalysisDocument()
{
    if (_document != nullptr) {
        EXPECT_EQ(VEXDocumentServices::Remove(*_document, 1), S_OK);
    }
}

void AnalysisDocument::SaveAs(const std::string& path)
{
    ASSERT_EQ(VEXDocumentServices::SaveAs(*_document, VEXUnicodeString(path), "", 1), S_OK);
}

VEXDocument* AnalysisDocument::Release()
{
    return std::exchange(_document, nullptr);
}

void StoreAnalysisDocument(const std::string& path, int cases)
{
    AnalysisDocument document(cases);
    document.SaveAs(path);
}

}  // namespace hlxtest
