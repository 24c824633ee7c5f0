// SPDX-License-Identifier: Apache-2.0
// Basic units for a time: which settings calls, in which order, after which failure which no more,
// and what is put back.
#include "HLXSetUnitSystem.h"

#include "support/PrivateMember.h"
#include "support/Settings.h"

#include <gmock/gmock.h>

#include <cstddef>
#include <new>
#include <optional>

namespace hlxtest {

struct UnitsController : MemberName<HLXIZPKWBGeneralSettingAtt * HLXSetUnitSystem::*>
{
    friend Pointer Get(UnitsController);
};
struct UnitsRepository : MemberName<VEXIIniSettingManagment * HLXSetUnitSystem::*>
{
    friend Pointer Get(UnitsRepository);
};
struct UnitsLength : MemberName<VEXUnicodeString HLXSetUnitSystem::*>
{
    friend Pointer Get(UnitsLength);
};
struct UnitsMass : MemberName<VEXUnicodeString HLXSetUnitSystem::*>
{
    friend Pointer Get(UnitsMass);
};
struct UnitsTime : MemberName<VEXUnicodeString HLXSetUnitSystem::*>
{
    friend Pointer Get(UnitsTime);
};
struct UnitsTemperature : MemberName<VEXUnicodeString HLXSetUnitSystem::*>
{
    friend Pointer Get(UnitsTemperature);
};

template struct Reveal<UnitsController, &HLXSetUnitSystem::_SettingController>;
template struct Reveal<UnitsRepository, &HLXSetUnitSystem::_IniSettingManagement>;
template struct Reveal<UnitsLength, &HLXSetUnitSystem::_SavedLengthUnit>;
template struct Reveal<UnitsMass, &HLXSetUnitSystem::_SavedMassUnit>;
template struct Reveal<UnitsTime, &HLXSetUnitSystem::_SavedTimeUnit>;
template struct Reveal<UnitsTemperature, &HLXSetUnitSystem::_SavedTemperatureUnit>;

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::string UnitsInForce()
{
    const HLXIZPKWBGeneralSettingAtt_var settings = GeneralSettings();
    VEXUnicodeString length;
    VEXUnicodeString mass;
    VEXUnicodeString time;
    VEXUnicodeString temperature;
    EXPECT_EQ(settings->GetBasicUnitLength(length), S_OK);
    EXPECT_EQ(settings->GetBasicUnitMass(mass), S_OK);
    EXPECT_EQ(settings->GetBasicUnitTime(time), S_OK);
    EXPECT_EQ(settings->GetBasicUnitTemperature(temperature), S_OK);
    return (length + " " + mass + " " + time + " " + temperature).ConvertToChar();
}

/// Begins with the units mm kg s K, and ends with them.
class UnitsTest : public testing::Test
{
protected:
    void SetUp() override { ForceUsual(); }
    void TearDown() override { ForceUsual(); }

    static void ForceUsual()
    {
        const HLXIZPKWBGeneralSettingAtt_var settings = GeneralSettings();
        EXPECT_EQ(settings->SetBasicUnitLength("mm"), S_OK);
        EXPECT_EQ(settings->SetBasicUnitMass("kg"), S_OK);
        EXPECT_EQ(settings->SetBasicUnitTime("s"), S_OK);
        EXPECT_EQ(settings->SetBasicUnitTemperature("K"), S_OK);
    }

    /// The result of a call that is to print nothing.
    static long Set(HLXSetUnitSystem& units, const char* length, const char* mass, const char* time,
                    const char* temperature)
    {
        const Outcome outcome =
            OutcomeOf([&] { return units.SetBasicUnits(length, mass, time, temperature); });
        EXPECT_EQ(outcome, (Outcome{outcome.result, "", ""}));
        return outcome.result;
    }

