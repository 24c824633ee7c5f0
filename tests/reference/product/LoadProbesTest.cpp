// SPDX-License-Identifier: Apache-2.0
// Loads as probes see them: common operations under the interface that declares them, whatever
// interface they are called through; and what a fault empties.
#include "reference/analysis/EntityFixture.h"

namespace {

using hlxtest::CallsOf;
using testing::ElementsAre;

class LoadProbes : public hlxtest::EntityTest
{};

TEST_F(LoadProbes, ShowCallsWithTheirArguments)
{
    VEXDocument& box = Open("box");
    const VEXBody_var body = BodyOf(box);
    const VEXILinkableObject_var face = CellOf(body, 2);
    const VEXISpecObject_var part = PartFeature(box);
    const auto film = Load<HLXIFilmCondition>("HLXFilmCondition");
    const VEXISamAnalysisSupport_var supports(film);
    const auto amplitude =
        vex::FaceOf<HLXITabularAmplitude>(&Make("HLXTabularAmplitudeLT", *model));
    const VEXISpecObject_var object(amplitude);
    VEXRawColldouble numbers;
    numbers.Append(1.5);
    EXPECT_THAT(CallsOf([&] {
                    film->SetAmplitude(object);
                    film->SetUseAmplitude(1);
                    film->SetUserSubroutine(255);
                    film->SetTemperature(51);
                    film->SetCoefficients(numbers);
                    amplitude->SetTimeSpan(1);
                    amplitude->SetData({{0, 1}, {1, 2}});
                    supports->AddSupport(face, part, "GeometrySmartConnector");
                }),
                ElementsAre("HLXICondition::SetAmplitude(HLXTabularAmplitudeLT)",
                            "HLXICondition::SetUseAmplitude(1)", "HLXILoad::SetUserSubroutine(255)",
                            "HLXIFilmCondition::SetTemperature(51)",
                            "HLXIFilmCondition::SetCoefficients([1])",
                            "HLXIAmplitude::SetTimeSpan(1)", "HLXIAmplitude::SetData([2])",
                            "VEXISamAnalysisSupport::AddSupport(VEXFaceCell, VEXPart, "
                            "\"GeometrySmartConnector\")"));
}

TEST_F(LoadProbes, ABrokenCallDoesNothingAndEmptiesWhatItWouldGive)
{
    const auto gravity = Load<HLXIGravity>("HLXGravity");
    VEXIParameter_var x;
    VEXIParameter_var y;
    VEXIParameter_var z;
    for (const char* const outcome : {"E_FAIL", "null"}) {
        ASSERT_EQ(gravity->GetComponentParameters(x, y, z), S_OK);
        const hlxtest::Faults faults(std::string("HLXIGravity::GetComponentParameters=") + outcome);
        gravity->GetComponentParameters(x, y, z);
        EXPECT_FALSE(x || y || z) << outcome;
    }
    VEXISamMeshNegotiator* negotiator = nullptr;
    ASSERT_EQ(gravity->GetComponentParameters(x, y, z), S_OK);
    const hlxtest::Faults faults(
        "VEXIParameter::Valuate=E_FAIL;VEXISamAnalysisModel::GetMeshNegotiator=null");
    EXPECT_EQ(z->Valuate(1), E_FAIL);
    EXPECT_EQ(FeatureOf(gravity).GetAs<double>("ComponentZ"), 0);
    EXPECT_EQ(vex::FaceOf<VEXISamAnalysisModel>(model)->GetMeshNegotiator(negotiator), S_OK);
    EXPECT_EQ(negotiator, nullptr);
}

}  // namespace
