// SPDX-License-Identifier: Apache-2.0
// Queries.
#include "host/component/Cast.h"

#include "host/system/Probe.h"

#include <string>

namespace vex {

namespace {

HRESULT CastUnobserved(const VEXBaseUnknown& component, InterfaceFinder find, const IID& iid,
                       void** object)
{
    if (object == nullptr) {
        return E_POINTER;
    }
    VEXBaseUnknown* const found = find(component, iid);
    *object = found;
    if (found == nullptr) {
        return E_NOINTERFACE;
    }
    component.AddRef();
    return S_OK;
}

/// Apart from Cast, so that a cast that nobody observes pays nothing for texts.
[[gnu::noinline, gnu::cold]] HRESULT CastObserved(const VEXBaseUnknown& component,
                                                  InterfaceFinder find, const IID& iid,
                                                  const char* name, void** object)
{
    std::string interface = probe::TextOf(iid);
    if (name != nullptr && interface != name) {
        interface = probe::TextOf(name);
    }
    probe::Observation observation(component.IsA(), interface);
    return probe::Observe(
        observation, [&] { return CastUnobserved(component, find, iid, object); }, OutAt(object));
}

}  // namespace

HRESULT Cast(const VEXBaseUnknown& component, InterfaceFinder find, const IID& iid,
             const char* name, void** object)
{
    if (!probe::active) [[likely]] {
        return CastUnobserved(component, find, iid, object);
    }
    return CastObserved(component, find, iid, name, object);
}

IID IdOfInterface(const char* name)
{
    return name == nullptr ? IID{} : VEXGuidOfName(name);
}

}  // namespace vex
