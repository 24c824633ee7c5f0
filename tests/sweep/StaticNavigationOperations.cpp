// SPDX-License-Identifier: Apache-2.0
// The ways through the documents without a test case: to product, part and cells, to containers of
// a step, to features by name.
#include "sweep/Sweep.h"

#include "HLXAnalysisTestUtils.h"

namespace hlxtest::sweep {

namespace {

using Utils = HLXAnalysisTestUtils;

long FindProduct(World& w)
{
    VEXIProduct_var product;
    VEXISamAnalysisModel_var model;
    return Utils::GetProductDocFromAnalysisDoc(w.test._Document, product, model);
}

long FindPart(World& w)
{
    VEXISpecObject_var part;
    VEXILinkableObject_var link;
    VEXIContainer* container = nullptr;
    const long result =
        Utils::GetMechPartFeatFromProductDoc(w.test._RootProduct, part, link, container);
    if (container != nullptr) {
        container->Release();
    }
    return result;
}

long ListCells(World& w)
{
    VEXListPtrVEXFace faces;
    VEXListPtrVEXEdge edges;
    VEXListPtrVEXVertex vertices;
    VEXBody_var body;
    return Utils::GetSupportDataFromPartFeat(w.test._MechanicalPart, faces, edges, vertices, body);
}

long FindContainer(World& w, const char* lateType)
{
    VEXBaseUnknown_var container;
    return Utils::GetFeatContainer(lateType, w.step, container);
}

/// Looks for a container among the steps of all cases; containers have no name.
long FindByName(World& w, const char* setLateType, const char* name)
{
    VEXISpecObject_var feature;
    return Utils::GetFeatureByName("HLXLoadContainerLT", setLateType, name, feature,
                                   w.test._Document);
}

const Operation operations[] = {
    {"GetProductDocFromAnalysisDoc", 1, &World::Open, FindProduct},
    {"GetMechPartFeatFromProductDoc", 1, &World::FindProduct, FindPart},
    {"GetSupportDataFromPartFeat", 1, &World::FindPart, ListCells},
    {"GetFeatContainerThatIsThere", 1, &World::FindStep,
     [](World& w) { return FindContainer(w, "HLXLoadContainerLT"); }},
    {"GetFeatContainerOfFieldOutput", 1, &World::FindStep,
     [](World& w) { return FindContainer(w, "HLXFieldOutputRequestContainerLT"); }},
    {"GetFeatContainerOfHistoryOutput", 1, &World::FindStep,
     [](World& w) { return FindContainer(w, "HLXHistoryOutputRequestContainerLT"); }},
    {"GetFeatContainerThatIsNotMade", 1, &World::FindStep,
     [](World& w) { return FindContainer(w, "HLXDatOutputRequestContainerLT"); }},
    {"GetFeatureByName", 3, &World::Open,
     [](World& w) { return FindByName(w, "HLXGeneralStaticStepLT", ""); }},
    {"GetFeatureByNameThatIsNotThere", 3, &World::Open,
     [](World& w) { return Refused(FindByName(w, "HLXGeneralStaticStepLT", "Loads")); }},
    {"GetFeatureByNameWithoutSets", 3, &World::Open,
     [](World& w) -> long {
         return FindByName(w, "HLXRiksStepLT", "") == 1 ? S_OK : E_UNEXPECTED;
     }},
};

INSTANTIATE_TEST_SUITE_P(StaticNavigation, Sweep, testing::ValuesIn(operations), NameOfRow);

}  // namespace

}  // namespace hlxtest::sweep
