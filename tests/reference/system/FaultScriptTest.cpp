// SPDX-License-Identifier: Apache-2.0
// What fault scripts are refused, and with which words.
#include "host/system/Probe.h"
#include "host/system/Probes.h"

#include <gmock/gmock.h>

namespace {

using testing::HasSubstr;

struct Refusal
{
    const char* script;
    const char* reason;
};

class FaultScriptRefusal : public testing::TestWithParam<Refusal>
{};

TEST_P(FaultScriptRefusal, NamesItemAndReasonAndChangesNothing)
{
    std::string error;
    ASSERT_TRUE(vex::probe::SetFaults("VEXFClose#9=E_FAIL", error)) << error;
    EXPECT_FALSE(vex::probe::SetFaults(GetParam().script, error));
    EXPECT_THAT(error, HasSubstr(GetParam().reason));
    EXPECT_THAT(error, HasSubstr("fault "));
    EXPECT_TRUE(vex::probe::active) << "the faults before are still in force";
    vex::probe::ClearFaults();
}

INSTANTIATE_TEST_SUITE_P(
    Scripts, FaultScriptRefusal,
    testing::Values(
        Refusal{"VEXMakePath", "there is no '='"},
        Refusal{
            "VEXMakePath=E_FAIL; VEXMakePat=E_FAIL",
            R"(fault 2 (character 21) "VEXMakePat=E_FAIL": no operation is named "VEXMakePat")"},
        Refusal{"=E_FAIL", "no operation is named \"\""},
        Refusal{"VEXMakePath=", "\"\" is no outcome"},
        Refusal{"VEXMakePath=e_fail", "is no outcome"}, Refusal{"VEXMakePath=1x", "is no outcome"},
        Refusal{"VEXMakePath=0x", "is no outcome"},
        Refusal{"VEXMakePath=99999999999", "is no outcome"},
        Refusal{"VEXMakePath=0x180004005", "is no outcome"},
        Refusal{"VEXMakePath=\x1b[2J", R"(\u{1b}[2J)"},
        Refusal{"VEXMakePath=null", "what fits is a code or number, either with ',keep'"},
        Refusal{"VEXMakePath=empty", "does not fit VEXMakePath"},
        Refusal{"Create_Session=null,keep", "only a code can have ',keep'"},
        Refusal{"VEXGetSystemInfo=0", "nothing, as the operation answers nothing"},
        Refusal{"VEXIAlias::GetAlias=null", "what fits is empty"},
        Refusal{"VEXIAlias::GetAlias=E_FAIL", "what fits is empty"},
        Refusal{"VEXISpecObject::GetFather=empty", "what fits is null"},
        Refusal{"VEXIContainer::GetMemberCount=E_FAIL", "a number from -2147483648 to 2147483647"},
        Refusal{"VEXIContainer::GetMemberCount=99999999999", "is no outcome"},
        Refusal{"VEXMakePath#0=E_FAIL", "the number of a call"},
        Refusal{"VEXMakePath#=E_FAIL", "the number of a call"},
        Refusal{"VEXMakePath#1x=E_FAIL", "the number of a call"},
        Refusal{"VEXI*#-1=null", "the number of a call"},
        Refusal{"Nothing*=E_FAIL", "no name begins like this"},
        Refusal{"VEXIAlias::Set*=null", "the outcome fits no operation of such a name"},
        Refusal{"cast:*=empty", "what fits casts is a code or number"},
        Refusal{"cast:VEXBaseUnknown=E_FAIL", "a cast is written cast:COMPONENT->INTERFACE"},
        Refusal{"cast:->VEXIAlias=E_FAIL", "no component stands before it"},
        Refusal{"cast:VEXBaseUnknown->VEXIAlia=E_FAIL", "no interface is named \"VEXIAlia\""},
        Refusal{"cast:NoSuchThing->VEXIAlias=E_FAIL",
                "no component or late type is named \"NoSuchThing\""}));

TEST(FaultScriptTest, WhatIsAccepted)
{
    VEXBaseUnknown::MetaObject();
    for (const char* const script :
         {"", " ; ;", "*=E_FAIL", "VEXI*=null", "cast:*=E_NOINTERFACE", "cast:HLX*#3=null",
          "cast:VEXBaseUnknown->VEXIAlias=null", "cast:VEXBaseUnknown->*=E_FAIL",
          "cast:*->VEXIAlias=E_FAIL,keep",
          "VEXFOpen = 1 ;\n VEXFClose#18446744073709551615=S_FALSE",
          "VEXIContainer::GetMemberCount=0x7FFFFFFF,keep"}) {
        std::string error;
        EXPECT_TRUE(vex::probe::SetFaults(script, error)) << script << ": " << error;
    }
    vex::probe::ClearFaults();
}

}  // namespace
