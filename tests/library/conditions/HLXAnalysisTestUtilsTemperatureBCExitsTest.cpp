// SPDX-License-Identifier: Apache-2.0
// Exits of a temperature boundary condition that others have too: factory, name, part, and the face
// that it is put on.
#include "library/conditions/TemperatureExits.h"

namespace hlxtest::statics {
namespace {

constexpr const TemperatureKind& kKind = kTemperatureBC;

class TemperatureBCWayTest : public TemperatureKindTest,
                             public testing::WithParamInterface<TemperatureExit>
{};

TEST_P(TemperatureBCWayTest, AnswersAndLeavesWhatWasMade)
{
    ExpectExit(kKind, GetParam());
}

INSTANTIATE_TEST_SUITE_P(Creation, TemperatureBCWayTest, testing::ValuesIn(CreationExits(kKind)),
                         NameOfTemperatureExit);
INSTANTIATE_TEST_SUITE_P(Name, TemperatureBCWayTest, testing::ValuesIn(NameExits(kKind)),
                         NameOfTemperatureExit);
INSTANTIATE_TEST_SUITE_P(Part, TemperatureBCWayTest, testing::ValuesIn(PartExits(kKind)),
                         NameOfTemperatureExit);
INSTANTIATE_TEST_SUITE_P(Support, TemperatureBCWayTest, testing::ValuesIn(SupportExits(kKind)),
                         NameOfTemperatureExit);

// --- Cells --------------------------------------------------------------------------------------

TemperatureExit WithoutCells(const char* name, const char* faults, const char* out = "")
{
    return temperature_exits::Unsupported(kKind, name, faults, out);
}

INSTANTIATE_TEST_SUITE_P(
    Cells, TemperatureBCWayTest,
    testing::Values(WithoutCells("NoRequest", "cast:VEXPart->VEXIPartRequest#1=E_NOINTERFACE",
                                 "Cannot get VEXIPartRequest for MechanicalPart feature\n"),
                    WithoutCells("NoMainBody", "VEXIPartRequest::GetMainBody#1=null",
                                 "Cannot retrieve MainBody\n"),
                    WithoutCells("NoResults", "VEXIBodyRequest::GetResults=empty"),
                    WithoutCells("NoBody", "VEXIGeometricalElement::GetBody=null"),
                    WithoutCells("NoFaces", "VEXBody::GetAllCells#1=empty"),
                    WithoutCells("NoEdges", "VEXBody::GetAllCells#2=empty"),
                    WithoutCells("NoVertices", "VEXBody::GetAllCells#3=empty"),
                    WithoutCells("FacesDenied", "VEXBody::GetAllCells#1=E_ACCESSDENIED"),
                    WithoutCells("EdgesDenied", "VEXBody::GetAllCells#2=E_ACCESSDENIED"),
                    WithoutCells("VerticesDenied", "VEXBody::GetAllCells#3=E_ACCESSDENIED"),
                    WithoutCells("SecondIsNoFace", "cast:VEXFaceCell->VEXFace#2=E_NOINTERFACE",
                                 "Cannot get a VEXFace!\n"),
                    WithoutCells("LastIsNoVertex", "cast:VEXVertexCell->VEXVertex#8=E_NOINTERFACE",
                                 "Cannot get a VEXVertex!\n"),
                    temperature_exits::Success(kKind, "CellsAlongWithAFailure",
                                               "VEXBody::GetAllCells=E_UNEXPECTED,keep")),
    NameOfTemperatureExit);

TemperatureExit WithoutFace(const char* name, const char* faults)
{
    return temperature_exits::Unsupported(kKind, name, faults, noLinkToTheFace);
}

INSTANTIATE_TEST_SUITE_P(
    Face, TemperatureBCWayTest,
    testing::Values(WithoutFace("NotDecoded", "VEXBRepDecode=null"),
                    WithoutFace("NoContainer",
                                "VEXIContainerOfDocument::GetBRepContainer=E_ACCESSDENIED"),
                    WithoutFace("EmptyContainer", "VEXIContainerOfDocument::GetBRepContainer=null"),
                    WithoutFace("NoLink", "cast:VEXBRepAccess->VEXILinkableObject=E_NOINTERFACE"),
                    WithoutFace("EmptyLink", "cast:VEXBRepAccess->VEXILinkableObject=null")),
    NameOfTemperatureExit);

class TemperatureBCFaceTest : public TemperatureKindTest
{};

TEST_F(TemperatureBCFaceTest, OneThatIsNotLinkableIsNotHandedToTheSupport)
{
    const std::vector<std::string> calls = CallsOfCreation(kKind, "VEXBRepDecode=null");
    ASSERT_FALSE(calls.empty());
    EXPECT_EQ(calls.back(), "VEXBRepDecode(VEXBRepContainer, VEXFaceCell, VEXBody)");
}

}  // namespace
}  // namespace hlxtest::statics
