// SPDX-License-Identifier: Apache-2.0
// What conditions have in common, behind the interface of each kind, which has the operations of
// HLXICondition at the same places.
#pragma once

#include "HLXAmplitudes.h"
#include "HLXConditions.h"
#include "host/component/Adapter.h"
#include "host/feature/AttributeValues.h"
#include "host/system/Probe.h"

namespace hlx {

/// @tparam Interface  HLXICondition, or one that extends it
template <class Interface>
class ConditionAdapter : public vex::Adapter<Interface, vex::Feature>
{
public:
    using vex::Adapter<Interface, vex::Feature>::Adapter;

    HRESULT SetAmplitude(const VEXISpecObject_var& amplitude) override
    {
        return vex::Probe<"HLXICondition::SetAmplitude">(
            [&] { return vex::SetTarget<HLXIAmplitude>(this->Self(), "Amplitude", amplitude); },
            vex::In(amplitude));
    }

    HRESULT SetUseAmplitude(unsigned char flag) override
    {
        return vex::Probe<"HLXICondition::SetUseAmplitude">(
            [&] { return vex::SetFlag(this->Self(), "UseAmplitude", flag); }, vex::In(flag));
    }

    HRESULT GetAmplitude(VEXISpecObject_var& amplitude) const override
    {
        return vex::Probe<"HLXICondition::GetAmplitude">(
            [&] { return vex::GetTarget<HLXIAmplitude>(this->Self(), "Amplitude", amplitude); },
            vex::Out(amplitude));
    }

    HRESULT GetUseAmplitude(unsigned char& flag) const override
    {
        return vex::Probe<"HLXICondition::GetUseAmplitude">(
            [&] { return vex::GetFlag(this->Self(), "UseAmplitude", flag); }, vex::Out(flag));
    }
};

}  // namespace hlx
