// SPDX-License-Identifier: Apache-2.0
// Creating a temperature boundary condition: the order of calls, its value and its amplitude, and
// the exits that are its own.
#include "library/conditions/TemperatureKinds.h"

#include <bit>
#include <type_traits>

namespace hlxtest::statics {
namespace {

using Utils = HLXAnalysisTestUtils;

static_assert(std::is_same_v<decltype(&Utils::CreateTemperatureBC),
                             HRESULT (*)(VEXDocument*, VEXUnicodeString&, VEXISpecObject_var&,
                                         VEXISamAnalysisSet_var&)>);

constexpr const TemperatureKind& kKind = kTemperatureBC;

class TemperatureBCTest : public TemperatureKindTest
{
protected:
    TemperatureArguments arguments = Arguments();
};

TEST_F(TemperatureBCTest, IsNamedValuedGivenItsAmplitudeAndPutOnAFace)
{
    EXPECT_EQ(CallsOfCreation(kKind),
              (std::vector<std::string>{
                  "VEXInstantiateComponent(\"HLXTemperatureFact\", HLXITemperatureFact, &)",
                  "HLXITemperatureFact::CreateTemperature(&, \"HLXTemperatureLT\", "
                  "VEXAnalysisDocument, HLXGeneralStaticStepLT)",
                  "VEXIAlias::SetAlias(\"Name\")",
                  "HLXITemperature::SetMagnitude(25.89)",
                  "HLXICondition::SetUseAmplitude(1)",
                  "HLXITemperature::SetUserSubroutine(1)",
                  "VEXInstantiateComponent(\"HLXAmplitudeFact\", HLXIAmplitudeFact, &)",
                  "HLXIAmplitudeFact::CreateTabularAmplitude(&, VEXAnalysisDocument)",
                  "HLXICondition::SetAmplitude(HLXTabularAmplitudeLT)",
                  "VEXISamDocumentManager::GetLinkedDocuments(&)",
                  "VEXIPrtContainer::GetMechanicalPart()",
                  "VEXIPartRequest::GetMainBody(\"\", &)",
                  "VEXIBodyRequest::GetResults(\"MfDefault3DView\", &)",
                  "VEXBRepDecode(VEXBRepContainer, VEXFaceCell, VEXBody)",
                  "VEXISamAnalysisSupport::AddSupport(VEXBRepAccess, VEXPart, "
                  "\"GeometrySmartConnector\")",
              }));
}

TEST_F(TemperatureBCTest, IsPutIntoTheStepAndGivenWithoutAWord)
{
    ExpectExit(kKind, {"", "", S_OK, "", kKind.Whole(), 1});
}

TEST_F(TemperatureBCTest, StandsAmongTheTemperaturesOfTheStep)
{
    ASSERT_EQ(Create(kKind, arguments), (Outcome{S_OK, "", ""}));
    EXPECT_TRUE(arguments.temperature->GetFather() == Below(step, "HLXTemperatureContainerLT")[1]);
}

TEST_F(TemperatureBCTest, HasItsValueToTheLastBit)
{
    ASSERT_EQ(Create(kKind, arguments), (Outcome{S_OK, "", ""}));
    double magnitude = 0;
    ASSERT_EQ(HLXITemperature_var(arguments.temperature)->GetMagnitude(magnitude), S_OK);
    EXPECT_EQ(std::bit_cast<std::uint64_t>(magnitude), 0x4039E3D70A3D70A4U);
}

TEST_F(TemperatureBCTest, ASecondOneHasAnAmplitudeOfItsOwn)
{
    arguments.name = "First";
    ASSERT_EQ(Create(kKind, arguments), (Outcome{S_OK, "", ""}));
    const VEXISpecObject_var first = arguments.temperature;
    arguments.name = "Second";
    ASSERT_EQ(Create(kKind, arguments), (Outcome{S_OK, "", ""}));
    EXPECT_EQ(TemperatureTexts(),
              (std::vector<std::string>{
                  "HLXTemperatureLT in Loading, First: 25.89 subroutine amplitude 1 used on face 1 "
                  "of box.VEXPart, GeometrySmartConnector",
                  "HLXTemperatureLT in Loading, Second: 25.89 subroutine amplitude 2 used on face "
                  "1 of box.VEXPart, GeometrySmartConnector"}));
    EXPECT_TRUE(first == Temperatures()[1]);
    EXPECT_TRUE(arguments.temperature == Temperatures()[2]);
    ExpectUsualAmplitudes(2);
    EXPECT_EQ(AliasOf(Amplitudes()[1]), "");
}

TEST_F(TemperatureBCTest, LeavesWhatTheHandleHeldAlone)
{
    arguments.temperature = former;
    const unsigned long before = References(*former.Get());
    ASSERT_EQ(Create(kKind, arguments), (Outcome{S_OK, "", ""}));
    EXPECT_EQ(AliasOf(former), "Former");
    EXPECT_EQ(SupportsOf(former), std::vector<std::string>{});
    EXPECT_EQ(References(*former.Get()), before - 1);
    EXPECT_EQ(References(*arguments.temperature.Get()), 1U);
}

TEST_F(TemperatureBCTest, NamesAreTakenAsTheyAre)
{
    for (const char* const name :
         {"", " blanks around ", "\xC3\xA4\xE2\x82\xAC\xF0\x9F\x98\x80", "100% \"quoted\"\n"}) {
        arguments.name = name;
        EXPECT_EQ(Create(kKind, arguments), (Outcome{S_OK, "", ""}));
        EXPECT_EQ(AliasOf(arguments.temperature), name);
        EXPECT_EQ(arguments.name, name);
    }
}

TEST_F(TemperatureBCTest, ANameThatThePlatformRefusesIsNoFailure)
{
    arguments.name = "\xFF";
    EXPECT_EQ(Create(kKind, arguments), (Outcome{S_OK, "", ""}));
    EXPECT_EQ(AliasOf(arguments.temperature), "");
}

// --- Value and amplitude ------------------------------------------------------------------------

class TemperatureBCExitTest : public TemperatureBCTest,
                              public testing::WithParamInterface<TemperatureExit>
{};

TEST_P(TemperatureBCExitTest, AnswersAndLeavesWhatWasMade)
{
    ExpectExit(kKind, GetParam());
}

/// A silent failure that leaves these values, and so many amplitudes.
TemperatureExit Silent(const char* name, const char* faults, const char* left, int amplitudes)
{
    return {name, faults, E_FAIL, "", kKind.Text(std::string("Name: ") + left), amplitudes};
}

/// A success with these values.
TemperatureExit Passed(const char* name, const char* faults, const char* left)
{
    return {name,
            faults,
            S_OK,
            "",
            kKind.Text(std::string("Name: ") + left +
                       " on face 1 of box.VEXPart, GeometrySmartConnector"),
            1};
}

INSTANTIATE_TEST_SUITE_P(
    Value, TemperatureBCExitTest,
    testing::Values(
        Silent("NoInterface", "cast:HLXTemperatureLT->HLXITemperature=E_NOINTERFACE", "0", 0),
        Silent("EmptyInterface", "cast:HLXTemperatureLT->HLXITemperature=null", "0", 0),
        Silent("Denied", "HLXITemperature::SetMagnitude=E_ACCESSDENIED", "0", 0),
        Silent("SetAlongWithAFailure", "HLXITemperature::SetMagnitude=E_UNEXPECTED,keep", "25.89",
               0),
        Passed("SetWithAPositiveResult", "HLXITemperature::SetMagnitude=S_FALSE,keep",
               "25.89 subroutine amplitude 1 used"),
        Passed("UseDenied", "HLXICondition::SetUseAmplitude=E_ACCESSDENIED",
               "25.89 subroutine amplitude 1"),
        Passed("UsedAlongWithAFailure", "HLXICondition::SetUseAmplitude=E_UNEXPECTED,keep",
               "25.89 subroutine amplitude 1 used"),
        Passed("SubroutineDenied", "HLXITemperature::SetUserSubroutine=E_ACCESSDENIED",
               "25.89 amplitude 1 used"),
        Passed("SubroutineAlongWithAFailure",
               "HLXITemperature::SetUserSubroutine=E_UNEXPECTED,keep",
               "25.89 subroutine amplitude 1 used")),
    NameOfTemperatureExit);

constexpr const char* kValued = "25.89 subroutine used";

INSTANTIATE_TEST_SUITE_P(
    Amplitude, TemperatureBCExitTest,
    testing::Values(
        Silent("NoFactory", "VEXInstantiateComponent#2=E_ACCESSDENIED", kValued, 0),
        Silent("EmptyFactory", "VEXInstantiateComponent#2=null", kValued, 0),
        Silent("NotMade", "HLXIAmplitudeFact::CreateTabularAmplitude=E_ACCESSDENIED", kValued, 0),
        Silent("Empty", "HLXIAmplitudeFact::CreateTabularAmplitude=null", kValued, 0),
        Silent("MadeAlongWithAFailure",
               "HLXIAmplitudeFact::CreateTabularAmplitude=E_UNEXPECTED,keep", kValued, 1),
        Passed("MadeWithAPositiveResult", "HLXIAmplitudeFact::CreateTabularAmplitude=S_FALSE,keep",
               "25.89 subroutine amplitude 1 used"),
        Silent("NotTabular", "cast:HLXTabularAmplitudeLT->HLXITabularAmplitude=E_NOINTERFACE",
               kValued, 1),
        Silent("NoTable", "HLXIAmplitude::SetData=E_ACCESSDENIED", kValued, 1),
        Passed("NotGiven", "HLXICondition::SetAmplitude=E_ACCESSDENIED", kValued),
        Passed("GivenAlongWithAFailure", "HLXICondition::SetAmplitude=E_UNEXPECTED,keep",
               "25.89 subroutine amplitude 1 used")),
    NameOfTemperatureExit);

TEST_F(TemperatureBCTest, WithoutAValueNoFlagIsSetAndNoAmplitudeMade)
{
    const Faults inForce("HLXITemperature::SetMagnitude=E_FAIL");
    const std::vector<std::string> calls = CallsOf(
        [&] { kKind.create(arguments); }, {"HLXIT", "HLXICondition::", "VEXInstantiateComponent"});
    EXPECT_EQ(calls, (std::vector<std::string>{
                         "VEXInstantiateComponent(\"HLXTemperatureFact\", HLXITemperatureFact, &)",
                         "HLXITemperatureFact::CreateTemperature(&, \"HLXTemperatureLT\", "
                         "VEXAnalysisDocument, HLXGeneralStaticStepLT)",
                         "HLXITemperature::SetMagnitude(25.89)",
                     }));
}

}  // namespace
}  // namespace hlxtest::statics
