// SPDX-License-Identifier: Apache-2.0
// Creating a displacement: the order of calls; which values are given, which switches are set.
#include "library/conditions/BoundaryConditionKinds.h"

#include <algorithm>
#include <array>
#include <limits>
#include <type_traits>

namespace hlxtest::statics {
namespace {

using Utils = HLXAnalysisTestUtils;

static_assert(
    std::is_same_v<decltype(&Utils::CreateDispBC),
                   HRESULT (*)(VEXDocument*, VEXUnicodeString, unsigned char, double, unsigned char,
                               double, unsigned char, double, unsigned char, double, unsigned char,
                               double, unsigned char, double, unsigned char, VEXISpecObject_var&,
                               VEXISamAnalysisSet_var&)>);

using Switches = std::array<unsigned char, 6>;
using Values = std::array<double, 6>;

constexpr Switches kAllOn{1, 1, 1, 1, 1, 1};
constexpr Values kDistinct{1.5, 2.5, 3.5, 4.5, 5.5, 6.5};
constexpr Values kDefault{};

class DispBCTest : public BoundaryConditionTest
{
protected:
    HRESULT CallWith(const Switches& on, const Values& v, unsigned char fix)
    {
        return Utils::CreateDispBC(analysis.Get(), "Name", on[0], v[0], on[1], v[1], on[2], v[2],
                                   on[3], v[3], on[4], v[4], on[5], v[5], fix, condition, step);
    }

    /// Creates a displacement without a word.
    void CreateWith(const Switches& on, const Values& values, unsigned char fix = 0)
    {
        EXPECT_EQ(OutcomeOf([&] { return CallWith(on, values, fix); }), (Outcome{S_OK, "", ""}));
    }

    void ExpectValues(const Values& expected)
    {
        for (int i = 1; i <= 6; ++i) {
            EXPECT_EQ(DisplacementOf(condition, i), expected[static_cast<std::size_t>(i - 1)]) << i;
        }
    }

    /// The switches, asked for in both ways: on where `expected` is not 0.
    void ExpectSwitches(const Switches& expected)
    {
        const char* const names[] = {"u1ON", "u2ON", "u3ON", "ur1ON", "ur2ON", "ur3ON"};
        for (int i = 1; i <= 6; ++i) {
            const int on = expected[static_cast<std::size_t>(i - 1)] != 0 ? 1 : 0;
            unsigned char flag = 77;
            EXPECT_EQ(HLXIDisplacementBC_var(condition)->GetSwitch(i, flag), S_OK);
            EXPECT_EQ(flag, on) << i;
            EXPECT_EQ(FlagOf(condition, names[i - 1]), on) << i;
        }
    }

    /// What a trace calls the key of an attribute.
    std::string KeyText()
    {
        const VEXISpecAttrAccess_var access = Add(step, "HLXDisplacementBC");
        return access->GetAttrKey("fixON")->IsA();
    }

