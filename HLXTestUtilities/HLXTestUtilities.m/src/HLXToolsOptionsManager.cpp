// SPDX-License-Identifier: Apache-2.0
// Tool options of the workbench, set for the life of an object.
#include "HLXToolsOptionsManager.h"

#include "HLXClassRecord.h"
#include "HLXGeneralSettings.h"

HLX_CLASS_RECORD(HLXToolsOptionsManager, VEXBaseUnknown);

HLXToolsOptionsManager::HLXToolsOptionsManager()
    : _SettingController(HLXGeneralSettings::FindController())
{
    if (_SettingController != nullptr) {
        HLXGeneralSettings::FindRepository(*_SettingController, _IniSettingManagement);
        _SettingController->GetWriteFlatInputFileFlag(_SavedWriteFlatFlag);
    }
}

HLXToolsOptionsManager::~HLXToolsOptionsManager()
{
    if (_SettingController != nullptr) {
        _SettingController->SetWriteFlatInputFileFlag(_SavedWriteFlatFlag);
        _SettingController->Release();
        _SettingController = nullptr;
    }
    HLXGeneralSettings::CommitAndRelease(_IniSettingManagement);
}

long HLXToolsOptionsManager::SetWriteFlatInputFileFlag(unsigned char flag)
{
    if (_SettingController == nullptr) return E_FAIL;
    const HRESULT rc = _SettingController->SetWriteFlatInputFileFlag(flag);
    return FAILED(rc) || _IniSettingManagement == nullptr ? rc : _IniSettingManagement->Commit();
}
