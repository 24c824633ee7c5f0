// SPDX-License-Identifier: Apache-2.0
// The basic units of the workbench, set for the life of an object.
#include "HLXSetUnitSystem.h"

#include "HLXClassRecord.h"
#include "HLXGeneralSettings.h"

HLX_CLASS_RECORD(HLXSetUnitSystem, VEXBaseUnknown);

HLXSetUnitSystem::HLXSetUnitSystem() : _SettingController(HLXGeneralSettings::FindController()) {}

// The interfaces are shared without a reference more, and kept so: one copy only may be destroyed.
HLXSetUnitSystem::HLXSetUnitSystem(const HLXSetUnitSystem& other) = default;
HLXSetUnitSystem& HLXSetUnitSystem::operator=(const HLXSetUnitSystem& other) = default;

HLXSetUnitSystem::~HLXSetUnitSystem()
{
    if (_SettingController != nullptr) {
        // Units that were never saved are written back as the empty texts they are; kept.
        _SettingController->SetBasicUnitLength(_SavedLengthUnit);
        _SettingController->SetBasicUnitMass(_SavedMassUnit);
        _SettingController->SetBasicUnitTime(_SavedTimeUnit);
        _SettingController->SetBasicUnitTemperature(_SavedTemperatureUnit);
        _SettingController->Release();
        _SettingController = nullptr;
    }
    HLXGeneralSettings::CommitAndRelease(_IniSettingManagement);
}

long HLXSetUnitSystem::SetBasicUnits(VEXUnicodeString length, VEXUnicodeString mass,
                                     VEXUnicodeString time, VEXUnicodeString temperature)
{
    if (_SettingController == nullptr) return E_FAIL;
    long rc = SaveUnits();
    if (SUCCEEDED(rc)) rc = _SettingController->SetBasicUnitLength(length);
    if (SUCCEEDED(rc)) rc = _SettingController->SetBasicUnitMass(mass);
    if (SUCCEEDED(rc)) rc = _SettingController->SetBasicUnitTime(time);
    if (SUCCEEDED(rc)) rc = _SettingController->SetBasicUnitTemperature(temperature);
    if (FAILED(rc)) return rc;

    // The repository of an earlier call is dropped without release; kept.
    _IniSettingManagement = nullptr;
    rc = HLXGeneralSettings::FindRepository(*_SettingController, _IniSettingManagement);
    return SUCCEEDED(rc) && _IniSettingManagement != nullptr ? _IniSettingManagement->Commit()
                                                             : E_FAIL;
}

long HLXSetUnitSystem::SaveUnits()
{
    long rc = _SettingController->GetBasicUnitLength(_SavedLengthUnit);
    if (SUCCEEDED(rc)) rc = _SettingController->GetBasicUnitMass(_SavedMassUnit);
    if (SUCCEEDED(rc)) rc = _SettingController->GetBasicUnitTime(_SavedTimeUnit);
    if (SUCCEEDED(rc)) rc = _SettingController->GetBasicUnitTemperature(_SavedTemperatureUnit);
    return rc;
}