    /// The flags given to attributes in the course of `operation`, as a trace shows them.
    template <class Operation>
    std::vector<std::string> FlagsSetBy(Operation operation)
    {
        const std::string key = KeyText();
        std::vector<std::string> flags = CallsOf(operation, {"VEXISpecAttrAccess::SetBoolean"});
        for (std::string& line : flags) {
            const std::string head = "VEXISpecAttrAccess::SetBoolean(" + key + ", ";
            EXPECT_TRUE(line.starts_with(head) && line.ends_with(", 0)")) << line;
            line = line.substr(head.size(), line.size() - head.size() - 4);
        }
        return flags;
    }
};

TEST_F(DispBCTest, IsValuedSwitchedGivenAndPutOnAFace)
{
    const std::string key = KeyText();
    const auto flag = [&](const char* value) {
        return "VEXISpecAttrAccess::SetBoolean(" + key + ", " + value + ", 0)";
    };
    EXPECT_EQ(CallsOfCreation(kDisplacement),
              WithSupport(
                  {
                      "VEXInstantiateComponent(\"HLXBoundaryConditionsFact\", "
                      "HLXIBoundaryConditionsFact, &)",
                      "HLXIBoundaryConditionsFact::CreateDisplacement(&, VEXAnalysisDocument, "
                      "HLXGeneralStaticStepLT)",
                      "VEXISamAnalysisEntity::GetVectorParameter(\"DisplBCTrans\", &)",
                      "VEXISamAnalysisEntity::GetVectorParameter(\"DisplBCRotation\", &)",
                      "VEXIVectorParameter::SetComponent(1.5, \"\", 1, 1, 0)",
                      "VEXIVectorParameter::SetComponent(3.5, \"\", 3, 1, 0)",
                      "VEXIVectorParameter::SetComponent(-0.5, \"\", 2, 1, 0)",
                      "VEXISpecAttrAccess::GetAttrKey(\"fixON\")",
                      flag("0"),
                      "VEXISpecAttrAccess::GetAttrKey(\"u1ON\")",
                      flag("1"),
                      "VEXISpecAttrAccess::GetAttrKey(\"u2ON\")",
                      flag("0"),
                      "VEXISpecAttrAccess::GetAttrKey(\"u3ON\")",
                      flag("1"),
                      "VEXISpecAttrAccess::GetAttrKey(\"ur1ON\")",
                      flag("2"),
                      "VEXISpecAttrAccess::GetAttrKey(\"ur2ON\")",
                      flag("1"),
                      "VEXISpecAttrAccess::GetAttrKey(\"ur3ON\")",
                      flag("0"),
                      "VEXISpecAttrAccess::GetAttrKey(\"userSub\")",
                      flag("1"),
                      "HLXICondition::SetUseAmplitude(1)",
                  },
                  false));
}

// --- Values -------------------------------------------------------------------------------------

TEST_F(DispBCTest, EachSwitchIsForItsOwnDegreeOfFreedom)
{
    for (std::size_t i = 0; i < 6; ++i) {
        SCOPED_TRACE(i);
        Switches one{};
        one[i] = 1;
        Values expected{};
        expected[i] = kDistinct[i];
        CreateWith(one, kDistinct);
        ExpectValues(expected);
        ExpectSwitches(one);
        EXPECT_EQ(FlagOf(condition, "fixON"), 0);
    }
}

TEST_F(DispBCTest, AllComponentsAreGivenInOrder)
{
    EXPECT_EQ(CallsOf([&] { CallWith(kAllOn, kDistinct, 0); }, {"VEXIVectorParameter::"}),
              (std::vector<std::string>{
                  "VEXIVectorParameter::SetComponent(1.5, \"\", 1, 1, 0)",
                  "VEXIVectorParameter::SetComponent(2.5, \"\", 2, 1, 0)",
                  "VEXIVectorParameter::SetComponent(3.5, \"\", 3, 1, 0)",
                  "VEXIVectorParameter::SetComponent(4.5, \"\", 1, 1, 0)",
                  "VEXIVectorParameter::SetComponent(5.5, \"\", 2, 1, 0)",
                  "VEXIVectorParameter::SetComponent(6.5, \"\", 3, 1, 0)",
              }));
    ExpectValues(kDistinct);
}

TEST_F(DispBCTest, ASwitchIsOnForTheValueOnlyWhenItIsOne)
{
    for (const int byte : {0, 1, 2, 3, 127, 128, 255}) {
        SCOPED_TRACE(byte);
        Switches all{};
        all.fill(static_cast<unsigned char>(byte));
        CreateWith(all, kDistinct);
        ExpectValues(byte == 1 ? kDistinct : kDefault);
        ExpectSwitches(all);
    }
}

TEST_F(DispBCTest, ASetFixSwitchSuppressesAllValuesAndNoSwitch)
{
    for (const int byte : {1, 2, 128, 255}) {
        SCOPED_TRACE(byte);
        const auto fix = static_cast<unsigned char>(byte);
        CreateWith(kAllOn, kDistinct, fix);
        ExpectValues(kDefault);
        ExpectSwitches(kAllOn);
        EXPECT_EQ(FlagOf(condition, "fixON"), 1);
        EXPECT_EQ(CallsOf([&] { CallWith(kAllOn, kDistinct, fix); },
                          {"VEXISamAnalysisEntity::", "VEXIVectorParameter::"}),
                  (std::vector<std::string>{
                      "VEXISamAnalysisEntity::GetVectorParameter(\"DisplBCTrans\", &)",
                      "VEXISamAnalysisEntity::GetVectorParameter(\"DisplBCRotation\", &)"}));
    }
}

TEST_F(DispBCTest, ValuesAreTakenAsTheyAre)
{
    const Values values{0.1, -9.81, 1e300, 5e-324, -1.7976931348623157e308, 1.0 / 3};
    CreateWith(kAllOn, values);
    ExpectValues(values);
}

TEST_F(DispBCTest, ValuesThatThePlatformRefusesAreLeftAtTheirDefault)
{
    const double infinity = std::numeric_limits<double>::infinity();
    CreateWith(kAllOn,
               {infinity, 2.5, std::numeric_limits<double>::quiet_NaN(), 4.5, -infinity, 6});
    ExpectValues({0, 2.5, 0, 4.5, 0, 6});
    ExpectSwitches(kAllOn);
}

// --- Switches -----------------------------------------------------------------------------------

TEST_F(DispBCTest, SwitchesAreStoredAsTheyArePassed)
{
    EXPECT_EQ(FlagsSetBy([&] {
                  CallWith({2, 3, 4, 5, 6, 255}, kDistinct, 128);
              }),
              (std::vector<std::string>{"128", "2", "3", "4", "5", "6", "255", "1"}));
    EXPECT_EQ(FlagsSetBy([&] { CallWith({}, kDistinct, 0); }),
              (std::vector<std::string>{"0", "0", "0", "0", "0", "0", "0", "1"}));
}

TEST_F(DispBCTest, TheSubroutineIsOnWhateverIsPassed)
{
    for (const int fix : {0, 1}) {
        for (const Switches& on : {Switches{}, kAllOn}) {
            CreateWith(on, kDistinct, static_cast<unsigned char>(fix));
            EXPECT_EQ(FlagOf(condition, "userSub"), 1);
            unsigned char flag = 77;
            EXPECT_EQ(HLXIDisplacementBC_var(condition)->GetUserSubroutine(flag), S_OK);
            EXPECT_EQ(flag, 1);
        }
    }
}

}  // namespace
}  // namespace hlxtest::statics
