// SPDX-License-Identifier: Apache-2.0
// Amplitudes through their interfaces, which have the operations of HLXIAmplitude at the same
// places.
#pragma once

#include "HLXAmplitudes.h"
#include "host/component/Adapter.h"
#include "host/feature/AttributeValues.h"
#include "host/system/Probe.h"
#include "product/amplitudes/AmplitudeTable.h"

namespace hlx {

/// @tparam Interface  HLXIAmplitude, or one that extends it and adds nothing
template <class Interface>
class AmplitudeAdapter final : public vex::Adapter<Interface, vex::Feature>
{
public:
    using vex::Adapter<Interface, vex::Feature>::Adapter;

    HRESULT SetTimeSpan(const int& option) override
    {
        return vex::Probe<"HLXIAmplitude::SetTimeSpan">(
            [&]() -> HRESULT {
                if (this->Self().Tree() != nullptr && option != 0 && option != 1) {
                    return E_INVALIDARG;
                }
                return this->Self().Set("TotalTime", option != 0);
            },
            vex::In(option));
    }

    HRESULT GetTimeSpan(int& option) const override
    {
        return vex::Probe<"HLXIAmplitude::GetTimeSpan">(
            [&] {
                unsigned char flag = 0;
                const HRESULT result = vex::GetFlag(this->Self(), "TotalTime", flag);
                option = flag;
                return result;
            },
            vex::Out(option));
    }

    HRESULT SetData(const HLXCftArrayHLXCftArrayDouble& table) override
    {
        return vex::Probe<"HLXIAmplitude::SetData">([&] { return SetTable(this->Self(), table); },
                                                    vex::In(table));
    }

    HRESULT GetData(HLXCftArrayHLXCftArrayDouble& table) const override
    {
        return vex::Probe<"HLXIAmplitude::GetData">([&] { return GetTable(this->Self(), table); },
                                                    vex::Out(table));
    }
};

}  // namespace hlx
