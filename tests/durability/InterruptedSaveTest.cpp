// SPDX-License-Identifier: Apache-2.0
// A save that fails or dies at any of its file operations leaves the old state or the new one,
// whole, and nothing for ever.
#include "durability/SavingTest.h"

#include <cerrno>
#include <csignal>

namespace durabilitytest {
namespace {

using testing::HasSubstr;
using testing::IsEmpty;
using vex::store::test::ReadFile;

class InterruptedSave : public SavingTest
{};

INSTANTIATE_TEST_SUITE_P(By, InterruptedSave, testing::ValuesIn(KindsOfSaves()), NameOfKind);

TEST_P(InterruptedSave, FailingAtEachOperationKeepsTheOldStateAndTheNextSaveSucceeds)
{
    const std::string old = ReadFile(Path());
    const int count = CountOperations();
    ASSERT_GE(count, 6) << "to make, write more than once, synchronise, rename, synchronise";
    const auto failAt = [&](int failing, bool fromThenOn) {
        way->Prepare();
        std::string error;
        {
            int done = 0;
            const Interception interception([&](std::string_view operation) {
                if (operation == "remove") return 0;
                ++done;
                return done == failing || (fromThenOn && done > failing) ? -ENOSPC : 0;
            });
            EXPECT_FALSE(way->Save(error));
        }
        EXPECT_THAT(error, HasSubstr(std::string(WayToSave::kFile) + '\''));
        EXPECT_THAT(error, HasSubstr("No space left on device"));
        EXPECT_THAT(Strays(), IsEmpty());
        if (failing < count) {
            EXPECT_TRUE(ReadFile(Path()) == old);
            EXPECT_THAT(error, HasSubstr("Check the folder's permissions and the room on the disk, "
                                         "or save to another place; the file as it was before is "
                                         "untouched."));
        } else {  // only synchronising the folder failed
            EXPECT_THAT(error, HasSubstr("The new content is in place"));
        }
        if (fromThenOn) return;
        EXPECT_TRUE(way->Save(error)) << error;
        EXPECT_THAT(Strays(), IsEmpty());
    };
    for (int failing = 1; failing <= count; ++failing) {
        for (const bool fromThenOn : {true, false}) {
            EXPECT_EQ(hlxtest::InChild([&] { failAt(failing, fromThenOn); }), 0)
                << "operation " << failing << " of " << count
                << (fromThenOn ? " and all after it" : "");
            EXPECT_EQ(way->State(), fromThenOn && failing < count ? "old" : "new") << failing;
            vex::store::test::WriteFile(Path(), old);
        }
    }
}

// The stray file of one death is there when the next save begins, so that the removal of strays is
// among the operations at which a process dies.
TEST_P(InterruptedSave, KilledAtEachOperationIsWholeAndTheNextSaveRemovesWhatItLeft)
{
    const std::string old = ReadFile(Path());
    const int count = CountOperations();
    const auto killAt = [&](int killing) {
        const int operations = count + (Strays().empty() ? 0 : 1);
        const int end = hlxtest::InChild([&] {
            way->Prepare();
            int done = 0;
            const Interception interception([&](std::string_view) {
                if (++done == killing) ::raise(SIGKILL);
                return 0;
            });
            std::string error;
            EXPECT_TRUE(way->Save(error)) << error;
        });
        EXPECT_EQ(end, killing <= operations ? -SIGKILL : 0) << killing;
        EXPECT_EQ(way->State(), killing < operations ? "old" : "new") << killing;
        EXPECT_LE(Strays().size(), 1U) << killing;
        vex::store::test::WriteFile(Path(), old);
    };
    killAt(1);
    EXPECT_THAT(Strays(), IsEmpty()) << "died before the new file was made";
    killAt(2);
    EXPECT_EQ(Strays().size(), 1U);
    killAt(1);
    EXPECT_EQ(Strays().size(), 1U) << "died before the stray file was removed";
    for (int killing = 2; killing <= count + 1; ++killing)
        killAt(killing);
    killAt(count - 2);
    EXPECT_EQ(Strays().size(), 1U);
    EXPECT_EQ(hlxtest::InChild([&] {
                  way->Prepare();
                  std::string error;
                  EXPECT_TRUE(way->Save(error)) << error;
              }),
              0);
    EXPECT_EQ(way->State(), "new");
    EXPECT_THAT(Strays(), IsEmpty());
}

}  // namespace
}  // namespace durabilitytest
