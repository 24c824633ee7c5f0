// SPDX-License-Identifier: Apache-2.0
// Creating a concentrated heat flux: what is its own in the order of calls, and its exits.
#include "library/loads/LoadKinds.h"

#include <type_traits>

namespace hlxtest::statics {
namespace {

static_assert(std::is_same_v<decltype(&HLXAnalysisTestUtils::CreateConcHTFlux), LoadCreation>);

class HeatFluxTest : public LoadKindTest
{};

TEST_F(HeatFluxTest, IsNamedValuedGivenItsAmplitudeAndPutOnAVertex)
{
    load = former;
    EXPECT_EQ(CallsOfCreation(kHeatFlux, "HLXIHeatFlux"),
              (std::vector<std::string>{
                  "VEXInstantiateComponent(\"HLXLoadFact\", HLXILoadFact, &)",
                  "HLXILoadFact::CreateHeatFlux(&, \"HLXConcHeatFlux\", VEXAnalysisDocument, "
                  "HLXGeneralStaticStepLT)",
                  "VEXIAlias::SetAlias(\"Load\")",
                  "HLXIHeatFlux::SetMagnitude(4.6589)",
                  "HLXICondition::SetUseAmplitude(1)",
                  "HLXILoad::SetUserSubroutine(1)",
                  "VEXInstantiateComponent(\"HLXAmplitudeFact\", HLXIAmplitudeFact, &)",
                  "HLXIAmplitudeFact::CreateTabularAmplitude(&, VEXAnalysisDocument)",
                  "HLXICondition::SetAmplitude(HLXTabularAmplitudeLT)",
                  "VEXISamDocumentManager::GetLinkedDocuments(&)",
                  "VEXIPrtContainer::GetMechanicalPart()",
                  "VEXIPartRequest::GetMainBody(\"\", &)",
                  "VEXIBodyRequest::GetResults(\"MfDefault3DView\", &)",
                  "VEXBRepDecode(VEXBRepContainer, VEXVertexCell, VEXBody)",
                  "VEXISamAnalysisSupport::AddSupport(VEXBRepAccess, VEXPart, \"\")",
              }));
}

class HeatFluxExitTest : public HeatFluxTest, public testing::WithParamInterface<LoadExit>
{};

TEST_P(HeatFluxExitTest, IsASuccessAndLeavesOutWhatFailed)
{
    ExpectExit(kHeatFlux, GetParam());
}

const std::string kWhole = kHeatFlux.Whole();
const Outcome kSuccess{S_OK, "", ""};

INSTANTIATE_TEST_SUITE_P(
    OfItsValues, HeatFluxExitTest,
    testing::Values(LoadExit{"NoInterface", "cast:HLXConcHeatFlux->HLXIHeatFlux=E_NOINTERFACE",
                             kSuccess, "Load: 0 on vertex 1 of box.VEXPart, ", 1},
                    LoadExit{"EmptyInterface", "cast:HLXConcHeatFlux->HLXIHeatFlux=null", kSuccess,
                             "Load: 0 on vertex 1 of box.VEXPart, ", 1},
                    LoadExit{"Magnitude", "HLXIHeatFlux::SetMagnitude=E_ACCESSDENIED", kSuccess,
                             "Load: 0 subroutine amplitude 1 used on vertex 1 of box.VEXPart, ", 1},
                    LoadExit{"Use", "HLXICondition::SetUseAmplitude=E_ACCESSDENIED", kSuccess,
                             "Load: 4.6589 subroutine amplitude 1 on vertex 1 of box.VEXPart, ", 1},
                    LoadExit{"Subroutine", "HLXILoad::SetUserSubroutine=E_ACCESSDENIED", kSuccess,
                             "Load: 4.6589 amplitude 1 used on vertex 1 of box.VEXPart, ", 1},
                    LoadExit{"Amplitude", "HLXICondition::SetAmplitude=E_ACCESSDENIED", kSuccess,
                             "Load: 4.6589 subroutine used on vertex 1 of box.VEXPart, ", 1},
                    LoadExit{"AmplitudeSetAlongWithAFailure",
                             "HLXICondition::SetAmplitude=E_UNEXPECTED,keep", kSuccess, kWhole, 1}),
    NameOfLoadExit);

}  // namespace
}  // namespace hlxtest::statics
