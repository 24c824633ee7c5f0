// SPDX-License-Identifier: Apache-2.0
// Saves where the process may not write: refused, and nothing is changed.
#include "durability/PrivateMounts.h"
#include "durability/SavingTest.h"

#include <sys/stat.h>

namespace durabilitytest {
namespace {

using testing::HasSubstr;
using testing::IsEmpty;
using vex::store::test::ReadFile;

class ReadOnly : public SavingTest
{
protected:
    // In a child that is not root, whom nothing stops: tries to save and answers the child's code.
    int SaveAsOrdinaryUser(const std::string& reason)
    {
        return hlxtest::InChild([&] {
            way->Prepare();
            ASSERT_TRUE(::geteuid() != 0 || (::setgid(65534) == 0 && ::setuid(65534) == 0));
            ExpectRefused(reason);
        });
    }

    void ExpectRefused(const std::string& reason)
    {
        std::string error;
        EXPECT_FALSE(way->Save(error));
        EXPECT_THAT(error, HasSubstr(Path() + "': saving failed: " + reason));
        EXPECT_THAT(error, HasSubstr("or save to another place"));
    }

    void ExpectUnchanged() const
    {
        EXPECT_TRUE(ReadFile(Path()) == old);
        EXPECT_THAT(Strays(), IsEmpty());
    }

    const std::string old = ReadFile(Path());
};

INSTANTIATE_TEST_SUITE_P(By, ReadOnly, testing::ValuesIn(KindsOfSaves()), NameOfKind);

TEST_P(ReadOnly, FileIsNotReplaced)
{
    ASSERT_EQ(::chmod(folder.c_str(), 0777), 0);
    ASSERT_EQ(::chmod(Path().c_str(), 0444), 0);
    EXPECT_EQ(SaveAsOrdinaryUser("the file is protected from writing: Permission denied"), 0);
    ExpectUnchanged();
}

TEST_P(ReadOnly, FolderGetsNoNewFile)
{
    ASSERT_EQ(::chmod(Path().c_str(), 0666), 0);
    ASSERT_EQ(::chmod(folder.c_str(), 0555), 0);
    EXPECT_EQ(SaveAsOrdinaryUser("making the new file beside it: Permission denied"), 0);
    ASSERT_EQ(::chmod(folder.c_str(), 0755), 0);
    ExpectUnchanged();
}

TEST_P(ReadOnly, MountIsToldAsWhatItIs)
{
    const auto mountAndSave = [&] {
        EnterPrivateMounts();
        MountReadOnly(folder);
        ASSERT_FALSE(testing::Test::HasFailure());
        way->Prepare();
        ExpectRefused("the file is protected from writing: Read-only file system");
    };
    const int code = hlxtest::InChild(mountAndSave);
    ASSERT_ENDED_WITH_MOUNTS(code);
    ExpectUnchanged();
}

}  // namespace
}  // namespace durabilitytest
