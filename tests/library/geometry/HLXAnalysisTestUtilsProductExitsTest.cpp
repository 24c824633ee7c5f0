// SPDX-License-Identifier: Apache-2.0
// Every exit on the way from an analysis document to its product and model: result, message, what
// was given by then, what is held.
#include "library/geometry/StaticProduct.h"

namespace hlxtest::statics {
namespace {

class StaticProductExitTest : public StaticProductTest, public testing::WithParamInterface<Exit>
{};

TEST_P(StaticProductExitTest, ReportsALineAndLeavesNothingHeld)
{
    VEXDocument* const linked = Link(ProductSpecimen(folder, "box"));
    EXPECT_EQ(Find(GetParam().faults), (Outcome{GetParam().result, GetParam().out, ""}));
    EXPECT_EQ(static_cast<bool>(product), GetParam().result == S_OK);
    if (!GiveToNobody(GetParam().faults)) {
        product.Reset();
        model.Reset();
        EXPECT_EQ(HeldAfter(GetParam().faults, [&] { FindAndForget(); }), HeldCounts{});
    }
    LetGoOfAll(linked);
}

INSTANTIATE_TEST_SUITE_P(
    Of, StaticProductExitTest,
    testing::Values(
        Exit{"NoAccess", "cast:VEXAnalysisDocument->VEXISamAccess=E_NOINTERFACE", E_FAIL, noAccess},
        Exit{"EmptyAccess", "cast:VEXAnalysisDocument->VEXISamAccess=null", E_FAIL, noAccess},
        Exit{"FailingFeatures", "VEXISamAccess::GetSpecContainer=E_ACCESSDENIED", E_FAIL,
             noFeatures},
        Exit{"FailingFeaturesThoughGiven", "VEXISamAccess::GetSpecContainer=E_UNEXPECTED,keep",
             E_FAIL, noFeatures},
        Exit{"PositiveFeatures", "VEXISamAccess::GetSpecContainer=S_FALSE,keep", S_OK, ""},
        Exit{"NoFeatures", "VEXISamAccess::GetSpecContainer=null", E_FAIL, noContainer},
        Exit{"NoContainer", "cast:VEXSamAnalysisContainer->VEXISamAnalysisContainer=E_NOINTERFACE",
             E_FAIL, noContainer},
        Exit{"EmptyContainer", "cast:VEXSamAnalysisContainer->VEXISamAnalysisContainer=null",
             E_FAIL, noContainer},
        Exit{"FailingManager", "VEXISamAnalysisContainer::GetAnalysisManager=E_ACCESSDENIED",
             E_FAIL, noManager},
        Exit{"FailingManagerThoughGiven",
             "VEXISamAnalysisContainer::GetAnalysisManager=E_UNEXPECTED,keep", E_FAIL, noManager},
        Exit{"PositiveManager", "VEXISamAnalysisContainer::GetAnalysisManager=S_FALSE,keep", S_OK,
             ""},
        Exit{"FailingLinks", "VEXISamAnalysisManager::GetDocumentManager=E_ACCESSDENIED", E_FAIL,
             "Could not get document manager\n"},
        Exit{"FailingLinksThoughGiven",
             "VEXISamAnalysisManager::GetDocumentManager=E_UNEXPECTED,keep", E_FAIL,
             "Could not get document manager\n"},
        Exit{"PositiveLinks", "VEXISamAnalysisManager::GetDocumentManager=S_FALSE,keep", S_OK, ""},
        Exit{"NoLinks", "VEXISamAnalysisManager::GetDocumentManager=null", E_FAIL, noLinks},
        Exit{"FailingModels", "VEXISamAnalysisManager::GetAllAnalysisModels=E_ACCESSDENIED", E_FAIL,
             noModels},
        Exit{"NoModels", "VEXISamAnalysisManager::GetAllAnalysisModels=empty", E_FAIL, noModels},
        Exit{"FailingModelsThoughGiven",
             "VEXISamAnalysisManager::GetAllAnalysisModels=E_UNEXPECTED,keep", S_OK, ""},
        Exit{"NoNavigation", "cast:VEXSamAnalysisModel->VEXINavigateObject=E_NOINTERFACE", S_OK,
             ""},
        Exit{"NoModel", "cast:VEXSamAnalysisModel->VEXISamAnalysisModel=E_NOINTERFACE", S_OK, ""},
        Exit{"FailingDocuments", "VEXISamDocumentManager::GetLinkedDocuments=E_ACCESSDENIED",
             E_FAIL, noLinks},
        Exit{"NoDocuments", "VEXISamDocumentManager::GetLinkedDocuments=empty", E_FAIL, noLinks},
        Exit{"FailingDocumentsThoughGiven",
             "VEXISamDocumentManager::GetLinkedDocuments=E_UNEXPECTED,keep", S_OK, ""},
        Exit{"NoDocRoots", "cast:VEXProductDocument->VEXIDocRoots=E_NOINTERFACE", E_FAIL, noRoots},
        Exit{"FailingDocRoots", "cast:VEXProductDocument->VEXIDocRoots=E_ACCESSDENIED", E_FAIL,
             noRoots},
        Exit{"PositiveDocRoots", "cast:VEXProductDocument->VEXIDocRoots=S_FALSE,keep", S_OK, ""},
        Exit{"EmptyDocRoots", "cast:VEXProductDocument->VEXIDocRoots=null", E_FAIL, noProduct},
        Exit{"NoRoots", "VEXIDocRoots::GetRoots=null", E_FAIL, noProduct},
        Exit{"EmptyRoots", "VEXIDocRoots::GetRoots=empty", E_FAIL, noProduct},
        Exit{"NoProduct", "cast:VEXProductNode->VEXIProduct=E_NOINTERFACE", E_FAIL, ""},
        Exit{"EmptyProduct", "cast:VEXProductNode->VEXIProduct=null", E_FAIL, ""}),
    NameOf);

class StaticProductOutputsTest : public StaticProductTest, public testing::WithParamInterface<Exit>
{
protected:
    StaticProductOutputsTest()
    {
        AddModel(analysis.Get());
        Link(ProductSpecimen(folder, "box"));
    }

