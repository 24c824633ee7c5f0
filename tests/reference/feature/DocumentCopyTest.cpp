// SPDX-License-Identifier: Apache-2.0
// A document that is as it was stored is stored elsewhere as a copy of its file; never as a copy of
// anything else.
#include "TestDocument.h"
#include "host/feature/DocumentStorage.h"
#include "host/system/FileOperations.h"
#include "support/TemporaryFolder.h"

#include <gmock/gmock.h>

#include <cerrno>
#include <filesystem>
#include <fstream>

namespace {

using namespace vex;
using featuretest::Add;
using hlxtest::ReadFile;
using testing::HasSubstr;

class DocumentCopyTest : public testing::Test
{
protected:
    DocumentCopyTest()
    {
        const DocumentHolder made = featuretest::MakeDocument();
        Feature& root = *made->Tree().Roots().front();
        for (int i = 0; i < 2000; ++i) {
            Add(root, "TestThing", "name " + std::to_string(i)).Set("Count", std::int64_t{i});
        }
        EXPECT_TRUE(SaveDocument(*made, original, error)) << error;
        document = LoadDocument(original, error);
        EXPECT_NE(document, nullptr) << error;
    }
    ~DocumentCopyTest() override
    {
        system::CurrentFileOperations() = system::SystemFileOperations();
    }

    /// How many writes storing the document under `path` takes: more than ten when it is written
    /// row by row, fewer when its file is copied.
    int Writes(const std::string& path)
    {
        const system::FileOperations real = system::SystemFileOperations();
        int writes = 0;
        system::CurrentFileOperations().write = [&](int file, const void* bytes, std::size_t size,
                                                    std::int64_t offset) {
            ++writes;
            return real.write(file, bytes, size, offset);
        };
        EXPECT_TRUE(SaveDocument(*document, path, error)) << error;
        system::CurrentFileOperations() = real;
        return writes;
    }

    std::string OutlineOf(const std::string& path)
    {
        const DocumentHolder read = LoadDocument(path, error);
        return read == nullptr ? error : featuretest::Outline(*read->Tree().Roots().front());
    }

    Feature& First() { return *document->Tree().Roots().front()->Children().front(); }

