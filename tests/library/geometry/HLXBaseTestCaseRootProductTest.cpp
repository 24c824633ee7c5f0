// SPDX-License-Identifier: Apache-2.0
// From the analysis document to the root product that it is linked to.
#include "library/geometry/GeometryFixture.h"

#include <filesystem>

namespace hlxtest {
namespace {

class RootProductTest : public WatchedGeometryTest
{
protected:
    Outcome Initialize(const char* faults = "")
    {
        const VEXISamAnalysisManager_var manager = Manager();
        return RunWith(faults, [&] { return testCase.InitializeRootProduct(manager); });
    }
};

TEST_F(RootProductTest, IsTheRootOfTheLinkedProduct)
{
    Link(ProductSpecimen(folder, "box"));
    EXPECT_EQ(Initialize(), (Outcome{S_OK, "", ""}));
    ASSERT_NE(testCase._RootProduct, nullptr);
    EXPECT_STREQ(testCase._RootProduct->IsA(), "VEXProductNode");
    EXPECT_EQ(testCase._RootProduct->GetPartNumber(), "box");
    EXPECT_EQ(AliasOf(testCase._RootProduct), "box");
}

TEST_F(RootProductTest, IsThatOfTheFirstOfSeveralLinks)
{
    Link(ProductSpecimen(folder, "torus"));
    Link(ProductSpecimen(folder, "box"));
    EXPECT_EQ(Initialize(), (Outcome{S_OK, "", ""}));
    EXPECT_EQ(AliasOf(testCase._RootProduct), "torus");
}

/// Where a test records for itself.
class RootProductWayTest : public GeometryTest
{};

TEST_F(RootProductWayTest, IsAllThatIsSetAndHeld)
{
    Link(ProductSpecimen(folder, "box"));
    const VEXISamAnalysisManager_var manager = Manager();
    Recording recording;
    ASSERT_EQ(testCase.InitializeRootProduct(manager), S_OK);
    EXPECT_EQ(vex::probe::HeldObjects(), (Held{{"VEXProductNode", 1}}));
    EXPECT_EQ(References(*testCase._RootProduct.Get()), 1U);
    EXPECT_EQ(References(*manager.Get()), 1U);
    EXPECT_EQ(testCase._PartLink, nullptr);
    EXPECT_EQ(testCase._PartDocContainer, nullptr);
    EXPECT_EQ(testCase._MechanicalPart, nullptr);
    EXPECT_EQ(testCase._Body, nullptr);
    EXPECT_EQ(testCase._PartIndex, 1);
}

TEST_F(RootProductWayTest, IsReachedStepByStep)
{
    Link(ProductSpecimen(folder, "box"));
    const VEXISamAnalysisManager_var manager = Manager();
    EXPECT_EQ(CallsOf([&] { testCase.InitializeRootProduct(manager); }),
              (std::vector<std::string>{
                  "VEXISamAnalysisManager::GetDocumentManager(&)",
                  "VEXISamDocumentManager::GetLinkedDocuments(&)",
                  "cast:VEXProductDocument->VEXIDocRoots(&)",
                  "VEXIDocRoots::GetRoots()",
                  "cast:VEXProductNode->VEXIProduct(&)",
              }));
}

TEST_F(RootProductTest, IsEmptyWithoutAWordWhenTheLinkLeadsToAPart)
{
    Link(PartSpecimen(folder, "box"));
    EXPECT_EQ(Initialize(), (Outcome{S_OK, "", ""}));
    EXPECT_EQ(testCase._RootProduct, nullptr);
}

TEST_F(RootProductTest, NeedsALink)
{
    EXPECT_EQ(Initialize(), (Outcome{E_FAIL, kNoLinkedGeometry, ""}));
    EXPECT_EQ(testCase._RootProduct, nullptr);
}

TEST_F(RootProductTest, NeedsAManager)
{
    Link(ProductSpecimen(folder, "box"));
    EXPECT_EQ(OutcomeOf([&] { return testCase.InitializeRootProduct(nullptr); }),
              (Outcome{E_FAIL, kNoLinkedGeometry, ""}));
}

TEST_F(RootProductTest, NeedsADocumentThatCanBeOpened)
{
    const std::string path = ProductSpecimen(folder, "box");
    Link(path);
    Link(ProductSpecimen(folder, "torus"));
    for (const vex::Document* const open : vex::DocumentSession::Instance().Documents()) {
        if (open->Path() == path) {
            ASSERT_EQ(VEXDocumentServices::Remove(*open->AsVEXDocument(), 1), S_OK);
            break;
        }
    }
    std::filesystem::remove(path);
    EXPECT_EQ(Initialize(), (Outcome{E_FAIL, kInvalidDocument,
                                     "vex: linked document: '" + path +
                                         "': there is no such file. Check the path.\n"}));
    EXPECT_EQ(testCase._RootProduct, nullptr);
}

TEST_F(RootProductTest, NeedsADocumentWithRoots)
{
    AnalysisDocument other(0);
    other.SaveAs(folder.File("other.VEXAnalysis"));
    Link(folder.File("other.VEXAnalysis"));
    EXPECT_EQ(Initialize(), (Outcome{E_NOINTERFACE, kNoRootDocuments, ""}));
    EXPECT_EQ(testCase._RootProduct, nullptr);
}

class RootProductExitTest : public RootProductTest, public testing::WithParamInterface<GeometryExit>
{};

TEST_P(RootProductExitTest, FailsWithAMessageAndKeepsAFormerProduct)
{
    const std::string path = ProductSpecimen(folder, "box");
    Link(path);
    ASSERT_EQ(Initialize(), (Outcome{S_OK, "", ""}));
    const VEXIProduct_var former = testCase._RootProduct;
    EXPECT_EQ(Initialize(GetParam().faults), (Outcome{GetParam().result, GetParam().out, ""}));
    EXPECT_EQ(testCase._RootProduct.Get(), former.Get());
    LetGoOfDocument(path);
}

INSTANTIATE_TEST_SUITE_P(
    Of, RootProductExitTest,
    testing::Values(
        GeometryExit{"FailingManager", "VEXISamAnalysisManager::GetDocumentManager=E_ACCESSDENIED",
                     E_ACCESSDENIED, kNoDocumentManager},
        GeometryExit{"FailingManagerThoughGiven",
                     "VEXISamAnalysisManager::GetDocumentManager=E_UNEXPECTED,keep", E_UNEXPECTED,
                     kNoDocumentManager},
        GeometryExit{"NoManager", "VEXISamAnalysisManager::GetDocumentManager=null", E_FAIL,
                     kNoLinkedGeometry},
        GeometryExit{"FailingLinks", "VEXISamDocumentManager::GetLinkedDocuments=E_ACCESSDENIED",
                     E_FAIL, kNoLinkedGeometry},
        GeometryExit{"FailingLinksThoughGiven",
                     "VEXISamDocumentManager::GetLinkedDocuments=E_ACCESSDENIED,keep", E_FAIL,
                     kNoLinkedGeometry},
        GeometryExit{"NoLinks", "VEXISamDocumentManager::GetLinkedDocuments=empty", E_FAIL,
                     kNoLinkedGeometry},
        GeometryExit{"NoRootsInterface", "cast:VEXProductDocument->VEXIDocRoots=E_NOINTERFACE",
                     E_NOINTERFACE, kNoRootDocuments},
        GeometryExit{"FailingRootsInterface",
                     "cast:VEXProductDocument->VEXIDocRoots=E_ACCESSDENIED", E_ACCESSDENIED,
                     kNoRootDocuments},
        GeometryExit{"FailingRootsInterfaceThoughGiven",
                     "cast:VEXProductDocument->VEXIDocRoots=E_UNEXPECTED,keep", E_UNEXPECTED,
                     kNoRootDocuments},
        GeometryExit{"EmptyRootsInterface", "cast:VEXProductDocument->VEXIDocRoots=null", E_FAIL,
                     kNoProduct},
        GeometryExit{"NoRoots", "VEXIDocRoots::GetRoots=null", E_FAIL, kNoProduct},
        GeometryExit{"EmptyRoots", "VEXIDocRoots::GetRoots=empty", E_FAIL, kNoProduct}),
    NameOfExit);

class RootProductSuccessTest : public RootProductTest,
                               public testing::WithParamInterface<GeometryExit>
{};

TEST_P(RootProductSuccessTest, AnswersTheResultOfTheQueryForRoots)
{
    Link(ProductSpecimen(folder, "box"));
    EXPECT_EQ(Initialize(GetParam().faults), (Outcome{GetParam().result, GetParam().out, ""}));
    EXPECT_EQ(AliasOf(testCase._RootProduct), "box");
}

INSTANTIATE_TEST_SUITE_P(
    Of, RootProductSuccessTest,
    testing::Values(
        GeometryExit{"PositiveManager", "VEXISamAnalysisManager::GetDocumentManager=S_FALSE,keep",
                     S_OK, ""},
        GeometryExit{"PositiveLinks", "VEXISamDocumentManager::GetLinkedDocuments=S_FALSE,keep",
                     S_OK, ""},
        GeometryExit{"PositiveRoots", "cast:VEXProductDocument->VEXIDocRoots=S_FALSE,keep", S_FALSE,
                     ""}),
    NameOfExit);

TEST_F(RootProductTest, IsForgottenWhenTheRootIsNoProduct)
{
    Link(ProductSpecimen(folder, "box"));
    for (const char* const way : {"E_NOINTERFACE", "null"}) {
        ASSERT_EQ(Initialize(), (Outcome{S_OK, "", ""}));
        ASSERT_NE(testCase._RootProduct, nullptr);
        EXPECT_EQ(Initialize((std::string("cast:VEXProductNode->VEXIProduct=") + way).c_str()),
                  (Outcome{S_OK, "", ""}));
        EXPECT_EQ(testCase._RootProduct, nullptr) << way;
    }
}

}  // namespace
}  // namespace hlxtest
