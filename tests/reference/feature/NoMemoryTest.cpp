// SPDX-License-Identifier: Apache-2.0
// Memory that runs out while a document is made, stored or opened: told like any other failure, and
// nothing that was there is lost.
#include "TestDocument.h"
#include "host/system/FileOperations.h"
#include "host/system/SettingsStore.h"
#include "support/ChildProcess.h"
#include "support/TemporaryFolder.h"

#include <gmock/gmock.h>

#include <new>

namespace {

using namespace vex;
using featuretest::Add;
using featuretest::Outline;

class NoMemory : public testing::Test
{
protected:
    ~NoMemory() override { system::CurrentFileOperations() = system::SystemFileOperations(); }

    /// It runs out at the next `operation` on a file.
    static void RunOutAt(const std::string& operation)
    {
        system::FileOperations& operations = system::CurrentFileOperations();
        if (operation == "create") {
            operations.create = [](const std::string&, unsigned) -> int { throw std::bad_alloc(); };
        } else {
            operations.synchronize = [](int) -> int { throw std::bad_alloc(); };
        }
    }

    std::string Message(const std::string& place) const
    {
        return "'" + place +
               "': there is not enough memory for it. Remove other documents and try again.";
    }

    DocumentSession& session = DocumentSession::Instance();
    hlxtest::TemporaryFolder folder;
    featuretest::ClosesAll closesAll;
    std::string path = folder.File("a.VEXPart");
    std::string error;
};

TEST_F(NoMemory, ToSave)
{
    for (const std::string operation : {"create", "synchronize"}) {
        SCOPED_TRACE(operation);
        Document& document = featuretest::StoreOpen(path);
        const std::string before = hlxtest::ReadFile(path);
        Add(*document.Tree().Roots().front(), "TestThing", "new");
        RunOutAt(operation);
        EXPECT_EQ(session.Save(document, error), E_FAIL);
        EXPECT_EQ(error, Message(path));
        EXPECT_EQ(hlxtest::ReadFile(path), before);
        system::CurrentFileOperations() = system::SystemFileOperations();
        ASSERT_EQ(session.Save(document, error), S_OK) << error;
        ASSERT_EQ(session.Remove(document, true, error), S_OK);
        Document& read = featuretest::Open(path);
        EXPECT_THAT(Outline(*read.Tree().Roots().front()), testing::HasSubstr("TestThing 'new'"));
        ASSERT_EQ(session.Remove(read, true, error), S_OK);
    }
}

TEST_F(NoMemory, ToSaveUnderAnotherPath)
{
    Document& document = featuretest::StoreOpen(path);
    const std::string other = folder.File("b.VEXPart");
    for (const bool changed : {false, true}) {
        if (changed) Add(*document.Tree().Roots().front());
        RunOutAt("synchronize");
        EXPECT_EQ(session.SaveAs(document, other, "", false, error), E_FAIL);
        EXPECT_EQ(error, Message(other));
        EXPECT_EQ(document.Path(), path);
        EXPECT_EQ(session.Find(path), &document);
        EXPECT_EQ(session.Find(other), nullptr);
        system::CurrentFileOperations() = system::SystemFileOperations();
    }
    ASSERT_EQ(session.SaveAs(document, other, "", false, error), S_OK) << error;
}

TEST_F(NoMemory, ForANewDocument)
{
    // In a child: what a type's documents have can be set, but not set back.
    EXPECT_EQ(hlxtest::InChild([&] {
                  // The libraries, which bring structures of their own, are there before ours.
                  EXPECT_TRUE(LateTypes::Instance().AreLoaded(error)) << error;
                  DocumentSession::SetStructure(DocumentType::Part,
                                                [](Document&) { throw std::bad_alloc(); });
                  Document* document = nullptr;
                  EXPECT_EQ(session.New("VEXPart", document, error), E_FAIL);
                  EXPECT_EQ(document, nullptr);
                  EXPECT_TRUE(session.Documents().empty());
                  EXPECT_EQ(error,
                            "a new document of type VEXPart: there is not enough memory for it. "
                            "Remove other documents and try again.");
              }),
              0);
}

TEST_F(NoMemory, ToCommitSettings)
{
    system::SettingsStore store(folder.File("s.VEXSettings"));
    ASSERT_TRUE(store.Set("Length", "mm", error));
    RunOutAt("create");
    EXPECT_FALSE(store.Commit(error));
    EXPECT_EQ(error, Message(store.Path()));
    system::CurrentFileOperations() = system::SystemFileOperations();
    EXPECT_TRUE(store.Commit(error)) << error;
    ASSERT_TRUE(store.Load(error)) << error;
    EXPECT_EQ(store.Get("Length"), "mm");
}

}  // namespace
