// SPDX-License-Identifier: Apache-2.0
// A session of the host framework for the life of an object: a batch program makes one before its
// test cases run.
#pragma once

#include "VEXMetaClass.h"
#include "VEXSession.h"

class VEX_EXPORT HLXSession : public VEXBaseUnknown
{
public:
    /// Creates the session. A failure prints "*** ERROR in creating session rc:" and the result;
    /// ask IsSessionRunning.
    /// @param name  name of the session, copied; null stands for the empty name
    explicit HLXSession(const char* name);

    /// Copies share the owned name: only one of them may be destroyed. What an assignment replaces
    /// is neither freed nor its session deleted.
    HLXSession(const HLXSession& other);
    HLXSession& operator=(const HLXSession& other);

    /// Deletes the session of that name, even when this object could not create it.
    ~HLXSession() override;

    /// 1 when the session was created, else 0.
    unsigned char IsSessionRunning();

    /// The run-time class "HLXSession", based on VEXBaseUnknown.
    static VEXMetaClass* MetaObject();
    VEXMetaClass* GetMetaObject() const override;
    static const GUID& ClassId();
    static const char* ClassName();
    const char* IsA() const override;
    int IsAKindOf(const char* name) const override;
    /// Always null: the framework's factory makes no session object.
    static VEXBaseUnknown* CreateItself();

private:
    static VEXMetaClass* meta_object;

    char* _SessionName;
    unsigned char _Running = 0;
};
