// SPDX-License-Identifier: Apache-2.0
// A document stored where nothing may be replaced, while another one stores there: one of them is
// refused, and what the other stored stays. On every file system: some have an operation for that,
// others are known by what they answer to it.
#include "durability/NamedDocument.h"
#include "reference/store/StoreFixture.h"
#include "support/Capture.h"

#include <cerrno>

#include <sys/stat.h>

namespace durabilitytest {
namespace {

using namespace vex::store::test;
namespace system = vex::system;

class KeptFile : public FolderTest, public testing::WithParamInterface<int>
{
protected:
    KeptFile()
    {
        document.SetName(std::string(100'000, 'n'));
        refusal = "vex: '" + path +
                  "': there is such a file already. Give another path, or allow it to be "
                  "replaced.\n";
        if (GetParam() != 0) {
            system::CurrentFileOperations().renameToNew =
                [](const std::string&, const std::string&) { return -GetParam(); };
        }
    }

    /// Puts another file there right before the new one gets its name.
    void ComeFirst()
    {
        const system::FileOperations real = system::SystemFileOperations();
        system::CurrentFileOperations().synchronize = [this, real](int file) {
            WriteFile(path, "another's");
            return real.synchronize(file);
        };
    }

    HRESULT Store()
    {
        HRESULT result = E_FAIL;
        said = hlxtest::StandardErrorOf([&] { result = document.SaveAs(path, false); });
        return result;
    }

    const OperationsGuard guard;
    const std::string path = In("a.VEXAnalysis");
    NamedDocument document;
    std::string refusal;
    std::string said;
};

TEST_P(KeptFile, ThatIsThereBefore)
{
    WriteFile(path, "another's");
    EXPECT_EQ(Store(), E_FAIL);
    EXPECT_EQ(said, refusal);
    EXPECT_EQ(ReadFile(path), "another's");
    fs::remove(path);
    fs::create_symlink("nowhere", path);
    EXPECT_EQ(Store(), E_FAIL);
    EXPECT_EQ(said, refusal);
    fs::remove(path);
    EXPECT_EQ(Store(), S_OK) << said;
    EXPECT_EQ(FileCount(), 1U);
}

TEST_P(KeptFile, ThatCameMeanwhile)
{
    ComeFirst();
    EXPECT_EQ(Store(), E_FAIL);
    EXPECT_EQ(said, refusal);
    EXPECT_EQ(ReadFile(path), "another's");
    EXPECT_EQ(FileCount(), 1U);
}

TEST_P(KeptFile, ThatCameWhileACopyWasMade)
{
    ASSERT_EQ(document.SaveAs(In("first.VEXAnalysis")), S_OK);
    ComeFirst();
    EXPECT_EQ(Store(), E_FAIL);
    EXPECT_EQ(said, refusal);
    EXPECT_EQ(ReadFile(path), "another's");
    EXPECT_EQ(FileCount(), 2U);
}

TEST_P(KeptFile, IsReplacedWhenThatIsAllowed)
{
    ComeFirst();
    EXPECT_EQ(document.SaveAs(path, true), S_OK);
    EXPECT_NE(ReadFile(path), "another's");
    EXPECT_EQ(FileCount(), 1U);
}

INSTANTIATE_TEST_SUITE_P(, KeptFile, testing::Values(0, EINVAL, ENOSYS),
                         [](const testing::TestParamInfo<int>& answer) {
                             return answer.param == 0        ? "AsTheSystemAnswers"
                                    : answer.param == EINVAL ? "WithoutTheOperationOnTheFileSystem"
                                                             : "WithoutTheOperationInTheSystem";
                         });

/// A file system that has no operation to give a file a name that nothing has.
class SecondName : public FolderTest
{
protected:
    SecondName()
    {
        system::CurrentFileOperations().renameToNew = [](const std::string&, const std::string&) {
            return -EINVAL;
        };
    }

    const OperationsGuard guard;
    const std::string path = In("a.VEXAnalysis");
};

TEST_F(SecondName, ThatCannotBeGivenRefusesTheSave)
{
    system::CurrentFileOperations().link = [](const std::string&, const std::string&) {
        return -EPERM;
    };
    NamedDocument document;
    EXPECT_EQ(hlxtest::StandardErrorOf([&] { EXPECT_EQ(document.SaveAs(path, false), E_FAIL); }),
              "vex: '" + path +
                  "': saving failed: giving the new file its name: Operation not permitted. Check "
                  "the folder's permissions and the room on the disk, or save to another place; "
                  "the file as it was before is untouched.\n");
    EXPECT_EQ(FileCount(), 0U);
}

TEST_F(SecondName, IsEnoughAndTheNextSaveRemovesTheFirst)
{
    NamedDocument document;
    document.SetName("kept");
    {
        const OperationsGuard whileNothingIsRemoved;
        system::CurrentFileOperations().remove = [](const std::string&) { return -EIO; };
        ASSERT_EQ(document.SaveAs(path, false), S_OK);
    }
    EXPECT_EQ(FileCount(), 2U);
    document.SetName("kept, and changed");
    EXPECT_EQ(document.Save(), S_OK);
    EXPECT_EQ(FileCount(), 1U);
}

TEST_F(SecondName, IsNotTriedAfterAnyOtherFailure)
{
    system::CurrentFileOperations().renameToNew = [](const std::string&, const std::string&) {
        return -EIO;
    };
    NamedDocument document;
    EXPECT_NE(hlxtest::StandardErrorOf([&] {
                  EXPECT_EQ(document.SaveAs(path, false), E_FAIL);
              }).find("Input/output error"),
              std::string::npos);
    EXPECT_EQ(FileCount(), 0U);
}

}  // namespace
}  // namespace durabilitytest
