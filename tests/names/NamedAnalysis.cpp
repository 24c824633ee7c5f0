// SPDX-License-Identifier: Apache-2.0
// Analysis documents for names.
#include "names/NamedAnalysis.h"

#include "host/analysis/AnalysisObjects.h"
#include "host/feature/FeatureTree.h"
#include "support/AnalysisDocuments.h"
#include "support/InputFileWriter.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace hlxtest {

namespace {

VEXISamAnalysisModel_var ModelOf(VEXDocument* document)
{
    VEXISamAnalysisManager_var manager;
    EXPECT_EQ(HLXAnalysisDocUtils::GetAnalysisManager(manager, document), S_OK);
    VEXISamAnalysisModel* model = nullptr;
    EXPECT_EQ(manager->GetCurrentAnalysisModel(model), S_OK);
    return VEXAdopt(model);
}

void Remove(VEXDocument*& document)
{
    if (document != nullptr) {
        EXPECT_EQ(VEXDocumentServices::Remove(*document, 1), S_OK);
    }
    document = nullptr;
}

vex::Feature& Below(vex::Feature& parent, const char* type)
{
    return parent.Tree()->Create(vex::LateTypes::Instance().Require(type), &parent);
}

}  // namespace

NamedAnalysis::NamedAnalysis()
{
    EXPECT_EQ(VEXDocumentServices::New("VEXAnalysis", _document), S_OK);
    AddCase(_document);
    vex::Feature& amplitude = Below(Model(), "HLXTabularAmplitudeLT");
    vex::Feature& step = Below(Only("HLXHacSimHistLT"), "HLXGeneralStaticStepLT");
    vex::Feature& gravity = Below(Below(step, "HLXLoadContainerLT"), "HLXGravity");
    EXPECT_EQ(gravity.Set("Amplitude", vex::Reference{amplitude.Id()}), S_OK);
    Below(Only("HLXJobContainerLT"), "HLXJobLT");
}

NamedAnalysis::~NamedAnalysis()
{
    Remove(_document);
}

vex::Feature& NamedAnalysis::Model() const
{
    return *vex::FeatureBehind(ModelOf(_document).Get());
}

vex::Feature& NamedAnalysis::Only(std::string_view lateType) const
{
    for (vex::Feature* const feature : FeaturesOf(Model())) {
        if (feature->Kind().name == lateType) return *feature;
    }
    ADD_FAILURE() << "there is no " << lateType;
    return Model();
}

std::vector<vex::Feature*> NamedAnalysis::Bearers() const
{
    std::vector<vex::Feature*> bearers{&Model()};
    for (const char* const type :
         {"HLXHacAnalysisCaseLT", "HLXHacSimHistLT", "HLXGeneralStaticStepLT", "HLXLoadContainerLT",
          "HLXGravity", "HLXTabularAmplitudeLT", "HLXJobLT"}) {
        bearers.push_back(&Only(type));
    }
    return bearers;
}

VEXISpecObject_var NamedAnalysis::Create(std::string_view lateType, const std::string& alias,
                                         vex::Feature& father) const
{
    const VEXISamAccess_var access = VEXShare(_document);
    VEXIContainer* container = nullptr;
    EXPECT_EQ(access->GetSpecContainer(container), S_OK);
    const VEXISamAnalysisModelFactory_var factory = VEXAdopt(container);
    return VEXAdopt(factory->CreateFeature(VEXUnicodeString(std::string(lateType)),
                                           VEXUnicodeString(alias), father.Face<VEXISpecObject>()));
}

void NamedAnalysis::Reopen(const std::string& fileName)
{
    const VEXUnicodeString path(_folder.File(fileName));
    ASSERT_EQ(VEXDocumentServices::SaveAs(*_document, path, "", 1), S_OK);
    Remove(_document);
    ASSERT_EQ(VEXDocumentServices::OpenDocument(path, _document, 0), S_OK);
}

std::string NamedAnalysis::Dump() const
{
    const VEXINavigateObject_var model = ModelOf(_document);
    HLXGenString text;
    EXPECT_EQ(DumpFeatureTree(model.Get(), 0, text), S_OK);
    return {text.c_str(), text.Length()};
}

std::string NamedAnalysis::Deck(bool flat) const
{
    VEXListValVEXBaseUnknown_var cases;
    EXPECT_EQ(HLXAnalysisDocUtils::GetAllAnalysisCases(cases, _document), S_OK);
    return InputFile(cases[1], flat ? 1 : 0);
}

HRESULT SetAlias(vex::Feature& feature, const std::string& alias)
{
    const VEXIAlias_var named = VEXShare<VEXBaseUnknown>(&feature);
    return named->SetAlias(VEXUnicodeString(alias));
}

std::string AliasOf(vex::Feature& feature)
{
    const VEXIAlias_var named = VEXShare<VEXBaseUnknown>(&feature);
    return std::string(named->GetAlias().View());
}

std::vector<vex::Feature*> FeaturesOf(vex::Feature& root)
{
    std::vector<vex::Feature*> features;
    vex::FeatureTree::Walk(root, [&](vex::Feature& feature, int) { features.push_back(&feature); });
    return features;
}

}  // namespace hlxtest
