// SPDX-License-Identifier: Apache-2.0
// From a cell to the access that can be stored.
#include "VEXMechanicalPart.h"
#include "host/part/BRepAccesses.h"
#include "host/system/Probe.h"

namespace {

/// The component of a kind behind an interface; null when there is none, or another.
template <class Kind>
Kind* Behind(const VEXBaseUnknown* object)
{
    return object == nullptr ? nullptr : dynamic_cast<Kind*>(object->GetImpl());
}

}  // namespace

VEXIBRepAccess_var VEXBRepDecode(const VEXIContainer_var& container, const VEXCell_var& cell,
                                 const VEXBody_var& body)
{
    return vex::Probe<"VEXBRepDecode">(
        [&]() -> VEXIBRepAccess_var {
            const auto* const owner = Behind<vex::Feature>(container.Get());
            const auto* const found = Behind<vex::Cell>(cell.Get());
            auto* const shape = Behind<vex::Body>(body.Get());
            if (owner == nullptr || found == nullptr || shape == nullptr || shape->IsGone() ||
                &found->OwnBody() != shape || shape->Part().BRepContainer() != owner) {
                return {};
            }
            return vex::FaceOf<VEXIBRepAccess>(shape->Accesses().FindOrMake(*found));
        },
        vex::In(container), vex::In(cell), vex::In(body));
}
