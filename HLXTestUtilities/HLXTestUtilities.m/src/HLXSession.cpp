// SPDX-License-Identifier: Apache-2.0
// A session of the host framework for the life of an object.
#include "HLXSession.h"

#include "HLXClassRecord.h"
#include "HLXConsole.h"

HLX_CLASS_RECORD(HLXSession, VEXBaseUnknown);

HLXSession::HLXSession(const char* name)
{
    const std::string_view text = HLXConsole::TextOf(name);
    _SessionName = new char[text.size() + 1];
    _SessionName[text.copy(_SessionName, text.size())] = '\0';

    // The session itself is not kept: it is found again by name.
    VEXSession* session = nullptr;
    const HRESULT rc = Create_Session(_SessionName, session);
    if (SUCCEEDED(rc) && session != nullptr) {
        _Running = 1;
    } else {
        HLXConsole::Print("*** ERROR in creating session", " rc:", std::to_string(rc), "\n");
        _Running = 0;
    }
}

// The name is shared, and kept so: one copy only may be destroyed.
HLXSession::HLXSession(const HLXSession& other) = default;
HLXSession& HLXSession::operator=(const HLXSession& other) = default;

HLXSession::~HLXSession()
{
    // Also after a failed creation; kept.
    Delete_Session(_SessionName, 0, 0);
    delete[] _SessionName;
    _SessionName = nullptr;
}

unsigned char HLXSession::IsSessionRunning()
{
    return _Running;
}
