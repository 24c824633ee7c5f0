// SPDX-License-Identifier: Apache-2.0
// A save that fails anywhere leaves the old document as it was and nothing beside it.
#include "reference/store/StoreFixture.h"

#include <cerrno>
#include <csignal>

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace vex::store::test {
namespace {

using testing::HasSubstr;

class AtomicSave : public FolderTest
{
protected:
    AtomicSave()
    {
        std::string error;
        EXPECT_TRUE(Save(SmallContent(), path, error)) << error;
        old = ReadFile(path);
        larger = SmallContent();
        for (Id id = 10; id < 3000; ++id) {
            larger.features.push_back({id, 4, 0, "T", "Alias", larger.features[0].attributes});
        }
    }

    // Calls `before` ahead of every operation; when it answers non-zero the operation fails so.
    static void Intercept(const std::function<int()>& before)
    {
        const system::FileOperations real = system::SystemFileOperations();
        system::FileOperations& now = system::CurrentFileOperations();
        now.create = [=](const std::string& file, unsigned mode) {
            const int code = before();
            return code != 0 ? code : real.create(file, mode);
        };
        now.write = [=](int file, const void* bytes, std::size_t size, std::int64_t offset) {
            const int code = before();
            return code != 0 ? code : real.write(file, bytes, size, offset);
        };
        now.synchronize = [=](int file) {
            const int code = before();
            return code != 0 ? code : real.synchronize(file);
        };
        now.rename = [=](const std::string& from, const std::string& to) {
            const int code = before();
            return code != 0 ? code : real.rename(from, to);
        };
        now.synchronizeFolder = [=](int file) {
            const int code = before();
            return code != 0 ? code : real.synchronizeFolder(file);
        };
    }

    int CountOperations()
    {
        OperationsGuard guard;
        int count = 0;
        Intercept([&] { return ++count, 0; });
        std::string error;
        EXPECT_TRUE(Save(larger, In("counted"), error)) << error;
        fs::remove(folder / "counted");
        return count;
    }

    std::string path = In("a.VEXAnalysis");
    std::string old;
    Content larger;
};

TEST_F(AtomicSave, FailingAtEachOperation)
{
    const int count = CountOperations();
    ASSERT_GT(count, 10);
    for (const bool fromThenOn : {false, true}) {
        for (int failing = 1; failing <= count; ++failing) {
            OperationsGuard guard;
            int done = 0;
            Intercept([&] {
                ++done;
                return done == failing || (fromThenOn && done > failing) ? -ENOSPC : 0;
            });
            std::string error;
            EXPECT_FALSE(Save(larger, path, error)) << failing;
            EXPECT_THAT(error, HasSubstr("a.VEXAnalysis'")) << failing;
            EXPECT_THAT(error, HasSubstr("No space left on device")) << failing;
            EXPECT_EQ(FileCount(), 1U) << failing;
            if (failing < count) {
                EXPECT_TRUE(ReadFile(path) == old) << failing;
                EXPECT_THAT(error, HasSubstr("untouched"));
            } else {  // only synchronising the folder failed
                EXPECT_THAT(error, HasSubstr("The new content is in place"));
                EXPECT_TRUE(Load(path, error) == larger);
            }
        }
        std::string error;
        ASSERT_TRUE(Save(SmallContent(), path, error)) << error;
    }
}

TEST_F(AtomicSave, KilledAtEachOperation)
{
    const int count = CountOperations();
    for (int killing = 1; killing <= count; ++killing) {
        const pid_t child = ::fork();
        ASSERT_GE(child, 0);
        if (child == 0) {
            int done = 0;
            Intercept([&] {
                if (++done == killing) ::raise(SIGKILL);
                return 0;
            });
            std::string error;
            Save(larger, path, error);
            ::_exit(0);
        }
        int status = 0;
        ASSERT_EQ(::waitpid(child, &status, 0), child);
        EXPECT_TRUE(WIFSIGNALED(status)) << killing;
        std::string error;
        const std::optional<Content> found = Load(path, error);
        ASSERT_TRUE(found) << error;
        EXPECT_TRUE(*found == (killing < count ? SmallContent() : larger)) << killing;
    }
}

TEST_F(AtomicSave, ANameThatIsTakenIsNotUsed)
{
    OperationsGuard guard;
    int attempts = 0;
    const system::FileOperations real = system::SystemFileOperations();
    system::CurrentFileOperations().create = [&](const std::string& file, unsigned mode) {
        return ++attempts < 3 ? -EEXIST : real.create(file, mode);
    };
    std::string error;
    EXPECT_TRUE(Save(larger, path, error)) << error;
    EXPECT_EQ(attempts, 3);
    system::CurrentFileOperations().create = [](const std::string&, unsigned) { return -EEXIST; };
    EXPECT_FALSE(Save(larger, path, error)) << "ends after some attempts";
}

TEST_F(AtomicSave, AFullDiskAsTheSystemReportsIt)
{
    const pid_t child = ::fork();  // the limit is the process's
    ASSERT_GE(child, 0);
    if (child == 0) {
        const rlimit limit{20'000, 20'000};
        ::signal(SIGXFSZ, SIG_IGN);
        ::setrlimit(RLIMIT_FSIZE, &limit);
        std::string error;
        const bool saved = Save(larger, path, error);
        ::_exit(!saved && error.find("File too large") != std::string::npos ? 0 : 1);
    }
    int status = -1;
    ASSERT_EQ(::waitpid(child, &status, 0), child);
    EXPECT_EQ(status, 0);
    EXPECT_TRUE(ReadFile(path) == old);
    EXPECT_EQ(FileCount(), 1U);
}

TEST_F(AtomicSave, AWriterGivenUpLeavesNothing)
{
    {
        DocumentWriter writer;
        ASSERT_TRUE(writer.Begin(path, DocumentKind::Part));
        EXPECT_EQ(FileCount(), 2U) << "the new file is made beside the old one";
    }
    EXPECT_EQ(FileCount(), 1U);
    EXPECT_TRUE(ReadFile(path) == old);
}

TEST_F(AtomicSave, PermissionsAreKept)
{
    struct stat status = {};
    std::string error;
    const mode_t mask = ::umask(027);
    ASSERT_TRUE(Save(larger, In("new"), error)) << error;
    ::umask(mask);
    ASSERT_EQ(::stat(In("new").c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 07777U, 0640U) << "as the process's mask has it";
    for (const mode_t mode : {0600U, 0666U, 0604U, 02660U}) {
        ASSERT_EQ(::chmod(path.c_str(), mode), 0);
        ASSERT_TRUE(Save(larger, path, error)) << error;
        ASSERT_EQ(::stat(path.c_str(), &status), 0);
        EXPECT_EQ(status.st_mode & 07777U, mode);
    }
}

TEST_F(AtomicSave, SymbolicLinksAreFollowed)
{
    fs::create_directory(folder / "sub");
    fs::create_symlink("../a.VEXAnalysis", folder / "sub/link");
    std::string error;
    ASSERT_TRUE(Save(larger, In("sub/link"), error)) << error;
    EXPECT_TRUE(fs::is_symlink(folder / "sub/link"));
    EXPECT_TRUE(Load(path, error) == larger);
    fs::create_symlink("nowhere", folder / "dangling");
    EXPECT_FALSE(Save(larger, In("dangling"), error));
    EXPECT_THAT(error, HasSubstr("symbolic link that cannot be followed"));
}

TEST_F(AtomicSave, FoldersAndProtectedFilesAreRefused)
{
    std::string error;
    EXPECT_FALSE(Save(larger, In("missing/a"), error));
    EXPECT_THAT(error, HasSubstr("opening its folder: No such file"));
    ASSERT_EQ(::chmod(folder.c_str(), 0777), 0);
    ASSERT_EQ(::chmod(path.c_str(), 0444), 0);
    const pid_t child = ::fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
        if (::geteuid() == 0 && ::setuid(65534) != 0) ::_exit(2);  // root may write everywhere
        const bool saved = Save(larger, path, error);
        ::_exit(!saved && error.find("protected from writing") != std::string::npos ? 0 : 1);
    }
    int status = -1;
    ASSERT_EQ(::waitpid(child, &status, 0), child);
    EXPECT_EQ(status, 0);
    EXPECT_TRUE(ReadFile(path) == old);
    EXPECT_EQ(FileCount(), 1U);
}

TEST_F(AtomicSave, StandardStreamsThatAreClosedStayFree)
{
    const pid_t child = ::fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
        ::close(0);
        ::close(1);
        ::close(2);
        DocumentWriter writer;
        const bool begun = writer.Begin(path, DocumentKind::Part);
        for (int stream = 0; stream < 3; ++stream) {
            if (::fcntl(stream, F_GETFD) != -1) ::_exit(2);
        }
        std::string error;
        ::_exit(begun && writer.Commit(error) ? 0 : 1);
    }
    int status = -1;
    ASSERT_EQ(::waitpid(child, &status, 0), child);
    EXPECT_EQ(status, 0);
}

}  // namespace
}  // namespace vex::store::test
