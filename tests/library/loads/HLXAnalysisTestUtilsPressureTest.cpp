// SPDX-License-Identifier: Apache-2.0
// Creating a pressure: what is its own in the order of calls, its exits, the mesh it follows.
#include "library/loads/LoadKinds.h"

#include <type_traits>

namespace hlxtest::statics {
namespace {

using Utils = HLXAnalysisTestUtils;

static_assert(std::is_same_v<decltype(&Utils::CreatePressureLoad),
                             HRESULT (*)(VEXDocument*&, VEXUnicodeString, VEXISpecObject_var&,
                                         VEXISamAnalysisSet_var&)>);

class PressureTest : public LoadKindTest
{};

const std::string kDone = kPressure.done;
const std::string kWhole = kPressure.Whole();

TEST_F(PressureTest, FindsThePartThenMakesTheLoadAndItsSupport)
{
    std::vector<std::string> calls;
    load = former;
    Capture([&] { calls = CallsOfCreation(kPressure, "HLXIPressureLoad"); });
    EXPECT_EQ(calls,
              (std::vector<std::string>{
                  "VEXISamDocumentManager::GetLinkedDocuments(&)",
                  "VEXIPrtContainer::GetMechanicalPart()",
                  "VEXInstantiateComponent(\"HLXLoadFact\", HLXILoadFact, &)",
                  "HLXILoadFact::CreatePressure(&, VEXAnalysisDocument, HLXGeneralStaticStepLT)",
                  "VEXIAlias::SetAlias(\"Load\")",
                  "HLXIPressureLoad::GetPressureParameter(&)",
                  "VEXIParameter::Valuate(1.25)",
                  "HLXILoad::SetUserSubroutine(0)",
                  "HLXICondition::SetUseAmplitude(1)",
                  "VEXInstantiateComponent(\"HLXAmplitudeFact\", HLXIAmplitudeFact, &)",
                  "HLXIAmplitudeFact::CreateTabularAmplitude(&, VEXAnalysisDocument)",
                  "HLXICondition::SetAmplitude(HLXTabularAmplitudeLT)",
                  "VEXIPartRequest::GetMainBody(\"\", &)",
                  "VEXIBodyRequest::GetResults(\"MfDefault3DView\", &)",
                  "VEXBRepDecode(VEXBRepContainer, VEXFaceCell, VEXBody)",
                  "VEXISamAnalysisSupport::AddSupport(VEXBRepAccess, VEXPart, "
                  "\"GeometrySmartConnector\")",
                  "VEXISamAnalysisModel::GetMeshNegotiator(&)",
                  "VEXISamMeshNegotiator::Subscribe(HLXPressure)",
              }));
}

TEST_F(PressureTest, TheDocumentStaysTheSame)
{
    VEXDocument* document = analysis.Get();
    EXPECT_EQ(OutcomeOf([&] { return Utils::CreatePressureLoad(document, "Load", load, step); }),
              (Outcome{S_OK, kDone, ""}));
    EXPECT_EQ(document, analysis.Get());
}

TEST_F(PressureTest, TheFirstModelIsAskedForTheNegotiator)
{
    AddModel(analysis.Get());
    EXPECT_EQ(Create(kPressure.create), (Outcome{S_OK, kDone, ""}));
    EXPECT_EQ(LoadTexts(), std::vector{kWhole});
}

class PressureExitTest : public PressureTest, public testing::WithParamInterface<LoadExit>
{};

TEST_P(PressureExitTest, AnswersAndPrintsAndLeavesTheLoad)
{
    ExpectExit(kPressure, GetParam());
    ExpectFlushed(kPressure, GetParam());
}

// --- The interface and its parameter ------------------------------------------------------------

const Outcome kNoInterface{E_FAIL, "********** could not access interface HLXIPressureLoad !\n",
                           ""};
const Outcome kNoParameter{E_FAIL, "********** could not access pressure parameter !\n", ""};

INSTANTIATE_TEST_SUITE_P(
    OfItsInterface, PressureExitTest,
    testing::Values(LoadExit{"None", "cast:HLXPressure->HLXIPressureLoad=E_NOINTERFACE",
                             kNoInterface, "Load: 0"},
                    LoadExit{"Denied", "cast:HLXPressure->HLXIPressureLoad=E_ACCESSDENIED",
                             kNoInterface, "Load: 0"},
                    LoadExit{"Empty", "cast:HLXPressure->HLXIPressureLoad=null", kNoInterface,
                             "Load: 0"},
                    LoadExit{"Positive",
                             "cast:HLXPressure->HLXIPressureLoad=S_FALSE,keep",
                             {S_OK, kDone, ""},
                             kWhole,
                             1},
                    LoadExit{"NoParameter", "HLXIPressureLoad::GetPressureParameter=E_ACCESSDENIED",
                             kNoParameter, "Load: 0"},
                    LoadExit{"EmptyParameter", "HLXIPressureLoad::GetPressureParameter=null",
                             kNoParameter, "Load: 0"},
                    LoadExit{"ParameterAlongWithAFailure",
                             "HLXIPressureLoad::GetPressureParameter=E_UNEXPECTED,keep",
                             kNoParameter, "Load: 0"},
                    LoadExit{"PositiveParameter",
                             "HLXIPressureLoad::GetPressureParameter=S_FALSE,keep",
                             {S_OK, kDone, ""},
                             kWhole,
                             1}),
    NameOfLoadExit);

TEST_F(PressureTest, AnInterfaceGivenAlongWithAFailureIsNotTaken)
{
    EXPECT_EQ(Create(kPressure.create, "cast:HLXPressure->HLXIPressureLoad=E_UNEXPECTED,keep"),
              kNoInterface);
    EXPECT_EQ(LoadTexts(), std::vector<std::string>{"Load: 0"});
    LetGo(std::exchange(load, {}));
}

// --- Values and amplitude -----------------------------------------------------------------------

const Outcome kNoAmplitude{E_FAIL, "********** Could not set user sub attribute\n", ""};

INSTANTIATE_TEST_SUITE_P(
    OfItsValues, PressureExitTest,
    testing::Values(
        LoadExit{"Valuation",
                 "VEXIParameter::Valuate=E_ACCESSDENIED",
                 {S_OK, kDone, ""},
                 "Load: 0 amplitude 1 used on face 1 of box.VEXPart, GeometrySmartConnector "
                 "follows mesh",
                 1},
        LoadExit{"Subroutine",
                 "HLXILoad::SetUserSubroutine=E_ACCESSDENIED",
                 {S_OK, kDone, ""},
                 kWhole,
                 1},
        LoadExit{"Use",
                 "HLXICondition::SetUseAmplitude=E_ACCESSDENIED",
                 {S_OK, kDone, ""},
                 "Load: 1.25 amplitude 1 on face 1 of box.VEXPart, GeometrySmartConnector "
                 "follows mesh",
                 1},
        LoadExit{"Amplitude", "HLXICondition::SetAmplitude=E_FAIL", kNoAmplitude, "Load: 1.25 used",
                 1},
        LoadExit{"AmplitudeDenied", "HLXICondition::SetAmplitude=E_ACCESSDENIED", kNoAmplitude,
                 "Load: 1.25 used", 1},
        LoadExit{"AmplitudeSetAllTheSame", "HLXICondition::SetAmplitude=E_UNEXPECTED,keep",
                 kNoAmplitude, "Load: 1.25 amplitude 1 used", 1},
        LoadExit{"PositiveAmplitude",
                 "HLXICondition::SetAmplitude=S_FALSE,keep",
                 {S_OK, kDone, ""},
                 kWhole,
                 1}),
    NameOfLoadExit);

// --- Mesh ---------------------------------------------------------------------------------------

const std::string kWithoutMesh = kPressure.Supported();

INSTANTIATE_TEST_SUITE_P(
    OfTheMesh, PressureExitTest,
    testing::Values(
        LoadExit{"NoModel",
                 "cast:VEXSamAnalysisModel->VEXISamAnalysisModel=E_NOINTERFACE",
                 {S_OK, "", ""},
                 kWithoutMesh,
                 1},
        LoadExit{"NoNegotiator",
                 "VEXISamAnalysisModel::GetMeshNegotiator=E_FAIL",
                 {S_OK, "", ""},
                 kWithoutMesh,
                 1},
        LoadExit{"DeniedNegotiator",
                 "VEXISamAnalysisModel::GetMeshNegotiator=E_ACCESSDENIED",
                 {S_OK, "", ""},
                 kWithoutMesh,
                 1},
        LoadExit{"EmptyNegotiator",
                 "VEXISamAnalysisModel::GetMeshNegotiator=null",
                 {S_OK, "", ""},
                 kWithoutMesh,
                 1},
        LoadExit{"PositiveNegotiator",
                 "VEXISamAnalysisModel::GetMeshNegotiator=S_FALSE,keep",
                 {S_OK, kDone, ""},
                 kWhole,
                 1},
        LoadExit{
            "Refused", "VEXISamMeshNegotiator::Subscribe=E_FAIL", {S_OK, "", ""}, kWithoutMesh, 1},
        LoadExit{"Denied",
                 "VEXISamMeshNegotiator::Subscribe=E_ACCESSDENIED",
                 {S_OK, "", ""},
                 kWithoutMesh,
                 1},
        LoadExit{"SubscribedAlongWithAFailure",
                 "VEXISamMeshNegotiator::Subscribe=E_UNEXPECTED,keep",
                 {S_OK, "", ""},
                 kWhole,
                 1},
        LoadExit{"PositiveSubscription",
                 "VEXISamMeshNegotiator::Subscribe=S_FALSE,keep",
                 {S_OK, kDone, ""},
                 kWhole,
                 1}),
    NameOfLoadExit);

TEST_F(PressureTest, AFailedSupportDoesNotAskForTheNegotiator)
{
    Recording recording;
    EXPECT_EQ(Create(kPressure.create, "VEXISamAnalysisSupport::AddSupport=E_FAIL").result, E_FAIL);
    EXPECT_EQ(recording.StopNames({"VEXISamAnalysisModel::", "VEXISamMeshNegotiator::"}),
              std::vector<std::string>{});
}

}  // namespace
}  // namespace hlxtest::statics
