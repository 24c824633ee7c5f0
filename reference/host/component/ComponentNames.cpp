// SPDX-License-Identifier: Apache-2.0
// Which names components can bear, for the check of faults.
#include "host/component/ComponentNames.h"

#include "host/component/ComponentTypes.h"
#include "host/component/MetaClassRegistry.h"
#include "host/system/ProbePoints.h"

#include <algorithm>
#include <vector>

namespace vex {

namespace {

std::vector<ComponentNameHolder>& Holders()
{
    static auto& holders = *new std::vector<ComponentNameHolder>;
    return holders;
}

}  // namespace

void AddComponentNames(ComponentNameHolder holds)
{
    Holders().push_back(holds);
}

bool probe::IsComponentName(std::string_view name)
{
    // First, as it loads the libraries that the others come with.
    if (ComponentTypes::Instance().Find(name) != nullptr ||
        MetaClassRegistry::Instance().Holds(name)) {
        return true;
    }
    return std::any_of(Holders().begin(), Holders().end(),
                       [&](ComponentNameHolder holds) { return holds(name); }) ||
           ComponentTypes::Instance().FindAhead(name) != nullptr;
}

}  // namespace vex
