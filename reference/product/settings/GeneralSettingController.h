// SPDX-License-Identifier: Apache-2.0
// The controller of the general settings: one object of the process, with the settings' interface
// and their repository's.
#pragma once

#include "HLXIZPKWBGeneralSettingAtt.h"
#include "VEXIIniSettingManagment.h"
#include "host/component/Adapter.h"
#include "product/settings/GeneralSettings.h"

namespace hlx {

class VEX_EXPORT GeneralSettingController final : public vex::Component
{
public:
    static constexpr const char* Name = "HLXZPKWBGeneralSettingCtrl";

    /// The controller over the user's repository (count 1); null, with the reason on standard
    /// error, when it cannot be read.
    static VEXBaseUnknown* Create(void* argument);

    explicit GeneralSettingController(std::unique_ptr<GeneralSettings> settings);

    GeneralSettings& Settings() const { return *_settings; }

private:
    std::unique_ptr<GeneralSettings> _settings;
};

class GeneralSettingAdapter final
    : public vex::Adapter<HLXIZPKWBGeneralSettingAtt, GeneralSettingController>
{
public:
    using Adapter::Adapter;
    HRESULT GetBasicUnitLength(VEXUnicodeString& unit) const override;
    HRESULT SetBasicUnitLength(const VEXUnicodeString& unit) override;
    HRESULT GetBasicUnitMass(VEXUnicodeString& unit) const override;
    HRESULT SetBasicUnitMass(const VEXUnicodeString& unit) override;
    HRESULT GetBasicUnitTime(VEXUnicodeString& unit) const override;
    HRESULT SetBasicUnitTime(const VEXUnicodeString& unit) override;
    HRESULT GetBasicUnitTemperature(VEXUnicodeString& unit) const override;
    HRESULT SetBasicUnitTemperature(const VEXUnicodeString& unit) override;
    HRESULT GetWriteFlatInputFileFlag(unsigned char& flag) const override;
    HRESULT SetWriteFlatInputFileFlag(unsigned char flag) override;
};

class SettingRepositoryAdapter final
    : public vex::Adapter<VEXIIniSettingManagment, GeneralSettingController>
{
public:
    using Adapter::Adapter;
    HRESULT Commit() override;
};

}  // namespace hlx
