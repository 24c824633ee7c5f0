// SPDX-License-Identifier: Apache-2.0
// Look-up in the generated tables.
#include "host/system/ProbePoints.h"

#include "host/system/Probes.h"

#include <algorithm>
#include <string>
#include <vector>

namespace vex::probe {

namespace {

struct InterfaceIdentity
{
    std::string_view name;
    IID id;
    constexpr InterfaceIdentity(const char* text) : name(text), id(VEXGuidOfName(text)) {}
};

constexpr InterfaceIdentity interfaces[] = {
#define PROBE_INTERFACES
#include "ProbeTable.inc"
#undef PROBE_INTERFACES
};

}  // namespace

const PointDefinition* FindPoint(std::string_view name)
{
    const auto* const found =
        std::find_if(std::begin(pointTable), std::end(pointTable),
                     [&](const PointDefinition& point) { return point.name == name; });
    return found == std::end(pointTable) ? nullptr : found;
}

const PointDefinition& CastPoint()
{
    static constexpr PointDefinition cast{"cast", ResultKind::Result, true, false};
    return cast;
}

bool IsInterfaceName(std::string_view name)
{
    return std::any_of(std::begin(interfaces), std::end(interfaces),
                       [&](const InterfaceIdentity& interface) { return interface.name == name; });
}

std::string_view InterfaceName(const IID& iid)
{
    for (const InterfaceIdentity& interface : interfaces) {
        if (interface.id == iid) {
            return interface.name;
        }
    }
    return {};
}

std::vector<std::string> AllNames()
{
    std::vector<std::string> names;
    for (const PointDefinition& point : pointTable) {
        names.emplace_back(point.name);
    }
    return names;
}

}  // namespace vex::probe
