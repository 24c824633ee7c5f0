// SPDX-License-Identifier: Apache-2.0
// Creating a concentrated force: what is its own in the order of calls, and its exits.
#include "library/loads/LoadKinds.h"

#include <type_traits>

namespace hlxtest::statics {
namespace {

static_assert(std::is_same_v<decltype(&HLXAnalysisTestUtils::CreatedConcForce), LoadCreation>);

class ConcentratedForceTest : public LoadKindTest
{};

TEST_F(ConcentratedForceTest, IsNamedValuedGivenItsAmplitudeAndPutOnAVertex)
{
    load = former;
    EXPECT_EQ(CallsOfCreation(kConcentratedForce, "HLXIConcentratedForce"),
              (std::vector<std::string>{
                  "VEXInstantiateComponent(\"HLXLoadFact\", HLXILoadFact, &)",
                  "HLXILoadFact::CreateConcentratedForce(&, VEXAnalysisDocument, "
                  "HLXGeneralStaticStepLT)",
                  "VEXIAlias::SetAlias(\"Load\")",
                  "HLXIConcentratedForce::SetComponentX(1)",
                  "HLXIConcentratedForce::SetComponentY(0)",
                  "HLXIConcentratedForce::SetComponentZ(0)",
                  "VEXInstantiateComponent(\"HLXAmplitudeFact\", HLXIAmplitudeFact, &)",
                  "HLXIAmplitudeFact::CreateTabularAmplitude(&, VEXAnalysisDocument)",
                  "HLXICondition::SetUseAmplitude(1)",
                  "HLXICondition::SetAmplitude(HLXTabularAmplitudeLT)",
                  "VEXISamDocumentManager::GetLinkedDocuments(&)",
                  "VEXIPrtContainer::GetMechanicalPart()",
                  "VEXIPartRequest::GetMainBody(\"\", &)",
                  "VEXIBodyRequest::GetResults(\"MfDefault3DView\", &)",
                  "VEXBRepDecode(VEXBRepContainer, VEXVertexCell, VEXBody)",
                  "VEXISamAnalysisSupport::AddSupport(VEXBRepAccess, VEXPart, \"\")",
              }));
}

class ConcentratedForceExitTest : public ConcentratedForceTest,
                                  public testing::WithParamInterface<LoadExit>
{};

TEST_P(ConcentratedForceExitTest, AnswersWithoutAWordAndLeavesTheLoad)
{
    ExpectExit(kConcentratedForce, GetParam());
}

const std::string kWhole = kConcentratedForce.Whole();
const Outcome kSuccess{S_OK, "", ""};
const Outcome kSilent{E_FAIL, "", ""};

INSTANTIATE_TEST_SUITE_P(
    OfItsValues, ConcentratedForceExitTest,
    testing::Values(
        LoadExit{"NoInterface", "cast:HLXConcentratedForce->HLXIConcentratedForce=E_NOINTERFACE",
                 kSilent, "Load: 0 0 0", 1},
        LoadExit{"EmptyInterface", "cast:HLXConcentratedForce->HLXIConcentratedForce=null", kSilent,
                 "Load: 0 0 0", 1},
        LoadExit{"FirstComponent", "HLXIConcentratedForce::SetComponentX=E_ACCESSDENIED", kSuccess,
                 "Load: 0 0 0 amplitude 1 used on vertex 1 of box.VEXPart, ", 1},
        LoadExit{"SecondComponent", "HLXIConcentratedForce::SetComponentY=E_ACCESSDENIED", kSuccess,
                 kWhole, 1},
        LoadExit{"ThirdComponent", "HLXIConcentratedForce::SetComponentZ=E_ACCESSDENIED", kSuccess,
                 kWhole, 1}),
    NameOfLoadExit);

INSTANTIATE_TEST_SUITE_P(
    OfItsAmplitude, ConcentratedForceExitTest,
    testing::Values(
        LoadExit{"NotUsed", "HLXICondition::SetUseAmplitude=E_ACCESSDENIED", kSuccess,
                 "Load: 1 0 0 amplitude 1 on vertex 1 of box.VEXPart, ", 1},
        LoadExit{"NotSet", "HLXICondition::SetAmplitude=E_FAIL", kSilent, "Load: 1 0 0 used", 1},
        LoadExit{"Denied", "HLXICondition::SetAmplitude=E_ACCESSDENIED", kSilent,
                 "Load: 1 0 0 used", 1},
        LoadExit{"SetAllTheSame", "HLXICondition::SetAmplitude=E_UNEXPECTED,keep", kSilent,
                 "Load: 1 0 0 amplitude 1 used", 1},
        LoadExit{"Positive", "HLXICondition::SetAmplitude=S_FALSE,keep", kSuccess, kWhole, 1}),
    NameOfLoadExit);

}  // namespace
}  // namespace hlxtest::statics
