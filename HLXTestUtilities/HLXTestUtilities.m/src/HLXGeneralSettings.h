// SPDX-License-Identifier: Apache-2.0
// Access to the general settings of the analysis workbench and to their repository.
#pragma once

#include "HLXIZPKWBGeneralSettingAtt.h"
#include "VEXIIniSettingManagment.h"

namespace HLXGeneralSettings {

/// The settings controller with a reference that the caller releases; null when there is none.
HLXIZPKWBGeneralSettingAtt* FindController();

/// Asks the controller for its repository.
/// @param repository  receives it with a reference that the caller releases; null when there is
/// none
/// @return result of the query
HRESULT FindRepository(const HLXIZPKWBGeneralSettingAtt& controller,
                       VEXIIniSettingManagment*& repository);

/// Stores the settings, whatever comes of it, and gives the repository up. Nothing happens for
/// null.
void CommitAndRelease(VEXIIniSettingManagment*& repository);

}  // namespace HLXGeneralSettings
