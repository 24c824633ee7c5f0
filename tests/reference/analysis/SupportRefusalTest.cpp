// SPDX-License-Identifier: Apache-2.0
// What no support or axis can be taken from: refused, nothing made, and told where the user can
// mend it.
#include "reference/analysis/EntityFixture.h"

#include <functional>

namespace {

using hlxtest::Outcome;
using hlxtest::OutcomeOf;
using testing::AllOf;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

class SupportRefusal : public hlxtest::EntityTest
{
protected:
    SupportRefusal() : box(Open("box")), body(BodyOf(box)) {}

    Outcome Add(const VEXILinkableObject_var& geometry, const VEXISpecObject_var& part,
                const VEXUnicodeString& kind = "k")
    {
        const Outcome outcome = OutcomeOf([&] { return load->AddSupport(geometry, part, kind); });
        const Outcome axis = OutcomeOf([&] { return turning->SetAxis(geometry, part); });
        if (kind == "k") {
            EXPECT_EQ(axis, outcome);
        }
        EXPECT_THAT(Supports(load), IsEmpty());
        EXPECT_TRUE(FeatureOf(turning).Children().empty());
        EXPECT_EQ(FeatureOf(turning).Target("AxisOfRotation"), nullptr);
        return outcome;
    }

    /// Refused without a word.
    void ExpectInvalid(const VEXILinkableObject_var& geometry, const VEXISpecObject_var& part)
    {
        EXPECT_EQ(Add(geometry, part), (Outcome{E_INVALIDARG, "", ""}));
    }

    void ExpectFailure(const Outcome& outcome, const std::string& told)
    {
        EXPECT_EQ(outcome.result, E_FAIL);
        EXPECT_EQ(outcome.out, "");
        EXPECT_THAT(outcome.err, AllOf(StartsWith("vex: "), HasSubstr(told)));
    }

