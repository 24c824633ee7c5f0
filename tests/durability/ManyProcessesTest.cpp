// SPDX-License-Identifier: Apache-2.0
// Eight processes commit settings and save documents in one folder, some of them the same ones,
// while a ninth opens all of it again and again and others that do the same are killed.
#include "durability/NamedDocument.h"
#include "host/system/SettingsStore.h"
#include "reference/store/StoreFixture.h"
#include "support/ChildProcess.h"

#include <fmt/format.h>

#include <atomic>
#include <chrono>
#include <csignal>
#include <random>
#include <thread>

namespace durabilitytest {
namespace {

using vex::system::SettingsStore;

constexpr int kProcesses = 8;
constexpr int kRounds = 200;
constexpr std::size_t kSize = 20'000;

class ManyProcesses : public vex::store::test::FolderTest
{
protected:
    // Processes 0 and 1, 2 and 3 save the same document, the others each their own.
    std::string DocumentOf(int process) const
    {
        return In(fmt::format("{}.VEXAnalysis", process < 4 ? process / 2 : process));
    }

    // What is at stake here is who sees what, not what outlives a loss of power.
    static void DoNotSynchronize()
    {
        vex::system::CurrentFileOperations().synchronize = [](int) { return 0; };
        vex::system::CurrentFileOperations().synchronizeFolder = [](int) { return 0; };
    }

    // Each process has keys of its own, one that all set, and one that it sets again and again.
    void Work(int process) const
    {
        DoNotSynchronize();
        NamedDocument document(DocumentOf(process));
        SettingsStore store(settings);
        std::string error;
        for (int round = 0; round < kRounds; ++round) {
            const std::string now = fmt::format("{}.{}", process, round);
            ASSERT_TRUE(store.Set(now, now, error) && store.Set("common", now, error) &&
                        store.Set(fmt::format("own {}", process), now, error))
                << error;
            ASSERT_TRUE(store.Commit(error)) << error;
            document.SetName(Sized(now, kSize));
            ASSERT_EQ(document.Save(), S_OK);
        }
    }

    // Saves the first document, and settings, until it is killed.
    void WorkWithoutEnd() const
    {
        DoNotSynchronize();
        NamedDocument document(DocumentOf(0));
        document.SetName(Sized("killed", kSize));
        SettingsStore store(settings);
        std::string error;
        while (document.Save() == S_OK && store.Set("killed", "x", error) && store.Commit(error)) {
        }
        ADD_FAILURE() << error;
    }

    void KillUntilDone() const
    {
        std::mt19937 random(8);
        while (!*done) {
            const pid_t child = hlxtest::StartChild([&] { WorkWithoutEnd(); });
            std::this_thread::sleep_for(std::chrono::milliseconds(random() % 40));
            EXPECT_EQ(::kill(child, SIGKILL), 0);
            EXPECT_EQ(hlxtest::EndOf(child), -SIGKILL);
            ++*kills;
        }
    }

    // Every file that is there at any time is whole.
    void WatchUntilDone() const
    {
        while (!*done) {
            for (int process = 0; process < kProcesses; ++process) {
                const std::string name = StoredName(DocumentOf(process));
                ASSERT_TRUE(name.ends_with(Sized("", kSize))) << name.substr(0, 20);
            }
            SettingsStore store(settings);
            std::string error;
            ASSERT_TRUE(store.Load(error)) << error;
            ++*looks;
        }
    }

    const std::string settings = In("s.VEXSettings");
    const hlxtest::Shared<std::atomic<bool>> done;
    const hlxtest::Shared<std::atomic<int>> looks;
    const hlxtest::Shared<std::atomic<int>> kills;
};

TEST_F(ManyProcesses, LoseNothingAndSeeNothingTorn)
{
    for (int process = 0; process < kProcesses; ++process)
        StoreNamed(DocumentOf(process), Sized("first", kSize));
    const pid_t watcher = hlxtest::StartChild([&] { WatchUntilDone(); });
    const pid_t killer = hlxtest::StartChild([&] { KillUntilDone(); });
    std::vector<pid_t> workers;
    for (int process = 0; process < kProcesses; ++process)
        workers.push_back(hlxtest::StartChild([&] { Work(process); }));
    for (const pid_t worker : workers)
        EXPECT_EQ(hlxtest::EndOf(worker), 0);
    *done = true;
    EXPECT_EQ(hlxtest::EndOf(watcher), 0);
    EXPECT_EQ(hlxtest::EndOf(killer), 0);
    EXPECT_GT(*looks, 10);
    EXPECT_GT(*kills, 10);
    RecordProperty("looks", *looks);
    RecordProperty("kills", *kills);
    std::printf("all files were opened %d times meanwhile, %d processes killed\n", looks->load(),
                kills->load());

    SettingsStore store(settings);
    std::string error;
    ASSERT_TRUE(store.Load(error)) << error;
    const std::string last = fmt::format(".{}", kRounds - 1);
    for (int process = 0; process < kProcesses; ++process) {
        for (int round = 0; round < kRounds; ++round) {
            const std::string key = fmt::format("{}.{}", process, round);
            EXPECT_EQ(store.Get(key), key);
        }
        EXPECT_EQ(store.Get(fmt::format("own {}", process)), std::to_string(process) + last);
        const std::string name = StoredName(DocumentOf(process));
        const int other = process < 4 ? process ^ 1 : process;
        EXPECT_TRUE(name == Sized(std::to_string(process) + last, kSize) ||
                    name == Sized(std::to_string(other) + last, kSize) ||
                    (process < 2 && name == Sized("killed", kSize)))
            << name.substr(0, 20);
    }
    EXPECT_TRUE(store.Get("common").value_or("").ends_with(last)) << *store.Get("common");
    NamedDocument document(DocumentOf(0));
    EXPECT_EQ(document.Save(), S_OK) << "removes what the last one killed left";
    ASSERT_TRUE(store.Set("killed", "", error) && store.Commit(error)) << error;
    EXPECT_EQ(FileCount(), 7U) << "six documents and the settings";
}

}  // namespace
}  // namespace durabilitytest
