// SPDX-License-Identifier: Apache-2.0
// The repository side of a settings controller. (The name's spelling is the platform's.)
#pragma once

#include "VEXVar.h"

/// Names of ours: Commit.
class VEXIIniSettingManagment : public VEXBaseUnknown
{
public:
    /// Stores the settings in force in their repository, whole or not at all.
    /// @return S_OK; E_FAIL with the reason on standard error when they could not be stored (they
    /// stay in force)
    virtual HRESULT Commit() = 0;
};

VEX_INTERFACE(VEXIIniSettingManagment);
