// SPDX-License-Identifier: Apache-2.0
// Relative paths of linked documents.
#include "host/store/LinkPath.h"

#include <gtest/gtest.h>

namespace vex::store {
namespace {

TEST(LinkPath, IsRelativeToTheDocumentsFolder)
{
    EXPECT_EQ(MakeRelative("/w/a/x.VEXAnalysis", "/w/a/b.VEXPart"), "b.VEXPart");
    EXPECT_EQ(MakeRelative("/w/a/x.VEXAnalysis", "/w/parts/b.VEXPart"), "../parts/b.VEXPart");
    EXPECT_EQ(MakeRelative("/x.VEXAnalysis", "/p/b.VEXPart"), "p/b.VEXPart");
    EXPECT_EQ(MakeRelative("/a/b/c/x", "/y"), "../../../y");
    EXPECT_EQ(MakeRelative("/w/./a/../a//x", "/w/a/../p/y"), "../p/y");
    EXPECT_EQ(MakeRelative("a/x", "b/y"), "../b/y");
    EXPECT_EQ(MakeRelative("", "/y"), "");
    EXPECT_EQ(MakeRelative("/x", ""), "");
}

TEST(LinkPath, LeadsBack)
{
    EXPECT_EQ(ResolveRelative("/w/a/x.VEXAnalysis", "../parts/b.VEXPart"), "/w/parts/b.VEXPart");
    EXPECT_EQ(ResolveRelative("a/x", "../b/y"), "b/y");
    EXPECT_EQ(ResolveRelative("x", "y"), "y");
    EXPECT_EQ(ResolveRelative("/a/x", "../../../y"), "/y") << "above the root is the root";
    EXPECT_EQ(ResolveRelative("/a/x", ""), "");
    for (const char* target : {"/w/a/y", "/w/y", "/y", "/w/a/b/c/y", "/v/u/y", "/w/a/ y\n"}) {
        EXPECT_EQ(ResolveRelative("/w/a/x", MakeRelative("/w/a/x", target)), target);
    }
}

TEST(LinkPath, MovedTogetherTheyStillMeet)
{
    const std::string stored = MakeRelative("/old/cases/x", "/old/parts/y");
    EXPECT_EQ(ResolveRelative("/new/place/cases/x", stored), "/new/place/parts/y");
}

}  // namespace
}  // namespace vex::store
