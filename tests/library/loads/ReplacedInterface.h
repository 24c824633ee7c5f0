// SPDX-License-Identifier: Apache-2.0
// An interface of the host's components answered by a test: for what no fault can make the platform
// do.
#pragma once

#include "host/component/Adapter.h"
#include "host/component/ComponentTypes.h"

#include <algorithm>
#include <utility>

namespace hlxtest {

/// Components of a type that are made, or first asked, while the object lives have `StandIn`, a
/// vex::Adapter, as that interface. One object of a kind at a time.
template <class StandIn>
class ReplacedInterface
{
public:
    explicit ReplacedInterface(const char* type)
        : _entry(EntryOf(
              const_cast<vex::ComponentType&>(vex::ComponentTypes::Instance().Require(type))))
    {
        Former() = std::exchange(_entry.make, &vex::MakeAdapter<StandIn>);
    }
    ~ReplacedInterface() { _entry.make = Former(); }
    ReplacedInterface(const ReplacedInterface&) = delete;
    ReplacedInterface& operator=(const ReplacedInterface&) = delete;

    /// Makes the interface that is replaced; the caller deletes it.
    static VEXInterfaceMaker& Former()
    {
        static VEXInterfaceMaker former = nullptr;
        return former;
    }

private:
    static vex::InterfaceEntry& EntryOf(vex::ComponentType& type)
    {
        return *std::ranges::find(type.interfaces, VEXInterfaceTraits<typename StandIn::Face>::Id,
                                  &vex::InterfaceEntry::id);
    }

    vex::InterfaceEntry& _entry;
};

}  // namespace hlxtest
