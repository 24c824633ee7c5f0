// SPDX-License-Identifier: Apache-2.0
// What the translation of a STEP file may take, of time and of memory.
#include "reference/topology/KernelFixture.h"

#include "support/ChildProgram.h"
#include "support/EnvironmentVariable.h"
#include "support/TemporaryFolder.h"

#include <gmock/gmock.h>

#include <chrono>
#include <utility>

namespace hlxtest {
namespace {

using testing::AllOf;
using testing::HasSubstr;

class StepLimits : public KernelTest
{};

TEST_F(StepLimits, WhatTakesTooLongIsEnded)
{
    const EnvironmentVariable limit("VEX_STEP_SECONDS", "1");
    // A coordinate that is no number keeps the kernel busy without end.
    const auto begin = std::chrono::steady_clock::now();
    const TemporaryFolder folder;
    WriteFile(folder.File("endless.step"),
              Replaced(ReadFile(kStepData + "block.step"), "#143 = CARTESIAN_POINT('',(25.4,",
                       "#143 = CARTESIAN_POINT('',(NAN,"));
    const std::string error = Refusal(folder.File("endless.step"));
    EXPECT_THAT(error, AllOf(HasSubstr("after 1 s"), HasSubstr("VEX_STEP_SECONDS")));
    EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::seconds(10));
}

// In a program of its own: what this one has used and freed could be enough for the sample.
TEST_F(StepLimits, WhatTakesTooMuchMemoryIsEnded)
{
    const TemporaryFolder folder;
    const Ended ended = RunProgram(
        {Program("hlx"), "new", folder.File("a.VEXAnalysis"), "--from", kSample, "--cases", "1"},
        {{"VEX_STEP_MEBIBYTES=1"}});
    EXPECT_NE(ended.code, 0);
    EXPECT_THAT(ended.err,
                AllOf(HasSubstr("'" + kSample +
                                "': there was not enough memory for its "
                                "translation while "),
                      HasSubstr(": it may take 1 MiB; give more by VEX_STEP_MEBIBYTES, free some, "
                                "or export it again")));
    EXPECT_TRUE(folder.Names().empty());
}

TEST_F(StepLimits, LimitsMustBeNumbers)
{
    for (const auto& [variable, most] :
         {std::pair("VEX_STEP_SECONDS", "86400"), std::pair("VEX_STEP_MEBIBYTES", "16777216")}) {
        for (const char* wrong : {"", "soon", "0", "-1", "1.5", "99999999999"}) {
            const EnvironmentVariable limit(variable, wrong);
            EXPECT_EQ(Refusal(kSample), std::string(variable) + ": '" + wrong +
                                            "' is not a number from 1 to " + most +
                                            ": correct or unset it");
        }
    }
}

}  // namespace
}  // namespace hlxtest
