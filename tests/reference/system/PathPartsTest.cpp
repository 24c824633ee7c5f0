// SPDX-License-Identifier: Apache-2.0
// VEXMakePath and VEXSplitPath.
#include "VEXSystem.h"

#include <gtest/gtest.h>

#include <string>

namespace {

struct Join
{
    const char* directory;
    const char* name;
    const char* path;
};

class MakePathTest : public testing::TestWithParam<Join>
{};

TEST_P(MakePathTest, JoinsWithOneSeparator)
{
    char path[VEXMaxPathSize] = "before";
    EXPECT_EQ(S_OK, VEXMakePath(GetParam().directory, GetParam().name, path));
    EXPECT_STREQ(GetParam().path, path);
}

INSTANTIATE_TEST_SUITE_P(Paths, MakePathTest,
                         testing::Values(Join{"a", "b", "a/b"}, Join{"a/", "b", "a/b"},
                                         Join{"a///", "b", "a/b"}, Join{"a//b//", "c", "a//b/c"},
                                         Join{"a", "//b/c", "a/b/c"}, Join{"/", "b", "/b"},
                                         Join{"//", "b", "/b"}, Join{"", "b", "b"},
                                         Join{"", "/b", "/b"}, Join{nullptr, "b", "b"},
                                         Join{"a", "", "a"}, Join{"a//", "", "a/"},
                                         Join{"a", nullptr, "a"}, Join{"/", "", "/"},
                                         Join{"a", "//", "a/"}, Join{"", "", ""},
                                         Join{nullptr, nullptr, ""}, Join{"é", "ü", "é/ü"}));

TEST(MakePathTest, RefusesWhatDoesNotFit)
{
    char path[VEXMaxPathSize] = "before";
    const std::string longest(VEXMaxPathSize - 3, 'd');
    EXPECT_EQ(S_OK, VEXMakePath(longest.c_str(), "n", path));
    EXPECT_EQ(longest + "/n", path);
    EXPECT_EQ(E_INVALIDARG, VEXMakePath(longest.c_str(), "nm", path));
    EXPECT_STREQ("", path);
    EXPECT_EQ(E_INVALIDARG, VEXMakePath("a", "b", nullptr));
}

TEST(MakePathTest, TheBufferCanBeOneOfTheTexts)
{
    char path[VEXMaxPathSize] = "a";
    EXPECT_EQ(S_OK, VEXMakePath(path, "b", path));
    EXPECT_EQ(S_OK, VEXMakePath("z", path, path));
    EXPECT_STREQ("z/a/b", path);
}

struct Split
{
    const char* path;
    const char* directory;
    const char* name;
};

class SplitPathTest : public testing::TestWithParam<Split>
{};

TEST_P(SplitPathTest, SplitsAtTheLastSeparator)
{
    char directory[VEXMaxPathSize] = "before";
    char name[VEXMaxPathSize] = "before";
    EXPECT_EQ(S_OK, VEXSplitPath(GetParam().path, directory, name));
    EXPECT_STREQ(GetParam().directory, directory);
    EXPECT_STREQ(GetParam().name, name);
}

INSTANTIATE_TEST_SUITE_P(Paths, SplitPathTest,
                         testing::Values(Split{"a/b", "a", "b"}, Split{"a", "", "a"},
                                         Split{"/a", "/", "a"}, Split{"/", "/", ""},
                                         Split{"a/b/", "a/b", ""}, Split{"a//b", "a/", "b"},
                                         Split{"", "", ""}, Split{"/a/b.c", "/a", "b.c"}));

TEST(SplitPathTest, RefusesWhatDoesNotFit)
{
    char directory[VEXMaxPathSize] = "before";
    char name[VEXMaxPathSize] = "before";
    const std::string tooLong(VEXMaxPathSize, 'p');
    EXPECT_EQ(E_INVALIDARG, VEXSplitPath(tooLong.c_str(), directory, name));
    EXPECT_STREQ("", directory);
    EXPECT_STREQ("", name);
    EXPECT_EQ(E_INVALIDARG, VEXSplitPath(nullptr, directory, name));
    EXPECT_EQ(E_INVALIDARG, VEXSplitPath("a/b", nullptr, name));
    EXPECT_EQ(E_INVALIDARG, VEXSplitPath("a/b", directory, nullptr));
    EXPECT_STREQ("", directory);
}

}  // namespace
