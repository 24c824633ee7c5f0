// SPDX-License-Identifier: Apache-2.0
// What a process that died left beside a file goes with the next save of that file; all else stays.
#include "durability/Interception.h"
#include "host/system/AtomicFile.h"
#include "host/system/UnfinishedFile.h"
#include "support/ChildProcess.h"

#include <csignal>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>

namespace durabilitytest {
namespace {

namespace fs = std::filesystem;
using testing::UnorderedElementsAre;
using testing::UnorderedElementsAreArray;
using vex::store::test::ReadFile;
using vex::store::test::WriteFile;
using vex::system::AtomicFile;
using vex::system::CurrentFileOperations;
using vex::system::Descriptor;
using vex::system::IsNameOfUnfinishedFile;

class AbandonedFile : public vex::store::test::FolderTest
{
protected:
    void Replace(const std::string& name, const std::string& text)
    {
        AtomicFile file;
        ASSERT_TRUE(file.Begin(In(name), error)) << error;
        Finish(file, text);
    }

    void Finish(AtomicFile& file, const std::string& text)
    {
        ASSERT_EQ(CurrentFileOperations().write(file.File(), text.data(), text.size(), 0), 0);
        EXPECT_TRUE(file.Commit(error)) << error;
    }

    // A process begins to replace the file and dies.
    void Abandon(const std::string& name)
    {
        EXPECT_EQ(hlxtest::InChild([&] {
                      AtomicFile file;
                      EXPECT_TRUE(file.Begin(In(name), error)) << error;
                      ::raise(SIGKILL);
                  }),
                  -SIGKILL);
    }

    std::vector<std::string> Names() const
    {
        std::vector<std::string> names;
        for (const auto& entry : fs::directory_iterator(folder))
            names.push_back(entry.path().filename().string());
        return names;
    }

