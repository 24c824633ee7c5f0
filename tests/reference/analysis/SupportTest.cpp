// SPDX-License-Identifier: Apache-2.0
// Supports of entities: what geometry they take, and that they find it again.
#include "reference/analysis/EntityFixture.h"

#include "HLXProductUtilities.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class Support : public hlxtest::EntityTest
{
protected:
    static std::string DumpOf(const vex::Feature& feature)
    {
        HLXGenString text;
        EXPECT_EQ(DumpFeatureTree(vex::FaceOf<VEXINavigateObject>(&feature).Get(), 0, text), S_OK);
        return text.c_str();
    }

    /// The cell that a support's geometry is an access to.
    static VEXCell_var CellBehind(const VEXILinkableObject_var& geometry, VEXBody_var& body)
    {
        VEXCell_var cell;
        EXPECT_EQ(VEXIBRepAccess_var(geometry)->GetCell(cell, body), S_OK);
        return cell;
    }
};

TEST_F(Support, OfEachDimensionByCellAndByAccessFindsTheCellAgain)
{
    VEXDocument& box = Open("box");
    const VEXBody_var body = BodyOf(box);
    for (const short dimension : {short{0}, short{1}, short{2}}) {
        for (const bool byAccess : {false, true}) {
            SCOPED_TRACE(testing::Message() << dimension << (byAccess ? ", access" : ", cell"));
            const std::size_t last = Cells(body, dimension).size() - 1;
            const auto load = Load();
            ASSERT_EQ(load->AddSupport(byAccess ? AccessTo(box, body, dimension, last)
                                                : CellOf(body, dimension, last),
                                       PartFeature(box), "GeometrySmartConnector"),
                      S_OK);
            const auto supports = Supports(load);
            ASSERT_EQ(supports.size(), 1U);
            EXPECT_EQ(supports[0]->GetConnectorKind(), "GeometrySmartConnector");
            VEXILinkableObject_var geometry;
            ASSERT_EQ(supports[0]->GetGeometry(geometry), S_OK);
            VEXBody_var found;
            EXPECT_EQ(CellBehind(geometry, found).Get(), Cells(body, dimension)[last]);
            EXPECT_EQ(geometry->GetDocument(), &box);
        }
    }
}

TEST_F(Support, StoresDocumentDimensionIndexAndShape)
{
    VEXDocument& box = Open("box");
    const VEXBody_var body = BodyOf(box);
    const auto load = Load();
    ASSERT_EQ(load->AddSupport(CellOf(body, 1, 4), PartFeature(box), "any\nkind"), S_OK);
    const vex::Feature& support = FeatureOf(Supports(load)[0]);
    EXPECT_STREQ(support.IsA(), "VEXSamSupport");
    const auto& link = support.GetAs<vex::DocumentLink>("Document");
    EXPECT_EQ(link.path, vex::SharedText(folder.File("box.VEXPart")));
    EXPECT_EQ(link.kind, vex::DocumentType::Part);
    EXPECT_EQ(support.GetAs<std::int64_t>("Dimension"), 1);
    EXPECT_EQ(support.GetAs<std::int64_t>("Index"), 5);
    EXPECT_EQ(support.GetAs<std::string>("Shape").size(), 32U);
    EXPECT_EQ(support.GetAs<std::string>("Connector"), "any\nkind");
}

TEST_F(Support, ByCellChangesNothingOfThePart)
{
    VEXDocument& box = Open("box");
    const VEXBody_var body = BodyOf(box);
    const auto changes = Inside(box).Tree().Changes();
    const auto load = Load();
    ASSERT_EQ(load->AddSupport(CellOf(body, 2), PartFeature(box), ""), S_OK);
    EXPECT_EQ(Inside(box).Tree().Changes(), changes);
    EXPECT_EQ(AccessesOf(box)->GetMemberCount("VEXIBRepAccess"), 0);

    VEXILinkableObject_var first;
    VEXILinkableObject_var second;
    ASSERT_EQ(Supports(load)[0]->GetGeometry(first), S_OK);
    ASSERT_EQ(Supports(load)[0]->GetGeometry(second), S_OK);
    EXPECT_EQ(first.Get(), second.Get());
    EXPECT_EQ(AccessesOf(box)->GetMemberCount("VEXIBRepAccess"), 1);
}

TEST_F(Support, OnABodyFindsTheBodyAgainWithoutReadingTheShape)
{
    VEXDocument& part = Open("two_solids");
    vex::Feature& second = Make("VEXMechanicalTool", FeatureOf(PartOf(part)));
    const auto load = Load("HLXGravity");
    const VEXISpecObject_var owner = PartFeature(part);
    const VEXISpecObject_var first(MainBodyOf(part));
    ASSERT_EQ(load->AddSupport(VEXILinkableObject_var(first), owner, "k"), S_OK);
    ASSERT_EQ(load->AddSupport(vex::FaceOf<VEXILinkableObject>(&second), owner, "k"), S_OK);
    const auto supports = Supports(load);
    ASSERT_EQ(supports.size(), 2U);
    for (std::size_t i = 0; i < 2; ++i) {
        EXPECT_EQ(FeatureOf(supports[i]).GetAs<std::int64_t>("Dimension"), 3);
        EXPECT_EQ(FeatureOf(supports[i]).GetAs<std::int64_t>("Index"),
                  static_cast<std::int64_t>(i) + 1);
        VEXILinkableObject_var geometry;
        ASSERT_EQ(supports[i]->GetGeometry(geometry), S_OK);
        EXPECT_EQ(&FeatureOf(geometry), i == 0 ? &FeatureOf(first) : &second);
    }
}

