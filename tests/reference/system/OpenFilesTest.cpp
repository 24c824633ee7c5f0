// SPDX-License-Identifier: Apache-2.0
// VEXFOpen, VEXFWrite, VEXFClose.
#include "VEXSystem.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

namespace {

using hlxtest::ReadFile;
using hlxtest::TemporaryFolder;

HRESULT WriteText(const std::string& path, const char* mode, std::string_view text)
{
    unsigned int descriptor = 0;
    EXPECT_EQ(S_OK, VEXFOpen(path.c_str(), mode, descriptor));
    EXPECT_NE(0U, descriptor);
    const HRESULT written = VEXFWrite(descriptor, text.data(), text.size());
    EXPECT_EQ(S_OK, VEXFClose(descriptor));
    return written;
}

TEST(OpenFilesTest, WritesReplacesAndAppends)
{
    const TemporaryFolder folder;
    const std::string path = folder.File("text");
    EXPECT_EQ(S_OK, WriteText(path, "w", "first"));
    EXPECT_EQ(S_OK, WriteText(path, "wb", std::string_view("a\0b", 3)));
    EXPECT_EQ(S_OK, WriteText(path, "a+", "c"));
    EXPECT_EQ(S_OK, WriteText(path, "ab+", ""));
    EXPECT_EQ(std::string("a\0bc", 4), ReadFile(path));
    EXPECT_EQ(S_OK, WriteText(path, "r+b", "X"));
    EXPECT_EQ(std::string("X\0bc", 4), ReadFile(path));
    EXPECT_EQ(E_FAIL, WriteText(path, "r", "only for reading"));
}

TEST(OpenFilesTest, RefusesUnknownModes)
{
    const TemporaryFolder folder;
    for (const char* const mode : {"", "x", "rw", "w+b+", "bw", "wbb", "w++", "W", " w"}) {
        unsigned int descriptor = 7;
        EXPECT_EQ(E_INVALIDARG, VEXFOpen(folder.File("text").c_str(), mode, descriptor)) << mode;
        EXPECT_EQ(0U, descriptor);
    }
    unsigned int descriptor = 7;
    EXPECT_EQ(E_INVALIDARG, VEXFOpen("text", nullptr, descriptor));
    EXPECT_TRUE(folder.Names().empty());
}

TEST(OpenFilesTest, RefusesWhatTheSystemRefuses)
{
    const TemporaryFolder folder;
    unsigned int descriptor = 7;
    EXPECT_EQ(E_FAIL, VEXFOpen(nullptr, "w", descriptor));
    EXPECT_EQ(0U, descriptor);
    EXPECT_EQ(E_FAIL, VEXFOpen("", "w", descriptor));
    EXPECT_EQ(E_FAIL, VEXFOpen(folder.File("missing").c_str(), "r", descriptor));
    EXPECT_EQ(E_FAIL, VEXFOpen(folder.Path().c_str(), "w", descriptor));
    EXPECT_EQ(E_FAIL, VEXFOpen(folder.File("missing/text").c_str(), "w", descriptor));
}

TEST(OpenFilesTest, AClosedDescriptorReachesNoOtherFile)
{
    const TemporaryFolder folder;
    unsigned int first = 0;
    unsigned int second = 0;
    ASSERT_EQ(S_OK, VEXFOpen(folder.File("first").c_str(), "w", first));
    ASSERT_EQ(S_OK, VEXFClose(first));
    ASSERT_EQ(S_OK, VEXFOpen(folder.File("second").c_str(), "w", second));
    EXPECT_EQ(E_FAIL, VEXFWrite(first, "x", 1));
    EXPECT_EQ(E_FAIL, VEXFClose(first));
    EXPECT_EQ(E_FAIL, VEXFWrite(0, "x", 1));
    EXPECT_EQ(E_FAIL, VEXFWrite(second, nullptr, 1));
    EXPECT_EQ(S_OK, VEXFWrite(second, nullptr, 0));
    EXPECT_EQ(S_OK, VEXFClose(second));
    EXPECT_EQ("", ReadFile(folder.File("second")));
}

TEST(OpenFilesTest, AFullDiskIsTold)
{
    unsigned int descriptor = 0;
    ASSERT_EQ(S_OK, VEXFOpen("/dev/full", "w", descriptor));
    EXPECT_EQ(E_FAIL, VEXFWrite(descriptor, "x", 1));
    EXPECT_EQ(S_OK, VEXFClose(descriptor));
}

}  // namespace