    VEXDocument& box;
    VEXBody_var body;
    const VEXISamAnalysisSupport_var load = Load();
    const HLXIRotationalBodyForce_var turning =
        Load<HLXIRotationalBodyForce>("HLXRotationalBodyForce");
};

TEST_F(SupportRefusal, OfEmptyHandles)
{
    ExpectInvalid(nullptr, nullptr);
    ExpectInvalid(CellOf(body, 1), nullptr);
    ExpectInvalid(nullptr, PartFeature(box));
}

TEST_F(SupportRefusal, OfOtherGeometry)
{
    const VEXISpecObject_var part = PartFeature(box);
    ExpectInvalid(VEXILinkableObject_var(part), part);
    ExpectInvalid(VEXILinkableObject_var(ElementOf(box)), part);
    VEXDocument& product = OpenFile(ProductSpecimen(folder, "cylinder"));
    const vex::Feature* const node = vex::RootObject(Inside(product));
    ExpectInvalid(vex::FaceOf<VEXILinkableObject>(node), part);
    ExpectInvalid(vex::FaceOf<VEXILinkableObject>(node), vex::FaceOf<VEXISpecObject>(node));
    // A body that stands elsewhere than below the part, and an access to another part's cell.
    vex::Feature& stray = Make("VEXMechanicalTool", FeatureOf(MainBodyOf(box)));
    ExpectInvalid(vex::FaceOf<VEXILinkableObject>(&stray), part);
    const VEXILinkableObject_var access = AccessTo(box, body, 1);
    FeatureOf(access).Set("Part", vex::Reference{stray.Id()});
    ExpectInvalid(access, part);
}

TEST_F(SupportRefusal, OfGeometryOfAnotherPart)
{
    VEXDocument& other = Open("cylinder");
    const VEXBody_var otherBody = BodyOf(other);
    ExpectInvalid(CellOf(body, 1), PartFeature(other));
    ExpectInvalid(AccessTo(box, body, 1), PartFeature(other));
    ExpectInvalid(VEXILinkableObject_var(MainBodyOf(box)), PartFeature(other));
    ExpectInvalid(CellOf(otherBody, 1), PartFeature(box));
    ExpectInvalid(CellOf(body, 1), VEXISpecObject_var(MainBodyOf(box)));
    ExpectInvalid(CellOf(body, 1), vex::FaceOf<VEXISpecObject>(loads));
}

TEST_F(SupportRefusal, OfAPartThatWasNeverStored)
{
    VEXDocument* part = nullptr;
    ASSERT_EQ(VEXDocumentServices::New("VEXPart", part), S_OK);
    ExpectInvalid(VEXILinkableObject_var(MainBodyOf(*part)), PartFeature(*part));
    Reshape(*part, box);
    const VEXBody_var fresh = BodyOf(*part);
    ExpectInvalid(CellOf(fresh, 1), PartFeature(*part));
}

TEST_F(SupportRefusal, OfAPartThatStandsInAnotherKindOfDocument)
{
    analysis.SaveAs(folder.File("a.VEXAnalysis"));
    vex::Feature& part = Make("VEXPart", *Inside(*analysis.Get()).SpecContainer());
    vex::Feature& stray = Make("VEXMechanicalTool", part);
    ExpectInvalid(vex::FaceOf<VEXILinkableObject>(&stray), vex::FaceOf<VEXISpecObject>(&part));
}

TEST_F(SupportRefusal, OfAConnectorKindThatIsNoText)
{
    for (const std::string& kind : {std::string("\xff"), std::string("a\0b", 3)}) {
        EXPECT_EQ(Add(CellOf(body, 2), PartFeature(box), VEXUnicodeString(kind)).result,
                  E_INVALIDARG);
    }
}

TEST_F(SupportRefusal, OfGeometryThatIsGone)
{
    const VEXILinkableObject_var edge = CellOf(body, 1);
    const VEXILinkableObject_var access = AccessTo(box, body, 1);
    const VEXILinkableObject_var main(MainBodyOf(box));
    const VEXISpecObject_var part = PartFeature(box);
    ASSERT_EQ(VEXDocumentServices::Remove(box, 1), S_OK);
    VEXDocument& again = OpenFile(folder.File("box.VEXPart"));
    for (const VEXILinkableObject_var& geometry : {edge, access, main}) {
        ExpectFailure(Add(geometry, part), "the geometry is gone");
        ExpectFailure(Add(geometry, PartFeature(again)), "Select the geometry again");
    }
    const VEXBody_var present = BodyOf(again);
    ExpectInvalid(CellOf(present, 1), part);
}

TEST_F(SupportRefusal, OfCellsAndAccessesOfAnEarlierShape)
{
    const VEXILinkableObject_var edge = CellOf(body, 1);
    const VEXILinkableObject_var access = AccessTo(box, body, 1);
    Reshape(box, Open("cylinder"));
    ExpectFailure(Add(edge, PartFeature(box)), "the part has another shape now");
    const Outcome refused = Add(access, PartFeature(box));
    ExpectFailure(refused, "its shape is not the one that the geometry was taken from");
    EXPECT_THAT(refused.err, HasSubstr(folder.File("box.VEXPart")));
}

TEST_F(SupportRefusal, OfAccessesWithNumbersThatNameNoCell)
{
    constexpr std::int64_t most = std::numeric_limits<std::int64_t>::max();
    const std::tuple<std::int64_t, std::int64_t, const char*> rows[] = {
        {2, 7, "no Face-7"},       {1, 0, "no Edge-0"},
        {0, -1, "no Vertex--1"},   {3, 1, "no Unknown-1"},
        {4, 1, "no Unknown-1"},    {-7, most, "no Unknown-9223372036854775807"},
        {most, 1, "no Unknown-1"}, {2, most, "no Face-9223372036854775807"}};
    const VEXILinkableObject_var access = AccessTo(box, body, 1);
    for (const auto& [dimension, index, told] : rows) {
        FeatureOf(access).Set("Dimension", dimension);
        FeatureOf(access).Set("Index", index);
        ExpectFailure(Add(access, PartFeature(box)), told);
    }
}

TEST_F(SupportRefusal, OfABodyWithoutGeometry)
{
    VEXDocument& empty = Open("without_geometry");
    const Outcome refused = Add(VEXILinkableObject_var(MainBodyOf(empty)), PartFeature(empty));
    ExpectFailure(refused, "the part has no geometry. Import one from a STEP file.");
    EXPECT_THAT(refused.err, HasSubstr(folder.File("without_geometry.VEXPart")));
}

TEST_F(SupportRefusal, ByAnEntityThatIsGone)
{
    VEXListValVEXBaseUnknown_var list;
    const VEXILinkableObject_var edge = CellOf(body, 1);
    RemoveAnalysis();
    EXPECT_EQ(load->AddSupport(edge, PartFeature(box), ""), E_FAIL);
    EXPECT_EQ(load->AddSupport(nullptr, nullptr, "\xff"), E_FAIL);
    EXPECT_EQ(turning->SetAxis(edge, PartFeature(box)), E_FAIL);
    EXPECT_EQ(load->GetSupports(list), E_FAIL);
    EXPECT_EQ(list.Size(), 0);
}

TEST_F(SupportRefusal, OfAnAxisThatIsNoEdge)
{
    const VEXISpecObject_var part = PartFeature(box);
    ASSERT_EQ(turning->SetAxis(CellOf(body, 1, 3), part), S_OK);
    for (const VEXILinkableObject_var& geometry :
         {CellOf(body, 0), CellOf(body, 2), AccessTo(box, body, 2),
          VEXILinkableObject_var(MainBodyOf(box))}) {
        EXPECT_EQ(OutcomeOf([&] { return turning->SetAxis(geometry, part); }),
                  (Outcome{E_INVALIDARG, "", ""}));
    }
    // The axis that it had stays.
    EXPECT_EQ(FeatureOf(turning).Target("AxisOfRotation")->GetAs<std::int64_t>("Index"), 4);
}

}  // namespace
