// SPDX-License-Identifier: Apache-2.0
// Open documents: one a path, read-only, under new paths, removed with what only they linked to.
#include "TestDocument.h"
#include "VEXFeatures.h"
#include "host/feature/DocumentAdapters.h"
#include "support/TemporaryFolder.h"

#include <gmock/gmock.h>

#include <chrono>
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

    /// Stores all open documents, closes them and opens these for their own sake, those for a
    /// link's.
    void Reopen(const std::vector<std::string>& own, const std::vector<std::string>& linked)
    {
        for (Document* const document : session.Documents()) {
            ASSERT_EQ(session.Save(*document, error), S_OK) << error;
        }
        while (Count() > 0) {
            ASSERT_EQ(Remove(*session.Documents().front(), true), S_OK) << error;
        }
        for (const std::string& name : own) {
            Open(folder.File(name));
        }
        for (const std::string& name : linked) {
            ASSERT_NE(session.OpenLinked({folder.File(name)}, error), nullptr) << error;
        }
    }

    Document* Known(const std::string& name) const { return session.Find(folder.File(name)); }

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
    EXPECT_EQ(session.OpenLinked({path}, error), &document);
    EXPECT_TRUE(document.IsReadOnly());

    EXPECT_EQ(session.SaveAs(document, folder.File("b.VEXPart"), "", false, error), S_OK) << error;
    EXPECT_EQ(document.Path(), folder.File("b.VEXPart"));
    EXPECT_EQ(session.Save(document, error), S_OK) << error;
    EXPECT_EQ(hlxtest::ReadFile(path), before);
}

