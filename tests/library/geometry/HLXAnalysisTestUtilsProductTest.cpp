// SPDX-License-Identifier: Apache-2.0
// From an analysis document to its product and its analysis model, without a test case.
#include "library/geometry/StaticProduct.h"

#include <filesystem>
#include <type_traits>

namespace hlxtest::statics {
namespace {

using Utils = HLXAnalysisTestUtils;

static_assert(
    std::is_same_v<decltype(&Utils::GetProductDocFromAnalysisDoc),
                   HRESULT (*)(VEXDocument*&, VEXIProduct_var&, VEXISamAnalysisModel_var&)>);

TEST_F(StaticProductTest, ProductAndModelAreFoundWithoutAWord)
{
    VEXDocument* const linked = Link(ProductSpecimen(folder, "box"));
    VEXDocument* const before = analysis.Get();
    EXPECT_EQ(Find(), (Outcome{S_OK, "", ""}));
    ASSERT_TRUE(product);
    EXPECT_TRUE(product == RootOf(linked));
    EXPECT_EQ(product->GetPartNumber(), VEXUnicodeString("box"));
    ASSERT_TRUE(model);
    EXPECT_TRUE(model == ModelAt(1));
    EXPECT_EQ(analysis.Get(), before);
}

TEST_F(StaticProductTest, TheProductIsReachedStepByStep)
{
    Link(ProductSpecimen(folder, "box"));
    EXPECT_EQ(CallsOf([&] { Utils::GetProductDocFromAnalysisDoc(analysis.Get(), product, model); }),
              (std::vector<std::string>{
                  "cast:VEXAnalysisDocument->VEXISamAccess(&)",
                  "VEXISamAccess::GetSpecContainer(&)",
                  "cast:VEXSamAnalysisContainer->VEXISamAnalysisContainer(&)",
                  "VEXISamAnalysisContainer::GetAnalysisManager(&)",
                  "VEXISamAnalysisManager::GetDocumentManager(&)",
                  "VEXISamAnalysisManager::GetAllAnalysisModels(&)",
                  "cast:VEXSamAnalysisModel->VEXISamAnalysisModel(&)",
                  "cast:VEXSamAnalysisModel->VEXINavigateObject(&)",
                  "VEXISamDocumentManager::GetLinkedDocuments(&)",
                  "cast:VEXProductDocument->VEXIDocRoots(&)",
                  "VEXIDocRoots::GetRoots()",
                  "cast:VEXProductNode->VEXIProduct(&)",
              }));
}

TEST_F(StaticProductTest, NothingButTheResultsIsHeld)
{
    Link(ProductSpecimen(folder, "box"));
    EXPECT_EQ(
        HeldAfter("", [&] { Utils::GetProductDocFromAnalysisDoc(analysis.Get(), product, model); }),
        (HeldCounts{{"VEXProductNode", 1}, {"VEXSamAnalysisModel", 1}}));
}

TEST_F(StaticProductTest, TheFirstModelAndTheFirstLinkAreTaken)
{
    AddModel(analysis.Get());
    VEXDocument* const box = Link(ProductSpecimen(folder, "box"));
    Link(ProductSpecimen(folder, "torus"));
    EXPECT_EQ(Find(), (Outcome{S_OK, "", ""}));
    EXPECT_TRUE(model == ModelAt(1));
    EXPECT_FALSE(model == ModelAt(2));
    EXPECT_TRUE(product == RootOf(box));
}

TEST_F(StaticProductTest, AnAssemblyIsAProductToo)
{
    VEXDocument* const linked = Link(SeveralPartsSpecimen(folder));
    EXPECT_EQ(Find(), (Outcome{S_OK, "", ""}));
    EXPECT_TRUE(product == RootOf(linked));
    EXPECT_EQ(product->GetPartNumber(), VEXUnicodeString("several"));
}

TEST_F(StaticProductTest, FormerResultsAreReplaced)
{
    Link(ProductSpecimen(folder, "box"));
    AddModel(analysis.Get());
    product = RootOf(Open(ProductSpecimen(folder, "torus")));
    model = ModelAt(2);
    EXPECT_EQ(Find(), (Outcome{S_OK, "", ""}));
    EXPECT_EQ(product->GetPartNumber(), VEXUnicodeString("box"));
    EXPECT_TRUE(model == ModelAt(1));
}

TEST_F(StaticProductTest, ADocumentWithoutLinksHasAModelOnly)
{
    EXPECT_EQ(Find(), (Outcome{E_FAIL, noLinks, ""}));
    EXPECT_TRUE(model == ModelAt(1));
    EXPECT_FALSE(product);
}

TEST_F(StaticProductTest, ADocumentWithoutLinksFailsWithAFormerProductToo)
{
    const VEXBaseUnknown_var former = RootOf(New("VEXProduct"));
    product = former;
    EXPECT_EQ(Find(), (Outcome{E_FAIL, noLinks, ""}));
    EXPECT_TRUE(product == former);
}

TEST_F(StaticProductTest, APartLinkedDirectlyIsNoProductAndNotReported)
{
    Link(PartSpecimen(folder, "box"));
    EXPECT_EQ(Find(), (Outcome{E_FAIL, "", ""}));
    EXPECT_FALSE(product);
    EXPECT_TRUE(model == ModelAt(1));
}

TEST_F(StaticProductTest, APartLinkedDirectlyTakesTheFormerProductAway)
{
    Link(PartSpecimen(folder, "box"));
    product = RootOf(New("VEXProduct"));
    EXPECT_EQ(Find(), (Outcome{E_FAIL, "", ""}));
    EXPECT_FALSE(product);
}

TEST_F(StaticProductTest, ALinkThatCannotBeOpenedHasNoRoots)
{
    const std::string path = ProductSpecimen(folder, "box");
    VEXDocument* const linked = Open(path);
    ASSERT_EQ(Links()->AddLink(linked), S_OK);
    Forget(linked);
    ASSERT_TRUE(std::filesystem::remove(path));
    VEXListPtrVEXDocument documents;
    const Outcome platform = OutcomeOf([&] { return Links()->GetLinkedDocuments(documents); });
    ASSERT_EQ(documents.Size(), 1);
    ASSERT_EQ(documents[1], nullptr);
    ASSERT_NE(platform.err, "");
    EXPECT_EQ(Find(), (Outcome{E_FAIL, noRoots, platform.err}));
    EXPECT_FALSE(product);
    EXPECT_TRUE(model == ModelAt(1));
}

TEST_F(StaticProductTest, NoDocumentAndOneOfAnotherTypeHaveNoAccess)
{
    for (VEXDocument* document : {static_cast<VEXDocument*>(nullptr), New("VEXPart")}) {
        VEXDocument* const before = document;
        EXPECT_EQ(OutcomeOf([&] {
                      return Utils::GetProductDocFromAnalysisDoc(document, product, model);
                  }),
                  (Outcome{E_FAIL, noAccess, ""}));
        EXPECT_EQ(document, before);
        EXPECT_FALSE(product);
        EXPECT_FALSE(model);
    }
}

TEST_F(StaticProductTest, WhereThereAreNoRootsAFormerProductStillCounts)
{
    Link(ProductSpecimen(folder, "box"));
    const VEXBaseUnknown_var former = RootOf(New("VEXProduct"));
    for (const char* const faults :
         {"VEXIDocRoots::GetRoots=null", "VEXIDocRoots::GetRoots=empty"}) {
        product = former;
        EXPECT_EQ(Find(faults), (Outcome{S_OK, noProduct, ""})) << faults;
        EXPECT_TRUE(product == former) << faults;
    }
}

}  // namespace
}  // namespace hlxtest::statics