    std::string error;
};

TEST(UnfinishedFile, IsKnownByItsName)
{
    EXPECT_TRUE(IsNameOfUnfinishedFile("a.b.k3x9q2~", "a.b"));
    for (const char* const name :
         {"", "a.b", "a.b~", "a.b.k3x9q2", "a.b.k3x9q2~~", "a.b.k3x9q~", "a.b.backup~",
          "a.b.step01~", "a.b.K3x9q2~", "a.b.3k9x2q~", "a.bk3x9q2.~", "a.c.k3x9q2~", "aa.b.k3x9q2~",
          ".k3x9q2~", "a.b.~12345~", "a.b.k3x9q2~\n"}) {
        EXPECT_FALSE(IsNameOfUnfinishedFile(name, "a.b")) << name;
    }
}

TEST_F(AbandonedFile, GoesWithTheNextSaveOfTheSameFileOnly)
{
    Replace("a", "old");
    Replace("a.b", "old");
    Abandon("a");
    Abandon("a.b");
    EXPECT_EQ(FileCount(), 4U);
    Replace("a.b", "new");
    EXPECT_EQ(FileCount(), 3U);
    EXPECT_EQ(ReadFile(In("a")), "old");
    Replace("a", "new");
    EXPECT_THAT(Names(), UnorderedElementsAre("a", "a.b"));
}

TEST_F(AbandonedFile, GoesAlsoWhenTheFileWasNeverFinished)
{
    Abandon("a");
    Abandon("a");
    EXPECT_EQ(FileCount(), 1U) << "each removes what the one before left";
    AtomicFile file;
    ASSERT_TRUE(file.Begin(In("a"), error)) << error;
    file.Discard();
    EXPECT_EQ(FileCount(), 0U) << "even when the save is given up";
}

TEST_F(AbandonedFile, IsFoundBesideTheFileThatALinkLeadsTo)
{
    fs::create_directory(folder / "sub");
    Replace("sub/a", "old");
    fs::create_symlink("sub/a", folder / "link");
    Abandon("link");
    EXPECT_EQ(std::distance(fs::directory_iterator(folder / "sub"), fs::directory_iterator()), 2);
    Replace("link", "new");
    EXPECT_EQ(std::distance(fs::directory_iterator(folder / "sub"), fs::directory_iterator()), 1);
    EXPECT_EQ(ReadFile(In("sub/a")), "new");
}

TEST_F(AbandonedFile, IsFoundInTheCurrentFolderToo)
{
    EXPECT_EQ(hlxtest::InChild([&] {
                  ASSERT_EQ(::chdir(folder.c_str()), 0);
                  Abandon("a");
                  EXPECT_EQ(FileCount(), 1U);
                  AtomicFile file;
                  ASSERT_TRUE(file.Begin("a", error)) << error;
                  Finish(file, "new");
              }),
              0);
    EXPECT_THAT(Names(), UnorderedElementsAre("a"));
}

TEST_F(AbandonedFile, IsNotWhatALivingProcessWrites)
{
    Replace("a", "old");
    AtomicFile first;
    ASSERT_TRUE(first.Begin(In("a"), error)) << error;
    EXPECT_EQ(hlxtest::InChild([&] { Replace("a", "by the other process"); }), 0);
    EXPECT_EQ(FileCount(), 2U);
    AtomicFile second;  // nor what this process writes elsewhere
    ASSERT_TRUE(second.Begin(In("a"), error)) << error;
    EXPECT_EQ(FileCount(), 3U);
    Finish(first, "first");
    EXPECT_EQ(ReadFile(In("a")), "first");
    Finish(second, "second");
    EXPECT_EQ(ReadFile(In("a")), "second");
    EXPECT_THAT(Names(), UnorderedElementsAre("a"));
}

TEST_F(AbandonedFile, IsNotWhatIsAboutToGetItsName)
{
    Replace("a", "old");
    const vex::store::test::OperationsGuard guard;
    const vex::system::FileOperations real = vex::system::SystemFileOperations();
    CurrentFileOperations().rename = [&](const std::string& from, const std::string& to) {
        EXPECT_EQ(hlxtest::InChild([&] {
                      AtomicFile other;
                      EXPECT_TRUE(other.Begin(In("a"), error)) << error;
                  }),
                  0);
        return real.rename(from, to);
    };
    Replace("a", "new");
    EXPECT_EQ(ReadFile(In("a")), "new");
}

TEST_F(AbandonedFile, IsNothingElseOfThatName)
{
    fs::create_directory(folder / "a.k3x9q1~");
    fs::create_symlink("elsewhere", folder / "a.k3x9q2~");
    ASSERT_EQ(::mkfifo(In("a.k3x9q3~").c_str(), 0600), 0);
    const Descriptor socket(::socket(AF_UNIX, SOCK_STREAM, 0));
    sockaddr_un address{AF_UNIX, {}};
    ASSERT_LT(In("a.k3x9q4~").size(), sizeof address.sun_path);
    In("a.k3x9q4~").copy(address.sun_path, sizeof address.sun_path - 1);
    ASSERT_EQ(::bind(socket.Number(), reinterpret_cast<sockaddr*>(&address), sizeof address), 0);
    for (const char* const name : {"elsewhere", "a.backup~", "a~", "b.k3x9q2~", "aa.k3x9q2~"})
        WriteFile(In(name), "mine");
    std::vector<std::string> names = Names();
    Replace("a", "new");
    names.emplace_back("a");
    EXPECT_THAT(Names(), UnorderedElementsAreArray(names));
}

TEST_F(AbandonedFile, OfAnotherUserStays)
{
    if (::geteuid() != 0) {
        GTEST_SKIP() << "NOT TESTED: only root can make another user's file. Run as root.";
    }
    WriteFile(In("a.k3x9q2~"), "theirs");
    ASSERT_EQ(::chown(In("a.k3x9q2~").c_str(), 65534, 65534), 0);
    Replace("a", "new");
    EXPECT_THAT(Names(), UnorderedElementsAre("a", "a.k3x9q2~"));
    ASSERT_EQ(::chown(In("a").c_str(), 65534, 65534), 0);
    Replace("a", "new");
    EXPECT_THAT(Names(), UnorderedElementsAre("a")) << "root's new files are given to the owner";
}

// Who collects may come between the making of the new file and its lock.
TEST_F(AbandonedFile, ThatWasTakenFromItsMakerIsMadeAgain)
{
    const vex::store::test::OperationsGuard guard;
    const vex::system::FileOperations real = vex::system::SystemFileOperations();
    int made = 0;
    CurrentFileOperations().create = [&](const std::string& path, unsigned mode) {
        const int file = real.create(path, mode);
        if (++made == 1) {
            EXPECT_EQ(hlxtest::InChild([&] {
                          CurrentFileOperations() = real;
                          AtomicFile other;
                          EXPECT_TRUE(other.Begin(In("a"), error)) << error;
                          other.Discard();
                      }),
                      0);
            EXPECT_EQ(FileCount(), 0U) << "it looked abandoned";
        }
        return file;
    };
    Replace("a", "new");
    EXPECT_EQ(made, 2);
    EXPECT_EQ(ReadFile(In("a")), "new");
    EXPECT_EQ(FileCount(), 1U);
}

TEST_F(AbandonedFile, ThatIsBeingTakenFromItsMakerIsMadeAgain)
{
    const vex::store::test::OperationsGuard guard;
    const vex::system::FileOperations real = vex::system::SystemFileOperations();
    Descriptor collector;
    std::string taken;
    CurrentFileOperations().create = [&](const std::string& path, unsigned mode) {
        const int file = real.create(path, mode);
        if (taken.empty()) {
            taken = path;
            collector = Descriptor(::open(path.c_str(), O_RDWR | O_CLOEXEC));
            EXPECT_EQ(::flock(collector.Number(), LOCK_EX | LOCK_NB), 0);
        }
        return file;
    };
    Replace("a", "new");
    EXPECT_EQ(ReadFile(In("a")), "new");
    EXPECT_TRUE(fs::exists(taken)) << "left to who holds it";
    collector.Close();
    Replace("a", "newer");
    EXPECT_EQ(FileCount(), 1U);
}

}  // namespace
}  // namespace durabilitytest
