// SPDX-License-Identifier: Apache-2.0
// Sessions by name. The framework holds one reference on each until it is deleted.
#include "VEXMetaClass.h"
#include "VEXSession.h"
#include "host/system/Probe.h"

#include <cstring>
#include <map>
#include <string>

namespace {

using SessionsByName = std::map<std::string, VEXVar<VEXSession>, std::less<>>;

SessionsByName& Sessions()
{
    static SessionsByName& sessions = *new SessionsByName;
    return sessions;
}

}  // namespace

VEXSession::VEXSession(const char* name) : _name(nullptr)
{
    const std::size_t size = name == nullptr ? 1 : std::strlen(name) + 1;
    _name = new char[size]{};
    std::memcpy(_name, name == nullptr ? "" : name, size);
}

VEXSession::~VEXSession()
{
    delete[] _name;
}

VEXMetaClass* VEXSession::GetMetaObject() const
{
    static VEXMetaClass* const metaObject = VEXMetaClass::Get(
        "VEXSession", VEXImplementationClass, VEXBaseUnknown::MetaObject(), "VEXNull", "VEXHost");
    return metaObject;
}

HRESULT Create_Session(char* name, VEXSession*& session)
{
    session = nullptr;
    return vex::Probe<"Create_Session">(
        [&]() -> HRESULT {
            if (name == nullptr) {
                return E_INVALIDARG;
            }
            const auto [place, isNew] = Sessions().try_emplace(name);
            if (!isNew) {
                return E_FAIL;
            }
            place->second = VEXAdopt(new VEXSession(name));
            session = place->second.Get();
            return S_OK;
        },
        vex::In(name), vex::Out(session));
}

HRESULT Delete_Session(char* name, int reserved1, int reserved2)
{
    return vex::Probe<"Delete_Session">(
        [&]() -> HRESULT {
            if (name == nullptr) {
                return E_INVALIDARG;
            }
            return Sessions().erase(name) == 1 ? S_OK : E_FAIL;
        },
        vex::In(name), vex::In(reserved1), vex::In(reserved2));
}
