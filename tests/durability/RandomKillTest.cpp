// SPDX-License-Identifier: Apache-2.0
// A process that saves without end is killed at any time: the document is the one of the last save
// that ended or of the one that ran, whole.
#include "durability/NamedDocument.h"
#include "reference/store/StoreFixture.h"
#include "support/ChildProcess.h"

#include <atomic>
#include <chrono>
#include <csignal>
#include <random>
#include <thread>

namespace durabilitytest {
namespace {

using Clock = std::chrono::steady_clock;
using std::chrono::microseconds;

constexpr int kKills = 300;
constexpr std::size_t kSize = 300'000;

// What the saving process tells: the numbers of the last save that began and of the last one that
// ended, and how long the first took.
struct Progress
{
    std::atomic<int> begun;
    std::atomic<int> ended;
    std::atomic<std::int64_t> firstTook;
};
static_assert(std::atomic<std::int64_t>::is_always_lock_free);

class RandomKill : public vex::store::test::FolderTest
{
protected:
    void SaveWithoutEnd(int from) const
    {
        NamedDocument document(path);
        for (int number = from;; ++number) {
            document.SetName(Sized(std::to_string(number), kSize));
            const Clock::time_point start = Clock::now();
            progress->begun = number;
            if (document.Save() != S_OK) ::_exit(2);
            if (number == from) progress->firstTook = (Clock::now() - start) / microseconds(1);
            progress->ended = number;
        }
    }

    // Waits until the saving process has come so far.
    void WaitFor(pid_t child, const std::atomic<int>& step, int number) const
    {
        int status = 0;
        while (step < number) {
            ASSERT_EQ(::waitpid(child, &status, WNOHANG), 0) << "it ended by itself";
            std::this_thread::yield();
        }
    }

    const std::string path = In("killed.VEXAnalysis");
    const hlxtest::Shared<Progress> progress;
};

TEST_F(RandomKill, AtAnyTimeLeavesTheLastStateOrTheNextOne)
{
    StoreNamed(path, Sized("0", kSize));
    std::mt19937 random(20261121);
    microseconds usual(0);  // duration of a save, the mean of the latest
    int inside = 0;
    int stray = 0;
    int from = 1;
    for (int kill = 0; kill < kKills; ++kill) {
        const pid_t child = hlxtest::StartChild([&] { SaveWithoutEnd(from); });
        ASSERT_NO_FATAL_FAILURE(WaitFor(child, progress->begun, from));
        if (kill == 0) {
            ASSERT_NO_FATAL_FAILURE(WaitFor(child, progress->ended, 5));
            usual = microseconds(progress->firstTook);
        }
        std::uniform_int_distribution<std::int64_t> delays(0, 2 * usual.count());
        std::this_thread::sleep_for(microseconds(delays(random)));
        ASSERT_EQ(::kill(child, SIGKILL), 0);
        ASSERT_EQ(hlxtest::EndOf(child), -SIGKILL);
        const int begun = progress->begun;
        const int ended = progress->ended;
        if (begun != ended) ++inside;
        if (ended >= from) usual = (usual * 3 + microseconds(progress->firstTook)) / 4;
        const std::string found = StoredName(path);
        ASSERT_TRUE(found == Sized(std::to_string(begun), kSize) ||
                    found == Sized(std::to_string(ended), kSize))
            << "kill " << kill << ": " << ended << " ended, " << begun << " begun, found "
            << found.substr(0, 20);
        ASSERT_LE(FileCount(), 2U) << "each save removes what the one before left";
        stray += FileCount() == 2 ? 1 : 0;
        progress->ended = found == Sized(std::to_string(begun), kSize) ? begun : ended;
        from = begun + 1;
    }
    NamedDocument document(path);
    EXPECT_EQ(document.Save(), S_OK);
    EXPECT_EQ(FileCount(), 1U);
    EXPECT_GT(inside, 100);
    RecordProperty("kills", kKills);
    RecordProperty("inside_a_save", inside);
    std::printf("%d kills, %d of them inside a save, %d left a stray file\n", kKills, inside,
                stray);
}

}  // namespace
}  // namespace durabilitytest
