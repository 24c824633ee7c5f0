// SPDX-License-Identifier: Apache-2.0
// Links from an analysis document to others.
#include "host/feature/DocumentSession.h"
#include "reference/analysis/AnalysisFixture.h"
#include "support/Capture.h"
#include "support/TemporaryFolder.h"

#include <filesystem>
#include <vector>

namespace {

using hlxtest::TemporaryFolder;

class Links : public hlxtest::AnalysisTest
{
protected:
    /// Closes what a test opened besides the analysis.
    ~Links() override
    {
        const std::vector<vex::Document*> open = vex::DocumentSession::Instance().Documents();
        for (const vex::Document* const one : open) {
            if (vex::DocumentSession::Instance().IsOpen(one) &&
                one->AsVEXDocument() != document.Get()) {
                VEXDocumentServices::Remove(*one->AsVEXDocument(), 1);
            }
        }
    }

    VEXISamDocumentManager_var DocumentManager()
    {
        VEXISamDocumentManager_var manager;
        EXPECT_EQ(Manager()->GetDocumentManager(manager), S_OK);
        return manager;
    }

    VEXListPtrVEXDocument Linked()
    {
        VEXListPtrVEXDocument documents;
        EXPECT_EQ(DocumentManager()->GetLinkedDocuments(documents), S_OK);
        return documents;
    }

    /// A new document stored in the folder and open.
    VEXDocument* Store(const char* type, const std::string& path)
    {
        VEXDocument* made = nullptr;
        EXPECT_EQ(VEXDocumentServices::New(type, made), S_OK);
        EXPECT_EQ(VEXDocumentServices::SaveAs(*made, VEXUnicodeString(path), "", 0), S_OK);
        return made;
    }

    TemporaryFolder folder;
};

TEST_F(Links, ThereAreNoneAtFirst)
{
    EXPECT_EQ(Linked().Size(), 0);
}

TEST_F(Links, KeepTheirOrderAndCountOnce)
{
    VEXDocument* const product = Store("VEXProduct", folder.File("p.VEXProduct"));
    VEXDocument* const part = Store("VEXPart", folder.File("q.VEXPart"));
    EXPECT_EQ(DocumentManager()->AddLink(product), S_OK);
    EXPECT_EQ(DocumentManager()->AddLink(part), S_OK);
    EXPECT_EQ(DocumentManager()->AddLink(product), S_OK);
    const VEXListPtrVEXDocument documents = Linked();
    ASSERT_EQ(documents.Size(), 2);
    EXPECT_EQ(documents[1], product);
    EXPECT_EQ(documents[2], part);
}

TEST_F(Links, ToADocumentThatBecameOneOfAnotherKindAreMadeAnew)
{
    const std::string path = folder.File("p.VEXProduct");
    VEXDocument* const product = Store("VEXProduct", path);
    ASSERT_EQ(DocumentManager()->AddLink(product), S_OK);
    ASSERT_EQ(VEXDocumentServices::Remove(*product, 1), S_OK);
    std::filesystem::remove(path);
    VEXDocument* const part = Store("VEXPart", path);
    VEXListPtrVEXDocument documents;
    const std::string said = hlxtest::StandardErrorOf([&] { documents = Linked(); });
    ASSERT_EQ(documents.Size(), 1);
    EXPECT_EQ(documents[1], nullptr);
    EXPECT_EQ(said, "vex: linked document: '" + path +
                        "': it is a document of type VEXPart, and the link to it says VEXProduct. "
                        "Put that one back in its place, or link to this one anew.\n");
    EXPECT_EQ(DocumentManager()->AddLink(part), S_OK);
    documents = Linked();
    ASSERT_EQ(documents.Size(), 1);
    EXPECT_EQ(documents[1], part);
}

TEST_F(Links, RefuseWhatCannotBeLinkedTo)
{
    VEXDocument* unsaved = nullptr;
    ASSERT_EQ(VEXDocumentServices::New("VEXProduct", unsaved), S_OK);
    EXPECT_EQ(DocumentManager()->AddLink(unsaved), E_INVALIDARG);
    EXPECT_EQ(VEXDocumentServices::Remove(*unsaved, 1), S_OK);
    EXPECT_EQ(DocumentManager()->AddLink(unsaved), E_INVALIDARG);
    EXPECT_EQ(DocumentManager()->AddLink(nullptr), E_INVALIDARG);
    document.SaveAs(folder.File("a.VEXAnalysis"));
    EXPECT_EQ(DocumentManager()->AddLink(document.Get()), E_INVALIDARG);
    EXPECT_EQ(Linked().Size(), 0);
}

TEST_F(Links, AreOpenedWhenAskedForAndMoveWithTheFolder)
{
    std::filesystem::create_directory(folder.File("one"));
    const std::string product = folder.File("one/p.VEXProduct");
    ASSERT_EQ(DocumentManager()->AddLink(Store("VEXProduct", product)), S_OK);
    document.SaveAs(folder.File("one/a.VEXAnalysis"));
    ASSERT_EQ(VEXDocumentServices::Remove(*document.Release(), 1), S_OK);
    std::filesystem::rename(folder.File("one"), folder.File("two"));

    ASSERT_EQ(VEXDocumentServices::OpenDocument(VEXUnicodeString(folder.File("two/a.VEXAnalysis")),
                                                document.Get(), 0),
              S_OK);
    const VEXListPtrVEXDocument documents = Linked();
    ASSERT_EQ(documents.Size(), 1);
    ASSERT_NE(documents[1], nullptr);
    EXPECT_EQ(documents[1]->StorageName(), folder.File("two/p.VEXProduct").c_str());
}

TEST_F(Links, ThatCannotBeOpenedAreNullAndTold)
{
    const std::string path = folder.File("p.VEXProduct");
    VEXDocument* const product = Store("VEXProduct", path);
    ASSERT_EQ(DocumentManager()->AddLink(product), S_OK);
    document.SaveAs(folder.File("a.VEXAnalysis"));
    ASSERT_EQ(VEXDocumentServices::Remove(*document.Release(), 1), S_OK);
    ASSERT_EQ(VEXDocumentServices::Remove(*product, 1), S_OK);
    std::filesystem::remove(path);

    ASSERT_EQ(VEXDocumentServices::OpenDocument(VEXUnicodeString(folder.File("a.VEXAnalysis")),
                                                document.Get(), 0),
              S_OK);
    VEXListPtrVEXDocument documents;
    const hlxtest::Captured captured = hlxtest::Capture([&] { documents = Linked(); });
    ASSERT_EQ(documents.Size(), 1);
    EXPECT_EQ(documents[1], nullptr);
    EXPECT_EQ(captured.out, "");
    EXPECT_NE(captured.err.find("p.VEXProduct"), std::string::npos) << captured.err;
}

}  // namespace
