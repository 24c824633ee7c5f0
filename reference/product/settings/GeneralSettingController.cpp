// SPDX-License-Identifier: Apache-2.0
// The controller's operations over the settings in force.
#include "product/settings/GeneralSettingController.h"

#include "VEXComponents.h"
#include "host/feature/Refusal.h"
#include "host/system/Probe.h"

namespace hlx {

using vex::In;
using vex::Out;
using vex::Probe;

namespace {

HRESULT GetText(const GeneralSettingController& controller, GeneralSetting setting,
                VEXUnicodeString& text)
{
    text = VEXUnicodeString(controller.Settings().Get(setting));
    return S_OK;
}

HRESULT SetText(const GeneralSettingController& controller, GeneralSetting setting,
                std::string_view text)
{
    return controller.Settings().Set(setting, text) ? S_OK : E_INVALIDARG;
}

}  // namespace

GeneralSettingController::GeneralSettingController(std::unique_ptr<GeneralSettings> settings)
    : Component(vex::ComponentTypes::Instance().Require(Name)), _settings(std::move(settings))
{}

VEXBaseUnknown* GeneralSettingController::Create(void*)
{
    std::string error;
    std::string path = vex::system::SettingsStore::DefaultPath(error);
    auto settings = path.empty() ? nullptr : GeneralSettings::Load(std::move(path), error);
    if (settings == nullptr) {
        vex::Tell("general settings: " + error);
        return nullptr;
    }
    return new GeneralSettingController(std::move(settings));
}

HRESULT GeneralSettingAdapter::GetBasicUnitLength(VEXUnicodeString& unit) const
{
    return Probe<"HLXIZPKWBGeneralSettingAtt::GetBasicUnitLength">(
        [&] { return GetText(Self(), GeneralSetting::LengthUnit, unit); }, Out(unit));
}

HRESULT GeneralSettingAdapter::SetBasicUnitLength(const VEXUnicodeString& unit)
{
    return Probe<"HLXIZPKWBGeneralSettingAtt::SetBasicUnitLength">(
        [&] { return SetText(Self(), GeneralSetting::LengthUnit, unit.View()); }, In(unit));
}

HRESULT GeneralSettingAdapter::GetBasicUnitMass(VEXUnicodeString& unit) const
{
    return Probe<"HLXIZPKWBGeneralSettingAtt::GetBasicUnitMass">(
        [&] { return GetText(Self(), GeneralSetting::MassUnit, unit); }, Out(unit));
}

HRESULT GeneralSettingAdapter::SetBasicUnitMass(const VEXUnicodeString& unit)
{
    return Probe<"HLXIZPKWBGeneralSettingAtt::SetBasicUnitMass">(
        [&] { return SetText(Self(), GeneralSetting::MassUnit, unit.View()); }, In(unit));
}

HRESULT GeneralSettingAdapter::GetBasicUnitTime(VEXUnicodeString& unit) const
{
    return Probe<"HLXIZPKWBGeneralSettingAtt::GetBasicUnitTime">(
        [&] { return GetText(Self(), GeneralSetting::TimeUnit, unit); }, Out(unit));
}

HRESULT GeneralSettingAdapter::SetBasicUnitTime(const VEXUnicodeString& unit)
{
    return Probe<"HLXIZPKWBGeneralSettingAtt::SetBasicUnitTime">(
        [&] { return SetText(Self(), GeneralSetting::TimeUnit, unit.View()); }, In(unit));
}

HRESULT GeneralSettingAdapter::GetBasicUnitTemperature(VEXUnicodeString& unit) const
{
    return Probe<"HLXIZPKWBGeneralSettingAtt::GetBasicUnitTemperature">(
        [&] { return GetText(Self(), GeneralSetting::TemperatureUnit, unit); }, Out(unit));
}

HRESULT GeneralSettingAdapter::SetBasicUnitTemperature(const VEXUnicodeString& unit)
{
    return Probe<"HLXIZPKWBGeneralSettingAtt::SetBasicUnitTemperature">(
        [&] { return SetText(Self(), GeneralSetting::TemperatureUnit, unit.View()); }, In(unit));
}

HRESULT GeneralSettingAdapter::GetWriteFlatInputFileFlag(unsigned char& flag) const
{
    return Probe<"HLXIZPKWBGeneralSettingAtt::GetWriteFlatInputFileFlag">(
        [&]() -> HRESULT {
            flag = Self().Settings().Get(GeneralSetting::WriteFlatInputFile) == "1" ? 1 : 0;
            return S_OK;
        },
        Out(flag));
}

HRESULT GeneralSettingAdapter::SetWriteFlatInputFileFlag(unsigned char flag)
{
    return Probe<"HLXIZPKWBGeneralSettingAtt::SetWriteFlatInputFileFlag">(
        [&] { return SetText(Self(), GeneralSetting::WriteFlatInputFile, flag != 0 ? "1" : "0"); },
        In(flag));
}

HRESULT SettingRepositoryAdapter::Commit()
{
    return Probe<"VEXIIniSettingManagment::Commit">([&]() -> HRESULT {
        std::string error;
        if (!Self().Settings().Commit(error)) {
            return vex::Refuse(E_FAIL, "general settings: " + error);
        }
        return S_OK;
    });
}

}  // namespace hlx

HRESULT GetZPKWBGeneralSettingCtrl(const IID& iid, void** controller)
{
    return vex::Probe<"GetZPKWBGeneralSettingCtrl">(
        [&] {
            return VEXInstantiateComponent(hlx::GeneralSettingController::Name, iid, controller);
        },
        vex::In(iid), vex::probe::OutAt(controller));
}
