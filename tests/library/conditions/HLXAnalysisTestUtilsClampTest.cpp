// SPDX-License-Identifier: Apache-2.0
// Creating a clamp: the order of calls; the edge that must be there beside the face.
#include "library/conditions/BoundaryConditionKinds.h"

#include <type_traits>

namespace hlxtest::statics {
namespace {

static_assert(std::is_same_v<decltype(&HLXAnalysisTestUtils::CreateClamp), LoadCreation>);

class ClampTest : public BoundaryConditionTest
{};

const Outcome kSuccess{S_OK, "", ""};
const Outcome kNotDecoded{E_FAIL, "VEXBRepDecode failed!\n", ""};

TEST_F(ClampTest, IsMadeAndPutOnAFace)
{
    EXPECT_EQ(CallsOfCreation(kClamp),
              WithSupport(
                  {
                      "VEXInstantiateComponent(\"HLXBoundaryConditionsFact\", "
                      "HLXIBoundaryConditionsFact, &)",
                      "HLXIBoundaryConditionsFact::CreateClamp(&, VEXAnalysisDocument, "
                      "HLXGeneralStaticStepLT)",
                  },
                  true));
}

TEST_F(ClampTest, HasOneSupportThatIsTheFace)
{
    EXPECT_EQ(Create(kClamp.create), kSuccess);
    EXPECT_EQ(SupportsOf(condition),
              std::vector<std::string>{"face 1 of box.VEXPart, GeometrySmartConnector"});
}

TEST_F(ClampTest, WantsItsEdge)
{
    ExpectExit(kClamp, {"", "VEXBRepDecode#2=null", kNotDecoded, kClamp.ready});
    EXPECT_EQ(FlushedBy(kClamp, "VEXBRepDecode#2=null"), "");
}

TEST_F(ClampTest, NeedsNeitherParametersNorAttributesNorAnInterfaceOfItsOwn)
{
    for (const char* const faults :
         {"cast:*->VEXISpecAttrAccess=E_NOINTERFACE", "cast:*->HLXIBoundaryCondition=E_NOINTERFACE",
          "cast:*->HLXICondition=E_NOINTERFACE", "HLXICondition::*=E_FAIL"}) {
        condition.Reset();
        EXPECT_EQ(Create(kClamp.create, faults), kSuccess) << faults;
        EXPECT_EQ(SupportsOf(condition).size(), 1U) << faults;
    }
}

}  // namespace
}  // namespace hlxtest::statics
