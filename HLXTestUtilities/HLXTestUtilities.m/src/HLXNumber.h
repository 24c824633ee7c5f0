// SPDX-License-Identifier: Apache-2.0
// Numbers in names and messages.
#pragma once

#include "VEXUnicodeString.h"

namespace HLXNumber {

/// The decimal text of a number, without padding.
inline VEXUnicodeString Decimal(int number)
{
    VEXUnicodeString text;
    text.BuildFromNum(number);
    return text;
}

}  // namespace HLXNumber
