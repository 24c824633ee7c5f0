// SPDX-License-Identifier: Apache-2.0
// Gravity: what is made in the step, in which order, under which name, on which part.
#include "library/loads/GravityFixture.h"
#include "support/FlushedOutput.h"

#include <bit>
#include <cstdint>
#include <type_traits>
#include <utility>

namespace hlxtest::statics {
namespace {

using Utils = HLXAnalysisTestUtils;

static_assert(std::is_same_v<decltype(&Utils::CreateGravity),
                             HRESULT (*)(VEXDocument*, VEXUnicodeString, VEXISpecObject_var&,
                                         VEXISamAnalysisSet_var&)>);

TEST_F(GravityTest, IsValuedDrivenAndSupportedByTheBodyWithoutAWord)
{
    EXPECT_EQ(Create(), (Outcome{S_OK, "", ""}));
    EXPECT_EQ(Left(), completeGravity);
    ASSERT_TRUE(load && load == Loads()[1]);
    EXPECT_EQ(load->GetType(), VEXUnicodeString("HLXGravity"));
}

TEST_F(GravityTest, PointsDownTheThirdAxisToTheLastBit)
{
    ASSERT_EQ(Create(), (Outcome{S_OK, "", ""}));
    double z = 0;
    ASSERT_EQ(HLXIGravity_var(load)->GetComponentZ(z), S_OK);
    EXPECT_EQ(std::bit_cast<std::uint64_t>(z), 0xC0239EB851EB851FU);
}

TEST_F(GravityTest, TakesNothingFromAUserSubroutineAndDoesNotFollowTheMesh)
{
    ASSERT_EQ(Create(), (Outcome{S_OK, "", ""}));
    unsigned char isUsers = 1;
    ASSERT_EQ(HLXIGravity_var(load)->GetUserSubroutine(isUsers), S_OK);
    EXPECT_EQ(isUsers, 0);
    EXPECT_EQ(CallsOf([&] { Create(); }, {"VEXISamMeshNegotiator::", "VEXISamAnalysisModel::"}),
              std::vector<std::string>{});
}

TEST_F(GravityTest, HasAnUnnamedAmplitudeOfItsOwnThatCountsFromTheStep)
{
    ASSERT_EQ(Create(), (Outcome{S_OK, "", ""}));
    const HLXITabularAmplitude_var amplitude = Amplitudes()[1];
    int span = 1;
    HLXCftArrayHLXCftArrayDouble rows;
    ASSERT_EQ(amplitude->GetTimeSpan(span), S_OK);
    ASSERT_EQ(amplitude->GetData(rows), S_OK);
    EXPECT_EQ(AliasOf(amplitude), "");
    EXPECT_EQ(span, 0);
    EXPECT_EQ(
        rows,
        (HLXCftArrayHLXCftArrayDouble{
            {0, 0}, {1, 2}, {2, 4}, {3, 6}, {4, 8}, {5, 10}, {6, 12}, {7, 14}, {8, 16}, {9, 18}}));
}

TEST_F(GravityTest, IsMadeStepByStep)
{
    std::vector<std::string> calls = CallsOf(
        [&] { Utils::CreateGravity(analysis.Get(), "Name", load, step); },
        {"VEXInstantiateComponent", "HLXI",
         "VEXIAlias::", "VEXIParameter::", "VEXISamDocumentManager::", "VEXIPrtContainer::",
         "VEXIPartRequest::", "VEXIBodyRequest::", "VEXBRepDecode", "VEXISamAnalysisSupport::"});
    for (std::string& call : calls) {
        if (call.starts_with("HLXIAmplitude::SetData(")) {
            call.erase(call.find('('));
        }
    }
    EXPECT_EQ(calls,
              (std::vector<std::string>{
                  "VEXInstantiateComponent(\"HLXLoadFact\", HLXILoadFact, &)",
                  "HLXILoadFact::CreateGravity(&, VEXAnalysisDocument, HLXGeneralStaticStepLT)",
                  "VEXIAlias::SetAlias(\"Name\")",
                  "HLXIGravity::GetComponentParameters(&, &, &)",
                  "VEXIParameter::Valuate(-9.81)",
                  "VEXInstantiateComponent(\"HLXAmplitudeFact\", HLXIAmplitudeFact, &)",
                  "HLXIAmplitudeFact::CreateTabularAmplitude(&, VEXAnalysisDocument)",
                  "HLXIAmplitude::SetData",
                  "HLXICondition::SetUseAmplitude(1)",
                  "HLXICondition::SetAmplitude(HLXTabularAmplitudeLT)",
                  "VEXISamDocumentManager::GetLinkedDocuments(&)",
                  "VEXIPrtContainer::GetMechanicalPart()",
                  "VEXIPartRequest::GetMainBody(\"MfDefault3DView\", &)",
                  "VEXISamAnalysisSupport::AddSupport(VEXMechanicalTool, VEXPart, "
                  "\"GeometrySmartConnector\")",
              }));
}

TEST_F(GravityTest, IsTakenAsAnEntityWithSupportsBeforeItIsValued)
{
    EXPECT_EQ(CallsOf([&] { Utils::CreateGravity(analysis.Get(), "Name", load, step); },
                      {"VEXIAlias::", "cast:HLXGravity->VEXISam", "VEXIParameter::"}),
              (std::vector<std::string>{
                  "VEXIAlias::SetAlias(\"Name\")",
                  "cast:HLXGravity->VEXISamAnalysisEntity(&)",
                  "cast:HLXGravity->VEXISamAnalysisSupport(&)",
                  "VEXIParameter::Valuate(-9.81)",
              }));
}

TEST_F(GravityTest, APartThatIsNoFeatureIsHandedToTheSupportAsNone)
{
    const Faults faults("cast:VEXPart->VEXISpecObject=E_NOINTERFACE");
    EXPECT_EQ(CallsOf([&] { Create(); }, {"VEXISamAnalysisSupport::"}),
              (std::vector<std::string>{"VEXISamAnalysisSupport::AddSupport(VEXMechanicalTool, "
                                        "null, \"GeometrySmartConnector\")"}));
}

TEST_F(GravityTest, HoldsTheLoadAndNothingElse)
{
    EXPECT_EQ(HeldBesidesFactories(), HeldCounts{});
    ASSERT_EQ(Create(), (Outcome{S_OK, "", ""}));
    EXPECT_EQ(References(*load.Get()), 1U);
}

TEST_F(GravityTest, LetsGoOfWhatTheHandleHeld)
{
    const unsigned long before = References(*former.Get());
    ASSERT_EQ(Create(), (Outcome{S_OK, "", ""}));
    EXPECT_EQ(References(*former.Get()), before - 1);
}

// --- Messages are there when the operation has ended ---------------------------------------------

TEST_F(GravityTest, MessagesAreFlushed)
{
    for (const auto& [faults, message] :
         {std::pair("VEXInstantiateComponent#1=E_FAIL", noGravityFactory),
          std::pair("HLXILoadFact::CreateGravity=E_FAIL", noGravity),
          std::pair("HLXIGravity::GetComponentParameters=E_FAIL", noGravityValue),
          std::pair("VEXISamAnalysisSupport::AddSupport=E_FAIL", noGravitySupport)}) {
        const FlushedOutput output;
        const Faults inForce(faults);
        Utils::CreateGravity(analysis.Get(), "Name", load, step);
        EXPECT_EQ(output.Text(), message);
    }
}

// --- Names: they go to what the handle holds on entry --------------------------------------------

TEST_F(GravityTest, AnEmptyHandleReceivesAnUnnamedGravity)
{
    load.Reset();
    EXPECT_EQ(CallsOf(
                  [&] {
                      EXPECT_EQ(Create(), (Outcome{S_OK, "", ""}));
                  },
                  {"VEXIAlias::"}),
              std::vector<std::string>{});
    ASSERT_TRUE(load && load == Loads()[1]);
    EXPECT_EQ(AliasOf(load), "");
    EXPECT_EQ(AliasOf(former), "Former");
}

TEST_F(GravityTest, ASecondOneNamesTheFirst)
{
    load.Reset();
    ASSERT_EQ(Create("", "First"), (Outcome{S_OK, "", ""}));
    const VEXISpecObject_var first = load;
    EXPECT_EQ(Create("", "Second"), (Outcome{S_OK, "", ""}));
    const VEXListValVEXBaseUnknown_var loads = Loads();
    ASSERT_EQ(loads.Size(), 2);
    EXPECT_TRUE(first == loads[1]);
    EXPECT_TRUE(load == loads[2]);
    EXPECT_EQ(AliasOf(first), "Second");
    EXPECT_EQ(AliasOf(load), "");
}

TEST_F(GravityTest, ASecondOneHasItsOwnAmplitudeAndSupport)
{
    ASSERT_EQ(Create(), (Outcome{S_OK, "", ""}));
    ASSERT_EQ(Create(), (Outcome{S_OK, "", ""}));
    const VEXListValVEXBaseUnknown_var loads = Loads();
    const VEXListValVEXBaseUnknown_var amplitudes = Amplitudes();
    ASSERT_EQ(loads.Size(), 2);
    ASSERT_EQ(amplitudes.Size(), 2);
    for (int i = 1; i <= 2; ++i) {
        VEXISpecObject_var given;
        ASSERT_EQ(HLXIGravity_var(loads[i])->GetAmplitude(given), S_OK);
        EXPECT_TRUE(given == amplitudes[i]) << i;
        EXPECT_EQ(SupportsOf(loads[i]),
                  (std::vector<std::string>{"body of box.VEXPart, GeometrySmartConnector"}));
    }
}

TEST_F(GravityTest, EachMakesAFactoryOfItsOwn)
{
    const auto createTwo = [&] {
        Create();
        Create();
    };
    EXPECT_EQ(CallsOf(createTwo, {"VEXInstantiateComponent"}),
              (std::vector<std::string>{
                  "VEXInstantiateComponent(\"HLXLoadFact\", HLXILoadFact, &)",
                  "VEXInstantiateComponent(\"HLXAmplitudeFact\", HLXIAmplitudeFact, &)",
                  "VEXInstantiateComponent(\"HLXLoadFact\", HLXILoadFact, &)",
                  "VEXInstantiateComponent(\"HLXAmplitudeFact\", HLXIAmplitudeFact, &)",
              }));
}

TEST_F(GravityTest, NamesAreTakenAsTheyAre)
{
    for (const char* const name :
         {"", " blanks around ", "\xC3\xA4\xE2\x82\xAC\xF0\x9F\x98\x80", "100% \"quoted\"\n"}) {
        load = former;
        EXPECT_EQ(Create("", name), (Outcome{S_OK, "", ""}));
        EXPECT_EQ(AliasOf(former), name);
    }
}

TEST_F(GravityTest, ANameThatThePlatformRefusesIsNoFailure)
{
    EXPECT_EQ(Create("", "\xFF").result, S_OK);
    EXPECT_EQ(AliasOf(former), "Former");
    EXPECT_EQ(Loads().Size(), 1);
}

}  // namespace
}  // namespace hlxtest::statics
