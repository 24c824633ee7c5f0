// SPDX-License-Identifier: Apache-2.0
// Every exit on the way to a gravity: result, message, what was made by then and stays, what is
// held.
#include "library/loads/GravityFixture.h"

namespace hlxtest::statics {
namespace {

struct GravityExit : Exit
{
    const char* left;

    friend void PrintTo(const GravityExit& row, std::ostream* stream) { *stream << row.faults; }
};

class GravityExitTest : public GravityTest, public testing::WithParamInterface<GravityExit>
{};

TEST_P(GravityExitTest, AnswersAndLeavesWhatWasMade)
{
    EXPECT_EQ(Create(GetParam().faults), (Outcome{GetParam().result, GetParam().out, ""}));
    EXPECT_EQ(Left(), GetParam().left);
    EXPECT_TRUE(load == (GetParam().result == S_OK ? VEXISpecObject_var(Loads()[1]) : former));
}

TEST_P(GravityExitTest, LeavesNothingHeld)
{
    EXPECT_EQ(HeldBesidesFactories(GetParam().faults), HeldCounts{});
}

std::string NameOfRow(const testing::TestParamInfo<GravityExit>& row)
{
    return row.param.name;
}

// --- What is left, further and further on the way -----------------------------------------------

constexpr const char* nothing = "Former";
constexpr const char* created = "Name; : 0 0 0";
constexpr const char* valued = "Name; : 0 0 -9.81";
constexpr const char* withEmptyAmplitude = "Name; : 0 0 -9.81; 0 rows";
constexpr const char* withAmplitude = "Name; : 0 0 -9.81; 10 rows";
constexpr const char* used = "Name; : 0 0 -9.81 used; 10 rows";
constexpr const char* given = "Name; : 0 0 -9.81 amplitude 1 used; 10 rows";

INSTANTIATE_TEST_SUITE_P(
    Factory, GravityExitTest,
    testing::Values(
        GravityExit{{"None", "VEXInstantiateComponent#1=E_ACCESSDENIED", E_FAIL, noGravityFactory},
                    nothing},
        GravityExit{{"Empty", "VEXInstantiateComponent#1=null", E_FAIL, noGravityFactory}, nothing},
        GravityExit{{"FailingThoughGiven", "VEXInstantiateComponent#1=E_UNEXPECTED,keep", E_FAIL,
                     noGravityFactory},
                    nothing},
        GravityExit{{"Positive", "VEXInstantiateComponent#1=S_FALSE,keep", S_OK, ""},
                    completeGravity}),
    NameOfRow);

INSTANTIATE_TEST_SUITE_P(
    Creation, GravityExitTest,
    testing::Values(
        GravityExit{{"Failing", "HLXILoadFact::CreateGravity=E_ACCESSDENIED", E_FAIL, noGravity},
                    nothing},
        GravityExit{{"Empty", "HLXILoadFact::CreateGravity=null", E_FAIL, noGravity}, nothing},
        GravityExit{{"FailingThoughGiven", "HLXILoadFact::CreateGravity=E_UNEXPECTED,keep", E_FAIL,
                     noGravity},
                    "Former; : 0 0 0"},
        GravityExit{{"Positive", "HLXILoadFact::CreateGravity=S_FALSE,keep", S_OK, ""},
                    completeGravity}),
    NameOfRow);

constexpr const char* unnamed =
    "Former; : 0 0 -9.81 amplitude 1 used on body of box.VEXPart, GeometrySmartConnector; 10 rows";

INSTANTIATE_TEST_SUITE_P(
    NamingAndCasts, GravityExitTest,
    testing::Values(
        GravityExit{{"NoAlias", "cast:HLXClamp->VEXIAlias=E_NOINTERFACE", S_OK, ""}, unnamed},
        GravityExit{{"EmptyAlias", "cast:HLXClamp->VEXIAlias=null", S_OK, ""}, unnamed},
        GravityExit{{"FailingName", "VEXIAlias::SetAlias=E_ACCESSDENIED", S_OK, ""}, unnamed},
        GravityExit{{"NoEntity", "cast:HLXGravity->VEXISamAnalysisEntity=E_NOINTERFACE", S_OK, ""},
                    completeGravity},
        GravityExit{{"EmptyEntity", "cast:HLXGravity->VEXISamAnalysisEntity=null", S_OK, ""},
                    completeGravity}),
    NameOfRow);

INSTANTIATE_TEST_SUITE_P(
    Value, GravityExitTest,
    testing::Values(
        GravityExit{
            {"NoGravity", "cast:HLXGravity->HLXIGravity=E_NOINTERFACE", E_FAIL, noGravityValue},
            created},
        GravityExit{{"EmptyGravity", "cast:HLXGravity->HLXIGravity=null", E_FAIL, noGravityValue},
                    created},
        GravityExit{{"FailingParameters", "HLXIGravity::GetComponentParameters=E_ACCESSDENIED",
                     E_FAIL, noGravityValue},
                    created},
        GravityExit{
            {"EmptyParameters", "HLXIGravity::GetComponentParameters=null", E_FAIL, noGravityValue},
            created},
        GravityExit{{"FailingParametersThoughGiven",
                     "HLXIGravity::GetComponentParameters=E_UNEXPECTED,keep", S_OK, ""},
                    completeGravity},
        GravityExit{{"FailingValuation", "VEXIParameter::Valuate=E_ACCESSDENIED", S_OK, ""},
                    "Name; : 0 0 0 amplitude 1 used on body of box.VEXPart, "
                    "GeometrySmartConnector; 10 rows"},
        GravityExit{
            {"FailingValuationThoughDone", "VEXIParameter::Valuate=E_UNEXPECTED,keep", S_OK, ""},
            completeGravity}),
    NameOfRow);

INSTANTIATE_TEST_SUITE_P(
    Amplitude, GravityExitTest,
    testing::Values(
        GravityExit{{"NoFactory", "VEXInstantiateComponent#2=E_ACCESSDENIED", E_FAIL, ""}, valued},
        GravityExit{
            {"Failing", "HLXIAmplitudeFact::CreateTabularAmplitude=E_ACCESSDENIED", E_FAIL, ""},
            valued},
        GravityExit{{"Empty", "HLXIAmplitudeFact::CreateTabularAmplitude=null", E_FAIL, ""},
                    valued},
        GravityExit{{"FailingThoughGiven",
                     "HLXIAmplitudeFact::CreateTabularAmplitude=E_UNEXPECTED,keep", E_FAIL, ""},
                    withEmptyAmplitude},
        GravityExit{
            {"Positive", "HLXIAmplitudeFact::CreateTabularAmplitude=S_FALSE,keep", S_OK, ""},
            completeGravity},
        GravityExit{{"NotTabular", "cast:HLXTabularAmplitudeLT->HLXITabularAmplitude=E_NOINTERFACE",
                     E_FAIL, ""},
                    withEmptyAmplitude},
        GravityExit{{"FailingTable", "HLXIAmplitude::SetData=E_ACCESSDENIED", E_FAIL, ""},
                    withEmptyAmplitude},
        GravityExit{
            {"FailingTableThoughTaken", "HLXIAmplitude::SetData=E_UNEXPECTED,keep", E_FAIL, ""},
            withAmplitude},
        GravityExit{{"PositiveTable", "HLXIAmplitude::SetData=S_FALSE,keep", S_OK, ""},
                    completeGravity},
        GravityExit{{"FailingFlag", "HLXICondition::SetUseAmplitude=E_ACCESSDENIED", S_OK, ""},
                    "Name; : 0 0 -9.81 amplitude 1 on body of box.VEXPart, GeometrySmartConnector; "
                    "10 rows"},
        GravityExit{
            {"FailingFlagThoughSet", "HLXICondition::SetUseAmplitude=E_UNEXPECTED,keep", S_OK, ""},
            completeGravity},
        GravityExit{{"FailingSetter", "HLXICondition::SetAmplitude=E_ACCESSDENIED", E_FAIL, ""},
                    used},
        GravityExit{
            {"FailingSetterThoughSet", "HLXICondition::SetAmplitude=E_UNEXPECTED,keep", E_FAIL, ""},
            given},
        GravityExit{{"PositiveSetter", "HLXICondition::SetAmplitude=S_FALSE,keep", S_OK, ""},
                    completeGravity}),
    NameOfRow);

// What is printed here is told by the way to product and part.
INSTANTIATE_TEST_SUITE_P(
    Part, GravityExitTest,
    testing::Values(
        GravityExit{{"NoAccess", "cast:VEXAnalysisDocument->VEXISamAccess=E_NOINTERFACE", E_FAIL,
                     "**********ERROR in getting the FEM\n"},
                    given},
        GravityExit{{"NoProduct", "cast:VEXProductNode->VEXIProduct=E_NOINTERFACE", E_FAIL, ""},
                    given},
        GravityExit{
            {"NoModel", "cast:VEXSamAnalysisModel->VEXISamAnalysisModel=E_NOINTERFACE", S_OK, ""},
            completeGravity},
        GravityExit{
            {"FailingContainers", "cast:VEXPartDocument->VEXIContainerOfDocument=E_ACCESSDENIED",
             E_FAIL, "Cannot find interface VEXIContainerOfDocument on VEXPart\n"},
            given},
        GravityExit{{"NoMechanicalPart", "VEXIPrtContainer::GetMechanicalPart=null", E_FAIL,
                     "Cannot get MechanicalPart feature\n"},
                    given},
        GravityExit{{"NoAccesses", "VEXIContainerOfDocument::GetBRepContainer=null", S_OK, ""},
                    completeGravity},
        GravityExit{{"FailingAccessesThoughGiven",
                     "VEXIContainerOfDocument::GetBRepContainer=E_UNEXPECTED,keep", S_OK, ""},
                    completeGravity}),
    NameOfRow);

INSTANTIATE_TEST_SUITE_P(
    Support, GravityExitTest,
    testing::Values(
        GravityExit{{"NoRequest", "cast:VEXPart->VEXIPartRequest=E_NOINTERFACE", E_FAIL, ""},
                    given},
        GravityExit{{"EmptyRequest", "cast:VEXPart->VEXIPartRequest=null", E_FAIL, ""}, given},
        GravityExit{{"NoBody", "VEXIPartRequest::GetMainBody=null", E_FAIL, ""}, given},
        GravityExit{{"FailingBody", "VEXIPartRequest::GetMainBody=E_ACCESSDENIED", E_FAIL, ""},
                    given},
        GravityExit{
            {"FailingBodyThoughGiven", "VEXIPartRequest::GetMainBody=E_UNEXPECTED,keep", S_OK, ""},
            completeGravity},
        GravityExit{{"NoLinkToTheBody", "cast:VEXMechanicalTool->VEXILinkableObject=E_NOINTERFACE",
                     E_FAIL, ""},
                    given},
        GravityExit{
            {"EmptyLinkToTheBody", "cast:VEXMechanicalTool->VEXILinkableObject=null", E_FAIL, ""},
            given},
        GravityExit{{"PartThatIsNoFeature", "cast:VEXPart->VEXISpecObject=E_NOINTERFACE", E_FAIL,
                     noGravitySupport},
                    given},
        GravityExit{{"NoSupports", "cast:HLXGravity->VEXISamAnalysisSupport=E_NOINTERFACE", E_FAIL,
                     noGravitySupport},
                    given},
        GravityExit{{"EmptySupports", "cast:HLXGravity->VEXISamAnalysisSupport=null", E_FAIL,
                     noGravitySupport},
                    given},
        GravityExit{{"Failing", "VEXISamAnalysisSupport::AddSupport=E_ACCESSDENIED", E_FAIL,
                     noGravitySupport},
                    given},
        GravityExit{{"FailingThoughAdded", "VEXISamAnalysisSupport::AddSupport=E_UNEXPECTED,keep",
                     E_FAIL, noGravitySupport},
                    completeGravity},
        GravityExit{{"Positive", "VEXISamAnalysisSupport::AddSupport=S_FALSE,keep", S_OK, ""},
                    completeGravity}),
    NameOfRow);

}  // namespace
}  // namespace hlxtest::statics
