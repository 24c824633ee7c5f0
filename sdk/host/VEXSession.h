// SPDX-License-Identifier: Apache-2.0
// Sessions of the framework, known by name.
#pragma once

#include "VEXBaseUnknown.h"

/// A running session. Owned by the framework until Delete_Session.
class VEX_EXPORT VEXSession : public VEXBaseUnknown
{
public:
    explicit VEXSession(const char* name);
    ~VEXSession() override;
    const char* GetName() const noexcept { return _name; }
    VEXMetaClass* GetMetaObject() const override;

private:
    VEXSession(const VEXSession&) = delete;
    VEXSession& operator=(const VEXSession&) = delete;
    char* _name;
};

/// Starts the session of that name.
/// @param session  receives it, uncounted; null on failure
/// @return S_OK; E_INVALIDARG for a null name; E_FAIL when a session of that name runs already. An
/// empty name is a name.
VEX_EXPORT HRESULT Create_Session(char* name, VEXSession*& session);

/// Ends the session of that name. The two integers are kept for the framework's interactive
/// start-up: 0, 0 in batch programs.
/// @return S_OK; E_INVALIDARG for a null name; E_FAIL when there is no such session
VEX_EXPORT HRESULT Delete_Session(char* name, int reserved1, int reserved2);
