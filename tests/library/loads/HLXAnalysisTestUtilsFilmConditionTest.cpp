// SPDX-License-Identifier: Apache-2.0
// Creating a film condition: what is its own in the order of calls, its exits, its second
// amplitude, its table.
#include "library/loads/LoadKinds.h"

#include <type_traits>

namespace hlxtest::statics {
namespace {

static_assert(std::is_same_v<decltype(&HLXAnalysisTestUtils::CreateFilmCondition), LoadCreation>);

class FilmConditionTest : public LoadKindTest
{};

TEST_F(FilmConditionTest, IsNamedValuedGivenTwoAmplitudesAndATableAndPutOnAFace)
{
    load = former;
    EXPECT_EQ(CallsOfCreation(kFilmCondition, "HLXIFilmCondition"),
              (std::vector<std::string>{
                  "VEXInstantiateComponent(\"HLXLoadFact\", HLXILoadFact, &)",
                  "HLXILoadFact::CreateFilmCondition(&, VEXAnalysisDocument, "
                  "HLXGeneralStaticStepLT)",
                  "VEXIAlias::SetAlias(\"Load\")",
                  "HLXIFilmCondition::SetTemperature(51)",
                  "HLXILoad::SetUserSubroutine(0)",
                  "HLXICondition::SetUseAmplitude(1)",
                  "VEXInstantiateComponent(\"HLXAmplitudeFact\", HLXIAmplitudeFact, &)",
                  "HLXIAmplitudeFact::CreateTabularAmplitude(&, VEXAnalysisDocument)",
                  "HLXICondition::SetAmplitude(HLXTabularAmplitudeLT)",
                  "VEXInstantiateComponent(\"HLXAmplitudeFact\", HLXIAmplitudeFact, &)",
                  "HLXIAmplitudeFact::CreateTabularAmplitude(&, VEXAnalysisDocument)",
                  "HLXIFilmCondition::SetFilmAmplitude(HLXTabularAmplitudeLT)",
                  "HLXIFilmCondition::SetCoefficients([3])",
                  "HLXIFilmCondition::SetTemperatures([3])",
                  "VEXISamDocumentManager::GetLinkedDocuments(&)",
                  "VEXIPrtContainer::GetMechanicalPart()",
                  "VEXIPartRequest::GetMainBody(\"\", &)",
                  "VEXIBodyRequest::GetResults(\"MfDefault3DView\", &)",
                  "VEXBRepDecode(VEXBRepContainer, VEXFaceCell, VEXBody)",
                  "VEXISamAnalysisSupport::AddSupport(VEXBRepAccess, VEXPart, "
                  "\"GeometrySmartConnector\")",
              }));
}

class FilmConditionExitTest : public FilmConditionTest, public testing::WithParamInterface<LoadExit>
{};

TEST_P(FilmConditionExitTest, AnswersWithoutAWordAndLeavesTheLoad)
{
    ExpectExit(kFilmCondition, GetParam());
}

const std::string kWhole = kFilmCondition.Whole();
const std::string kSupport = " on face 1 of box.VEXPart, GeometrySmartConnector";
const Outcome kSuccess{S_OK, "", ""};
const Outcome kSilent{E_FAIL, "", ""};

INSTANTIATE_TEST_SUITE_P(
    OfItsValues, FilmConditionExitTest,
    testing::Values(
        LoadExit{"NoInterface", "cast:HLXFilmCondition->HLXIFilmCondition=E_NOINTERFACE", kSilent,
                 "Load: 0 () ()"},
        LoadExit{"EmptyInterface", "cast:HLXFilmCondition->HLXIFilmCondition=null", kSilent,
                 "Load: 0 () ()"},
        LoadExit{"Temperature", "HLXIFilmCondition::SetTemperature=E_FAIL", kSilent,
                 "Load: 0 () ()"},
        LoadExit{"TemperatureDenied", "HLXIFilmCondition::SetTemperature=E_ACCESSDENIED", kSilent,
                 "Load: 0 () ()"},
        LoadExit{"TemperatureSetAlongWithAFailure",
                 "HLXIFilmCondition::SetTemperature=E_UNEXPECTED,keep", kSilent, "Load: 51 () ()"},
        LoadExit{"TemperaturePositive", "HLXIFilmCondition::SetTemperature=S_FALSE,keep", kSuccess,
                 kWhole, 2},
        LoadExit{"Subroutine", "HLXILoad::SetUserSubroutine=E_ACCESSDENIED", kSuccess, kWhole, 2},
        LoadExit{"Use", "HLXICondition::SetUseAmplitude=E_ACCESSDENIED", kSuccess,
                 "Load: 51 film amplitude 2 (1.2 2.4 3.5) (10 20 30) amplitude 1" + kSupport, 2},
        LoadExit{"Amplitude", "HLXICondition::SetAmplitude=E_ACCESSDENIED", kSuccess,
                 "Load: 51 film amplitude 2 (1.2 2.4 3.5) (10 20 30) used" + kSupport, 2},
        LoadExit{"AmplitudeSetAlongWithAFailure", "HLXICondition::SetAmplitude=E_UNEXPECTED,keep",
                 kSuccess, kWhole, 2}),
    NameOfLoadExit);

const std::string kOneAmplitude = "Load: 51 () () amplitude 1 used";

INSTANTIATE_TEST_SUITE_P(
    OfItsSecondAmplitude, FilmConditionExitTest,
    testing::Values(
        LoadExit{"NoFactory", "VEXInstantiateComponent#3=E_ACCESSDENIED", kSilent, kOneAmplitude,
                 1},
        LoadExit{"EmptyFactory", "VEXInstantiateComponent#3=null", kSilent, kOneAmplitude, 1},
        LoadExit{"NotCreated", "HLXIAmplitudeFact::CreateTabularAmplitude#2=E_ACCESSDENIED",
                 kSilent, kOneAmplitude, 1},
        LoadExit{"NotGiven", "HLXIAmplitudeFact::CreateTabularAmplitude#2=null", kSilent,
                 kOneAmplitude, 1},
        LoadExit{"NotTabular", "cast:HLXTabularAmplitudeLT->HLXITabularAmplitude#2=E_NOINTERFACE",
                 kSilent, kOneAmplitude, 2},
        LoadExit{"NoTable", "HLXIAmplitude::SetData#2=E_ACCESSDENIED", kSilent, kOneAmplitude, 2},
        LoadExit{"NotSet", "HLXIFilmCondition::SetFilmAmplitude=E_ACCESSDENIED", kSuccess,
                 "Load: 51 (1.2 2.4 3.5) (10 20 30) amplitude 1 used" + kSupport, 2},
        LoadExit{"SetAlongWithAFailure", "HLXIFilmCondition::SetFilmAmplitude=E_UNEXPECTED,keep",
                 kSuccess, kWhole, 2}),
    NameOfLoadExit);

INSTANTIATE_TEST_SUITE_P(
    OfItsTable, FilmConditionExitTest,
    testing::Values(
        LoadExit{"Coefficients", "HLXIFilmCondition::SetCoefficients=E_FAIL", kSilent,
                 "Load: 51 film amplitude 2 () () amplitude 1 used", 2},
        LoadExit{"CoefficientsDenied", "HLXIFilmCondition::SetCoefficients=E_ACCESSDENIED", kSilent,
                 "Load: 51 film amplitude 2 () () amplitude 1 used", 2},
        LoadExit{"CoefficientsPositive", "HLXIFilmCondition::SetCoefficients=S_FALSE,keep",
                 kSuccess, kWhole, 2},
        LoadExit{"Temperatures", "HLXIFilmCondition::SetTemperatures=E_FAIL", kSilent,
                 "Load: 51 film amplitude 2 (1.2 2.4 3.5) () amplitude 1 used", 2},
        LoadExit{"TemperaturesDenied", "HLXIFilmCondition::SetTemperatures=E_ACCESSDENIED", kSilent,
                 "Load: 51 film amplitude 2 (1.2 2.4 3.5) () amplitude 1 used", 2},
        LoadExit{"TemperaturesSetAlongWithAFailure",
                 "HLXIFilmCondition::SetTemperatures=E_UNEXPECTED,keep", kSilent,
                 "Load: 51 film amplitude 2 (1.2 2.4 3.5) (10 20 30) amplitude 1 used", 2},
        LoadExit{"TemperaturesPositive", "HLXIFilmCondition::SetTemperatures=S_FALSE,keep",
                 kSuccess, kWhole, 2}),
    NameOfLoadExit);

}  // namespace
}  // namespace hlxtest::statics
