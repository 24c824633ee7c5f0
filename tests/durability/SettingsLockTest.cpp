// SPDX-License-Identifier: Apache-2.0
// A commit of settings waits for those that are busy in their folder.
#include "host/system/SettingsStore.h"
#include "reference/store/StoreFixture.h"
#include "support/ChildProcess.h"

#include <atomic>
#include <chrono>
#include <csignal>
#include <thread>

#include <fcntl.h>
#include <sys/file.h>

namespace durabilitytest {
namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;
using vex::system::Descriptor;
using vex::system::SettingsStore;

class SettingsLock : public vex::store::test::FolderTest
{
protected:
    // Another process holds the folder for a time longer than a commit waits for one that is stuck:
    // a busy one, or one that is stuck and has to be killed.
    pid_t HoldFolder(bool busily) const
    {
        const hlxtest::Shared<std::atomic<bool>> isHeld;
        const pid_t child = hlxtest::StartChild([&] {
            const Descriptor held(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
            EXPECT_EQ(::flock(held.Number(), LOCK_EX | LOCK_NB), 0);
            *isHeld = true;
            const Clock::time_point start = Clock::now();
            while (!busily || Clock::now() < start + 6500ms) {
                if (busily) vex::store::test::WriteFile(In("others"), "theirs");
                std::this_thread::sleep_for(100ms);
            }
        });
        while (!*isHeld)
            std::this_thread::yield();
        return child;
    }

    bool Commit()
    {
        SettingsStore store(In("s.VEXSettings"));
        return store.Set("Length", "mm", error) && store.Commit(error);
    }

    std::string error;
};

TEST_F(SettingsLock, IsWaitedForAsLongAsItsHolderIsBusy)
{
    const pid_t holder = HoldFolder(true);
    EXPECT_TRUE(Commit()) << error;
    EXPECT_EQ(hlxtest::EndOf(holder), 0);
}

TEST_F(SettingsLock, OfOneWhoIsStuckIsToldAndGoesWithHim)
{
    const pid_t holder = HoldFolder(false);
    EXPECT_FALSE(Commit());
    EXPECT_EQ(error, '\'' + folder.string() +
                         "': another process keeps the folder locked. End it and try again.");
    EXPECT_EQ(FileCount(), 0U);
    ASSERT_EQ(::kill(holder, SIGKILL), 0);
    EXPECT_EQ(hlxtest::EndOf(holder), -SIGKILL);
    EXPECT_TRUE(Commit()) << error;
}

}  // namespace
}  // namespace durabilitytest
