// SPDX-License-Identifier: Apache-2.0
// Documents under hostile file names: a file of exactly that name in exactly that folder, or a
// refusal and no file.
#include "VEXDocumentServices.h"
#include "names/HostileNames.h"
#include "names/QuotedText.h"
#include "support/Capture.h"
#include "support/TemporaryFolder.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <filesystem>

namespace hlxtest {

namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::IsEmpty;

/// The current folder while it lives.
class InFolder
{
public:
    explicit InFolder(const std::string& folder) { fs::current_path(folder); }
    ~InFolder() { fs::current_path(_former); }
    InFolder(const InFolder&) = delete;
    InFolder& operator=(const InFolder&) = delete;

private:
    fs::path _former = fs::current_path();
};

class DocumentFiles : public testing::Test
{
protected:
    ~DocumentFiles() override { Close(); }

    void Close()
    {
        if (document != nullptr) {
            EXPECT_EQ(VEXDocumentServices::Remove(*document, 1), S_OK);
        }
        document = nullptr;
    }

    void Make() { ASSERT_EQ(VEXDocumentServices::New("VEXPart", document), S_OK); }

    HRESULT SaveAs(const std::string& path)
    {
        HRESULT result = E_UNEXPECTED;
        said = Capture([&] {
                   result = VEXDocumentServices::SaveAs(*document, VEXUnicodeString(path), "", 0);
               }).err;
        return result;
    }

    HRESULT Open(const std::string& path)
    {
        HRESULT result = E_UNEXPECTED;
        said = Capture([&] {
                   result = VEXDocumentServices::OpenDocument(VEXUnicodeString(path), document, 0);
               }).err;
        return result;
    }

    /// Of the last refusal: one line that shows the name and says what to do.
    void ExpectARefusal()
    {
        ASSERT_TRUE(said.ends_with("\n"));
        EXPECT_EQ(std::ranges::count(said, '\n'), 1);
        EXPECT_TRUE(IsPlain(std::string_view(said).substr(0, said.size() - 1)));
        EXPECT_TRUE(said.starts_with("vex: '"));
        EXPECT_TRUE(said.find(". Give ") != std::string::npos ||
                    said.find(". Rename ") != std::string::npos)
            << said.substr(said.size() - std::min<std::size_t>(said.size(), 200));
    }

    std::string StorageName() { return std::string(document->StorageName().View()); }

