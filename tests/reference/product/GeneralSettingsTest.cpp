// SPDX-License-Identifier: Apache-2.0
// The general settings: through their controller, and over their repository file.
#include "product/settings/GeneralSettings.h"

#include "HLXIZPKWBGeneralSettingAtt.h"
#include "VEXIIniSettingManagment.h"
#include "product/settings/GeneralSettingController.h"
#include "support/Capture.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <cstdlib>

namespace {

using hlx::GeneralSetting;
using hlx::GeneralSettings;
using hlxtest::TemporaryFolder;
using vex::system::SettingsStore;

using Controller = VEXVar<HLXIZPKWBGeneralSettingAtt>;

Controller GetController()
{
    void* object = nullptr;
    EXPECT_EQ(GetZPKWBGeneralSettingCtrl(IID_HLXIZPKWBGeneralSettingAtt, &object), S_OK);
    return VEXAdopt(static_cast<HLXIZPKWBGeneralSettingAtt*>(object));
}

struct Unit
{
    const char* name;
    HRESULT (HLXIZPKWBGeneralSettingAtt::*get)(VEXUnicodeString&) const;
    HRESULT (HLXIZPKWBGeneralSettingAtt::*set)(const VEXUnicodeString&);
    const char* key;
    std::vector<const char*> possible;  ///< the default first
};

void PrintTo(const Unit& unit, std::ostream* stream)
{
    *stream << unit.name;
}

const Unit units[] = {
    {"Length",
     &HLXIZPKWBGeneralSettingAtt::GetBasicUnitLength,
     &HLXIZPKWBGeneralSettingAtt::SetBasicUnitLength,
     "BasicUnitLength",
     {"mm", "um", "cm", "m", "km", "in", "ft", "yd", "mi"}},
    {"Mass",
     &HLXIZPKWBGeneralSettingAtt::GetBasicUnitMass,
     &HLXIZPKWBGeneralSettingAtt::SetBasicUnitMass,
     "BasicUnitMass",
     {"kg", "mg", "g", "t", "oz", "lb", "slug"}},
    {"Time",
     &HLXIZPKWBGeneralSettingAtt::GetBasicUnitTime,
     &HLXIZPKWBGeneralSettingAtt::SetBasicUnitTime,
     "BasicUnitTime",
     {"s", "us", "ms", "min", "h"}},
    {"Temperature",
     &HLXIZPKWBGeneralSettingAtt::GetBasicUnitTemperature,
     &HLXIZPKWBGeneralSettingAtt::SetBasicUnitTemperature,
     "BasicUnitTepmerature",
     {"K", "C", "F", "R"}},
};

class BasicUnit : public testing::TestWithParam<Unit>
{
protected:
    VEXUnicodeString Get() const
    {
        VEXUnicodeString unit;
        EXPECT_EQ((controller.Get()->*GetParam().get)(unit), S_OK);
        return unit;
    }

    HRESULT Set(const char* unit) { return (controller.Get()->*GetParam().set)(unit); }

    const Controller controller = GetController();
};

TEST_P(BasicUnit, IsItsDefaultUntilSetAndTakesEveryUnitOfItsQuantity)
{
    EXPECT_EQ(Get(), GetParam().possible.front());
    for (const char* const unit : GetParam().possible) {
        EXPECT_EQ(Set(unit), S_OK) << unit;
        EXPECT_EQ(Get(), unit);
        VEXUnicodeString elsewhere;
        EXPECT_EQ((GetController().Get()->*GetParam().get)(elsewhere), S_OK);
        EXPECT_EQ(elsewhere, unit);
    }
    EXPECT_EQ(Set(GetParam().possible.front()), S_OK);
}

TEST_P(BasicUnit, RefusesWhatIsNoUnitOfItsQuantity)
{
    const VEXUnicodeString before = Get();
    for (const char* const text : {"", " ", "MM", "mm ", "furlong", "KG", "\xff"}) {
        EXPECT_EQ(Set(text), E_INVALIDARG) << text;
    }
    for (const Unit& other : units) {
        if (other.key != GetParam().key) {
            EXPECT_EQ(Set(other.possible.back()), E_INVALIDARG) << other.possible.back();
        }
    }
    EXPECT_EQ(Get(), before);
}

TEST_P(BasicUnit, IsStoredUnderItsKeyByCommit)
{
    const VEXVar<VEXIIniSettingManagment> repository(controller);
    ASSERT_TRUE(repository);
    ASSERT_EQ(Set(GetParam().possible.back()), S_OK);
    EXPECT_EQ(repository->Commit(), S_OK);
    SettingsStore store(std::getenv("VEX_SETTINGS"));
    std::string error;
    ASSERT_TRUE(store.Load(error)) << error;
    EXPECT_EQ(store.Get(GetParam().key), GetParam().possible.back());

    ASSERT_EQ(Set(GetParam().possible.front()), S_OK);
    ASSERT_TRUE(store.Load(error)) << error;
    EXPECT_EQ(store.Get(GetParam().key), GetParam().possible.back()) << "stored without Commit";
    EXPECT_EQ(repository->Commit(), S_OK);
}

INSTANTIATE_TEST_SUITE_P(Settings, BasicUnit, testing::ValuesIn(units),
                         [](const auto& unit) { return std::string(unit.param.name); });

TEST(GeneralSettings, FlagTakesBothValues)
{
    const Controller controller = GetController();
    unsigned char flag = 9;
    EXPECT_EQ(controller->SetWriteFlatInputFileFlag(0), S_OK);
    EXPECT_EQ(GetController()->GetWriteFlatInputFileFlag(flag), S_OK);
    EXPECT_EQ(flag, 0);
    EXPECT_EQ(controller->SetWriteFlatInputFileFlag(255), S_OK);
    EXPECT_EQ(controller->GetWriteFlatInputFileFlag(flag), S_OK);
    EXPECT_EQ(flag, 1);
}

TEST(GeneralSettings, ControllerRefusesOtherInterfaces)
{
    int anything = 0;
    void* object = &anything;
    EXPECT_EQ(GetZPKWBGeneralSettingCtrl(VEXGuidOfName("HLXIJob"), &object), E_NOINTERFACE);
    EXPECT_EQ(object, nullptr);
    EXPECT_EQ(GetZPKWBGeneralSettingCtrl(IID_HLXIZPKWBGeneralSettingAtt, nullptr), E_POINTER);
}

class SettingsFile : public testing::Test
{
protected:
    std::unique_ptr<GeneralSettings> Load()
    {
        error.clear();
        return GeneralSettings::Load(path, error);
    }

