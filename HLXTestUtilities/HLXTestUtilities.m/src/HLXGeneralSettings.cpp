// SPDX-License-Identifier: Apache-2.0
// Access to the general settings of the analysis workbench and to their repository.
#include "HLXGeneralSettings.h"

namespace HLXGeneralSettings {

HLXIZPKWBGeneralSettingAtt* FindController()
{
    void* controller = nullptr;
    GetZPKWBGeneralSettingCtrl(IID_HLXIZPKWBGeneralSettingAtt, &controller);
    return static_cast<HLXIZPKWBGeneralSettingAtt*>(controller);
}

HRESULT FindRepository(const HLXIZPKWBGeneralSettingAtt& controller,
                       VEXIIniSettingManagment*& repository)
{
    void* object = nullptr;
    const HRESULT rc = controller.QueryInterface(IID_VEXIIniSettingManagment, &object);
    repository = static_cast<VEXIIniSettingManagment*>(object);
    return rc;
}

void CommitAndRelease(VEXIIniSettingManagment*& repository)
{
    if (repository != nullptr) {
        repository->Commit();
        repository->Release();
        repository = nullptr;
    }
}

}  // namespace HLXGeneralSettings