    hlxtest::TemporaryFolder folder;
    std::string original = folder.File("a.VEXPart");
    std::string copy = folder.File("b.VEXPart");
    std::string error;
    DocumentHolder document;
};

TEST_F(DocumentCopyTest, AnUnchangedDocumentIsCopied)
{
    EXPECT_LT(Writes(copy), 10);
    EXPECT_EQ(ReadFile(copy), ReadFile(original));
    // The copy is where it is stored now: the original is not needed any more.
    std::filesystem::remove(original);
    EXPECT_LT(Writes(folder.File("c.VEXPart")), 10);
    EXPECT_EQ(ReadFile(folder.File("c.VEXPart")), ReadFile(copy));
}

TEST_F(DocumentCopyTest, WhatWasJustSavedIsCopied)
{
    First().SetAlias("new");
    EXPECT_GT(Writes(original), 10);
    EXPECT_LT(Writes(copy), 10);
    EXPECT_EQ(ReadFile(copy), ReadFile(original));
    EXPECT_THAT(OutlineOf(copy), HasSubstr("'new'"));
}

TEST_F(DocumentCopyTest, OntoItsOwnFileItIsWrittenAnew)
{
    const std::string before = ReadFile(original);
    EXPECT_GT(Writes(original), 10);
    EXPECT_EQ(ReadFile(original), before);
}

TEST_F(DocumentCopyTest, AnyChangeIsStored)
{
    using Change = std::function<void()>;
    const std::pair<const char*, Change> changes[] = {
        {"alias", [&] { First().SetAlias("other"); }},
        {"value", [&] { First().Set("Count", std::int64_t{-7}); }},
        {"no value", [&] { First().Unset(First().Kind().IndexOf("Count")); }},
        {"new feature", [&] { Add(First()); }},
        {"deleted", [&] { document->Tree().Delete(First()); }},
        {"moved",
         [&] {
             FeatureTree& tree = document->Tree();
             EXPECT_TRUE(tree.Move(First(), tree.Roots().front(), nullptr));
         }},
        {"geometry", [&] { document->AddGeometry({std::byte{1}}); }},
    };
    for (const auto& [what, change] : changes) {
        SCOPED_TRACE(what);
        document = LoadDocument(original, error);
        ASSERT_NE(document, nullptr) << error;
        change();
        EXPECT_GT(Writes(copy), 10);
        EXPECT_NE(ReadFile(copy), ReadFile(original));
        EXPECT_EQ(OutlineOf(copy), featuretest::Outline(*document->Tree().Roots().front()));
    }
}

TEST_F(DocumentCopyTest, AFileThatIsNotTheOneReadIsNotCopied)
{
    const std::string stored = ReadFile(original);
    std::string flipped = stored;
    flipped[stored.size() / 2] ^= 1;
    const auto put = [&](const std::string& bytes) {
        std::ofstream(original, std::ios::binary | std::ios::trunc) << bytes;
    };
    const std::pair<const char*, std::function<void()>> fates[] = {
        {"one bit", [&] { put(flipped); }},
        {"shorter", [&] { put(stored.substr(0, stored.size() / 2)); }},
        {"longer", [&] { put(stored + "x"); }},
        {"gone", [&] { std::filesystem::remove(original); }},
        {"a folder",
         [&] {
             std::filesystem::remove(original);
             std::filesystem::create_directory(original);
         }},
    };
    for (const auto& [what, fate] : fates) {
        SCOPED_TRACE(what);
        document->SetStored(original, document->Stored()->summary, false);
        fate();
        EXPECT_GT(Writes(copy), 10);
        EXPECT_EQ(ReadFile(copy), stored);
        std::filesystem::remove(original);
        put(stored);
    }
}

// This process's memory: a file that the system says is empty and that cannot be read at its begin.
TEST_F(DocumentCopyTest, AFileThatCannotBeReadIsNotNeeded)
{
    const system::FileSummary empty{0, document->Stored()->summary.digest};
    document->SetStored("/proc/self/mem", empty, false);
    EXPECT_GT(Writes(copy), 10);
    EXPECT_EQ(ReadFile(copy), ReadFile(original));
    const std::filesystem::directory_iterator files(std::filesystem::path(copy).parent_path());
    EXPECT_EQ(std::distance(begin(files), end(files)), 2);
}

TEST_F(DocumentCopyTest, LinksAreWrittenAnewForAnotherFolder)
{
    First().Set("File", Boxed<DocumentLink>(DocumentLink{folder.File("parts/p.VEXPart")}));
    ASSERT_TRUE(SaveDocument(*document, original, error)) << error;
    std::filesystem::create_directory(folder.File("sub"));
    EXPECT_LT(Writes(copy), 10) << "in the same folder they are the same";
    EXPECT_GT(Writes(folder.File("sub/c.VEXPart")), 10);
    const DocumentHolder read = LoadDocument(folder.File("sub/c.VEXPart"), error);
    ASSERT_NE(read, nullptr) << error;
    const Feature& first = *read->Tree().Roots().front()->Children().front();
    EXPECT_EQ(first.GetAs<DocumentLink>("File").path, folder.File("parts/p.VEXPart"));
}

TEST_F(DocumentCopyTest, ACopyThatFailsLeavesNothing)
{
    std::ofstream(copy) << "what was there";
    system::CurrentFileOperations().write = [](int, const void*, std::size_t, std::int64_t) {
        return -ENOSPC;
    };
    EXPECT_FALSE(SaveDocument(*document, copy, error));
    EXPECT_EQ(error,
              "'" + copy +
                  "': saving failed: writing the document: No space left on device. Check the "
                  "folder's permissions and the room on the disk, or save to another place; "
                  "the file as it was before is untouched.");
    EXPECT_EQ(ReadFile(copy), "what was there");
    system::CurrentFileOperations() = system::SystemFileOperations();
    system::CurrentFileOperations().rename = [](const std::string&, const std::string&) {
        return -EIO;
    };
    EXPECT_FALSE(SaveDocument(*document, copy, error));
    EXPECT_THAT(error, HasSubstr("giving the new file its name: Input/output error"));
    EXPECT_EQ(ReadFile(copy), "what was there");
    const std::filesystem::directory_iterator files(std::filesystem::path(copy).parent_path());
    EXPECT_EQ(std::distance(begin(files), end(files)), 2);
}

}  // namespace
