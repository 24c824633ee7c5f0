// SPDX-License-Identifier: Apache-2.0
// A test case with an output directory, at a moment and on a system that the test knows.
#pragma once

#include "support/EnvironmentVariable.h"
#include "support/ExposedTestCase.h"
#include "support/FakeClock.h"
#include "support/Outcome.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

namespace hlxtest {

inline constexpr std::time_t kMoment = 1209967628;  // 5 May 2008, 06:07:08 UTC

class TimingTest : public testing::Test
{
protected:
    TimingTest()
    {
        clock.time = [] { return kMoment; };
        clock.clock = [this] { return ticks; };
        testCase._OutputDirectory = folder.Path().c_str();
    }

    void Create(const char* name)
    {
        std::string text = name;
        Capture([&] { testCase.CreateTimeLoggingFile(text.data()); });
    }

    /// A whole log with one section that took so long. Answers what follows the log's head.
    std::string Section(std::clock_t started, const char* label, std::clock_t stopped)
    {
        Create("Run");
        ticks = started;
        testCase.StartTimer(label);
        ticks = stopped;
        testCase.StopTimer();
        const std::string log = ReadFile(path);
        EXPECT_TRUE(log.starts_with(kHead)) << log;
        return log.substr(std::min(kHead.size(), log.size()));
    }

    inline static const std::string kHead =
        "********************\n"
        "* Timelogging File *\n"
        "********************\n"
        "\n"
        "System A\n"
        "Date :\t\t\t\t\t5 5 2008\n"
        "Start Time :\t\t\t6 7 8\n"
        "\n";

    const EnvironmentVariable zone{"TZ", "UTC0"};
    const EnvironmentVariable system{"VEX_SYSTEM_NAME", "System A"};
    const TemporaryFolder folder;
    const std::string path = folder.File("Run_System A_5_5_2008.txt");
    FakeClock clock;
    std::clock_t ticks = 0;
    ExposedTestCase testCase;
};

}  // namespace hlxtest
