// SPDX-License-Identifier: Apache-2.0
// Documents stored where something is already, where a link leads, and where nothing is any more.
#include "durability/NamedDocument.h"
#include "host/feature/DocumentSession.h"
#include "reference/store/StoreFixture.h"
#include "support/Capture.h"

#include <sys/stat.h>

namespace durabilitytest {
namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;
using vex::store::test::ReadFile;
using vex::store::test::WriteFile;

class SavePlaces : public vex::store::test::FolderTest
{
protected:
    SavePlaces() { StoreNamed(path, "old"); }

    // Saves, which is refused with a message that names the path, the reason and a remedy.
    static void ExpectRefused(const std::function<HRESULT()>& save, const std::string& file,
                              const std::string& reason)
    {
        HRESULT result = S_OK;
        const std::string said = hlxtest::StandardErrorOf([&] { result = save(); });
        EXPECT_EQ(result, E_FAIL);
        EXPECT_THAT(said, HasSubstr(file + "': "));
        EXPECT_THAT(said, HasSubstr(reason));
        EXPECT_THAT(said,
                    testing::ContainsRegex(
                        "(S|, or s)ave to another place|Give another path|Remove that document"));
    }

    const std::string path = In("a.VEXAnalysis");
};

TEST_F(SavePlaces, AnExistingDocumentIsReplacedOnlyWhenAllowed)
{
    const std::string other = In("b.VEXAnalysis");
    StoreNamed(other, "other");
    NamedDocument document(path);
    document.SetName("new");
    ExpectRefused([&] { return document.SaveAs(other, false); }, other, "there is such a file");
    EXPECT_EQ(StoredName(other), "other");
    EXPECT_EQ(document.SaveAs(other), S_OK);
    EXPECT_EQ(FileCount(), 2U);
    document.SetName("newer");
    EXPECT_EQ(document.Save(), S_OK) << "the new path is its own";
    EXPECT_EQ(StoredName(path), "old");
    NamedDocument still(path);
    ExpectRefused([&] { return still.SaveAs(other); }, other, "another open document");
}

TEST_F(SavePlaces, AForeignFileIsReplacedOnlyWhenAllowed)
{
    WriteFile(In("text"), "not a document");
    {
        NamedDocument document(path);
        ExpectRefused([&] { return document.SaveAs(In("text"), false); }, In("text"),
                      "such a file");
        EXPECT_EQ(ReadFile(In("text")), "not a document");
        EXPECT_EQ(document.SaveAs(In("text")), S_OK);
    }
    EXPECT_EQ(StoredName(In("text")), "old");
}

TEST_F(SavePlaces, WhatIsNoFileIsNotReplaced)
{
    fs::create_directory(folder / "sub");
    ASSERT_EQ(::mkfifo(In("pipe").c_str(), 0600), 0);
    NamedDocument document(path);
    for (const std::string& place : {In("sub"), In("pipe")}) {
        ExpectRefused([&] { return document.SaveAs(place); }, place, "not a file");
    }
    EXPECT_TRUE(fs::is_directory(folder / "sub"));
    EXPECT_TRUE(fs::is_fifo(folder / "pipe"));
    EXPECT_EQ(FileCount(), 3U);
}

TEST_F(SavePlaces, AFileThatWasRemovedMeanwhileIsMadeAgain)
{
    NamedDocument document(path);
    fs::remove(path);
    EXPECT_EQ(document.Save(), S_OK);
    fs::remove(path);
    fs::create_directory(path);
    ExpectRefused([&] { return document.Save(); }, path, "not a file");
}

TEST_F(SavePlaces, AFolderThatWasRemovedMeanwhileIsToldAndTheDocumentGoesElsewhere)
{
    fs::create_directory(folder / "sub");
    const std::string below = In("sub/a.VEXAnalysis");
    StoreNamed(below, "below");
    NamedDocument document(below);
    document.SetName("changed");
    fs::remove_all(folder / "sub");
    ExpectRefused([&] { return document.Save(); }, below, "opening its folder: No such file");
    EXPECT_FALSE(fs::exists(folder / "sub"));
    WriteFile(In("sub"), "a file in place of the folder");
    ExpectRefused([&] { return document.Save(); }, below, "Not a directory");
    EXPECT_EQ(document.SaveAs(In("b.VEXAnalysis")), S_OK);
    EXPECT_EQ(document.Name(), "changed");
    EXPECT_EQ(ReadFile(In("sub")), "a file in place of the folder");
}

TEST_F(SavePlaces, AFolderThatIsRemovedDuringTheSaveIsTold)
{
    fs::create_directory(folder / "sub");
    const std::string below = In("sub/a.VEXAnalysis");
    StoreNamed(below, "below");
    NamedDocument document(below);
    {
        const vex::store::test::OperationsGuard guard;
        vex::system::CurrentFileOperations().synchronize = [&](int) {
            fs::remove_all(folder / "sub");
            return 0;
        };
        ExpectRefused([&] { return document.Save(); }, below, "giving the new file its name");
    }
    EXPECT_EQ(FileCount(), 1U);
    fs::create_directory(folder / "sub");
    EXPECT_EQ(document.Save(), S_OK);
}

TEST_F(SavePlaces, ASymbolicLinkStaysAndItsTargetIsReplaced)
{
    fs::create_directory(folder / "sub");
    fs::create_symlink("../a.VEXAnalysis", folder / "sub/link");
    fs::create_symlink("link", folder / "sub/link to it");
    {
        NamedDocument document(In("sub/link to it"));
        ASSERT_TRUE(document.IsOpen());
        document.SetName("new");
        EXPECT_EQ(document.Save(), S_OK);
    }
    EXPECT_TRUE(fs::is_symlink(folder / "sub/link"));
    EXPECT_TRUE(fs::is_symlink(folder / "sub/link to it"));
    EXPECT_EQ(StoredName(path), "new");
    EXPECT_EQ(FileCount(), 2U);
}

TEST_F(SavePlaces, ALinkThatLeadsNowhereIsRefused)
{
    fs::create_symlink("nowhere", folder / "dangling");
    fs::create_symlink("loop", folder / "loop");
    NamedDocument document(path);
    for (const std::string& place : {In("dangling"), In("loop")}) {
        ExpectRefused([&] { return document.SaveAs(place); }, place,
                      "symbolic link that cannot be followed");
        EXPECT_TRUE(fs::is_symlink(place));
    }
    EXPECT_FALSE(fs::exists(folder / "nowhere"));
}

// A new file cannot take the place of all names at once: the other names keep what they have.
TEST_F(SavePlaces, OfSeveralHardLinksTheOneNamedGetsTheNewContent)
{
    fs::create_hard_link(path, folder / "kept");
    const std::string before = ReadFile(path);
    {
        NamedDocument document(path);
        document.SetName("new");
        EXPECT_EQ(document.Save(), S_OK);
    }
    EXPECT_EQ(StoredName(path), "new");
    EXPECT_TRUE(ReadFile(In("kept")) == before);
    EXPECT_EQ(fs::hard_link_count(path), 1U);
    EXPECT_EQ(FileCount(), 2U);
}

}  // namespace
}  // namespace durabilitytest
