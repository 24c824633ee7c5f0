// SPDX-License-Identifier: Apache-2.0
// Links and references that lead back to where they start: no damage, and no walk without end.
#include "DocumentContents.h"
#include "LimitedChild.h"
#include "LinkedProduct.h"
#include "support/AnalysisDocuments.h"

namespace {

using namespace damagetest;

class CircularLinks : public LinkedProduct
{};

TEST_F(CircularLinks, DocumentsThatUseEachOtherOpenWalkAndClose)
{
    ExpectLimited([&] {
        const std::string sub = folder.File("sub.VEXProduct");
        Store("VEXProduct", sub, [&](vex::Feature& root) {
            Use(root, top);
            Use(root, sub);
            Use(root, part);
        });
        Store("VEXProduct", top, [&](vex::Feature& root) {
            Use(root, sub);
            Use(root, top);
        });
        VEXDocument* const product = Open(top);
        int size = 0;
        std::string err;
        EXPECT_EQ(Walk(product, size, err), S_OK) << err;
        EXPECT_EQ(size, 7) << "two uses in top, three in sub, the part, and its body";
        EXPECT_EQ(Session().Documents().size(), 3U);
        EXPECT_EQ(VEXDocumentServices::Remove(*product, 0), S_OK);
        EXPECT_TRUE(Session().Documents().empty());
    });
}

TEST_F(CircularLinks, ReferencesInACircleAreNoDamage)
{
    const std::string path = folder.File("circle.VEXAnalysis");
    std::string before;
    {
        hlxtest::AnalysisDocument analysis(0);
        vex::Document& document = *vex::Document::From(analysis.Get());
        vex::Feature& root = *document.SpecContainer();
        const vex::LateType& type = vex::LateTypes::Instance().Require("HLXHacAnaStepSolLT");
        vex::Feature& one = document.Tree().Create(type, &root);
        vex::Feature& two = document.Tree().Create(type, &one);
        ASSERT_EQ(one.Set("AnalysisStep", vex::Reference{two.Id()}), S_OK);
        ASSERT_EQ(two.Set("AnalysisStep", vex::Reference{one.Id()}), S_OK);
        vex::Feature& self = document.Tree().Create(type, &two);
        ASSERT_EQ(self.Set("AnalysisStep", vex::Reference{self.Id()}), S_OK);
        analysis.SaveAs(path);
        before = FeaturesOf(document);
    }
    ExpectLimited([&] {
        VEXDocument* const document = Open(path);
        ASSERT_NE(document, nullptr);
        EXPECT_EQ(FeaturesOf(*vex::Document::From(document)), before);
    });
}

}  // namespace