TEST_F(DocumentSessionTest, ALinkLeadsToTheKindOfDocumentThatItSaysOnly)
{
    const std::string reason =
        "'" + path +
        "': it is a document of type VEXPart, and the link to it says VEXProduct. Put that one "
        "back in its place, or link to this one anew.";
    Document& document = StoreOpen(path);
    EXPECT_EQ(session.OpenLinked({path, DocumentType::Part}, error), &document);
    EXPECT_EQ(session.OpenLinked({path, DocumentType::Product}, error), nullptr);
    EXPECT_EQ(error, reason);
    EXPECT_EQ(Count(), 1U);
    Remove(document);
    error.clear();
    EXPECT_EQ(session.OpenLinked({path, DocumentType::Product}, error), nullptr);
    EXPECT_EQ(error, reason);
    EXPECT_EQ(Count(), 0U) << "what the link does not say is not kept open";
    EXPECT_NE(session.OpenLinked({path, DocumentType::Part}, error), nullptr);
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

TEST_F(DocumentSessionTest, ADocumentIsFoundUnderItsNewPathOnly)
{
    Document& document = StoreOpen(path);
    const std::string moved = folder.File("moved.VEXPart");
    hlxtest::WriteFile(moved, "");
    std::filesystem::create_symlink(moved, folder.File("link.VEXPart"));
    ASSERT_EQ(session.SaveAs(document, folder.File("link.VEXPart"), "", true, error), S_OK)
        << error;
    EXPECT_EQ(session.Find(path), nullptr);
    EXPECT_EQ(Known("link.VEXPart"), &document);
    EXPECT_EQ(Known("moved.VEXPart"), &document);
    Document& other = Open(path);
    EXPECT_NE(&other, &document);
    EXPECT_EQ(Remove(document), S_OK) << error;
    EXPECT_EQ(Known("link.VEXPart"), nullptr);
    EXPECT_EQ(Known("moved.VEXPart"), nullptr);
    EXPECT_EQ(session.Find(path), &other);
}

TEST_F(DocumentSessionTest, MissesDoNotSlowDownWithTheDocumentsThatAreOpen)
{
    StoreOpen(path);
    const auto timeOfMisses = [&] {
        const auto start = std::chrono::steady_clock::now();
        for (int i = 0; i < 2000; ++i) {
            EXPECT_EQ(Known("none.VEXPart"), nullptr);
        }
        return std::chrono::steady_clock::now() - start;
    };
    const auto withOneOpen = timeOfMisses();
    for (int i = 0; i < 300; ++i) {
        const std::string copy = folder.File(std::to_string(i) + ".VEXPart");
        std::filesystem::copy_file(path, copy);
        Open(copy);
    }
    EXPECT_LT(timeOfMisses(), 20 * withOneOpen);
}

TEST_F(DocumentSessionTest, RemovingTakesThoseWithItThatOnlyItLinkedTo)
{
    StoreOpen(folder.File("shared.VEXPart"));
    StoreOpen(folder.File("own.VEXPart"));
    StoreOpen(folder.File("below.VEXPart"));
    Document& user = StoreOpen(folder.File("user.VEXProduct"), DocumentType::Product);
    Document& other = StoreOpen(folder.File("other.VEXProduct"), DocumentType::Product);
    Link(user, folder.File("shared.VEXPart"));
    Link(user, folder.File("own.VEXPart"));
    Link(user, folder.File("not-there.VEXPart"));
    Link(*Known("own.VEXPart"), folder.File("below.VEXPart"));
    Link(other, folder.File("shared.VEXPart"));
    Reopen({"user.VEXProduct", "other.VEXProduct"},
           {"shared.VEXPart", "own.VEXPart", "below.VEXPart"});

    EXPECT_EQ(Remove(*Known("shared.VEXPart")), E_FAIL);
    EXPECT_THAT(error, HasSubstr("links to it"));
    EXPECT_EQ(Count(), 5U);
    EXPECT_EQ(Remove(*Known("user.VEXProduct")), S_OK) << error;
    EXPECT_EQ(session.Documents(),
              (std::vector<Document*>{Known("other.VEXProduct"), Known("shared.VEXPart")}));
    EXPECT_EQ(Remove(*Known("shared.VEXPart"), true), S_OK) << error;
    EXPECT_EQ(session.Documents(), std::vector<Document*>{Known("other.VEXProduct")});
}

TEST_F(DocumentSessionTest, RemovingKeepsWhatTheProgramOpenedItself)
{
    Document& user = StoreOpen(folder.File("user.VEXProduct"), DocumentType::Product);
    Document& middle = StoreOpen(folder.File("middle.VEXPart"));
    StoreOpen(folder.File("below.VEXPart"));
    StoreOpen(folder.File("made.VEXPart"));
    Link(user, middle.Path());
    Link(user, folder.File("made.VEXPart"));
    Link(middle, folder.File("below.VEXPart"));
    Reopen({"user.VEXProduct"}, {"middle.VEXPart", "below.VEXPart", "made.VEXPart"});
    // A document that a link opened first is the program's once the program asks for it.
    Add(*Open(folder.File("middle.VEXPart")).SpecContainer(), "TestThing", "unsaved");

    EXPECT_EQ(Remove(*Known("user.VEXProduct")), S_OK) << error;
    EXPECT_EQ(session.Documents(),
              (std::vector<Document*>{Known("middle.VEXPart"), Known("below.VEXPart")}));
    EXPECT_EQ(Remove(*Known("middle.VEXPart")), S_OK) << error;
    EXPECT_EQ(Count(), 0U);
}

TEST_F(DocumentSessionTest, DocumentsThatLinkInACircleGoTogether)
{
    Document& a = StoreOpen(path);
    Document& b = StoreOpen(folder.File("b.VEXPart"));
    StoreOpen(folder.File("c.VEXPart"));
    Link(a, b.Path());
    Link(b, a.Path());
    Link(b, b.Path());
    EXPECT_EQ(Remove(a), E_FAIL) << "b is the program's: it stays and links to a";
    Reopen({"a.VEXPart", "c.VEXPart"}, {"b.VEXPart"});
    EXPECT_EQ(Remove(*Known("a.VEXPart")), S_OK) << error;
    EXPECT_EQ(session.Documents(), std::vector<Document*>{Known("c.VEXPart")});
}

TEST_F(DocumentSessionTest, ADocumentOfACircleThatAnotherOneNeedsKeepsItsPartner)
{
    Document& a = StoreOpen(path);
    Document& b = StoreOpen(folder.File("b.VEXPart"));
    Document& x = StoreOpen(folder.File("x.VEXProduct"), DocumentType::Product);
    Link(a, b.Path());
    Link(b, a.Path());
    Link(x, b.Path());
    Reopen({"a.VEXPart", "x.VEXProduct"}, {"b.VEXPart"});
    EXPECT_EQ(Remove(*Known("a.VEXPart")), E_FAIL);
    EXPECT_THAT(error, HasSubstr("b.VEXPart' links to it"));
    EXPECT_EQ(Count(), 3U);
    EXPECT_EQ(Remove(*Known("a.VEXPart"), true), S_OK) << error;
    EXPECT_EQ(session.Documents(),
              (std::vector<Document*>{Known("x.VEXProduct"), Known("b.VEXPart")}));
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
