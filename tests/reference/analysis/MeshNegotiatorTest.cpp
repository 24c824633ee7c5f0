// SPDX-License-Identifier: Apache-2.0
// Entities that follow the mesh of their model.
#include "reference/analysis/EntityFixture.h"

namespace {

using hlxtest::Outcome;
using hlxtest::OutcomeOf;

class MeshNegotiator : public hlxtest::EntityTest
{
protected:
    VEXISamMeshNegotiator_var Negotiator()
    {
        VEXISamMeshNegotiator* negotiator = nullptr;
        const auto face = vex::FaceOf<VEXISamAnalysisModel>(model);
        const unsigned long before = hlxtest::References(*model);
        EXPECT_EQ(face->GetMeshNegotiator(negotiator), S_OK);
        EXPECT_EQ(hlxtest::References(*model), before + 1);
        return VEXAdopt(negotiator);
    }

    static VEXISpecObject_var Object(const vex::Feature& feature)
    {
        return vex::FaceOf<VEXISpecObject>(&feature);
    }

    void ExpectInvalid(const VEXISpecObject_var& object)
    {
        EXPECT_EQ(OutcomeOf([&] { return Negotiator()->Subscribe(object); }),
                  (Outcome{E_INVALIDARG, "", ""}));
    }
};

TEST_F(MeshNegotiator, IsTheModel)
{
    EXPECT_EQ(Negotiator()->GetImpl(), model);
    EXPECT_EQ(Negotiator().Get(), Negotiator().Get());
}

TEST_F(MeshNegotiator, SubscribesEntitiesOfItsModel)
{
    for (const char* const type : {"HLXPressure", "HLXClamp", "HLXTemperatureLT"}) {
        vex::Feature& entity = Make(type, *loads);
        EXPECT_FALSE(entity.GetAs<bool>("FollowsMesh"));
        EXPECT_EQ(Negotiator()->Subscribe(Object(entity)), S_OK);
        EXPECT_TRUE(entity.GetAs<bool>("FollowsMesh"));
        EXPECT_EQ(Negotiator()->Subscribe(Object(entity)), S_OK);
        EXPECT_TRUE(entity.GetAs<bool>("FollowsMesh"));
    }
}

TEST_F(MeshNegotiator, RefusesWhatIsNoEntityOfItsModel)
{
    ExpectInvalid(nullptr);
    ExpectInvalid(Object(*model));
    ExpectInvalid(Object(*step));
    ExpectInvalid(Object(Make("HLXTabularAmplitudeLT", *model)));
    std::string error;
    ASSERT_TRUE(vex::LateTypes::Instance().Add({{"VEXSamAnalysisEntity", "", {}}}, error)) << error;
    ExpectInvalid(Object(Make("VEXSamAnalysisEntity", *loads)));
    vex::Feature& other = Make("VEXSamAnalysisModel", *model->Parent());
    vex::Feature& foreign = Make("HLXPressure", other);
    ExpectInvalid(Object(foreign));
    EXPECT_FALSE(foreign.GetAs<bool>("FollowsMesh"));
    hlxtest::AnalysisDocument second(1);
    vex::Feature& elsewhere = Make("HLXPressure", *Inside(*second.Get()).SpecContainer());
    ExpectInvalid(Object(elsewhere));
    vex::Feature& deleted = Make("HLXPressure", *loads);
    const VEXISpecObject_var gone = Object(deleted);
    deleted.Tree()->Delete(deleted);
    ExpectInvalid(gone);
}

TEST_F(MeshNegotiator, OfAModelThatIsGoneFails)
{
    const VEXISamMeshNegotiator_var negotiator = Negotiator();
    const VEXISamAnalysisModel_var face(negotiator);
    const auto load = Load<VEXISpecObject>();
    RemoveAnalysis();
    EXPECT_EQ(negotiator->Subscribe(load), E_FAIL);
    EXPECT_EQ(negotiator->Subscribe(nullptr), E_FAIL);
    VEXISamMeshNegotiator* raw = negotiator.Get();
    EXPECT_EQ(face->GetMeshNegotiator(raw), E_FAIL);
    EXPECT_EQ(raw, nullptr);
}

}  // namespace
