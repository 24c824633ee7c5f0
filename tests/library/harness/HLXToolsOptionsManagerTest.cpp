// SPDX-License-Identifier: Apache-2.0
// The option "write flat input file" for a time.
#include "HLXToolsOptionsManager.h"

#include "support/PrivateMember.h"
#include "support/Settings.h"

#include <gmock/gmock.h>

#include <functional>
#include <optional>

namespace hlxtest {

struct OptionsController : MemberName<HLXIZPKWBGeneralSettingAtt * HLXToolsOptionsManager::*>
{
    friend Pointer Get(OptionsController);
};
struct OptionsRepository : MemberName<VEXIIniSettingManagment * HLXToolsOptionsManager::*>
{
    friend Pointer Get(OptionsRepository);
};
struct OptionsFlag : MemberName<unsigned char HLXToolsOptionsManager::*>
{
    friend Pointer Get(OptionsFlag);
};

template struct Reveal<OptionsController, &HLXToolsOptionsManager::_SettingController>;
template struct Reveal<OptionsRepository, &HLXToolsOptionsManager::_IniSettingManagement>;
template struct Reveal<OptionsFlag, &HLXToolsOptionsManager::_SavedWriteFlatFlag>;

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// Begins with flat input files, and ends with them.
class OptionsTest : public testing::Test
{
protected:
    void SetUp() override { SetFlatFileOption(1); }
    void TearDown() override { SetFlatFileOption(1); }

    void Make(const std::string& faults = "")
    {
        std::optional<Faults> inForce;
        if (!faults.empty()) {
            inForce.emplace(faults);
        }
        manager.emplace();
    }

    /// The result of a call that is to print nothing.
    long Set(unsigned char flag)
    {
        const Outcome outcome = OutcomeOf([&] { return manager->SetWriteFlatInputFileFlag(flag); });
        EXPECT_EQ(outcome, (Outcome{outcome.result, "", ""}));
        return outcome.result;
    }

