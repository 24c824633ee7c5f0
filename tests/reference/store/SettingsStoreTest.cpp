// SPDX-License-Identifier: Apache-2.0
// The settings repository.
#include "host/system/SettingsStore.h"

#include "host/system/Descriptor.h"
#include "reference/store/StoreFixture.h"
#include "support/EnvironmentVariable.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace vex::system {
namespace {

namespace fs = std::filesystem;
using hlxtest::EnvironmentVariable;
using store::test::FolderTest;
using testing::HasSubstr;

class SettingsStoreTest : public FolderTest
{
protected:
    void SaveTwo()
    {
        SettingsStore store(path);
        ASSERT_TRUE(store.Set("Length", "mm", error)) << error;
        ASSERT_TRUE(store.Set("Größe", "", error)) << error;
        ASSERT_TRUE(store.Commit(error)) << error;
    }

    std::string path = In("settings.VEXSettings");
    std::string error;
};

TEST_F(SettingsStoreTest, MissingFileIsEmpty)
{
    SettingsStore store(path);
    EXPECT_TRUE(store.Load(error)) << error;
    EXPECT_EQ(store.Get("Length"), std::nullopt);
    EXPECT_TRUE(store.Commit(error)) << "nothing to commit";
    EXPECT_EQ(FileCount(), 0U);
}

TEST_F(SettingsStoreTest, RoundTrip)
{
    SaveTwo();
    SettingsStore store(path);
    ASSERT_TRUE(store.Load(error)) << error;
    EXPECT_EQ(store.Get("Length"), "mm");
    EXPECT_EQ(store.Get("Größe"), "");
    EXPECT_EQ(store.Get("length"), std::nullopt);
    ASSERT_TRUE(store.Set("Length", "m", error));
    EXPECT_EQ(store.Get("Length"), "m");
    ASSERT_TRUE(store.Load(error));
    EXPECT_EQ(store.Get("Length"), "mm") << "what was not committed is dropped";
    EXPECT_EQ(FileCount(), 1U);
}

TEST_F(SettingsStoreTest, TextsAreChecked)
{
    SettingsStore store(path);
    EXPECT_FALSE(store.Set("", "x", error));
    EXPECT_FALSE(store.Set("k", "\xFF", error));
    EXPECT_THAT(error, HasSubstr("its value holds bytes that are not valid UTF-8"));
    EXPECT_FALSE(store.Set(std::string_view("k\0", 2), "x", error));
    EXPECT_EQ(store.Get("k"), std::nullopt);
}

TEST_F(SettingsStoreTest, FolderIsMade)
{
    SettingsStore store(In("x/HLX/settings.VEXSettings"));
    ASSERT_TRUE(store.Set("a", "b", error));
    ASSERT_TRUE(store.Commit(error)) << error;
    EXPECT_TRUE(fs::is_regular_file(folder / "x/HLX/settings.VEXSettings"));
    SettingsStore below(In("x/HLX/settings.VEXSettings/y/z"));
    ASSERT_TRUE(below.Set("a", "b", error));
    EXPECT_FALSE(below.Commit(error));
    EXPECT_THAT(error, HasSubstr("cannot be made"));
    std::string deep = folder.string();
    for (int i = 0; i < 100'000; ++i)
        deep += "/d";
    SettingsStore lost(deep);
    ASSERT_TRUE(lost.Set("a", "b", error));
    EXPECT_FALSE(lost.Commit(error));
    EXPECT_THAT(error, HasSubstr("cannot be made: File name too long"));
}

TEST_F(SettingsStoreTest, WhatOthersCommittedStays)
{
    SettingsStore first(path);
    SettingsStore second(path);
    ASSERT_TRUE(first.Load(error) && second.Load(error));
    ASSERT_TRUE(first.Set("a", "1", error) && first.Commit(error)) << error;
    ASSERT_TRUE(second.Set("b", "2", error) && second.Commit(error)) << error;
    EXPECT_EQ(second.Get("a"), "1");
    ASSERT_TRUE(first.Load(error));
    EXPECT_EQ(first.Get("a"), "1");
    EXPECT_EQ(first.Get("b"), "2");
}

// The lock that a commit takes, as another process would hold it.
Descriptor Locked(const std::string& folder)
{
    Descriptor opened(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    EXPECT_EQ(::flock(opened.Number(), LOCK_EX | LOCK_NB), 0);
    return opened;
}

TEST_F(SettingsStoreTest, TheFolderOfTheFileIsLockedNotThatOfALinkToIt)
{
    fs::create_directories(folder / "links");
    fs::create_symlink(path, In("links/s.VEXSettings"));
    SaveTwo();
    SettingsStore store(In("links/s.VEXSettings"));
    ASSERT_TRUE(store.Load(error) && store.Set("Length", "m", error)) << error;
    {
        const Descriptor ofLink = Locked(In("links"));
        EXPECT_TRUE(store.Commit(error)) << error;
    }
    ASSERT_TRUE(store.Set("Length", "km", error)) << error;
    const Descriptor ofFile = Locked(folder.string());
    EXPECT_FALSE(store.Commit(error));
    EXPECT_THAT(error, HasSubstr("keeps the folder locked"));
    EXPECT_TRUE(fs::is_symlink(In("links/s.VEXSettings")));
}

TEST_F(SettingsStoreTest, DefaultPlace)
{
    {
        const EnvironmentVariable own("VEX_SETTINGS", "s.VEXSettings");
        EXPECT_EQ(SettingsStore::DefaultPath(error), "s.VEXSettings");
    }
    const EnvironmentVariable own("VEX_SETTINGS", "");
    const EnvironmentVariable home("HOME", "/home/me");
    {
        const EnvironmentVariable xdg("XDG_CONFIG_HOME", "/cfg");
        EXPECT_EQ(SettingsStore::DefaultPath(error), "/cfg/HLX/settings.VEXSettings");
    }
    {
        const EnvironmentVariable xdg("XDG_CONFIG_HOME", "relative");
        EXPECT_EQ(SettingsStore::DefaultPath(error), "/home/me/.config/HLX/settings.VEXSettings");
    }
    const EnvironmentVariable xdg("XDG_CONFIG_HOME", nullptr);
    const EnvironmentVariable none("HOME", nullptr);
    EXPECT_EQ(SettingsStore::DefaultPath(error), "");
    EXPECT_THAT(error, HasSubstr("VEX_SETTINGS"));
}

}  // namespace
}  // namespace vex::system