    static long SetInches(HLXSetUnitSystem& units) { return Set(units, "in", "lb", "h", "F"); }
};

TEST_F(UnitsTest, SavesSetsAndStoresInOrderAndPutsBack)
{
    std::optional<HLXSetUnitSystem> units;
    EXPECT_THAT(SettingCalls([&] { units.emplace(); }), ElementsAre("Lookup"));
    EXPECT_EQ(UnitsInForce(), "mm kg s K");
    EXPECT_THAT(
        SettingCalls([&] { EXPECT_EQ(SetInches(*units), S_OK); }),
        ElementsAre("Get Length", "Get Mass", "Get Time", "Get Temperature", "Set Length in",
                    "Set Mass lb", "Set Time h", "Set Temperature F", "Query", "Commit"));
    EXPECT_EQ(UnitsInForce(), "in lb h F");
    EXPECT_THAT(
        SettingCalls([&] { units.reset(); }),
        ElementsAre("Set Length mm", "Set Mass kg", "Set Time s", "Set Temperature K", "Commit"));
    EXPECT_EQ(UnitsInForce(), "mm kg s K");
}

TEST_F(UnitsTest, AsksTheProductForTheControllerByItsInterface)
{
    std::optional<HLXSetUnitSystem> units;
    EXPECT_THAT(CallsOf([&] { units.emplace(); }),
                ElementsAre("GetZPKWBGeneralSettingCtrl(HLXIZPKWBGeneralSettingAtt, &)"));
}

TEST_F(UnitsTest, PrintsNothing)
{
    EXPECT_EQ(OutcomeOf([] {
                  HLXSetUnitSystem units;
                  return units.SetBasicUnits("in", "lb", "h", "F");
              }),
              (Outcome{S_OK, "", ""}));
    EXPECT_EQ(OutcomeOf([] {
                  HLXSetUnitSystem units;
                  return units.SetBasicUnits("parsec", "lb", "h", "F");
              }),
              (Outcome{E_INVALIDARG, "", ""}));
}

TEST_F(UnitsTest, ReleasesWhatItHeld)
{
    const HLXIZPKWBGeneralSettingAtt_var settings = GeneralSettings();
    const unsigned long before = References(*settings.Get());
    {
        HLXSetUnitSystem units;
        EXPECT_EQ(References(*settings.Get()), before + 1);
        EXPECT_EQ(SetInches(units), S_OK);
        EXPECT_EQ(References(*settings.Get()), before + 2);
    }
    EXPECT_EQ(References(*settings.Get()), before);
}

TEST_F(UnitsTest, ASecondCallSavesWhatTheFirstSet)
{
    const HLXIZPKWBGeneralSettingAtt_var settings = GeneralSettings();
    const unsigned long before = References(*settings.Get());
    std::optional<HLXSetUnitSystem> units(std::in_place);
    EXPECT_EQ(SetInches(*units), S_OK);
    EXPECT_EQ(Set(*units, "km", "t", "min", "C"), S_OK);
    EXPECT_EQ(UnitsInForce(), "km t min C");
    EXPECT_THAT(
        SettingCalls([&] { units.reset(); }),
        ElementsAre("Set Length in", "Set Mass lb", "Set Time h", "Set Temperature F", "Commit"));
    EXPECT_EQ(UnitsInForce(), "in lb h F");

    // The first call's way to store was dropped without release.
    EXPECT_EQ(References(*settings.Get()), before + 1);
    settings->Release();
}

TEST_F(UnitsTest, ASecondCallThatCannotQueryForgetsTheWayToStoreOfTheFirst)
{
    const HLXIZPKWBGeneralSettingAtt_var settings = GeneralSettings();
    std::optional<HLXSetUnitSystem> units(std::in_place);
    EXPECT_EQ(SetInches(*units), S_OK);
    {
        const Faults faults(std::string(kRepositoryCast) + "=E_NOINTERFACE");
        EXPECT_EQ(Set(*units, "km", "t", "min", "C"), E_FAIL);
    }
    EXPECT_THAT(SettingCalls([&] { units.reset(); }),
                ElementsAre("Set Length in", "Set Mass lb", "Set Time h", "Set Temperature F"));
    settings->Release();
}

TEST_F(UnitsTest, ASecondCallThatFailsEarlierKeepsTheWayToStoreOfTheFirst)
{
    std::optional<HLXSetUnitSystem> units(std::in_place);
    EXPECT_EQ(SetInches(*units), S_OK);
    {
        const Faults faults("HLXIZPKWBGeneralSettingAtt::SetBasicUnitTemperature=E_FAIL");
        EXPECT_EQ(Set(*units, "km", "t", "min", "C"), E_FAIL);
    }
    EXPECT_THAT(
        SettingCalls([&] { units.reset(); }),
        ElementsAre("Set Length in", "Set Mass lb", "Set Time h", "Set Temperature F", "Commit"));
}

TEST_F(UnitsTest, NeverSetWritesTheEmptyUnitsBackWhichTheSettingsRefuse)
{
    std::optional<HLXSetUnitSystem> units(std::in_place);
    EXPECT_THAT(SettingCalls([&] { units.reset(); }),
                ElementsAre("Set Length ", "Set Mass ", "Set Time ", "Set Temperature "));
    EXPECT_EQ(UnitsInForce(), "mm kg s K");
}

// --- Failures -----------------------------------------------------------------------------------

struct FailureRow
{
    const char* name;
    const char* brokenOperation;
    Lines calls;
    Lines putBack;

