// SPDX-License-Identifier: Apache-2.0
// Saves on a disk that has no room for them, whatever room it has: a real one, small and in memory.
#include "durability/NamedDocument.h"
#include "durability/PrivateMounts.h"
#include "durability/SavingTest.h"
#include "support/Capture.h"
#include "support/TemporaryFolder.h"

#include <fstream>

#include <sys/resource.h>
#include <sys/statvfs.h>
#include <csignal>

namespace durabilitytest {
namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;
using testing::IsEmpty;
using vex::store::test::ReadFile;
using vex::store::test::WriteFile;

class FullDisk : public SavingTest
{
protected:
    // Leaves room for `pages` pages on the disk.
    void LeaveRoom(std::size_t pages) const
    {
        fs::remove(In("filler"));
        struct statvfs disk = {};
        ASSERT_EQ(::statvfs(folder.c_str(), &disk), 0);
        ASSERT_GE(disk.f_bfree, pages);
        std::ofstream(In("filler"), std::ios::binary)
            << std::string((disk.f_bfree - pages) * PageSize(), 'x');
        ASSERT_EQ(::statvfs(folder.c_str(), &disk), 0);
        ASSERT_EQ(disk.f_bfree, pages);
    }

    // What is said of a refused save, and what is there after it.
    void ExpectWithoutLoss(const std::string& error, const std::vector<std::string>& strays) const
    {
        EXPECT_THAT(error, HasSubstr(Path() + "': saving failed: "));
        EXPECT_THAT(error, HasSubstr("No space left on device"));
        EXPECT_THAT(error, HasSubstr("Check the folder's permissions and the room on the disk"));
        EXPECT_TRUE(ReadFile(Path()) == old);
        EXPECT_EQ(Strays(), strays);
    }

    const std::string old = ReadFile(Path());
};

INSTANTIATE_TEST_SUITE_P(By, FullDisk, testing::ValuesIn(KindsOfSaves()), NameOfKind);

TEST_P(FullDisk, WithAnyRoomLeftKeepsTheOldFileOrHasTheNewOne)
{
    constexpr std::size_t kPages = 300;
    const auto fill = [&] {
        EnterPrivateMounts();
        MountSmall(folder, kPages);
        ASSERT_FALSE(testing::Test::HasFailure());
        WriteFile(Path(), old);
        way->Prepare();
        std::string error;
        std::size_t room = 0;
        for (LeaveRoom(room); !way->Save(error); LeaveRoom(++room)) {
            ExpectWithoutLoss(error, {"filler"});
            ASSERT_FALSE(testing::Test::HasFailure()) << "with room for " << room << " pages";
        }
        EXPECT_GT(room, 10U);
        EXPECT_EQ(way->State(), "new");
        EXPECT_EQ(Strays(), std::vector<std::string>{"filler"});
    };
    const int code = hlxtest::InChild(fill);
    ASSERT_ENDED_WITH_MOUNTS(code);
}

TEST_P(FullDisk, WithoutRoomForAnotherNameKeepsTheOldFile)
{
    const auto fill = [&] {
        EnterPrivateMounts();
        MountSmall(folder, 300, 1);
        ASSERT_FALSE(testing::Test::HasFailure());
        WriteFile(Path(), old);
        way->Prepare();
        std::string error;
        EXPECT_FALSE(way->Save(error));
        ExpectWithoutLoss(error, {});
    };
    const int code = hlxtest::InChild(fill);
    ASSERT_ENDED_WITH_MOUNTS(code);
}

// What a dead process left takes room that the next save needs.
TEST_P(FullDisk, IsFreedOfWhatADeadProcessLeftBeforeItIsWritten)
{
    const auto fill = [&] {
        EnterPrivateMounts();
        MountSmall(folder, 300);
        ASSERT_FALSE(testing::Test::HasFailure());
        WriteFile(Path(), old);
        way->Prepare();
        WriteFile(Path() + ".k3x9q2~", std::string(200 * PageSize(), 'x'));
        LeaveRoom(0);
        std::string error;
        EXPECT_TRUE(way->Save(error)) << error;
        EXPECT_EQ(way->State(), "new");
        EXPECT_THAT(Strays(), testing::ElementsAre("filler"));
    };
    const int code = hlxtest::InChild(fill);
    ASSERT_ENDED_WITH_MOUNTS(code);
}

TEST_P(FullDisk, AsALimitOfTheProcessKeepsTheOldFile)
{
    EXPECT_EQ(hlxtest::InChild([&] {
                  way->Prepare();
                  const rlimit limit{20'000, 20'000};
                  ::signal(SIGXFSZ, SIG_IGN);
                  ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &limit), 0);
                  std::string error;
                  EXPECT_FALSE(way->Save(error));
                  EXPECT_THAT(error, HasSubstr("File too large"));
              }),
              0);
    EXPECT_TRUE(ReadFile(Path()) == old);
    EXPECT_THAT(Strays(), IsEmpty());
}

TEST(FullDiskElsewhere, TakesTheDocumentThatWasRefused)
{
    const hlxtest::TemporaryFolder full;
    const hlxtest::TemporaryFolder elsewhere;
    const std::string path = full.File("a.VEXAnalysis");
    const auto fill = [&] {
        EnterPrivateMounts();
        MountSmall(full.Path(), 60);
        ASSERT_FALSE(testing::Test::HasFailure());
        StoreNamed(path, "old");
        NamedDocument document(path);
        document.SetName(Sized("new", 200'000));
        const std::string error =
            hlxtest::StandardErrorOf([&] { EXPECT_EQ(document.Save(), E_FAIL); });
        EXPECT_THAT(error, HasSubstr("No space left on device"));
        EXPECT_EQ(document.SaveAs(elsewhere.File("a.VEXAnalysis")), S_OK);
    };
    const int code = hlxtest::InChild(fill);
    ASSERT_ENDED_WITH_MOUNTS(code);
    EXPECT_EQ(StoredName(elsewhere.File("a.VEXAnalysis")), Sized("new", 200'000));
}

}  // namespace
}  // namespace durabilitytest
