// SPDX-License-Identifier: Apache-2.0
// What the writer refuses, and that nothing is lost then.
#include "host/system/FileOperations.h"
#include "reference/inputfile/InputFileFixture.h"
#include "support/ChildProcess.h"
#include "support/Platform.h"

#include <cerrno>
#include <cstdlib>
#include <new>
#include <stdexcept>

#include <unistd.h>

namespace {

class InputFileRefusal : public hlxtest::InputFileTest
{
protected:
    /// Tries to write; answers what was said. The old file stays and nothing stands beside it.
    std::string Refused(const std::vector<VEXBaseUnknown_var>& entries, HRESULT expected)
    {
        hlxtest::WriteFile(path, "old");
        EXPECT_EQ(Write(path, entries), expected);
        EXPECT_EQ(hlxtest::ReadFile(path), "old");
        EXPECT_EQ(folder.Names(), std::vector<std::string>{"case.inp"});
        return said;
    }

    std::string path = folder.File("case.inp");
};

TEST_F(InputFileRefusal, AnEmptyList)
{
    EXPECT_EQ(
        Refused({}, E_INVALIDARG),
        "vex: HLXIIfwTraverser::WriteInputFile: the list of analysis cases is empty; nothing was "
        "written\n");
}

TEST_F(InputFileRefusal, IsAnsweredAlsoWhereNobodyListens)
{
    const HLXIIfwTraverser_var traverser = VEXShare(
        VEXCreateExternalObject("HLXIfwTraverser", nullptr, "HLXIfwExportTraverser", nullptr));
    ASSERT_TRUE(traverser);
    const int end = hlxtest::InChild([&] {
        ::close(STDERR_FILENO);
        VEXListValVEXBaseUnknown_var none;
        EXPECT_EQ(traverser->WriteInputFile(VEXUnicodeString(path), none), E_INVALIDARG);
    });
    EXPECT_EQ(end, 0);
}

TEST_F(InputFileRefusal, AnEmptyEntry)
{
    EXPECT_EQ(
        Refused({Entry(1), nullptr}, E_INVALIDARG),
        "vex: HLXIIfwTraverser::WriteInputFile: entry 2 of the list is empty: give analysis cases "
        "only; nothing was written\n");
}

TEST_F(InputFileRefusal, AnEntryThatIsNoCase)
{
    const VEXBaseUnknown_var model = VEXShare(static_cast<VEXBaseUnknown*>(&Model()));
    const VEXBaseUnknown_var bare = VEXAdopt(new VEXBaseUnknown);
    for (const VEXBaseUnknown_var& entry : {model, bare}) {
        EXPECT_EQ(
            Refused({entry}, E_INVALIDARG),
            "vex: HLXIIfwTraverser::WriteInputFile: entry 1 of the list is no analysis case: give "
            "analysis cases only; nothing was written\n");
    }
}

TEST_F(InputFileRefusal, ACaseOfAnotherModel)
{
    hlxtest::AnalysisDocument other(1);
    VEXListValVEXBaseUnknown_var cases;
    ASSERT_EQ(HLXAnalysisDocUtils::GetAllAnalysisCases(cases, other.Get()), S_OK);
    EXPECT_EQ(
        Refused({Entry(1), cases[1]}, E_INVALIDARG),
        "vex: HLXIIfwTraverser::WriteInputFile: entry 2 of the list is a case of another analysis "
        "model than those before it: write an input file for each model; nothing was "
        "written\n");
}

TEST_F(InputFileRefusal, ACaseWhoseDocumentIsGone)
{
    const VEXBaseUnknown_var entry = Entry(1);
    ASSERT_EQ(VEXDocumentServices::Remove(*document.Release(), 1), S_OK);
    EXPECT_EQ(
        Refused({entry}, E_FAIL),
        "vex: HLXIIfwTraverser::WriteInputFile: entry 1 of the list is an analysis case that was "
        "deleted or whose document was removed: open the document again and get the case from "
        "it; nothing was written\n");
}

TEST_F(InputFileRefusal, APathThatIsNone)
{
    const std::string paths[] = {"", folder.Path() + "/", folder.Path() + "/..",
                                 std::string("a\0b", 3), folder.File(std::string(248, 'n'))};
    for (const std::string& none : paths) {
        EXPECT_EQ(Write(none, {Entry(1)}), E_INVALIDARG) << none;
        EXPECT_TRUE(said.starts_with("vex: HLXIIfwTraverser::WriteInputFile: '")) << said;
    }
    EXPECT_TRUE(folder.Names().empty());
}

TEST_F(InputFileRefusal, AFolderThatIsNotThere)
{
    EXPECT_EQ(Write(folder.File("none/case.inp"), {Entry(1)}), E_FAIL);
    EXPECT_NE(said.find("none/case.inp': saving failed: "), std::string::npos) << said;
    EXPECT_NE(said.find("No such file or directory"), std::string::npos) << said;
    EXPECT_TRUE(folder.Names().empty());
}

TEST_F(InputFileRefusal, AFolderInPlaceOfTheFile)
{
    EXPECT_EQ(Write(folder.Path(), {Entry(1)}), E_FAIL);
    EXPECT_NE(said.find("saving failed: "), std::string::npos) << said;
}

TEST_F(InputFileRefusal, AFullDisk)
{
    vex::system::FileOperations& operations = vex::system::CurrentFileOperations();
    const vex::system::FileOperations before = operations;
    operations.write = [](int, const void*, std::size_t, std::int64_t) { return -ENOSPC; };
    const std::string reason = Refused({Entry(1)}, E_FAIL);
    operations = before;
    EXPECT_NE(
        reason.find("case.inp': saving failed: writing the new file: No space left on device"),
        std::string::npos)
        << reason;
}

TEST_F(InputFileRefusal, WhatIsThrownMeanwhile)
{
    vex::system::FileOperations& operations = vex::system::CurrentFileOperations();
    const vex::system::FileOperations before = operations;
    operations.write = [](int, const void*, std::size_t, std::int64_t) -> int {
        throw std::runtime_error("the disk is on fire");
    };
    const std::string reason = Refused({Entry(1)}, E_FAIL);
    operations.write = [](int, const void*, std::size_t, std::int64_t) -> int {
        throw std::bad_alloc();
    };
    const std::string noMemory = Refused({Entry(1)}, E_OUTOFMEMORY);
    operations = before;
    EXPECT_EQ(reason, "vex: HLXIIfwTraverser::WriteInputFile: the disk is on fire\n");
    EXPECT_EQ(noMemory,
              "vex: HLXIIfwTraverser::WriteInputFile: there is not enough memory for the text; "
              "nothing was written\n");
}

/// In a process of its own: settings are read once.
TEST(InputFileRefusalDeathTest, SettingsThatCannotBeRead)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    const auto writeWithDamagedSettings = [] {
        const hlxtest::TemporaryFolder folder;
        hlxtest::WriteFile(folder.File("settings"), "no settings");
        setenv("VEX_SETTINGS", folder.File("settings").c_str(), 1);
        hlxtest::AnalysisDocument document(1);
        VEXListValVEXBaseUnknown_var cases;
        HLXAnalysisDocUtils::GetAllAnalysisCases(cases, document.Get());
        const HLXIIfwTraverser_var traverser = VEXShare(
            VEXCreateExternalObject("HLXIfwTraverser", nullptr, "HLXIfwExportTraverser", nullptr));
        const std::string path = folder.File("case.inp");
        const HRESULT result = traverser->WriteInputFile(VEXUnicodeString(path), cases);
        return result == E_FAIL && !hlxtest::FileExists(path) ? 7 : 1;
    };
    EXPECT_EXIT(
        std::exit(writeWithDamagedSettings()), testing::ExitedWithCode(7),
        "vex: HLXIIfwTraverser::WriteInputFile: the general settings do not say whether input "
        "files are written flat; correct or remove the settings file. Nothing was written");
}

TEST_F(InputFileRefusal, AFaultOfTheOperationWritesNothing)
{
    const hlxtest::Faults faults("HLXIIfwTraverser::WriteInputFile=E_FAIL");
    EXPECT_EQ(Refused({Entry(1)}, E_FAIL), "");
}

TEST_F(InputFileRefusal, AnExistingFileIsReplacedWhole)
{
    hlxtest::WriteFile(path, std::string(100'000, 'x'));
    EXPECT_EQ(Write(path, {Entry(1)}), S_OK);
    const std::string text = hlxtest::ReadFile(path);
    EXPECT_TRUE(text.starts_with("*HEADING\n"));
    EXPECT_TRUE(text.ends_with("*END CASE\n"));
    EXPECT_EQ(folder.Names(), std::vector<std::string>{"case.inp"});
}

}  // namespace