    const VEXBaseUnknown_var formerProduct = RootOf(New("VEXProduct"));
};

TEST_P(StaticProductOutputsTest, OnlyWhatWasFoundByThenIsGiven)
{
    product = formerProduct;
    model = ModelAt(2);
    EXPECT_EQ(Find(GetParam().faults), (Outcome{E_FAIL, GetParam().out, ""}));
    EXPECT_TRUE(product == formerProduct);
    // The row's result says which model is to be there.
    EXPECT_TRUE(model == ModelAt(static_cast<int>(GetParam().result)));
}

INSTANTIATE_TEST_SUITE_P(
    Of, StaticProductOutputsTest,
    testing::Values(
        Exit{"Access", "cast:VEXAnalysisDocument->VEXISamAccess=E_FAIL", 2, noAccess},
        Exit{"Features", "VEXISamAccess::GetSpecContainer=E_FAIL", 2, noFeatures},
        Exit{"Container", "cast:VEXSamAnalysisContainer->VEXISamAnalysisContainer=E_FAIL", 2,
             noContainer},
        Exit{"Manager", "VEXISamAnalysisContainer::GetAnalysisManager=E_FAIL", 2, noManager},
        Exit{"Links", "VEXISamAnalysisManager::GetDocumentManager=E_FAIL", 2,
             "Could not get document manager\n"},
        Exit{"Models", "VEXISamAnalysisManager::GetAllAnalysisModels=empty", 2, noModels},
        Exit{"Documents", "VEXISamDocumentManager::GetLinkedDocuments=empty", 1, noLinks},
        Exit{"DocRoots", "cast:VEXProductDocument->VEXIDocRoots=E_FAIL", 1, noRoots}),
    NameOf);

TEST_F(StaticProductTest, AModelThatIsNoneTakesTheFormerAway)
{
    Link(ProductSpecimen(folder, "box"));
    model = ModelAt(1);
    EXPECT_EQ(Find("cast:VEXSamAnalysisModel->VEXISamAnalysisModel=E_NOINTERFACE"),
              (Outcome{S_OK, "", ""}));
    EXPECT_FALSE(model);
    EXPECT_TRUE(product);
}

TEST_F(StaticProductTest, AManagerThatWasNotGivenHasNoModels)
{
    Link(ProductSpecimen(folder, "box"));
    EXPECT_EQ(Find("VEXISamAnalysisContainer::GetAnalysisManager=null"),
              (Outcome{E_FAIL, noModels, ""}));
}

}  // namespace
}  // namespace hlxtest::statics
