// SPDX-License-Identifier: Apache-2.0
// A hundred thousand loads with supports: the part's shape is read and its digest reckoned once,
// not once for each of them, else this would not end in time.
#include "reference/analysis/EntityFixture.h"

#include "host/part/Region.h"

namespace {

constexpr std::size_t count = 100000;

class ManySupports : public hlxtest::EntityTest
{
protected:
    void CheckAll(vex::Document& document)
    {
        std::size_t resolved = 0;
        std::string error;
        vex::FeatureTree::Walk(*document.SpecContainer(), [&](vex::Feature& feature, int) {
            if (feature.Kind().IsKindOf(vex::regionType)) {
                resolved += vex::ResolveRegion(feature, error) != nullptr ? 1 : 0;
            }
        });
        EXPECT_EQ(resolved, count) << error;
    }
};

TEST_F(ManySupports, AreAddedStoredAndFoundAgain)
{
    const std::string path = folder.File("many.VEXAnalysis");
    analysis.SaveAs(path);
    VEXDocument& box = Open("box");
    VEXBody_var body = BodyOf(box);
    const VEXISpecObject_var part = PartFeature(box);
    const VEXILinkableObject_var access = AccessTo(box, body, 2, 5);
    const VEXILinkableObject_var main(MainBodyOf(box));
    VEXILinkableObject_var face = CellOf(body, 2, 3);
    for (std::size_t i = 0; i < count; ++i) {
        if (i == count / 2) {
            body.Reset();  // from here on nobody holds the shape
            face.Reset();
        }
        const VEXILinkableObject_var& geometry = i % 2 == 0 ? main : face ? face : access;
        ASSERT_EQ(Load()->AddSupport(geometry, part, "GeometrySmartConnector"), S_OK);
    }
    CheckAll(Inside(*analysis.Get()));
    ASSERT_EQ(VEXDocumentServices::Save(*analysis.Get()), S_OK);
    RemoveAnalysis();
    CheckAll(Inside(OpenFile(path)));
}

TEST_F(ManySupports, OfOneLoadAreListedWithTheirGeometry)
{
    VEXDocument& box = Open("box");
    const VEXBody_var body = BodyOf(box);
    const auto load = Load();
    const VEXILinkableObject_var face = CellOf(body, 2, 3);
    for (std::size_t i = 0; i < count; ++i) {
        ASSERT_EQ(load->AddSupport(face, PartFeature(box), ""), S_OK);
    }
    VEXILinkableObject_var first;
    for (const VEXISamSupport_var& support : Supports(load)) {
        VEXILinkableObject_var geometry;
        ASSERT_EQ(support->GetGeometry(geometry), S_OK);
        if (!first) first = geometry;
        ASSERT_EQ(geometry.Get(), first.Get());
    }
    EXPECT_EQ(AccessesOf(box)->GetMemberCount("VEXIBRepAccess"), 1);
}

}  // namespace
