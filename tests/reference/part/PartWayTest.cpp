// SPDX-License-Identifier: Apache-2.0
// From a part document to the feature that carries its shape.
#include "PartFixture.h"
#include "VEXProductStructure.h"
#include "support/Capture.h"

namespace {

using testing::HasSubstr;
using testing::IsEmpty;

class PartWay : public hlxtest::PartTest
{};

std::string AliasOf(const VEXBaseUnknown_var& feature)
{
    return std::string(VEXIAlias_var(feature)->GetAlias().View());
}

TEST_F(PartWay, LeadsFromTheContainerToTheLastShapedObject)
{
    VEXDocument& document = Open("box");
    EXPECT_EQ(AliasOf(PartOf(document)), "box");
    EXPECT_EQ(AliasOf(MainBodyOf(document)), "Main Body");
    const VEXISpecObject_var shape = MainBodyOf(document)->GetLastShapedObject();
    EXPECT_EQ(shape->GetType(), "VEXImportedShape");
    EXPECT_TRUE(shape->GetFather() == MainBodyOf(document));
    EXPECT_TRUE(VEXIGeometricalElement_var(shape)->GetBody());
}

TEST_F(PartWay, ResultOfTheBodyIsItsLastShape)
{
    VEXDocument& document = Open("box");
    Reshape(document, Open("cylinder"));
    const VEXIMechanicalTool_var tool = MainBodyOf(document);
    VEXListValVEXBaseUnknown_var results;
    ASSERT_EQ(VEXIBodyRequest_var(tool)->GetResults("", results), S_OK);
    ASSERT_EQ(results.Size(), 1);
    EXPECT_TRUE(results[1] == tool->GetLastShapedObject());
    const auto& shapes = vex::RootObject(Inside(document))->Children().front()->Children();
    ASSERT_NE(shapes.front(), shapes.back());
    EXPECT_EQ(results[1].Get(), shapes.back());
}

TEST_F(PartWay, SeesNothingInOtherViewContexts)
{
    VEXDocument& document = Open("box");
    const VEXIBodyRequest_var request = MainBodyOf(document);
    for (const char* const context : {"", "MfDefault3DView"}) {
        VEXListValVEXBaseUnknown_var results;
        VEXISpecObject_var mainBody;
        EXPECT_EQ(PartOf(document)->GetMainBody(context, mainBody), S_OK) << context;
        EXPECT_TRUE(mainBody) << context;
        EXPECT_EQ(request->GetResults(context, results), S_OK);
        EXPECT_EQ(results.Size(), 1) << context;
    }
    for (const char* const context : {"MfFoldedView", "mfdefault3dview", " "}) {
        VEXListValVEXBaseUnknown_var results;
        VEXISpecObject_var mainBody = MainBodyOf(document);
        EXPECT_EQ(PartOf(document)->GetMainBody(context, mainBody), E_FAIL) << context;
        EXPECT_FALSE(mainBody) << context;
        EXPECT_EQ(request->GetResults(context, results), S_OK);
        EXPECT_EQ(results.Size(), 0) << context;
    }
}

TEST_F(PartWay, OfAPartWithoutGeometryEndsAtItsBody)
{
    VEXDocument* made = nullptr;
    ASSERT_EQ(VEXDocumentServices::New("VEXPart", made), S_OK);
    for (VEXDocument* const document : {&Open("without_geometry"), made}) {
        ASSERT_TRUE(MainBodyOf(*document));
        EXPECT_FALSE(MainBodyOf(*document)->GetLastShapedObject());
        VEXListValVEXBaseUnknown_var results;
        EXPECT_EQ(VEXIBodyRequest_var(MainBodyOf(*document))->GetResults("", results), S_OK);
        EXPECT_EQ(results.Size(), 0);
    }
}

TEST_F(PartWay, SaysWhyThereIsNoBody)
{
    VEXDocument& document = Open("box");
    const VEXIGeometricalElement_var element = ElementOf(document);
    vex::RootObject(Inside(document))->Set("Geometry", std::int64_t{0});
    const hlxtest::Captured none = hlxtest::Capture([&] { EXPECT_FALSE(element->GetBody()); });
    EXPECT_THAT(none.err, HasSubstr("box.VEXPart': the part has no geometry. Import one"));
    vex::RootObject(Inside(document))->Set("Geometry", std::int64_t{77});
    const hlxtest::Captured unknown = hlxtest::Capture([&] { EXPECT_FALSE(element->GetBody()); });
    EXPECT_THAT(unknown.err, HasSubstr("box.VEXPart': the document has no geometry of number 77"));
    EXPECT_THAT(none.out + unknown.out, IsEmpty());
}

TEST_F(PartWay, OfARemovedDocumentAnswersNothing)
{
    VEXDocument& document = Open("box");
    const VEXIPartRequest_var part = PartOf(document);
    const VEXIMechanicalTool_var tool = MainBodyOf(document);
    const VEXIGeometricalElement_var element = ElementOf(document);
    ASSERT_EQ(VEXDocumentServices::Remove(document, 1), S_OK);
    VEXISpecObject_var mainBody = tool;
    EXPECT_EQ(part->GetMainBody("", mainBody), E_FAIL);
    EXPECT_FALSE(mainBody);
    EXPECT_FALSE(tool->GetLastShapedObject());
    VEXListValVEXBaseUnknown_var results;
    EXPECT_EQ(VEXIBodyRequest_var(tool)->GetResults("", results), E_FAIL);
    EXPECT_FALSE(element->GetBody());
}

TEST_F(PartWay, FeaturesOnItCanBeLinkedTo)
{
    VEXDocument& document = Open("box");
    const std::vector<VEXBaseUnknown_var> features{PartOf(document), MainBodyOf(document),
                                                   ElementOf(document)};
    for (const VEXBaseUnknown_var& feature : features) {
        const VEXILinkableObject_var linkable = feature;
        ASSERT_TRUE(linkable) << feature->IsA();
        EXPECT_EQ(linkable->GetDocument(), &document) << feature->IsA();
    }
}

}  // namespace
