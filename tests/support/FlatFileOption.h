// SPDX-License-Identifier: Apache-2.0
// The user's option "write flat input file" as it is in force.
#pragma once

#include "HLXIZPKWBGeneralSettingAtt.h"

#include <gtest/gtest.h>

namespace hlxtest {

inline HLXIZPKWBGeneralSettingAtt_var GeneralSettings()
{
    void* object = nullptr;
    EXPECT_EQ(GetZPKWBGeneralSettingCtrl(IID_HLXIZPKWBGeneralSettingAtt, &object), S_OK);
    return VEXAdopt(static_cast<HLXIZPKWBGeneralSettingAtt*>(object));
}

inline int FlatFileOption()
{
    unsigned char flag = 255;
    EXPECT_EQ(GeneralSettings()->GetWriteFlatInputFileFlag(flag), S_OK);
    return flag;
}

inline void SetFlatFileOption(unsigned char flag)
{
    ASSERT_EQ(GeneralSettings()->SetWriteFlatInputFileFlag(flag), S_OK);
}

}  // namespace hlxtest
