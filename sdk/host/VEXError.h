// SPDX-License-Identifier: Apache-2.0
// The error state of the calling thread.
#pragma once

#include "VEXBaseUnknown.h"

/// Names of ours: SetPending.
class VEX_EXPORT VEXError
{
public:
    /// Turns a status into a result and settles the thread's pending error.
    /// @param status  0: clears the pending error and answers E_FAIL; 1: answers the pending error
    /// and clears it, S_OK when
    ///                there is none; any other status is answered as E_INVALIDARG and changes
    ///                nothing
    /// @param error   receives the pending error's object; null when the caller wants none (there
    /// are no such objects: it is set to null)
    /// @param object  object the error concerns, may be null
    /// @param source  source that reports, may be null
    /// @param line    line in that source
    /// Each call is recorded (status, source, line) where the host's test header can read it.
    static HRESULT GetReturn(int status, VEXBaseUnknown** error, const VEXBaseUnknown* object,
                             const char* source, int line);

    /// Leaves `error` (a negative result) pending in the calling thread; a result that is no
    /// failure changes nothing.
    static void SetPending(HRESULT error);
};
