// SPDX-License-Identifier: Apache-2.0
// From a cell to the access that can be stored.
#include "VEXMechanicalPart.h"
#include "host/feature/FeatureSearch.h"
#include "host/part/BRepAccesses.h"
#include "host/system/Probe.h"

VEXIBRepAccess_var VEXBRepDecode(const VEXIContainer_var& container, const VEXCell_var& cell,
                                 const VEXBody_var& body)
{
    return vex::Probe<"VEXBRepDecode">(
        [&]() -> VEXIBRepAccess_var {
            const auto* const owner = vex::FeatureBehind(container.Get());
            const auto* const found = vex::ComponentBehind<vex::Cell>(cell.Get());
            auto* const shape = vex::ComponentBehind<vex::Body>(body.Get());
            if (owner == nullptr || found == nullptr || shape == nullptr || shape->IsGone() ||
                &found->OwnBody() != shape || shape->Part().BRepContainer() != owner) {
                return {};
            }
            return vex::FaceOf<VEXIBRepAccess>(shape->Accesses().FindOrMake(*found));
        },
        vex::In(container), vex::In(cell), vex::In(body));
}