    TemporaryFolder folder;
    VEXDocument* document = nullptr;
    std::string said;
};

TEST_F(DocumentFiles, AreMadeUnderExactlyTheirNameAndFoundUnderIt)
{
    std::vector<std::string> made;
    for (const HostileName& name : StorableFileNames()) {
        SCOPED_TRACE(name.label);
        const std::string path = folder.File(name.bytes);
        Make();
        EXPECT_EQ(SaveAs(path), S_OK) << said;
        EXPECT_EQ(StorageName(), path);
        Close();
        ASSERT_EQ(Open(path), S_OK) << said;
        EXPECT_EQ(StorageName(), path);
        EXPECT_EQ(document->GetType(), "VEXPart");
        EXPECT_EQ(VEXDocumentServices::Save(*document), S_OK);
        Close();
        made.push_back(name.bytes);
    }
    std::ranges::sort(made);
    EXPECT_EQ(folder.Names(), made);
}

TEST_F(DocumentFiles, WithoutAFolderAreMadeInTheCurrentOne)
{
    const InFolder inFolder(folder.Path());
    std::vector<std::string> made;
    for (const HostileName& name : StorableFileNames()) {
        SCOPED_TRACE(name.label);
        Make();
        EXPECT_EQ(SaveAs(name.bytes), S_OK) << said;
        EXPECT_EQ(StorageName(), folder.File(name.bytes));
        Close();
        made.push_back(name.bytes);
    }
    std::ranges::sort(made);
    EXPECT_EQ(folder.Names(), made);
}

TEST_F(DocumentFiles, StandInFoldersOfThoseNames)
{
    for (const HostileName& name : StorableFileNames()) {
        SCOPED_TRACE(name.label);
        const std::string inner = folder.File(name.bytes);
        fs::create_directory(inner);
        Make();
        EXPECT_EQ(SaveAs(inner + "/a.VEXPart"), S_OK) << said;
        Close();
        EXPECT_EQ(Open(inner + "/a.VEXPart"), S_OK) << said;
        Close();
        EXPECT_EQ(std::distance(fs::directory_iterator(inner), {}), 1);
    }
    EXPECT_EQ(folder.Names().size(), StorableFileNames().size());
}

TEST_F(DocumentFiles, AreCopiedFromEachNameToTheNext)
{
    std::string former = folder.File("first.VEXPart");
    Make();
    ASSERT_EQ(SaveAs(former), S_OK) << said;
    const std::string bytes = ReadFile(former);
    for (const HostileName& name : StorableFileNames()) {
        SCOPED_TRACE(name.label);
        Close();
        ASSERT_EQ(Open(former), S_OK) << said;
        former = folder.File(name.bytes);
        ASSERT_EQ(SaveAs(former), S_OK) << said;
        EXPECT_EQ(StorageName(), former);
        EXPECT_EQ(ReadFile(former), bytes);
    }
    EXPECT_EQ(folder.Names().size(), StorableFileNames().size() + 1);
}

TEST_F(DocumentFiles, AreRefusedUnderNamesThatAreNone)
{
    const InFolder inFolder(folder.Path());
    Make();
    HostileNames names = ImpossibleFileNames();
    names.insert(names.end(), UnstorableNames().begin(), UnstorableNames().end());
    for (const HostileName& name : names) {
        for (const std::string& path : {name.bytes, folder.File(name.bytes)}) {
            SCOPED_TRACE(name.label);
            EXPECT_LT(SaveAs(path), 0);
            ExpectARefusal();
            EXPECT_EQ(StorageName(), "");
            EXPECT_THAT(folder.Names(), IsEmpty());
            EXPECT_EQ(fs::directory_iterator(folder.Path()), fs::directory_iterator());
        }
    }
    // One that is stored keeps its place when another one is refused.
    ASSERT_EQ(SaveAs("good.VEXPart"), S_OK);
    for (const HostileName& name : names) {
        EXPECT_LT(SaveAs(name.bytes), 0) << name.label;
        EXPECT_EQ(StorageName(), folder.File("good.VEXPart")) << name.label;
    }
    EXPECT_THAT(folder.Names(), ElementsAre("good.VEXPart"));
}

TEST_F(DocumentFiles, InAFolderWhoseNameIsNoTextAreRefusedHoweverTheyAreNamed)
{
    for (const HostileName& name : ForeignFileNames()) {
        SCOPED_TRACE(name.label);
        const std::string inner = folder.File(name.bytes);
        fs::create_directory(inner);
        const InFolder inFolder(inner);
        Make();
        for (const std::string& path : {inner + "/a.VEXPart", std::string("a.VEXPart")}) {
            EXPECT_EQ(SaveAs(path), E_INVALIDARG);
            ExpectARefusal();
            EXPECT_EQ(fs::directory_iterator(inner), fs::directory_iterator());
        }
        Close();
        WriteFile("there.VEXPart", "");
        EXPECT_EQ(Open("there.VEXPart"), E_INVALIDARG);
        ExpectARefusal();
    }
}

TEST_F(DocumentFiles, AreNotOpenedUnderTheBeginningOfAName)
{
    Make();
    ASSERT_EQ(SaveAs(folder.File("a")), S_OK);
    Close();
    using std::string_literals::operator""s;
    for (const std::string& name : {"a\0"s, "a\0b"s, "a "s, "a\n"s, "a/"s, "a\xFF"s, "a?x"s}) {
        EXPECT_LT(Open(folder.File(name)), 0) << testing::PrintToString(name);
        EXPECT_EQ(document, nullptr);
    }
}

TEST_F(DocumentFiles, PathsOfAnyLengthAreAnsweredAtOnce)
{
    const InFolder inFolder(folder.Path());
    Make();
    for (const std::string piece : {"x", "x/", "./", "../", "/", "\n", "\xFF", "\u00e9/"}) {
        for (const std::size_t size : {4095U, 4096U, 4097U, 1U << 20U}) {
            const std::string path = Repeated(piece, size) + "x";
            // Only a path that leads back to the folder itself, or to the root, can be good.
            const bool mayBe = piece == "./" || piece == "/" || piece == "../";
            const HRESULT result = SaveAs(mayBe ? path + "/x" : path);
            EXPECT_LT(result, 0) << testing::PrintToString(piece) << ' ' << size;
            EXPECT_LE(std::ranges::count(said, '\n'), 1);
        }
    }
    EXPECT_THAT(folder.Names(), IsEmpty());
}

}  // namespace

}  // namespace hlxtest
