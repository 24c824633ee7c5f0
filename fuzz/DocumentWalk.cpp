// SPDX-License-Identifier: Apache-2.0
// Asks for everything once. What is answered is of no interest here; that it is answered is.
#include "DocumentWalk.h"

#include "FuzzProcess.h"
#include "HLXAmplitudes.h"
#include "HLXIIfwTraverser.h"
#include "HLXLoads.h"
#include "HLXProductUtilities.h"
#include "VEXComponents.h"

#include <filesystem>
#include <memory>

namespace hlxfuzz {

namespace {

using Objects = std::unique_ptr<VEXListValVEXBaseUnknown_var>;

/// Linked documents can lead back to the one that links them: a structure without end.
constexpr int kDeepestProduct = 6;
constexpr int kMostProducts = 200;

void WalkAttributes(const VEXISpecObject& feature)
{
    const std::unique_ptr<VEXListPtrVEXISpecAttribute> attributes(
        feature.ListAttributes("", "", ""));
    for (int i = 1; attributes != nullptr && i <= attributes->Size(); ++i) {
        const auto attribute = VEXAdopt((*attributes)[i]);
        Require(!attribute->GetName().IsEmpty(), "an attribute has a name");
        [[maybe_unused]] const auto target = VEXAdopt(attribute->GetValueObject());
    }
}

void WalkFeature(const VEXBaseUnknown_var& object)
{
    const VEXISpecObject_var feature = object;
    Require(feature != nullptr, "what a container holds is a feature");
    Require(!feature->GetType().IsEmpty(), "a feature has a late type");
    [[maybe_unused]] const VEXISpecObject_var father = feature->GetFather();
    WalkAttributes(*feature.Get());
    if (const VEXIAlias_var alias = object) {
        Require(alias->SetAlias(alias->GetAlias()) == S_OK || alias->GetAlias().IsEmpty(),
                "an alias is what an alias can be");
    }
    if (const VEXINavigateObject_var navigate = object) {
        const Objects children(navigate->GetChildren());
        Require(children != nullptr, "a feature that is there has children, be it none");
    }
    if (const VEXISamAnalysisSet_var set = object) {
        VEXListValVEXBaseUnknown_var features;
        set->GetAnalysisFeatures("", features);
    }
    if (const VEXISamAnalysisScan_var scan = object) {
        VEXListValVEXBaseUnknown_var found;
        scan->GetChildren("", found, 3);
    }
    if (const VEXISamAnalysisCase_var analysisCase = object) {
        VEXListValVEXBaseUnknown_var sets;
        analysisCase->GetAnalysisSets(sets);
    }
    if (const VEXISamSupport_var support = object) {
        VEXILinkableObject_var geometry;
        support->GetGeometry(geometry);
    }
    if (const HLXILoad_var load = object) {
        VEXISpecObject_var amplitude;
        load->GetAmplitude(amplitude);
    }
    if (const HLXIAmplitude_var amplitude = object) {
        HLXCftArrayHLXCftArrayDouble table;
        amplitude->GetData(table);
    }
    if (const HLXIAnalysisCase_var analysisCase = object) {
        HLXIAnalysisCase::analysisTypeEnum type{};
        analysisCase->GetAnalysisType(type);
    }
}

void WalkMembers(VEXIContainer* raw)
{
    const auto container = VEXAdopt(raw);
    if (!container) {
        return;
    }
    const Objects members(container->ListMembers("VEXISpecObject"));
    Require(members != nullptr, "a container that is there lists its members");
    Require(container->GetMemberCount("VEXISpecObject") == members->Size(),
            "a container counts what it lists");
    for (int i = 1; i <= members->Size(); ++i) {
        WalkFeature((*members)[i]);
    }
}

void WalkContainers(const VEXBaseUnknown_var& document)
{
    const VEXIContainerOfDocument_var containers = document;
    if (!containers) {
        return;
    }
    VEXIContainer* container = nullptr;
    containers->GetSpecContainer(container);
    WalkMembers(container);
    container = nullptr;
    containers->GetBRepContainer(container);
    WalkMembers(container);
}

void WalkProducts(const VEXBaseUnknown_var& object, int depth, int& left)
{
    const VEXIProduct_var product = object;
    if (!product || depth > kDeepestProduct || --left < 0) {
        return;
    }
    [[maybe_unused]] const VEXUnicodeString number = product->GetPartNumber();
    if (const VEXILinkableObject_var linkable = object) {
        linkable->GetDocument();
    }
    const Objects children(product->GetChildren("VEXIProduct"));
    for (int i = 1; children != nullptr && i <= children->Size(); ++i) {
        WalkProducts((*children)[i], depth + 1, left);
    }
}

void WalkRoots(const VEXBaseUnknown_var& document)
{
    const VEXIDocRoots_var access = document;
    if (!access) {
        return;
    }
    const Objects roots(access->GetRoots());
    int left = kMostProducts;
    for (int i = 1; roots != nullptr && i <= roots->Size(); ++i) {
        WalkProducts((*roots)[i], 0, left);
        if (const VEXIDescendants_var descendants = (*roots)[i]) {
            VEXListValVEXISpecObject_var all;
            descendants->GetAllChildren("VEXISpecObject", all);
        }
    }
}

void WalkManager(const VEXISamAnalysisManager_var& manager)
{
    VEXISamAnalysisModel* current = nullptr;
    manager->GetCurrentAnalysisModel(current);
    [[maybe_unused]] const auto model = VEXAdopt(current);
    VEXListValVEXBaseUnknown_var models;
    manager->GetAllAnalysisModels(models);
    VEXISamDocumentManager_var documentManager;
    manager->GetDocumentManager(documentManager);
    if (documentManager) {
        VEXListPtrVEXDocument documents;
        documentManager->GetLinkedDocuments(documents);
    }
}

void WriteInputFiles(VEXListValVEXBaseUnknown_var& cases)
{
    const VEXBaseUnknown* const writer =
        VEXCreateExternalObject("HLXIfwTraverser", nullptr, "HLXIfwExportTraverser", nullptr);
    void* object = nullptr;
    Require(writer != nullptr && SUCCEEDED(writer->QueryInterface(IID_HLXIIfwTraverser, &object)),
            "the writer of input files is there");
    const auto traverser = VEXAdopt(static_cast<HLXIIfwTraverser*>(object));
    traverser->WriteInputFile(VEXUnicodeString(InFolder("all.inp")), cases);
    for (int i = 1; i <= cases.Size(); ++i) {
        VEXListValVEXBaseUnknown_var one;
        one.Append(cases[i]);
        traverser->WriteInputFile(VEXUnicodeString(InFolder("one.inp")), one);
    }
    std::filesystem::remove(InFolder("all.inp"));
    std::filesystem::remove(InFolder("one.inp"));
}

}  // namespace

void WalkDocument(VEXDocument& document)
{
    const VEXBaseUnknown_var object = VEXShare<VEXBaseUnknown>(&document);
    WalkContainers(object);
    WalkRoots(object);
    VEXISamAnalysisManager_var manager;
    HLXAnalysisDocUtils::GetAnalysisManager(manager, &document);
    if (manager) {
        WalkManager(manager);
    }
    VEXListValVEXBaseUnknown_var cases;
    HLXAnalysisDocUtils::GetAllAnalysisCases(cases, &document);
    if (cases.Size() > 0) {
        WriteInputFiles(cases);
    }
    HLXZPKVersionManager::HandleZPKVersioning(&document, 0);
}

}  // namespace hlxfuzz
