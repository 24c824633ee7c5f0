// SPDX-License-Identifier: Apache-2.0
// From a product to the mechanical part of its first child, without a test case.
#include "host/product/ProductStructure.h"
#include "library/geometry/StaticPart.h"

#include <filesystem>
#include <type_traits>

namespace hlxtest::statics {
namespace {

using Utils = HLXAnalysisTestUtils;

static_assert(std::is_same_v<decltype(&Utils::GetMechPartFeatFromProductDoc),
                             HRESULT (*)(VEXIProduct_var&, VEXISpecObject_var&,
                                         VEXILinkableObject_var&, VEXIContainer*&)>);

TEST_F(StaticPartTest, PartLinkAndContainerOfAccessesAreFoundWithoutAWord)
{
    product = RootOf(Open(ProductSpecimen(folder, "box")));
    const VEXBaseUnknown_var before = product;
    EXPECT_EQ(Find(), (Outcome{S_OK, "", ""}));
    ExpectPartOf(PartDocument(Open(folder.File("box.VEXPart"))));
    EXPECT_EQ(part->GetType(), VEXUnicodeString("VEXPart"));
    EXPECT_STREQ(container->IsA(), "VEXBRepContainer");
    EXPECT_TRUE(product == before);
}

TEST_F(StaticPartTest, OfSeveralPartsTheFirstIsTaken)
{
    product = RootOf(Open(SeveralPartsSpecimen(folder)));
    EXPECT_EQ(Find(), (Outcome{S_OK, "", ""}));
    ExpectPartOf(PartDocument(Open(folder.File("box.VEXPart"))));
}

TEST_F(StaticPartTest, APartWithoutGeometryIsAPartToo)
{
    product = RootOf(Open(ProductSpecimen(folder, "without_geometry")));
    EXPECT_EQ(Find(), (Outcome{S_OK, "", ""}));
    ExpectPartOf(PartDocument(Open(folder.File("without_geometry.VEXPart"))));
}

TEST_F(StaticPartTest, ThePartIsReachedStepByStep)
{
    product = RootOf(Open(SeveralPartsSpecimen(folder)));
    EXPECT_EQ(
        CallsOf([&] { Utils::GetMechPartFeatFromProductDoc(product, part, link, container); }),
        (std::vector<std::string>{
            "VEXIProduct::GetChildren(\"VEXIProduct\")",
            "cast:VEXProductNode->VEXIDescendants(&)",
            "VEXIDescendants::GetAllChildren(\"VEXILinkableObject\", &)",
            "cast:VEXPart->VEXILinkableObject(&)",
            "VEXILinkableObject::GetDocument()",
            "cast:VEXPartDocument->VEXIContainerOfDocument(&)",
            "VEXIContainerOfDocument::GetSpecContainer(&)",
            "VEXIContainerOfDocument::GetBRepContainer(&)",
            "cast:VEXPrtContainer->VEXIPrtContainer(&)",
            "VEXIPrtContainer::GetMechanicalPart()",
        }));
}

TEST_F(StaticPartTest, NothingButTheResultsIsHeld)
{
    product = RootOf(Open(ProductSpecimen(folder, "box")));
    const unsigned long held = References(*product.Get());
    EXPECT_EQ(
        HeldAfter(
            "",
            [&] { return Utils::GetMechPartFeatFromProductDoc(product, part, link, container); }),
        (HeldCounts{{"VEXPart", 1}, {"VEXBRepContainer", 1}}));
    EXPECT_EQ(References(*container), 1U);
    EXPECT_EQ(References(*product.Get()), held);
}

TEST_F(StaticPartTest, FormerResultsAreReplacedAndAFormerContainerIsLeftToTheCaller)
{
    product = RootOf(Open(ProductSpecimen(folder, "torus")));
    ASSERT_EQ(Find(), (Outcome{S_OK, "", ""}));
    const VEXIContainer_var former = VEXAdopt(container);
    product = RootOf(Open(ProductSpecimen(folder, "box")));
    EXPECT_EQ(Find(), (Outcome{S_OK, "", ""}));
    ExpectPartOf(PartDocument(Open(folder.File("box.VEXPart"))));
    EXPECT_EQ(References(*former.Get()), 1U);
}

// --- Products without a part ---------------------------------------------------------------------

TEST_F(StaticPartTest, NoProductHasNoStructure)
{
    EXPECT_EQ(Find(), (Outcome{E_FAIL, noStructure, ""}));
    EXPECT_FALSE(part);
    EXPECT_FALSE(link);
    EXPECT_EQ(container, nullptr);
}

TEST_F(StaticPartTest, AProductWithoutChildrenHasNoStructure)
{
    product = RootOf(New("VEXProduct"));
    EXPECT_EQ(Find(), (Outcome{E_FAIL, noStructure, ""}));
}

TEST_F(StaticPartTest, AProductWhoseDocumentIsGoneHasNoStructure)
{
    VEXDocument* const document = Open(ProductSpecimen(folder, "box"));
    product = RootOf(document);
    Forget(document);
    EXPECT_EQ(Find(), (Outcome{E_FAIL, noStructure, ""}));
}

TEST_F(StaticPartTest, TheProductOfAPartLinkedDirectlyAndOfNoLinksIsNone)
{
    VEXISamAnalysisModel_var model;
    OutcomeOf([&] { return Utils::GetProductDocFromAnalysisDoc(analysis.Get(), product, model); });
    EXPECT_EQ(Find(), (Outcome{E_FAIL, noStructure, ""}));
    Link(PartSpecimen(folder, "box"));
    OutcomeOf([&] { return Utils::GetProductDocFromAnalysisDoc(analysis.Get(), product, model); });
    EXPECT_EQ(Find(), (Outcome{E_FAIL, noStructure, ""}));
}

TEST_F(StaticPartTest, AChildThatUsesNothingHasNoPart)
{
    VEXDocument* const document = New("VEXProduct");
    product = RootOf(document);
    vex::Document& inside = *vex::Document::From(document);
    vex::Feature& root = *vex::RootObject(inside);
    inside.Tree().Create(root.Kind(), &root);
    EXPECT_EQ(Find(), (Outcome{E_FAIL, noPart, ""}));
}

TEST_F(StaticPartTest, AChildWhosePartCannotBeOpenedHasNoPart)
{
    product = RootOf(Open(ProductSpecimen(folder, "box")));
    ASSERT_TRUE(std::filesystem::remove(folder.File("box.VEXPart")));
    const std::unique_ptr<VEXListValVEXBaseUnknown_var> children(
        product->GetChildren("VEXIProduct"));
    ASSERT_EQ(children->Size(), 1);
    const VEXIDescendants_var child = (*children)[1];
    VEXListValVEXISpecObject_var descendants;
    const Outcome platform =
        OutcomeOf([&] { return child->GetAllChildren("VEXILinkableObject", descendants); });
    ASSERT_EQ(platform.result, E_FAIL);
    ASSERT_NE(platform.err, "");
    EXPECT_EQ(Find(), (Outcome{E_FAIL, noPart, platform.err}));
}

}  // namespace
}  // namespace hlxtest::statics
