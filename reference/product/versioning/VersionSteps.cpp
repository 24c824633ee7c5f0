// SPDX-License-Identifier: Apache-2.0
// The list of steps of this release.
#include "product/versioning/VersionSteps.h"

#include "host/store/DocumentFormat.h"

#include <algorithm>

namespace hlx {

/// Version 1 is the first one, so there is nothing to upgrade from yet.
VersionSteps::VersionSteps() = default;

VersionSteps& VersionSteps::Instance()
{
    static VersionSteps steps;
    return steps;
}

unsigned VersionSteps::Current() const
{
    unsigned current = vex::store::kDataVersion;
    for (const VersionStep& step : _steps) {
        current = std::max(current, step.from + 1);
    }
    return current;
}

const VersionStep* VersionSteps::Find(unsigned from) const
{
    const auto found = std::ranges::find(_steps, from, &VersionStep::from);
    return found == _steps.end() ? nullptr : &*found;
}

bool VersionSteps::Add(const VersionStep& step)
{
    if (Find(step.from) != nullptr) {
        return false;
    }
    _steps.push_back(step);
    return true;
}

void VersionSteps::Remove(unsigned from)
{
    std::erase_if(_steps, [from](const VersionStep& step) { return step.from == from; });
}

}  // namespace hlx