TEST_F(Support, StandInTheOrderInWhichTheyWereAdded)
{
    VEXDocument& box = Open("box");
    const VEXBody_var body = BodyOf(box);
    const auto load = Load();
    EXPECT_THAT(Supports(load), IsEmpty());
    ASSERT_EQ(load->AddSupport(CellOf(body, 2, 5), PartFeature(box), "one"), S_OK);
    ASSERT_EQ(load->AddSupport(CellOf(body, 2, 5), PartFeature(box), ""), S_OK);
    ASSERT_EQ(load->AddSupport(CellOf(body, 0, 2), PartFeature(box), "three"), S_OK);
    Make("HLXContainerLT", FeatureOf(load));  // what stands there beside them is no support
    std::vector<std::string> kinds;
    for (const VEXISamSupport_var& support : Supports(load)) {
        kinds.emplace_back(support->GetConnectorKind().View());
    }
    EXPECT_THAT(kinds, ElementsAre("one", "", "three"));

    VEXListValVEXBaseUnknown_var list;
    list.Append(nullptr);
    EXPECT_EQ(load->GetSupports(list), S_OK);
    EXPECT_EQ(list.Size(), 4);
}

TEST_F(Support, OfEveryKindOfEntityCanBeAdded)
{
    VEXDocument& box = Open("box");
    const VEXBody_var body = BodyOf(box);
    for (const vex::LateType* const type : vex::LateTypes::Instance().All()) {
        SCOPED_TRACE(type->name);
        const auto entity = Load(type->name.c_str());
        ASSERT_EQ(static_cast<bool>(entity), type->IsKindOf("HLXEntity"));
        if (entity) {
            EXPECT_TRUE(VEXISamAnalysisEntity_var(entity));
            EXPECT_EQ(entity->AddSupport(CellOf(body, 2), PartFeature(box), ""), S_OK);
            EXPECT_EQ(Supports(entity).size(), 1U);
        }
    }
}

TEST_F(Support, IsTheSameAfterSavingAndReopening)
{
    const std::string path = folder.File("loads.VEXAnalysis");
    analysis.SaveAs(path);
    VEXDocument& box = Open("box");
    VEXBody_var body = BodyOf(box);
    const auto load = Load();
    ASSERT_EQ(load->AddSupport(CellOf(body, 2, 3), PartFeature(box), "GeometrySmartConnector"),
              S_OK);
    const auto turning = Load("HLXRotationalBodyForce");
    ASSERT_EQ(HLXIRotationalBodyForce_var(turning)->SetAxis(CellOf(body, 1), PartFeature(box)),
              S_OK);
    ASSERT_EQ(turning->AddSupport(VEXILinkableObject_var(MainBodyOf(box)), PartFeature(box), ""),
              S_OK);
    const std::string before = DumpOf(*model);
    const std::string face = Cells(body, 2)[3]->GetKind().ConvertToChar();
    const double area = Measure(Cells(body, 2)[3]);
    ASSERT_EQ(VEXDocumentServices::Save(*analysis.Get()), S_OK);
    RemoveAnalysis();
    body.Reset();
    ASSERT_EQ(VEXDocumentServices::Remove(box, 1), S_OK);  // closed unsaved
    ASSERT_THAT(vex::DocumentSession::Instance().Documents(), IsEmpty());

    VEXDocument& reopened = OpenFile(path);
    const vex::Feature* const manager = vex::AnalysisManagerOf(Inside(reopened));
    const vex::Feature& again = *manager->Target("CurrentModel");
    EXPECT_EQ(DumpOf(again), before);
    VEXListValVEXBaseUnknown_var supports;
    for (const char* const type : {"HLXPressure", "HLXRotationalBodyForce"}) {
        vex::FeatureTree::Walk(const_cast<vex::Feature&>(again), [&](vex::Feature& feature, int) {
            if (feature.Kind().IsKindOf(type)) {
                EXPECT_EQ(vex::FaceOf<VEXISamAnalysisSupport>(&feature)->GetSupports(supports),
                          S_OK);
            }
        });
    }
    ASSERT_EQ(supports.Size(), 2);
    VEXILinkableObject_var geometry;
    ASSERT_EQ(VEXISamSupport_var(supports[1])->GetGeometry(geometry), S_OK);
    const VEXCell_var cell = CellBehind(geometry, body);
    EXPECT_EQ(cell->GetKind(), face.c_str());
    EXPECT_EQ(Measure(cell.Get()), area);
    EXPECT_EQ(cell.Get(), Cells(body, 2)[3]);
    ASSERT_EQ(VEXISamSupport_var(supports[2])->GetGeometry(geometry), S_OK);
    EXPECT_EQ(vex::Document::OwnerOf(geometry.Get())->Path(), folder.File("box.VEXPart"));
    EXPECT_STREQ(FeatureOf(geometry).IsA(), "VEXMechanicalTool");
}

}  // namespace
