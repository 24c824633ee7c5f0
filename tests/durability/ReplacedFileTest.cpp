// SPDX-License-Identifier: Apache-2.0
// What the file that replaces another one is like: its name in the making, its permissions, the
// process's descriptors.
#include "reference/store/StoreFixture.h"
#include "support/ChildProcess.h"

#include <cerrno>

#include <fcntl.h>
#include <grp.h>
#include <sys/stat.h>
#include <unistd.h>

namespace durabilitytest {
namespace {

using namespace vex::store::test;
namespace system = vex::system;
using vex::store::DocumentKind;
using vex::store::DocumentWriter;

class ReplacedFile : public FolderTest
{
protected:
    ReplacedFile()
    {
        std::string reason;
        EXPECT_TRUE(Save(SmallContent(), path, reason)) << reason;
        old = ReadFile(path);
        changed.attributeNames.emplace_back("Another");
    }

    const std::string path = In("a.VEXAnalysis");
    std::string old;
    Content changed = SmallContent();
    std::string error;
};

TEST_F(ReplacedFile, DoesNotTakeANameThatIsThere)
{
    const OperationsGuard guard;
    int attempts = 0;
    const system::FileOperations real = system::SystemFileOperations();
    system::CurrentFileOperations().create = [&](const std::string& file, unsigned mode) {
        return ++attempts < 3 ? -EEXIST : real.create(file, mode);
    };
    EXPECT_TRUE(Save(changed, path, error)) << error;
    EXPECT_EQ(attempts, 3);
    system::CurrentFileOperations().create = [](const std::string&, unsigned) { return -EEXIST; };
    EXPECT_FALSE(Save(changed, path, error)) << "ends after some attempts";
}

TEST_F(ReplacedFile, StaysWhenTheWriterIsGivenUp)
{
    {
        DocumentWriter writer;
        ASSERT_TRUE(writer.Begin(path, DocumentKind::Part));
        EXPECT_EQ(FileCount(), 2U) << "the new file is made beside the old one";
    }
    EXPECT_EQ(FileCount(), 1U);
    EXPECT_TRUE(ReadFile(path) == old);
}

TEST_F(ReplacedFile, PassesItsPermissionsOn)
{
    struct stat status = {};
    const mode_t mask = ::umask(027);
    ASSERT_TRUE(Save(changed, In("new"), error)) << error;
    ::umask(mask);
    ASSERT_EQ(::stat(In("new").c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 07777U, 0640U) << "as the process's mask has it";
    for (const mode_t mode : {0600U, 0666U, 0604U, 02660U}) {
        ASSERT_EQ(::chmod(path.c_str(), mode), 0);
        ASSERT_TRUE(Save(changed, path, error)) << error;
        ASSERT_EQ(::stat(path.c_str(), &status), 0);
        EXPECT_EQ(status.st_mode & 07777U, mode);
    }
}

// Somebody else's file of the group 12, replaced by who may give files to that group or may not.
TEST_F(ReplacedFile, PassesItsGroupOnOrGrantsAnotherGroupNothing)
{
    if (::geteuid() != 0) {
        GTEST_SKIP() << "NOT TESTED: only root can make another user's file. Run as root.";
    }
    constexpr uid_t user = 65534;
    constexpr gid_t group = 12;
    ASSERT_EQ(::chmod(folder.c_str(), 0777), 0);
    struct Row
    {
        bool inGroup;
        mode_t mode;
        mode_t kept;
    };
    for (const Row& row : {Row{true, 0660, 0660}, Row{true, 02664, 02664}, Row{true, 04660, 0660},
                           Row{false, 0666, 0666}, Row{false, 0606, 0606}, Row{false, 0672, 0622},
                           Row{false, 06777, 0777}}) {
        SCOPED_TRACE(testing::Message() << row.inGroup << ' ' << std::oct << row.mode);
        WriteFile(path, old);
        ASSERT_EQ(::chown(path.c_str(), 0, group), 0);
        ASSERT_EQ(::chmod(path.c_str(), row.mode), 0);
        EXPECT_EQ(hlxtest::InChild([&] {
                      ASSERT_EQ(::setgroups(row.inGroup ? 1 : 0, &group), 0);
                      ASSERT_EQ(::setgid(user), 0);
                      ASSERT_EQ(::setuid(user), 0);
                      EXPECT_TRUE(Save(changed, path, error)) << error;
                  }),
                  0);
        struct stat status = {};
        ASSERT_EQ(::stat(path.c_str(), &status), 0);
        EXPECT_EQ(status.st_uid, user);
        EXPECT_EQ(status.st_gid, row.inGroup ? group : gid_t{user});
        EXPECT_EQ(status.st_mode & 07777U, row.kept);
    }
}

TEST_F(ReplacedFile, LeavesStandardStreamsThatAreClosedFree)
{
    const auto save = [&] {
        for (int stream = 0; stream < 3; ++stream)
            ::close(stream);
        DocumentWriter writer;
        const bool begun = writer.Begin(path, DocumentKind::Part);
        for (int stream = 0; stream < 3; ++stream) {
            if (::fcntl(stream, F_GETFD) != -1) ::_exit(2);
        }
        ::_exit(begun && writer.Commit(error) ? 0 : 3);
    };
    EXPECT_EQ(hlxtest::InChild(save), 0);
}

}  // namespace
}  // namespace durabilitytest
