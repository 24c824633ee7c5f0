// SPDX-License-Identifier: Apache-2.0
// A program as a user writes one: it makes a few calls, one from a static object's destructor, and
// ends in the middle.
#include "VEXComponents.h"
#include "VEXFeatures.h"
#include "VEXSession.h"
#include "VEXSystem.h"

#include <cstdio>
#include <cstdlib>

namespace {

struct LastCall
{
    ~LastCall()
    {
        char path[VEXMaxPathSize];
        VEXMakePath("last", "call", path);
    }
};

const LastCall lastCall;

}  // namespace

int main()
{
    char path[VEXMaxPathSize];
    const HRESULT joined = VEXMakePath("folder", "na\"me", path);
    std::printf("VEXMakePath %ld '%s'\n", static_cast<long>(joined), path);

    char name[] = "Session";
    VEXSession* session = nullptr;
    Create_Session(name, session);
    std::printf("session %s\n", session == nullptr ? "none" : session->IsA());

    VEXBaseUnknown* const object =
        VEXCreateExternalObject("SpecimenGoodObject", nullptr, "SpecimenGood", nullptr);
    if (object != nullptr) {
        const VEXIAlias_var alias = VEXShare(object);
        std::printf("alias %s\n", alias == nullptr ? "none" : "found");
    }
    std::fflush(stdout);
    std::exit(3);
}
