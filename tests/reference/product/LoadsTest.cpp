// SPDX-License-Identifier: Apache-2.0
// What loads have in common, and the axis of one that turns.
#include "reference/analysis/EntityFixture.h"

namespace {

class Loads : public hlxtest::EntityTest
{
protected:
    /// Every load behind the interface that all have, and behind its own.
    std::vector<HLXILoad*> AllFaces()
    {
        held.clear();
        std::vector<HLXILoad*> faces;
        const auto add = [&](const auto& handle) {
            held.emplace_back(handle);
            faces.push_back(handle.Get());
            held.emplace_back(HLXILoad_var(handle));
            faces.push_back(static_cast<HLXILoad*>(held.back().Get()));
        };
        add(Load<HLXIPressureLoad>("HLXPressure"));
        add(Load<HLXIGravity>("HLXGravity"));
        add(Load<HLXIRotationalBodyForce>("HLXRotationalBodyForce"));
        add(Load<HLXIConcentratedForce>("HLXConcentratedForce"));
        add(Load<HLXIHeatFlux>("HLXConcHeatFlux"));
        add(Load<HLXIHeatFlux>("HLXBodyHeatFlux"));
        add(Load<HLXIFilmCondition>("HLXFilmCondition"));
        add(Load<HLXILoad>("HLXLoad"));
        return faces;
    }