    std::optional<HLXToolsOptionsManager> manager;
};

TEST_F(OptionsTest, SavesSetsStoresAndPutsBack)
{
    EXPECT_THAT(SettingCalls([&] { manager.emplace(); }),
                ElementsAre("Lookup", "Query", "Get Flat"));
    EXPECT_THAT(SettingCalls([&] { EXPECT_EQ(Set(0), S_OK); }),
                ElementsAre("Set Flat 0", "Commit"));
    EXPECT_EQ(FlatFileOption(), 0);
    EXPECT_THAT(SettingCalls([&] { manager.reset(); }), ElementsAre("Set Flat 1", "Commit"));
    EXPECT_EQ(FlatFileOption(), 1);
}

TEST_F(OptionsTest, PutsStructuredFilesBackToo)
{
    SetFlatFileOption(0);
    manager.emplace();
    EXPECT_THAT(SettingCalls([&] { EXPECT_EQ(Set(1), S_OK); }),
                ElementsAre("Set Flat 1", "Commit"));
    EXPECT_EQ(FlatFileOption(), 1);
    EXPECT_THAT(SettingCalls([&] { manager.reset(); }), ElementsAre("Set Flat 0", "Commit"));
    EXPECT_EQ(FlatFileOption(), 0);
}

TEST_F(OptionsTest, HandsEveryFlagOnAndSavesOnlyOnce)
{
    manager.emplace();
    EXPECT_THAT(SettingCalls([&] {
                    EXPECT_EQ(Set(0), S_OK);
                    EXPECT_EQ(Set(2), S_OK);
                    EXPECT_EQ(Set(255), S_OK);
                    EXPECT_EQ(Set(0), S_OK);
                    manager.reset();
                }),
                ElementsAre("Set Flat 0", "Commit", "Set Flat 2", "Commit", "Set Flat 255",
                            "Commit", "Set Flat 0", "Commit", "Set Flat 1", "Commit"));
}

TEST_F(OptionsTest, NeverSetPutsTheSavedFlagBackAllTheSame)
{
    SetFlatFileOption(0);
    EXPECT_THAT(SettingCalls([] { const HLXToolsOptionsManager unused; }),
                ElementsAre("Lookup", "Query", "Get Flat", "Set Flat 0", "Commit"));
}

TEST_F(OptionsTest, AsksTheProductForTheControllerByItsInterface)
{
    EXPECT_EQ(CallsOf([&] { manager.emplace(); }, {"GetZPKWB"}),
              (Lines{"GetZPKWBGeneralSettingCtrl(HLXIZPKWBGeneralSettingAtt, &)"}));
}

TEST_F(OptionsTest, PrintsNothing)
{
    EXPECT_EQ(OutcomeOf([] {
                  HLXToolsOptionsManager options;
                  return options.SetWriteFlatInputFileFlag(0);
              }),
              (Outcome{S_OK, "", ""}));
}

TEST_F(OptionsTest, ReleasesWhatItHeld)
{
    const HLXIZPKWBGeneralSettingAtt_var settings = GeneralSettings();
    const unsigned long before = References(*settings.Get());
    manager.emplace();
    EXPECT_EQ(References(*settings.Get()), before + 2);
    manager.reset();
    EXPECT_EQ(References(*settings.Get()), before);
}

TEST_F(OptionsTest, OfTwoManagersTheOneDestroyedLastHasTheLastWord)
{
    std::optional<HLXToolsOptionsManager> outer(std::in_place);
    EXPECT_EQ(outer->SetWriteFlatInputFileFlag(0), S_OK);
    std::optional<HLXToolsOptionsManager> inner(std::in_place);
    outer.reset();
    EXPECT_EQ(FlatFileOption(), 1);
    inner.reset();
    EXPECT_EQ(FlatFileOption(), 0);
}

TEST_F(OptionsTest, HoldsItsMembersInTheirOrder)
{
    manager.emplace();
    const void* const members[] = {&((*manager).*Get(OptionsController())),
                                   &((*manager).*Get(OptionsRepository())),
                                   &((*manager).*Get(OptionsFlag()))};
    EXPECT_TRUE(std::less<>()(members[0], members[1]));
    EXPECT_TRUE(std::less<>()(members[1], members[2]));
    EXPECT_EQ((*manager).*Get(OptionsFlag()), 1);
}

// --- Failures -----------------------------------------------------------------------------------

TEST_F(OptionsTest, WithoutAControllerNothingCanBeDone)
{
    for (const char* const fault :
         {"GetZPKWBGeneralSettingCtrl=E_FAIL", "GetZPKWBGeneralSettingCtrl=null"}) {
        EXPECT_EQ(SettingCalls([&] { Make(fault); }), Lines{"Lookup"});
        EXPECT_EQ((*manager).*Get(OptionsFlag()), 1);
        EXPECT_THAT(SettingCalls([&] {
                        EXPECT_EQ(Set(0), E_FAIL);
                        manager.reset();
                    }),
                    IsEmpty());
        EXPECT_EQ(FlatFileOption(), 1);
    }
}

TEST_F(OptionsTest, WithoutARepositoryTheFlagIsSetButNotStored)
{
    for (const char* const outcome : {"=E_NOINTERFACE", "=null"}) {
        EXPECT_THAT(SettingCalls([&] { Make(kRepositoryCast + std::string(outcome)); }),
                    ElementsAre("Lookup", "Query", "Get Flat"));
        EXPECT_THAT(SettingCalls([&] { EXPECT_EQ(Set(0), S_OK); }), ElementsAre("Set Flat 0"));
        EXPECT_EQ(FlatFileOption(), 0);
        {
            const Faults faults("HLXIZPKWBGeneralSettingAtt::SetWriteFlatInputFileFlag=1,keep");
            EXPECT_EQ(Set(0), 1);
        }
        EXPECT_THAT(SettingCalls([&] { manager.reset(); }), ElementsAre("Set Flat 1"));
        EXPECT_EQ(FlatFileOption(), 1);
    }
}

TEST_F(OptionsTest, AControllerThatComesWithAFailureIsTaken)
{
    SetFlatFileOption(0);
    EXPECT_THAT(SettingCalls([&] { Make("GetZPKWBGeneralSettingCtrl=E_FAIL,keep"); }),
                ElementsAre("Lookup", "Query", "Get Flat"));
    EXPECT_EQ((*manager).*Get(OptionsFlag()), 0);
    EXPECT_THAT(SettingCalls([&] { EXPECT_EQ(Set(1), S_OK); }),
                ElementsAre("Set Flat 1", "Commit"));
    EXPECT_THAT(SettingCalls([&] { manager.reset(); }), ElementsAre("Set Flat 0", "Commit"));
    EXPECT_EQ(FlatFileOption(), 0);
}

TEST_F(OptionsTest, ARepositoryThatComesWithAFailureIsUsed)
{
    const HLXIZPKWBGeneralSettingAtt_var settings = GeneralSettings();
    const unsigned long before = References(*settings.Get());
    EXPECT_THAT(SettingCalls([&] { Make(std::string(kRepositoryCast) + "=E_NOINTERFACE,keep"); }),
                ElementsAre("Lookup", "Query", "Get Flat"));
    EXPECT_THAT(SettingCalls([&] { EXPECT_EQ(Set(0), S_OK); }),
                ElementsAre("Set Flat 0", "Commit"));
    EXPECT_THAT(SettingCalls([&] { manager.reset(); }), ElementsAre("Set Flat 1", "Commit"));
    EXPECT_EQ(References(*settings.Get()), before);
}

TEST_F(OptionsTest, AFlagThatCannotBeReadCountsAsOne)
{
    SetFlatFileOption(0);
    Make("HLXIZPKWBGeneralSettingAtt::GetWriteFlatInputFileFlag=E_FAIL");
    EXPECT_EQ((*manager).*Get(OptionsFlag()), 1);
    EXPECT_THAT(SettingCalls([&] { manager.reset(); }), ElementsAre("Set Flat 1", "Commit"));
}

TEST_F(OptionsTest, ASetterThatFailsIsAnsweredAndNothingIsStored)
{
    manager.emplace();
    for (const long code : {static_cast<long>(E_ACCESSDENIED), -1L}) {
        const Faults faults("HLXIZPKWBGeneralSettingAtt::SetWriteFlatInputFileFlag=" +
                            std::to_string(code));
        EXPECT_THAT(SettingCalls([&] { EXPECT_EQ(Set(0), code); }), ElementsAre("Set Flat 0"));
    }
}

TEST_F(OptionsTest, ASetterThatAnswersOneHasSucceededAndStoringIsAnswered)
{
    manager.emplace();
    const Faults faults("HLXIZPKWBGeneralSettingAtt::SetWriteFlatInputFileFlag=1,keep");
    EXPECT_THAT(SettingCalls([&] { EXPECT_EQ(Set(0), S_OK); }),
                ElementsAre("Set Flat 0", "Commit"));
}

TEST_F(OptionsTest, AnswersWhatStoringAnswers)
{
    manager.emplace();
    for (const long code : {static_cast<long>(E_ACCESSDENIED), -1L, 1L}) {
        const Faults faults("VEXIIniSettingManagment::Commit=" + std::to_string(code));
        EXPECT_EQ(Set(0), code);
    }
}

TEST_F(OptionsTest, PuttingBackStoresEvenWhenTheFlagCouldNotBeSet)
{
    manager.emplace();
    const Faults faults(
        "HLXIZPKWBGeneralSettingAtt::*=E_FAIL;VEXIIniSettingManagment::Commit=E_FAIL");
    EXPECT_EQ(
        OutcomeOf([&] {
            EXPECT_EQ(SettingCalls([&] { manager.reset(); }), (Lines{"Set Flat 1", "Commit"}));
        }),
        (Outcome{0, "", ""}));
}

}  // namespace

}  // namespace hlxtest
