// SPDX-License-Identifier: Apache-2.0
// Makes the containers of a step that it does not have from the start.
#pragma once

#include "VEXBaseUnknown.h"
#include "VEXVar.h"

/// An interface of analysis steps. Names of ours: all.
class HLXIContainerFactoryStep : public VEXBaseUnknown
{
public:
    /// Makes the step's container of field output requests, if it has none yet.
    /// @return S_OK; E_FAIL when the step is gone
    virtual HRESULT CreateFieldOutputRequestContainer() = 0;

    /// Makes the step's container of history output requests, if it has none yet.
    /// @return S_OK; E_FAIL when the step is gone
    virtual HRESULT CreateHistoryOutputRequestContainer() = 0;
};

VEX_INTERFACE(HLXIContainerFactoryStep);