    friend void PrintTo(const FailureRow& row, std::ostream* stream) { *stream << row.name; }
};

const Lines kGets = {"Get Length", "Get Mass", "Get Time", "Get Temperature"};
const Lines kSets = {"Set Length in", "Set Mass lb", "Set Time h", "Set Temperature F"};
const Lines kUsualBack = {"Set Length mm", "Set Mass kg", "Set Time s", "Set Temperature K"};

Lines First(std::size_t count)
{
    Lines lines = kGets;
    lines.insert(lines.end(), kSets.begin(), kSets.end());
    lines.resize(count);
    return lines;
}

class UnitsFailure : public UnitsTest, public testing::WithParamInterface<FailureRow>
{};

TEST_P(UnitsFailure, StopsThereAndAnswersTheResult)
{
    for (const long code : {static_cast<long>(E_ACCESSDENIED), -1L}) {
        ForceUsual();
        std::optional<HLXSetUnitSystem> units(std::in_place);
        long result = 0;
        {
            const Faults faults(GetParam().brokenOperation + ("=" + std::to_string(code)));
            EXPECT_EQ(SettingCalls([&] { result = SetInches(*units); }), GetParam().calls);
        }
        EXPECT_EQ(result, code);
        EXPECT_EQ(SettingCalls([&] { units.reset(); }), GetParam().putBack);
        EXPECT_EQ(UnitsInForce(), "mm kg s K");
    }
}

TEST_P(UnitsFailure, IsNoneWithAPositiveResult)
{
    HLXSetUnitSystem units;
    Lines expected = First(8);
    expected.insert(expected.end(), {"Query", "Commit"});
    {
        const Faults faults(GetParam().brokenOperation + std::string("=1,keep"));
        EXPECT_EQ(SettingCalls([&] { EXPECT_EQ(SetInches(units), S_OK); }), expected);
    }
    EXPECT_EQ(UnitsInForce(), "in lb h F");
}

INSTANTIATE_TEST_SUITE_P(
    Operations, UnitsFailure,
    testing::Values(
        FailureRow{"GetLength",
                   "HLXIZPKWBGeneralSettingAtt::GetBasicUnitLength",
                   First(1),
                   {"Set Length ", "Set Mass ", "Set Time ", "Set Temperature "}},
        FailureRow{"GetMass",
                   "HLXIZPKWBGeneralSettingAtt::GetBasicUnitMass",
                   First(2),
                   {"Set Length mm", "Set Mass ", "Set Time ", "Set Temperature "}},
        FailureRow{"GetTime",
                   "HLXIZPKWBGeneralSettingAtt::GetBasicUnitTime",
                   First(3),
                   {"Set Length mm", "Set Mass kg", "Set Time ", "Set Temperature "}},
        FailureRow{"GetTemperature",
                   "HLXIZPKWBGeneralSettingAtt::GetBasicUnitTemperature",
                   First(4),
                   {"Set Length mm", "Set Mass kg", "Set Time s", "Set Temperature "}},
        FailureRow{"SetLength", "HLXIZPKWBGeneralSettingAtt::SetBasicUnitLength", First(5),
                   kUsualBack},
        FailureRow{"SetMass", "HLXIZPKWBGeneralSettingAtt::SetBasicUnitMass", First(6), kUsualBack},
        FailureRow{"SetTime", "HLXIZPKWBGeneralSettingAtt::SetBasicUnitTime", First(7), kUsualBack},
        FailureRow{"SetTemperature", "HLXIZPKWBGeneralSettingAtt::SetBasicUnitTemperature",
                   First(8), kUsualBack}),
    [](const auto& row) { return row.param.name; });

TEST_F(UnitsTest, WhatWasSetBeforeAFailureStaysSet)
{
    HLXSetUnitSystem units;
    EXPECT_EQ(Set(units, "in", "lb", "fortnight", "F"), E_INVALIDARG);
    EXPECT_EQ(UnitsInForce(), "in lb s K");
}

TEST_F(UnitsTest, WithoutAControllerNothingCanBeDone)
{
    for (const char* const fault :
         {"GetZPKWBGeneralSettingCtrl=E_FAIL", "GetZPKWBGeneralSettingCtrl=null"}) {
        std::optional<HLXSetUnitSystem> units;
        {
            const Faults faults(fault);
            units.emplace();
        }
        EXPECT_EQ((*units).*Get(UnitsController()), nullptr);
        EXPECT_THAT(SettingCalls([&] {
                        EXPECT_EQ(SetInches(*units), E_FAIL);
                        units.reset();
                    }),
                    IsEmpty());
    }
    EXPECT_EQ(UnitsInForce(), "mm kg s K");
}

TEST_F(UnitsTest, WithoutAWayToStoreTheUnitsAreSetAndTheCallFails)
{
    for (const char* const outcome : {"=E_NOINTERFACE", "=null"}) {
        std::optional<HLXSetUnitSystem> units(std::in_place);
        const Faults faults(kRepositoryCast + std::string(outcome));
        Lines expected = First(8);
        expected.emplace_back("Query");
        EXPECT_EQ(SettingCalls([&] { EXPECT_EQ(SetInches(*units), E_FAIL); }), expected);
        EXPECT_EQ(UnitsInForce(), "in lb h F");
        EXPECT_EQ(SettingCalls([&] { units.reset(); }), kUsualBack);
    }
}

TEST_F(UnitsTest, AQueryThatFailsAlthoughItGaveAWayToStoreIsAFailure)
{
    const HLXIZPKWBGeneralSettingAtt_var settings = GeneralSettings();
    const unsigned long before = References(*settings.Get());
    {
        HLXSetUnitSystem units;
        const Faults faults(kRepositoryCast + std::string("=E_NOINTERFACE,keep"));
        Lines expected = First(8);
        expected.emplace_back("Query");
        EXPECT_EQ(SettingCalls([&] { EXPECT_EQ(SetInches(units), E_FAIL); }), expected);
    }
    // Whose the interface is that came with a failure, nobody says.
    while (References(*settings.Get()) > before) {
        settings->Release();
    }
}

TEST_F(UnitsTest, AnswersWhatStoringAnswers)
{
    for (const long code : {static_cast<long>(E_ACCESSDENIED), -1L, 1L}) {
        std::optional<HLXSetUnitSystem> units(std::in_place);
        {
            const Faults faults("VEXIIniSettingManagment::Commit=" + std::to_string(code));
            EXPECT_EQ(SetInches(*units), code);
        }
        Lines expected = kUsualBack;
        expected.emplace_back("Commit");
        EXPECT_EQ(SettingCalls([&] { units.reset(); }), expected);
    }
}

TEST_F(UnitsTest, PuttingBackGoesOnAfterAFailure)
{
    std::optional<HLXSetUnitSystem> units(std::in_place);
    EXPECT_EQ(SetInches(*units), S_OK);
    const Faults faults(
        "HLXIZPKWBGeneralSettingAtt::*=E_FAIL;VEXIIniSettingManagment::Commit=E_FAIL");
    Lines expected = kUsualBack;
    expected.emplace_back("Commit");
    EXPECT_EQ(OutcomeOf([&] { EXPECT_EQ(SettingCalls([&] { units.reset(); }), expected); }),
              (Outcome{0, "", ""}));
}

// --- Results that are not looked at, and those that are ------------------------------------------

TEST_F(UnitsTest, AControllerThatComesWithAFailureIsTaken)
{
    std::optional<HLXSetUnitSystem> units;
    {
        const Faults faults("GetZPKWBGeneralSettingCtrl=E_FAIL,keep");
        EXPECT_EQ(OutcomeOf([&] { units.emplace(); }), (Outcome{0, "", ""}));
    }
    EXPECT_NE((*units).*Get(UnitsController()), nullptr);
    EXPECT_EQ(SetInches(*units), S_OK);
    EXPECT_EQ(UnitsInForce(), "in lb h F");
    Lines expected = kUsualBack;
    expected.emplace_back("Commit");
    EXPECT_EQ(SettingCalls([&] { units.reset(); }), expected);
}

TEST_F(UnitsTest, AUnitThatComesWithAFailureEndsTheCallAndIsPutBack)
{
    std::optional<HLXSetUnitSystem> units(std::in_place);
    {
        const Faults faults("HLXIZPKWBGeneralSettingAtt::GetBasicUnitMass=E_ACCESSDENIED,keep");
        EXPECT_EQ(SettingCalls([&] { EXPECT_EQ(SetInches(*units), E_ACCESSDENIED); }), First(2));
    }
    EXPECT_EQ(SettingCalls([&] { units.reset(); }),
              (Lines{"Set Length mm", "Set Mass kg", "Set Time ", "Set Temperature "}));
    EXPECT_EQ(UnitsInForce(), "mm kg s K");
}

TEST_F(UnitsTest, AWayToStoreThatComesWithAFailureIsUsedAtTheEndOnly)
{
    const HLXIZPKWBGeneralSettingAtt_var settings = GeneralSettings();
    const unsigned long before = References(*settings.Get());
    std::optional<HLXSetUnitSystem> units(std::in_place);
    Lines expected = First(8);
    expected.emplace_back("Query");
    {
        const Faults faults(std::string(kRepositoryCast) + "=E_NOINTERFACE,keep");
        EXPECT_EQ(SettingCalls([&] { EXPECT_EQ(SetInches(*units), E_FAIL); }), expected);
    }
    EXPECT_NE((*units).*Get(UnitsRepository()), nullptr);
    EXPECT_EQ(UnitsInForce(), "in lb h F");
    expected = kUsualBack;
    expected.emplace_back("Commit");
    EXPECT_EQ(SettingCalls([&] { units.reset(); }), expected);
    EXPECT_EQ(References(*settings.Get()), before);
}

TEST_F(UnitsTest, AWayToStoreWithAPositiveResultIsUsed)
{
    HLXSetUnitSystem units;
    Lines expected = First(8);
    expected.insert(expected.end(), {"Query", "Commit"});
    const Faults faults(std::string(kRepositoryCast) + "=1,keep");
    EXPECT_EQ(SettingCalls([&] { EXPECT_EQ(SetInches(units), S_OK); }), expected);
}

// --- Members and copies -------------------------------------------------------------------------

TEST_F(UnitsTest, HoldsItsMembersInTheirOrder)
{
    HLXSetUnitSystem units;
    EXPECT_NE(units.*Get(UnitsController()), nullptr);
    EXPECT_EQ(units.*Get(UnitsRepository()), nullptr);
    EXPECT_TRUE((units.*Get(UnitsLength())).IsEmpty());
    EXPECT_TRUE((units.*Get(UnitsMass())).IsEmpty());
    EXPECT_TRUE((units.*Get(UnitsTime())).IsEmpty());
    EXPECT_TRUE((units.*Get(UnitsTemperature())).IsEmpty());
    const void* const members[] = {
        &(units.*Get(UnitsController())), &(units.*Get(UnitsRepository())),
        &(units.*Get(UnitsLength())),     &(units.*Get(UnitsMass())),
        &(units.*Get(UnitsTime())),       &(units.*Get(UnitsTemperature()))};
    for (std::size_t i = 1; i < std::size(members); ++i) {
        EXPECT_TRUE(std::less<>()(members[i - 1], members[i])) << i;
    }
}

/// What two objects that share pointers hold.
void ExpectSame(HLXSetUnitSystem& left, HLXSetUnitSystem& right)
{
    EXPECT_EQ(left.*Get(UnitsController()), right.*Get(UnitsController()));
    EXPECT_EQ(left.*Get(UnitsRepository()), right.*Get(UnitsRepository()));
    EXPECT_EQ(left.*Get(UnitsLength()), "mm");
    EXPECT_EQ(left.*Get(UnitsMass()), "kg");
    EXPECT_EQ(left.*Get(UnitsTime()), "s");
    EXPECT_EQ(left.*Get(UnitsTemperature()), "K");
}

/// Makes an object forget what it shares and saved, so that its destruction does nothing.
void Disarm(HLXSetUnitSystem& units)
{
    units.*Get(UnitsController()) = nullptr;
    units.*Get(UnitsRepository()) = nullptr;
}

TEST_F(UnitsTest, CopiesShareThePointersAndHaveTheUnits)
{
    const HLXIZPKWBGeneralSettingAtt_var settings = GeneralSettings();
    HLXSetUnitSystem original;
    EXPECT_EQ(SetInches(original), S_OK);
    const unsigned long before = References(*settings.Get());

    HLXSetUnitSystem copy(original);
    ExpectSame(copy, original);
    EXPECT_EQ(References(*settings.Get()), before);
    Disarm(copy);

    HLXSetUnitSystem& answer = (copy = original);
    EXPECT_EQ(&answer, &copy);
    ExpectSame(copy, original);
    EXPECT_EQ(References(*settings.Get()), before);
    Disarm(copy);
}

}  // namespace

}  // namespace hlxtest
