// SPDX-License-Identifier: Apache-2.0
// Open documents: one a path, read-only, under new paths, removed with what only they linked to.
#include "TestDocument.h"
#include "VEXFeatures.h"
#include "host/feature/DocumentAdapters.h"
#include "support/TemporaryFolder.h"

#include <gmock/gmock.h>

#include <filesystem>

namespace {

using namespace vex;
using featuretest::Add;
using featuretest::Link;
using featuretest::Open;
using featuretest::StoreOpen;
using testing::HasSubstr;

class DocumentSessionTest : public testing::Test
{
protected:
    DocumentSession& session = DocumentSession::Instance();
    hlxtest::TemporaryFolder folder;
    featuretest::ClosesAll closesAll;
    std::string error;
    std::string path = folder.File("a.VEXPart");

    HRESULT Remove(Document& document, bool force = false)
    {
        return session.Remove(document, force, error);
    }

    /// The number of documents that are open.
    std::size_t Count() const { return session.Documents().size(); }
};

TEST_F(DocumentSessionTest, OnePathIsOneDocumentHoweverItIsWritten)
{
    Document& document = StoreOpen(path);
    std::filesystem::create_directory(folder.File("sub"));
    std::filesystem::create_symlink(path, folder.File("link.VEXPart"));
    EXPECT_EQ(&Open(path), &document);
    EXPECT_EQ(&Open(folder.File("./sub/../a.VEXPart")), &document);
    EXPECT_EQ(&Open(folder.File("link.VEXPart")), &document);
    const std::filesystem::path before = std::filesystem::current_path();
    std::filesystem::current_path(folder.Path());
    EXPECT_EQ(&Open("a.VEXPart"), &document);
    std::filesystem::current_path(before);
    EXPECT_EQ(Count(), 1U);
}

TEST_F(DocumentSessionTest, TheTypeMayBeBareOrAFileEnding)
{
    for (const auto& [text, type] : std::initializer_list<std::pair<const char*, DocumentType>>{
             {"VEXPart", DocumentType::Part},
             {"VEXProduct", DocumentType::Product},
             {"/some/where/b.VEXAnalysis", DocumentType::Analysis}}) {
        Document* document = nullptr;
        ASSERT_EQ(session.New(text, document, error), S_OK) << text;
        EXPECT_EQ(document->DocType(), type);
        EXPECT_TRUE(document->Path().empty());
    }
    for (const char* const text : {"", "part", "VEXPart ", "VEXPart.txt", "vexpart", "xVEXPart"}) {
        Document* document = nullptr;
        EXPECT_EQ(session.New(text, document, error), E_INVALIDARG) << text;
        EXPECT_EQ(document, nullptr);
        EXPECT_THAT(error, HasSubstr("no document type"));
    }
}

TEST_F(DocumentSessionTest, ImpossiblePathsAreRefused)
{
    Document* document = &StoreOpen(path);
    Document* opened = nullptr;
    for (const std::string& bad :
         {std::string(), std::string("x/"), std::string("a\0b", 3), folder.File(".."),
          folder.File(std::string(248, 'n')), folder.File("\xFF.VEXPart")}) {
        EXPECT_EQ(session.Open(bad, false, opened, error), E_INVALIDARG) << bad;
        EXPECT_EQ(session.SaveAs(*document, bad, "", true, error), E_INVALIDARG) << bad;
        EXPECT_EQ(opened, nullptr);
    }
    // These are names of files like any other.
    for (const char* const odd : {":memory:", "file:x?mode=memory", "a b\nc.VEXPart", "%41"}) {
        EXPECT_EQ(session.SaveAs(*document, folder.File(odd), "", false, error), S_OK)
            << odd << error;
        EXPECT_TRUE(std::filesystem::exists(folder.File(odd)));
    }
    EXPECT_EQ(session.Open(folder.Path(), false, opened, error), E_FAIL);
}

TEST_F(DocumentSessionTest, AReadOnlyDocumentIsNotSavedUnlessUnderAnotherPath)
{
    Remove(StoreOpen(path));
    Document& document = Open(path, true);
    Add(*document.SpecContainer());
    const std::string before = hlxtest::ReadFile(path);
    EXPECT_EQ(session.Save(document, error), E_ACCESSDENIED);
    EXPECT_THAT(error, HasSubstr("opened read-only"));
    EXPECT_EQ(session.SaveAs(document, path, "", true, error), E_ACCESSDENIED);
    EXPECT_EQ(hlxtest::ReadFile(path), before);
    EXPECT_EQ(session.OpenLinked(path, error), &document);
    EXPECT_TRUE(document.IsReadOnly());

    EXPECT_EQ(session.SaveAs(document, folder.File("b.VEXPart"), "", false, error), S_OK) << error;
    EXPECT_EQ(document.Path(), folder.File("b.VEXPart"));
    EXPECT_EQ(session.Save(document, error), S_OK) << error;
    EXPECT_EQ(hlxtest::ReadFile(path), before);
}

TEST_F(DocumentSessionTest, OpeningAgainForSavingAllowsIt)
{
    Remove(StoreOpen(path));
    Document& document = Open(path, true);
    EXPECT_EQ(&Open(path, true), &document);
    EXPECT_EQ(session.Save(document, error), E_ACCESSDENIED);
    EXPECT_EQ(&Open(path, false), &document);
    EXPECT_EQ(session.Save(document, error), S_OK) << error;
}

TEST_F(DocumentSessionTest, SaveAsRefusesWhatItMustNotReplace)
{
    Document& a = StoreOpen(path);
    Document& b = StoreOpen(folder.File("b.VEXPart"));
    hlxtest::WriteFile(folder.File("there"), "text");
    EXPECT_EQ(session.SaveAs(a, folder.File("there"), "", false, error), E_FAIL);
    EXPECT_THAT(error, HasSubstr("there is such a file already"));
    EXPECT_EQ(hlxtest::ReadFile(folder.File("there")), "text");
    EXPECT_EQ(session.SaveAs(a, b.Path(), "", true, error), E_FAIL);
    EXPECT_THAT(error, HasSubstr("another open document is stored there"));
    EXPECT_EQ(session.SaveAs(a, folder.File("c.VEXPart"), "VEXProduct", true, error), E_INVALIDARG);
    EXPECT_EQ(session.SaveAs(a, folder.File("c.VEXPart"), "nothing", true, error), E_INVALIDARG);
    EXPECT_EQ(a.Path(), path);
    EXPECT_EQ(session.SaveAs(a, folder.File("there"), "VEXPart", true, error), S_OK) << error;
    EXPECT_EQ(session.SaveAs(a, folder.File("there"), "", true, error), S_OK) << error;
}

TEST_F(DocumentSessionTest, ADocumentThatWasNeverStoredHasNowhereToBeSaved)
{
    Document* document = nullptr;
    ASSERT_EQ(session.New("VEXPart", document, error), S_OK);
    EXPECT_EQ(session.Save(*document, error), E_FAIL);
    EXPECT_THAT(error, HasSubstr("it has no path yet"));
}

TEST_F(DocumentSessionTest, RemovingTakesThoseWithItThatOnlyItLinkedTo)
{
    Document& shared = StoreOpen(folder.File("shared.VEXPart"));
    Document& own = StoreOpen(folder.File("own.VEXPart"));
    Document& below = StoreOpen(folder.File("below.VEXPart"));
    Document& user = StoreOpen(folder.File("user.VEXProduct"), DocumentType::Product);
    Document& other = StoreOpen(folder.File("other.VEXProduct"), DocumentType::Product);
    Link(user, shared.Path());
    Link(user, own.Path());
    Link(user, folder.File("not-there.VEXPart"));
    Link(own, below.Path());
    Link(other, shared.Path());

    EXPECT_EQ(Remove(shared), E_FAIL);
    EXPECT_THAT(error, HasSubstr("links to it"));
    EXPECT_EQ(Count(), 5U);
    EXPECT_EQ(Remove(user), S_OK) << error;
    EXPECT_EQ(session.Documents(), (std::vector<Document*>{&shared, &other}));
    EXPECT_EQ(Remove(shared, true), S_OK) << error;
    EXPECT_EQ(session.Documents(), std::vector<Document*>{&other});
}

TEST_F(DocumentSessionTest, DocumentsThatLinkInACircleGoTogether)
{
    Document& a = StoreOpen(path);
    Document& b = StoreOpen(folder.File("b.VEXPart"));
    Document& bystander = StoreOpen(folder.File("c.VEXPart"));
    Link(a, b.Path());
    Link(b, a.Path());
    Link(b, b.Path());
    EXPECT_EQ(Remove(a), S_OK) << error;
    EXPECT_EQ(session.Documents(), std::vector<Document*>{&bystander});
}

TEST_F(DocumentSessionTest, ForcedRemovalKeepsWhatOthersReachOtherwise)
{
    Document& part = StoreOpen(folder.File("part.VEXPart"));
    Document& middle = StoreOpen(folder.File("middle.VEXProduct"), DocumentType::Product);
    Document& top = StoreOpen(folder.File("top.VEXProduct"), DocumentType::Product);
    Link(middle, part.Path());
    Link(top, middle.Path());
    EXPECT_EQ(Remove(middle), E_FAIL);
    Link(top, part.Path());
    EXPECT_EQ(Remove(middle, true), S_OK) << error;
    EXPECT_EQ(session.Documents(), (std::vector<Document*>{&part, &top}));
}

TEST_F(DocumentSessionTest, HandlesThatOutliveTheirDocumentAnswerFailureOrNothing)
{
    Document& document = StoreOpen(path);
    const VEXDocument_var held = VEXShare(document.AsVEXDocument());
    const VEXIContainerOfDocument_var containers = held;
    const VEXIDocRoots_var roots = held;
    const VEXISpecObject_var feature = VEXShare(document.SpecContainer()->Face<VEXISpecObject>());
    const VEXIContainer_var container = VEXShare(document.BRepContainer()->Face<VEXIContainer>());
    EXPECT_EQ(held->StorageName(), path.c_str());
    EXPECT_EQ(Remove(document), S_OK);
    EXPECT_EQ(Document::From(held.Get()), nullptr);
    EXPECT_EQ(held->IsNull(), 1);
    EXPECT_TRUE(held->StorageName().IsEmpty());
    EXPECT_TRUE(held->GetType().IsEmpty());
    VEXIContainer* none = nullptr;
    EXPECT_EQ(containers->GetSpecContainer(none), E_FAIL);
    EXPECT_EQ(none, nullptr);
    EXPECT_EQ(containers->GetBRepContainer(none), E_FAIL);
    EXPECT_EQ(roots->GetRoots(), nullptr);
    EXPECT_EQ(feature->IsNull(), 1);
    EXPECT_EQ(container->GetMemberCount("VEXISpecObject"), 0);
    EXPECT_EQ(container->ListMembers("VEXISpecObject"), nullptr);
    EXPECT_EQ(Document::OwnerOf(feature.Get()), nullptr);
    EXPECT_EQ(Document::OwnerOf(held.Get()), nullptr);
}

TEST_F(DocumentSessionTest, KnowsWhoOwnsWhat)
{
    Document& document = StoreOpen(path);
    EXPECT_EQ(Document::From(document.AsVEXDocument()), &document);
    EXPECT_EQ(Document::From(nullptr), nullptr);
    EXPECT_EQ(Document::OwnerOf(document.SpecContainer()->Face<VEXISpecObject>()), &document);
    EXPECT_EQ(Document::OwnerOf(document.AsVEXDocument()), &document);
    EXPECT_EQ(Document::OwnerOf(nullptr), nullptr);
    EXPECT_TRUE(session.IsOpen(&document));
}

}  // namespace