    void Store(std::string_view key, std::string_view value)
    {
        SettingsStore store(path);
        ASSERT_TRUE(store.Load(error) && store.Set(key, value, error) && store.Commit(error))
            << error;
    }

    TemporaryFolder folder;
    const std::string path = folder.File("s.VEXSettings");
    std::string error;
};

TEST_F(SettingsFile, FlagIsSetAtFirst)
{
    const auto settings = Load();
    ASSERT_NE(settings, nullptr) << error;
    EXPECT_EQ(settings->Get(GeneralSetting::WriteFlatInputFile), "1");
}

TEST_F(SettingsFile, IsReadAgainAsCommitted)
{
    const auto first = Load();
    ASSERT_NE(first, nullptr) << error;
    EXPECT_TRUE(first->Set(GeneralSetting::LengthUnit, "in"));
    EXPECT_TRUE(first->Set(GeneralSetting::WriteFlatInputFile, "0"));
    EXPECT_EQ(Load()->Get(GeneralSetting::LengthUnit), "mm");
    ASSERT_TRUE(first->Commit(error)) << error;
    const auto second = Load();
    ASSERT_NE(second, nullptr) << error;
    EXPECT_EQ(second->Get(GeneralSetting::LengthUnit), "in");
    EXPECT_EQ(second->Get(GeneralSetting::WriteFlatInputFile), "0");
    EXPECT_EQ(second->Get(GeneralSetting::MassUnit), "kg");
}

TEST_F(SettingsFile, KeepsWhatOthersStoredMeanwhile)
{
    const auto ours = Load();
    const auto theirs = Load();
    EXPECT_TRUE(theirs->Set(GeneralSetting::MassUnit, "lb"));
    EXPECT_TRUE(theirs->Set(GeneralSetting::TimeUnit, "h"));
    ASSERT_TRUE(theirs->Commit(error)) << error;
    Store("SomebodyElses", "setting");
    EXPECT_TRUE(ours->Set(GeneralSetting::TimeUnit, "ms"));
    ASSERT_TRUE(ours->Commit(error)) << error;
    EXPECT_EQ(ours->Get(GeneralSetting::MassUnit), "kg");

    const auto result = Load();
    EXPECT_EQ(result->Get(GeneralSetting::MassUnit), "lb");
    EXPECT_EQ(result->Get(GeneralSetting::TimeUnit), "ms");
    SettingsStore store(path);
    ASSERT_TRUE(store.Load(error));
    EXPECT_EQ(store.Get("SomebodyElses"), "setting");
}

TEST_F(SettingsFile, IsRefusedForAnImpossibleValue)
{
    Store("BasicUnitLength", "furlong\n");
    EXPECT_EQ(Load(), nullptr);
    EXPECT_EQ(error,
              "\"" + path +
                  "\": the setting BasicUnitLength is \"furlong\\n\"; it can be mm um cm m km "
                  "in ft yd mi. Correct it, or remove the file to have the defaults.");
}

TEST_F(SettingsFile, IsRefusedWhenDamagedAndTheControllerSaysWhy)
{
    hlxtest::WriteFile(path, "not a repository");
    EXPECT_EQ(Load(), nullptr);
    EXPECT_NE(error.find(path), std::string::npos) << error;

    const std::string own = std::getenv("VEX_SETTINGS");
    setenv("VEX_SETTINGS", path.c_str(), 1);
    VEXBaseUnknown* controller = nullptr;
    const hlxtest::Captured captured =
        hlxtest::Capture([&] { controller = hlx::GeneralSettingController::Create(nullptr); });
    setenv("VEX_SETTINGS", own.c_str(), 1);
    EXPECT_EQ(controller, nullptr);
    EXPECT_EQ(captured.out, "");
    EXPECT_EQ(captured.err, "vex: general settings: " + error + "\n");
    EXPECT_EQ(hlxtest::ReadFile(path), "not a repository");
}

TEST_F(SettingsFile, ThatCannotBeWrittenLeavesTheSettingsInForce)
{
    const auto settings = Load();
    EXPECT_TRUE(settings->Set(GeneralSetting::LengthUnit, "ft"));
    hlxtest::WriteFile(path, "not a repository");
    EXPECT_FALSE(settings->Commit(error));
    EXPECT_NE(error, "");
    EXPECT_EQ(settings->Get(GeneralSetting::LengthUnit), "ft");
    EXPECT_EQ(hlxtest::ReadFile(path), "not a repository");
}

}  // namespace
