// SPDX-License-Identifier: Apache-2.0
// Creating a rotational body force: what is its own in the order of calls, its exits, its axis.
#include "library/loads/LoadKinds.h"

#include <type_traits>

namespace hlxtest::statics {
namespace {

using Utils = HLXAnalysisTestUtils;

static_assert(std::is_same_v<decltype(&Utils::CreateRBF), LoadCreation>);

class RotationalBodyForceTest : public LoadKindTest
{};

const std::string kWhole = kRotationalBodyForce.Whole();

std::vector<std::string> CallsWithAlias(bool aliasIsSet)
{
    std::vector<std::string> calls{
        "VEXInstantiateComponent(\"HLXLoadFact\", HLXILoadFact, &)",
        "HLXILoadFact::CreateRotationalBodyForce(&, VEXAnalysisDocument, HLXGeneralStaticStepLT)",
        "VEXIAlias::SetAlias(\"Load\")",
        "HLXIRotationalBodyForce::GetRotationParameters(&, &)",
        "VEXIParameter::Valuate(1.73205)",
        "VEXIParameter::Valuate(5.25)",
        "VEXInstantiateComponent(\"HLXAmplitudeFact\", HLXIAmplitudeFact, &)",
        "HLXIAmplitudeFact::CreateTabularAmplitude(&, VEXAnalysisDocument)",
        "HLXICondition::SetUseAmplitude(1)",
        "HLXICondition::SetAmplitude(HLXTabularAmplitudeLT)",
        "VEXISamDocumentManager::GetLinkedDocuments(&)",
        "VEXIPrtContainer::GetMechanicalPart()",
        "VEXIPartRequest::GetMainBody(\"\", &)",
        "VEXIBodyRequest::GetResults(\"MfDefault3DView\", &)",
        "VEXIPartRequest::GetMainBody(\"MfDefault3DView\", &)",
        "HLXIRotationalBodyForce::SetAxis(VEXEdgeCell, VEXPart)",
        "VEXISamAnalysisSupport::AddSupport(VEXMechanicalTool, VEXPart, "
        "\"GeometrySmartConnector\")",
    };
    if (!aliasIsSet) {
        std::erase(calls, "VEXIAlias::SetAlias(\"Load\")");
    }
    return calls;
}

TEST_F(RotationalBodyForceTest, NamesWhatTheHandleHeldThenValuesAndSupportsTheLoad)
{
    load = former;
    EXPECT_EQ(CallsOfCreation(kRotationalBodyForce, "HLXIRotationalBodyForce"),
              CallsWithAlias(true));
    EXPECT_EQ(AliasOf(former), "Load");
    EXPECT_EQ(AliasOf(load), "");
}

TEST_F(RotationalBodyForceTest, AnEmptyHandleNamesNothing)
{
    EXPECT_EQ(CallsOfCreation(kRotationalBodyForce, "HLXIRotationalBodyForce"),
              CallsWithAlias(false));
    EXPECT_EQ(LoadTexts(), std::vector{kWhole});
}

class RotationalExitTest : public RotationalBodyForceTest,
                           public testing::WithParamInterface<LoadExit>
{};

TEST_P(RotationalExitTest, AnswersAndPrintsAndLeavesTheLoad)
{
    ExpectExit(kRotationalBodyForce, GetParam());
    ExpectFlushed(kRotationalBodyForce, GetParam());
}

// --- Parameters ---------------------------------------------------------------------------------

const Outcome kSuccess{S_OK, "", ""};
const Outcome kNoVelocity{E_FAIL, "********** Could not valuate RBF velocity\n", ""};

INSTANTIATE_TEST_SUITE_P(
    OfItsParameters, RotationalExitTest,
    testing::Values(
        LoadExit{"NoInterface",
                 "cast:HLXRotationalBodyForce->HLXIRotationalBodyForce=E_NOINTERFACE", kNoVelocity,
                 ": 0 0"},
        LoadExit{"EmptyInterface", "cast:HLXRotationalBodyForce->HLXIRotationalBodyForce=null",
                 kNoVelocity, ": 0 0"},
        LoadExit{"None", "HLXIRotationalBodyForce::GetRotationParameters=E_ACCESSDENIED",
                 kNoVelocity, ": 0 0"},
        LoadExit{"Empty", "HLXIRotationalBodyForce::GetRotationParameters=null", kNoVelocity,
                 ": 0 0"},
        LoadExit{"GivenAlongWithAFailure",
                 "HLXIRotationalBodyForce::GetRotationParameters=E_UNEXPECTED,keep", kSuccess,
                 kWhole, 1},
        LoadExit{"VelocityNotValued", "VEXIParameter::Valuate#1=E_ACCESSDENIED", kSuccess,
                 ": 0 5.25 about Edge-1 amplitude 1 used on body of box.VEXPart, "
                 "GeometrySmartConnector",
                 1},
        LoadExit{"AccelerationNotValued", "VEXIParameter::Valuate#2=E_ACCESSDENIED", kSuccess,
                 ": 1.73205 0 about Edge-1 amplitude 1 used on body of box.VEXPart, "
                 "GeometrySmartConnector",
                 1}),
    NameOfLoadExit);

// --- Amplitude ----------------------------------------------------------------------------------

const Outcome kNoAmplitude{E_FAIL, "********** Could not set user sub attribute\n", ""};

INSTANTIATE_TEST_SUITE_P(
    OfItsAmplitude, RotationalExitTest,
    testing::Values(LoadExit{"NotUsed", "HLXICondition::SetUseAmplitude=E_ACCESSDENIED", kSuccess,
                             ": 1.73205 5.25 about Edge-1 amplitude 1 on body of box.VEXPart, "
                             "GeometrySmartConnector",
                             1},
                    LoadExit{"NotSet", "HLXICondition::SetAmplitude=E_FAIL", kNoAmplitude,
                             ": 1.73205 5.25 used", 1},
                    LoadExit{"Denied", "HLXICondition::SetAmplitude=E_ACCESSDENIED", kNoAmplitude,
                             ": 1.73205 5.25 used", 1},
                    LoadExit{"SetAllTheSame", "HLXICondition::SetAmplitude=E_UNEXPECTED,keep",
                             kNoAmplitude, ": 1.73205 5.25 amplitude 1 used", 1},
                    LoadExit{"Positive", "HLXICondition::SetAmplitude=S_FALSE,keep", kSuccess,
                             kWhole, 1}),
    NameOfLoadExit);

// --- Axis and body ------------------------------------------------------------------------------

const std::string kReady = ": 1.73205 5.25 amplitude 1 used";
const Outcome kSilent{E_FAIL, "", ""};

INSTANTIATE_TEST_SUITE_P(
    OfItsGeometry, RotationalExitTest,
    testing::Values(
        LoadExit{"NoEdge", "cast:VEXEdgeCell->VEXILinkableObject=E_NOINTERFACE", kSilent, kReady,
                 1},
        LoadExit{"EmptyEdge", "cast:VEXEdgeCell->VEXILinkableObject=null", kSilent, kReady, 1},
        LoadExit{"NoRequest", "cast:VEXPart->VEXIPartRequest#2=E_NOINTERFACE", kSilent, kReady, 1},
        LoadExit{"EmptyRequest", "cast:VEXPart->VEXIPartRequest#2=null", kSilent, kReady, 1},
        LoadExit{"NoBody", "VEXIPartRequest::GetMainBody#2=null", kSilent, kReady, 1},
        LoadExit{"NoLink", "cast:VEXMechanicalTool->VEXILinkableObject=E_NOINTERFACE", kSilent,
                 kReady, 1},
        LoadExit{"EmptyLink", "cast:VEXMechanicalTool->VEXILinkableObject=null", kSilent, kReady,
                 1},
        LoadExit{"AxisNotSet", "HLXIRotationalBodyForce::SetAxis=E_ACCESSDENIED", kSuccess,
                 kReady + " on body of box.VEXPart, GeometrySmartConnector", 1},
        LoadExit{"AxisSetAlongWithAFailure", "HLXIRotationalBodyForce::SetAxis=E_UNEXPECTED,keep",
                 kSuccess, kWhole, 1},
        LoadExit{"NoPart",
                 "cast:VEXPart->VEXISpecObject=E_NOINTERFACE",
                 {E_FAIL, "Could not add support to gravity load\n", ""},
                 kReady,
                 1},
        LoadExit{"NoAccessIsMade", "VEXBRepDecode=null", kSuccess, kWhole, 1},
        LoadExit{"NoContainerOfAccesses",
                 "VEXIContainerOfDocument::GetBRepContainer=E_ACCESSDENIED", kSuccess, kWhole, 1}),
    NameOfLoadExit);

}  // namespace
}  // namespace hlxtest::statics
