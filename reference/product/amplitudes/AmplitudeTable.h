// SPDX-License-Identifier: Apache-2.0
// The rows of an amplitude.
#pragma once

#include "HLXAmplitudes.h"
#include "host/feature/Feature.h"

namespace hlx {

/// As HLXIAmplitude::SetData and GetData.
HRESULT SetTable(vex::Feature& amplitude, const HLXCftArrayHLXCftArrayDouble& table);
HRESULT GetTable(const vex::Feature& amplitude, HLXCftArrayHLXCftArrayDouble& table);

}  // namespace hlx
