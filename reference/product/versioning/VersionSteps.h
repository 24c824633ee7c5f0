// SPDX-License-Identifier: Apache-2.0
// The steps that bring the data of an older document up to this release, one from each version to
// the next.
#pragma once

#include "host/feature/Document.h"

#include <vector>

namespace hlx {

struct VersionStep
{
    unsigned from;  ///< the data version that it starts from; it ends at the next one
    const char* title;
    HRESULT (*upgrade)(vex::Document& document);
};

class VEX_EXPORT VersionSteps
{
public:
    static VersionSteps& Instance();

    /// The data version that documents of this release have: behind the last step, or the store's
    /// own.
    unsigned Current() const;

    /// The step that starts from a version; null when there is none.
    const VersionStep* Find(unsigned from) const;

    /// Adds a step. False when one from that version is there already. Documents that a step brings
    /// beyond vex::store::kDataVersion cannot be saved: that number rises with the list.
    bool Add(const VersionStep& step);
    void Remove(unsigned from);

private:
    VersionSteps();
    std::vector<VersionStep> _steps;
};

}  // namespace hlx
