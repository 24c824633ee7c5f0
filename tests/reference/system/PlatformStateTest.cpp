// SPDX-License-Identifier: Apache-2.0
// Sessions, the error state of the thread, and the description of the machine.
#include "VEXError.h"
#include "VEXSession.h"
#include "VEXSystem.h"
#include "VEXVar.h"
#include "host/system/Probes.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <string_view>
#include <thread>

namespace {

TEST(SessionTest, RunsUnderItsNameUntilDeleted)
{
    char name[] = "Batch";
    char empty[] = "";
    VEXSession* session = nullptr;
    ASSERT_EQ(S_OK, Create_Session(name, session));
    ASSERT_NE(nullptr, session);
    EXPECT_STREQ("Batch", session->GetName());
    EXPECT_STREQ("VEXSession", session->IsA());
    EXPECT_EQ(1, session->IsAKindOf("VEXBaseUnknown"));
    VEXSession* second = session;
    EXPECT_EQ(E_FAIL, Create_Session(name, second));
    EXPECT_EQ(nullptr, second);
    EXPECT_EQ(S_OK, Create_Session(empty, second));
    EXPECT_STREQ("", second->GetName());
    EXPECT_EQ(S_OK, Delete_Session(empty, 0, 0));
    EXPECT_EQ(S_OK, Delete_Session(name, 0, 0));
    EXPECT_EQ(E_FAIL, Delete_Session(name, 0, 0));
    EXPECT_EQ(S_OK, Create_Session(name, session));
    EXPECT_EQ(S_OK, Delete_Session(name, 0, 0));
}

TEST(SessionTest, NoNameIsRefused)
{
    VEXSession session(nullptr);
    VEXSession* made = &session;
    EXPECT_STREQ("", session.GetName());
    EXPECT_EQ(E_INVALIDARG, Create_Session(nullptr, made));
    EXPECT_EQ(nullptr, made);
    EXPECT_EQ(E_INVALIDARG, Delete_Session(nullptr, 0, 0));
}

TEST(SessionTest, AHolderKeepsADeletedSession)
{
    char name[] = "Held";
    VEXSession* session = nullptr;
    ASSERT_EQ(S_OK, Create_Session(name, session));
    const VEXVar<VEXSession> held = VEXShare(session);
    EXPECT_EQ(S_OK, Delete_Session(name, 0, 0));
    EXPECT_STREQ("Held", held.Get()->GetName());
}

TEST(ErrorStateTest, StatusesSettleThePendingError)
{
    VEXError::SetPending(E_ACCESSDENIED);
    VEXError::SetPending(S_FALSE);
    EXPECT_EQ(E_INVALIDARG, VEXError::GetReturn(2, nullptr, nullptr, nullptr, 0));
    EXPECT_EQ(E_ACCESSDENIED, VEXError::GetReturn(1, nullptr, nullptr, "s", 1));
    EXPECT_EQ(S_OK, VEXError::GetReturn(1, nullptr, nullptr, "s", 2));
    VEXError::SetPending(E_ACCESSDENIED);
    VEXBaseUnknown concerned;
    VEXBaseUnknown* error = &concerned;
    EXPECT_EQ(E_FAIL, VEXError::GetReturn(0, &error, &concerned, "s", 3));
    EXPECT_EQ(nullptr, error);
    EXPECT_EQ(S_OK, VEXError::GetReturn(1, nullptr, nullptr, "s", 4));
}

TEST(ErrorStateTest, CallsAreRecordedAThread)
{
    vex::probe::ClearErrorRecords();
    VEXError::GetReturn(0, nullptr, nullptr, "source", 69);
    VEXError::GetReturn(1, nullptr, nullptr, nullptr, 70);
    std::thread([] {
        VEXError::SetPending(E_FAIL);
        EXPECT_TRUE(vex::probe::ErrorRecords().empty());
    }).join();
    EXPECT_EQ(S_OK, VEXError::GetReturn(1, nullptr, nullptr, "", 71));
    const std::vector<vex::probe::ErrorRecord> records = vex::probe::ErrorRecords();
    ASSERT_EQ(3U, records.size());
    EXPECT_EQ(0, records[0].status);
    EXPECT_EQ("source", records[0].source);
    EXPECT_EQ(69, records[0].line);
    EXPECT_EQ("", records[1].source);
    for (int line = 0; line < 2000; ++line) {
        VEXError::GetReturn(1, nullptr, nullptr, "", line);
    }
    EXPECT_EQ(1000U, vex::probe::ErrorRecords().size());
    EXPECT_EQ(1999, vex::probe::ErrorRecords().back().line);
    vex::probe::ClearErrorRecords();
}

TEST(SystemInformationTest, TellsOfTheMachine)
{
    unsetenv("VEX_SYSTEM_NAME");
    VEXSystemInfo information{};
    VEXGetSystemInfo(&information);
    EXPECT_TRUE(std::string_view(information.SystemName).starts_with("Linux "));
    EXPECT_STRNE("", information.Release);
    EXPECT_STRNE("", information.HostName);
    EXPECT_GE(information.ProcessorCount, 1);
    VEXGetSystemInfo(nullptr);
}

TEST(SystemInformationTest, ANameOfTheUsersStandsInstead)
{
    VEXSystemInfo information{};
    setenv("VEX_SYSTEM_NAME", "100% mine\n", 1);
    VEXGetSystemInfo(&information);
    EXPECT_STREQ("100_ mine_", information.SystemName);
    setenv("VEX_SYSTEM_NAME", (std::string(254, 'x') + "é").c_str(), 1);
    VEXGetSystemInfo(&information);
    EXPECT_EQ(std::string(254, 'x'), information.SystemName);
    setenv("VEX_SYSTEM_NAME", std::string(300, 'x').c_str(), 1);
    VEXGetSystemInfo(&information);
    EXPECT_EQ(std::string(255, 'x'), information.SystemName);
    unsetenv("VEX_SYSTEM_NAME");
}

}  // namespace
