// SPDX-License-Identifier: Apache-2.0
// What loads have in common, behind the interface of each kind, which has the operations of
// HLXILoad at the same places.
#pragma once

#include "HLXLoads.h"
#include "product/conditions/ConditionAdapter.h"

namespace hlx {

/// @tparam Interface  HLXILoad, or one that extends it
template <class Interface>
class LoadAdapter : public ConditionAdapter<Interface>
{
public:
    using ConditionAdapter<Interface>::ConditionAdapter;

    HRESULT SetUserSubroutine(unsigned char flag) override
    {
        return vex::Probe<"HLXILoad::SetUserSubroutine">(
            [&] { return vex::SetFlag(this->Self(), "UserSubroutine", flag); }, vex::In(flag));
    }

    HRESULT GetUserSubroutine(unsigned char& flag) const override
    {
        return vex::Probe<"HLXILoad::GetUserSubroutine">(
            [&] { return vex::GetFlag(this->Self(), "UserSubroutine", flag); }, vex::Out(flag));
    }
};

}  // namespace hlx