    std::vector<VEXBaseUnknown_var> held;
};

TEST_F(Loads, HaveAnAmplitudeOfTheirDocument)
{
    const auto tabular = vex::FaceOf<VEXISpecObject>(&Make("HLXTabularAmplitudeLT", *model));
    const auto smooth = vex::FaceOf<VEXISpecObject>(&Make("HLXSmoothStepAmplitudeLT", *model));
    hlxtest::AnalysisDocument other(1);
    const auto foreign = vex::FaceOf<VEXISpecObject>(
        &Make("HLXTabularAmplitudeLT", *Inside(*other.Get()).SpecContainer()));
    vex::Feature& deleted = Make("HLXTabularAmplitudeLT", *model);
    const auto gone = vex::FaceOf<VEXISpecObject>(&deleted);
    model->Tree()->Delete(deleted);
    for (HLXILoad* const load : AllFaces()) {
        SCOPED_TRACE(load->IsA());
        VEXISpecObject_var found = tabular;
        for (const VEXISpecObject_var& wanted : {tabular, smooth, VEXISpecObject_var(), tabular}) {
            EXPECT_EQ(load->SetAmplitude(wanted), S_OK);
            EXPECT_EQ(load->GetAmplitude(found), S_OK);
            EXPECT_EQ(found, wanted);
        }
        for (const VEXISpecObject_var& object :
             {foreign, gone, vex::FaceOf<VEXISpecObject>(step)}) {
            EXPECT_EQ(load->SetAmplitude(object), E_INVALIDARG);
            EXPECT_EQ(load->GetAmplitude(found), S_OK);
            EXPECT_EQ(found, tabular);
        }
    }
    VEXISpecObject_var found = smooth;
    vex::Feature& first = FeatureOf(held.front());
    first.Set("Amplitude", vex::Reference{step->Id()});
    EXPECT_EQ(HLXILoad_var(held.front())->GetAmplitude(found), S_OK);
    EXPECT_FALSE(found) << "what was stored is no amplitude";
    first.Set("Amplitude", vex::Reference{FeatureOf(tabular).Id()});
    FeatureOf(tabular).Tree()->Delete(FeatureOf(tabular));
    found = smooth;
    EXPECT_EQ(HLXILoad_var(held.front())->GetAmplitude(found), S_OK);
    EXPECT_FALSE(found);
}

TEST_F(Loads, HaveTwoFlags)
{
    for (HLXILoad* const load : AllFaces()) {
        SCOPED_TRACE(load->IsA());
        unsigned char use = 7;
        unsigned char subroutine = 7;
        load->SetUseAmplitude(0);
        load->SetUserSubroutine(0);
        const unsigned char flags[] = {0, 1, 2, 255, 128, 0};
        for (const unsigned char flag : flags) {
            EXPECT_EQ(load->SetUseAmplitude(flag), S_OK);
            EXPECT_EQ(load->GetUseAmplitude(use), S_OK);
            EXPECT_EQ(use, flag == 0 ? 0 : 1);
            EXPECT_EQ(load->GetUserSubroutine(subroutine), S_OK);
            EXPECT_EQ(subroutine, 0);
        }
        EXPECT_EQ(load->SetUserSubroutine(128), S_OK);
        EXPECT_EQ(load->GetUserSubroutine(subroutine), S_OK);
        EXPECT_EQ(subroutine, 1);
        EXPECT_EQ(load->GetUseAmplitude(use), S_OK);
        EXPECT_EQ(use, 0);
    }
}

TEST_F(Loads, BeginWithoutAmplitudeAndFlags)
{
    for (HLXILoad* const load : AllFaces()) {
        VEXISpecObject_var amplitude = vex::FaceOf<VEXISpecObject>(step);
        unsigned char use = 7;
        unsigned char subroutine = 7;
        EXPECT_EQ(load->GetAmplitude(amplitude), S_OK);
        EXPECT_EQ(load->GetUseAmplitude(use), S_OK);
        EXPECT_EQ(load->GetUserSubroutine(subroutine), S_OK);
        EXPECT_FALSE(amplitude);
        EXPECT_EQ(use, 0);
        EXPECT_EQ(subroutine, 0);
    }
}

TEST_F(Loads, ThatAreGoneFail)
{
    const auto faces = AllFaces();
    const auto amplitude = vex::FaceOf<VEXISpecObject>(&Make("HLXTabularAmplitudeLT", *model));
    for (HLXILoad* const load : faces) {
        load->SetAmplitude(amplitude);
        load->SetUseAmplitude(1);
        load->SetUserSubroutine(1);
    }
    RemoveAnalysis();
    for (HLXILoad* const load : faces) {
        VEXISpecObject_var found = amplitude;
        unsigned char flag = 7;
        EXPECT_EQ(load->SetAmplitude(amplitude), E_FAIL);
        EXPECT_EQ(load->SetAmplitude(nullptr), E_FAIL);
        EXPECT_EQ(load->GetAmplitude(found), E_FAIL);
        EXPECT_FALSE(found);
        EXPECT_EQ(load->SetUseAmplitude(1), E_FAIL);
        EXPECT_EQ(load->GetUseAmplitude(flag), E_FAIL);
        EXPECT_EQ(flag, 7) << "left as it is";
        EXPECT_EQ(load->SetUserSubroutine(1), E_FAIL);
        EXPECT_EQ(load->GetUserSubroutine(flag), E_FAIL);
        EXPECT_EQ(flag, 7) << "left as it is";
    }
}

TEST_F(Loads, HaveOneAxisThatTheNextReplaces)
{
    VEXDocument& box = Open("box");
    const VEXBody_var body = BodyOf(box);
    const auto load = Load<HLXIRotationalBodyForce>("HLXRotationalBodyForce");
    ASSERT_EQ(load->SetAxis(CellOf(body, 1, 2), PartFeature(box)), S_OK);
    const vex::Feature* const axis = FeatureOf(load).Target("AxisOfRotation");
    ASSERT_NE(axis, nullptr);
    EXPECT_STREQ(axis->IsA(), "VEXSamAxis");
    EXPECT_EQ(axis->Parent(), &FeatureOf(load));
    EXPECT_EQ(axis->GetAs<std::int64_t>("Dimension"), 1);
    EXPECT_EQ(axis->GetAs<std::int64_t>("Index"), 3);
    // What else stands below the load stays where it is; an axis that nothing refers to is taken.
    ASSERT_EQ(VEXISamAnalysisSupport_var(load)->AddSupport(CellOf(body, 1), PartFeature(box), ""),
              S_OK);
    FeatureOf(load).Set("AxisOfRotation", vex::Reference{step->Id()});
    ASSERT_EQ(load->SetAxis(AccessTo(box, body, 1, 6), PartFeature(box)), S_OK);
    EXPECT_EQ(FeatureOf(load).Target("AxisOfRotation"), axis);
    EXPECT_EQ(axis->GetAs<std::int64_t>("Index"), 7);
    EXPECT_EQ(FeatureOf(load).Children().size(), 2U);
    EXPECT_EQ(Supports(VEXISamAnalysisSupport_var(load)).size(), 1U);
}

}  // namespace
