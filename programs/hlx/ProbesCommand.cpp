// SPDX-License-Identifier: Apache-2.0
// `hlx probes`: the names that traces show and faults take.
#include "Commands.h"
#include "Messages.h"
#include "host/component/ComponentTypes.h"
#include "host/system/Probes.h"

#include <fmt/format.h>

namespace hlx {

namespace {

void PrintCasts()
{
    for (const vex::ComponentType* type : vex::ComponentTypes::Instance().All()) {
        for (const vex::InterfaceEntry& entry : type->interfaces) {
            Write(fmt::format("cast:{}->{}  {}\n", type->name, entry.name,
                              fmt::join(vex::probe::WaysToBreak("cast:*"), " ")));
        }
    }
}

}  // namespace

int PrintProbes(bool casts)
{
    for (const std::string& name : vex::probe::AllNames()) {
        Write(fmt::format("{}  {}\n", name, fmt::join(vex::probe::WaysToBreak(name), " ")));
    }
    if (casts) {
        PrintCasts();
    }
    return Done;
}

}  // namespace hlx
