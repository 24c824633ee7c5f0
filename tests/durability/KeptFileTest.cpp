// SPDX-License-Identifier: Apache-2.0
// A document stored where nothing may be replaced, while another one stores there: one of them is
// refused, and what the other stored stays.
#include "durability/NamedDocument.h"
#include "durability/StandardError.h"
#include "reference/store/StoreFixture.h"

#include <cerrno>

#include <sys/stat.h>

namespace durabilitytest {
namespace {

using namespace vex::store::test;
namespace system = vex::system;

class KeptFile : public FolderTest
{
protected:
    KeptFile()
    {
        document.SetName(std::string(100'000, 'n'));
        refusal = "vex: '" + path +
                  "': there is such a file already. Give another path, or allow it to be "
                  "replaced.\n";
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
        said = StandardErrorOf([&] { result = document.SaveAs(path, false); });
        return result;
    }

    const OperationsGuard guard;
    const std::string path = In("a.VEXAnalysis");
    NamedDocument document;
    std::string refusal;
    std::string said;
};

TEST_F(KeptFile, ThatIsThereBefore)
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

TEST_F(KeptFile, ThatCameMeanwhile)
{
    ComeFirst();
    EXPECT_EQ(Store(), E_FAIL);
    EXPECT_EQ(said, refusal);
    EXPECT_EQ(ReadFile(path), "another's");
    EXPECT_EQ(FileCount(), 1U);
}

TEST_F(KeptFile, ThatCameWhileACopyWasMade)
{
    ASSERT_EQ(document.SaveAs(In("first.VEXAnalysis")), S_OK);
    ComeFirst();
    EXPECT_EQ(Store(), E_FAIL);
    EXPECT_EQ(said, refusal);
    EXPECT_EQ(ReadFile(path), "another's");
    EXPECT_EQ(FileCount(), 2U);
}

TEST_F(KeptFile, IsReplacedWhenThatIsAllowed)
{
    ComeFirst();
    EXPECT_EQ(document.SaveAs(path, true), S_OK);
    EXPECT_NE(ReadFile(path), "another's");
    EXPECT_EQ(FileCount(), 1U);
}

}  // namespace
}  // namespace durabilitytest
