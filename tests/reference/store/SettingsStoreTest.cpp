// SPDX-License-Identifier: Apache-2.0
// The settings repository.
#include "host/system/SettingsStore.h"

#include "host/system/Descriptor.h"
#include "reference/store/StoreFixture.h"

#include <fmt/format.h>

#include <random>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/wait.h>
#include <unistd.h>

namespace vex::system {
namespace {

namespace fs = std::filesystem;
using store::test::ChangeBySql;
using store::test::FolderTest;
using store::test::OperationsGuard;
using store::test::ReadFile;
using store::test::WriteFile;
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

    // Loading and committing refuse the file and leave it as it is.
    void ExpectRefused(const std::string& reason)
    {
        const std::string before = ReadFile(path);
        SettingsStore store(path);
        EXPECT_FALSE(store.Load(error));
        EXPECT_THAT(error, HasSubstr(reason));
        EXPECT_THAT(error, HasSubstr("settings.VEXSettings'"));
        EXPECT_EQ(store.Get("Length"), std::nullopt);
        std::string second;
        EXPECT_TRUE(store.Set("Length", "m", second));
        EXPECT_FALSE(store.Commit(second));
        EXPECT_EQ(second, error);
        EXPECT_TRUE(ReadFile(path) == before);
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

TEST_F(SettingsStoreTest, SeveralProcessesAtOnce)
{
    constexpr int kProcesses = 4;
    constexpr int kCommits = 25;
    std::vector<pid_t> children;
    for (int process = 0; process < kProcesses; ++process) {
        const pid_t child = ::fork();
        ASSERT_GE(child, 0);
        if (child == 0) {
            bool good = true;
            for (int i = 0; i < kCommits && good; ++i) {
                SettingsStore store(path);
                std::string reason;
                good = store.Load(reason) &&
                       store.Set(fmt::format("{}.{}", process, i), "x", reason) &&
                       store.Commit(reason);
            }
            ::_exit(good ? 0 : 1);
        }
        children.push_back(child);
    }
    for (const pid_t child : children) {
        int status = -1;
        ASSERT_EQ(::waitpid(child, &status, 0), child);
        EXPECT_EQ(status, 0);
    }
    SettingsStore store(path);
    ASSERT_TRUE(store.Load(error)) << error;
    for (int process = 0; process < kProcesses; ++process) {
        for (int i = 0; i < kCommits; ++i) {
            EXPECT_TRUE(store.Get(fmt::format("{}.{}", process, i)));
        }
    }
    EXPECT_EQ(FileCount(), 1U);
}

TEST_F(SettingsStoreTest, OtherFilesAreRefused)
{
    WriteFile(path, "");
    ExpectRefused("it is not a settings file: the file is empty");
    WriteFile(path, "Length = mm\n");
    ExpectRefused("does not begin as an SQLite database");
    fs::remove(path);
    ChangeBySql(path, "CREATE TABLE setting (key, value)");
    ExpectRefused("another application's database");
    fs::remove(path);
    SaveTwo();
    ChangeBySql(path, "PRAGMA user_version = 2");
    ExpectRefused("newer program");
}

TEST_F(SettingsStoreTest, DamageIsRefused)
{
    const std::pair<const char*, const char*> changes[] = {
        {"UPDATE setting SET value = 'm' WHERE key = 'Length'", "do not match their digest"},
        {"DELETE FROM setting WHERE key = 'Length'", "do not match their digest"},
        {"INSERT INTO setting VALUES ('x', CAST(x'FF' AS TEXT))", "is not a pair of texts"},
        {"INSERT INTO setting VALUES ('x', x'41')", "is not a pair of texts"},
        {"UPDATE repository SET digest = zeroblob(16)", "do not match their digest"},
        {"DELETE FROM repository", "its digest is missing"},
        {"CREATE INDEX i ON setting (value)", "its tables are not those"}};
    for (const auto& [sql, reason] : changes) {
        fs::remove(path);
        SaveTwo();
        ChangeBySql(path, sql);
        ExpectRefused(reason);
    }
}

TEST_F(SettingsStoreTest, CutsAndFlips)
{
    SaveTwo();
    const std::string whole = ReadFile(path);
    std::mt19937 random(9);
    for (int i = 0; i < 300; ++i) {
        std::string changed = whole;
        if (i % 3 == 0) {
            changed.resize(random() % whole.size());
        } else {
            char& byte = changed[random() % whole.size()];
            byte = static_cast<char>(byte ^ (1 << (random() % 8)));
        }
        WriteFile(path, changed);
        SettingsStore store(path);
        if (store.Load(error)) {
            EXPECT_EQ(store.Get("Length"), "mm");
            EXPECT_EQ(store.Get("Größe"), "");
        }
    }
}

TEST_F(SettingsStoreTest, FailingCommitKeepsTheFileAndTheChanges)
{
    SaveTwo();
    const std::string before = ReadFile(path);
    SettingsStore store(path);
    ASSERT_TRUE(store.Load(error) && store.Set("Length", "m", error));
    {
        OperationsGuard guard;
        CurrentFileOperations().rename = [](const std::string&, const std::string&) {
            return -EACCES;
        };
        EXPECT_FALSE(store.Commit(error));
        EXPECT_THAT(error, HasSubstr("Permission denied"));
        EXPECT_TRUE(ReadFile(path) == before);
        EXPECT_EQ(FileCount(), 1U);
    }
    ASSERT_TRUE(store.Commit(error)) << error;
    ASSERT_TRUE(store.Load(error));
    EXPECT_EQ(store.Get("Length"), "m");
}

// Sets a variable of the environment, none for null, and puts it back at its end.
class Variable
{
public:
    Variable(const char* name, const char* value) : _name(name)
    {
        if (const char* kept = std::getenv(name)) _kept = kept;
        Put(value);
    }
    Variable(const Variable&) = delete;
    Variable& operator=(const Variable&) = delete;
    ~Variable() { Put(_kept ? _kept->c_str() : nullptr); }

private:
    void Put(const char* value)
    {
        if (value != nullptr) {
            ::setenv(_name, value, 1);
        } else {
            ::unsetenv(_name);
        }
    }
    const char* _name;
    std::optional<std::string> _kept;
};

TEST_F(SettingsStoreTest, DefaultPlace)
{
    {
        const Variable own("VEX_SETTINGS", "s.VEXSettings");
        EXPECT_EQ(SettingsStore::DefaultPath(error), "s.VEXSettings");
    }
    const Variable own("VEX_SETTINGS", "");
    const Variable home("HOME", "/home/me");
    {
        const Variable xdg("XDG_CONFIG_HOME", "/cfg");
        EXPECT_EQ(SettingsStore::DefaultPath(error), "/cfg/HLX/settings.VEXSettings");
    }
    {
        const Variable xdg("XDG_CONFIG_HOME", "relative");
        EXPECT_EQ(SettingsStore::DefaultPath(error), "/home/me/.config/HLX/settings.VEXSettings");
    }
    const Variable xdg("XDG_CONFIG_HOME", nullptr);
    const Variable none("HOME", nullptr);
    EXPECT_EQ(SettingsStore::DefaultPath(error), "");
    EXPECT_THAT(error, HasSubstr("VEX_SETTINGS"));
}

}  // namespace
}  // namespace vex::system
