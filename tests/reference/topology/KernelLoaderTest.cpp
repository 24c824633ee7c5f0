// SPDX-License-Identifier: Apache-2.0
// Finding and refusing the kernel's library. The loader keeps what it found, so each failure gets a
// process of its own.
#include "reference/topology/KernelFixture.h"

#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <iostream>

namespace hlxtest {
namespace {

class KernelLoader : public testing::Test
{
protected:
    void SetUp() override { GTEST_FLAG_SET(death_test_style, "threadsafe"); }

    const TemporaryFolder folder;
};

// Ends the process: with 0 and the reason on standard error when no kernel was found, with 1 when
// one was.
[[noreturn]] void EndWithReason(const std::vector<std::string>& directories)
{
    std::string error;
    const bool found = vex::LoadGeometryKernel(directories, error) != nullptr;
    std::cerr << error << '\n';
    std::_Exit(found ? 1 : 0);
}

void ExpectRefused(const std::vector<std::string>& directories, const std::string& reason)
{
    EXPECT_EXIT(EndWithReason(directories), testing::ExitedWithCode(0), reason);
}

TEST_F(KernelLoader, NoDirectory)
{
    ExpectRefused({}, "no libVEXTopology.so in any folder.*install");
}

TEST_F(KernelLoader, NotThere)
{
    ExpectRefused({"/nowhere", folder.Path()}, "no libVEXTopology.so in /nowhere, /.*");
}

TEST_F(KernelLoader, NotALibrary)
{
    WriteFile(folder.File("libVEXTopology.so"), "text");
    ExpectRefused({folder.Path()}, "libVEXTopology.so': it cannot be opened");
}

TEST_F(KernelLoader, AnotherLibraryOfThatName)
{
    std::filesystem::copy(kLibraries + "/libVEXStepReader.so", folder.File("libVEXTopology.so"));
    setenv("LD_LIBRARY_PATH", kLibraries.c_str(), 1);  // what it needs is not beside the copy
    ExpectRefused({folder.Path()}, "has no function VEXGeometryKernelVersion");
}

TEST_F(KernelLoader, AnotherVersionIsRefusedByName)
{
    ExpectRefused({HLX_BINARY_DIR "/tests/other_version"},
                  "libVEXTopology.so': built for version 4294967295, version");
}

TEST_F(KernelLoader, TheFirstDirectoryThatHasItIsTaken)
{
    std::string error;
    EXPECT_NE(vex::LoadGeometryKernel({"/nowhere", kLibraries}, error), nullptr) << error;
}

TEST_F(KernelLoader, TheSameKernelEachTime)
{
    std::string error;
    vex::GeometryKernel* first = vex::LoadGeometryKernel({kLibraries}, error);
    ASSERT_NE(first, nullptr) << error;
    EXPECT_EQ(first, vex::LoadGeometryKernel({kLibraries}, error));
}

}  // namespace
}  // namespace hlxtest
