// SPDX-License-Identifier: Apache-2.0
// Documents whose linked document cannot be used: they open as ever, what needs the link is refused
// by name, and nothing of the link is lost by saving.
#include "DocumentContents.h"
#include "HLXProductUtilities.h"
#include "LimitedChild.h"
#include "VEXAnalysisModel.h"
#include "VEXDocumentServices.h"
#include "VEXProductStructure.h"
#include "host/feature/DocumentSession.h"
#include "host/product/ProductStructure.h"
#include "support/AnalysisDocuments.h"
#include "support/Capture.h"
#include "support/ResealedDocument.h"
#include "support/TemporaryFolder.h"

#include <gmock/gmock.h>

#include <filesystem>
#include <memory>

namespace {

using namespace damagetest;
using testing::HasSubstr;
namespace fs = std::filesystem;

VEXDocument* Open(const std::string& path)
{
    VEXDocument* document = nullptr;
    EXPECT_EQ(VEXDocumentServices::OpenDocument(VEXUnicodeString(path), document, 0), S_OK);
    return document;
}

/// A product that uses one part.
class DamagedLinks : public testing::Test
{
protected:
    DamagedLinks()
    {
        Store("VEXPart", part, [](vex::Feature& root) { root.SetAlias("the plate"); });
        Store("VEXProduct", top, [&](vex::Feature& root) { Use(root, part); });
        sound = hlxtest::ReadFile(part);
    }
    ~DamagedLinks() override
    {
        while (!Session().Documents().empty()) {
            std::string error;
            Session().Remove(*Session().Documents().front(), true, error);
        }
    }

    static vex::DocumentSession& Session() { return vex::DocumentSession::Instance(); }

    static void Store(const char* type, const std::string& path,
                      const std::function<void(vex::Feature& root)>& fill)
    {
        VEXDocument* document = nullptr;
        ASSERT_EQ(VEXDocumentServices::New(type, document), S_OK);
        fill(*vex::RootObject(*vex::Document::From(document)));
        ASSERT_EQ(VEXDocumentServices::SaveAs(*document, VEXUnicodeString(path), "", 1), S_OK);
        ASSERT_EQ(VEXDocumentServices::Remove(*document, 1), S_OK);
    }

    static void Use(vex::Feature& root, const std::string& path)
    {
        vex::Feature& node = root.Tree()->Create(root.Kind(), &root);
        ASSERT_EQ(node.SetAlias("use"), S_OK);
        ASSERT_EQ(node.Set("Document", vex::Boxed<vex::DocumentLink>(vex::DocumentLink{path})),
                  S_OK);
    }

    /// All that stands below the root of the open product; what it writes goes to `err`.
    static HRESULT Walk(VEXDocument* product, int& size, std::string& err)
    {
        const VEXIDescendants_var root =
            VEXShare<VEXBaseUnknown>(vex::RootObject(*vex::Document::From(product)));
        VEXListValVEXISpecObject_var below;
        HRESULT result = S_OK;
        err = hlxtest::Capture([&] { result = root->GetAllChildren("VEXISpecObject", below); }).err;
        size = below.Size();
        return result;
    }

    /// Lets a child open the product while `spoil` has been at its part; then the part is mended.
    void ExpectLinkRefused(const char* what, const std::string& reason,
                           const std::function<void()>& spoil)
    {
        SCOPED_TRACE(what);
        fs::remove_all(part);
        hlxtest::WriteFile(part, sound);
        spoil();
        ExpectLimited([&] { OpenWithLinkRefused(reason); });
    }

    void OpenWithLinkRefused(const std::string& reason)
    {
        VEXDocument* const product = Open(top);
        ASSERT_NE(product, nullptr);
        const std::string before = FeaturesOf(*vex::Document::From(product));
        int size = 0;
        std::string err;
        EXPECT_EQ(Walk(product, size, err), E_FAIL);
        EXPECT_EQ(size, 0);
        EXPECT_EQ(err, "vex: '" + part + "': " + reason + "\n");

        ASSERT_EQ(VEXDocumentServices::Save(*product), S_OK);
        ASSERT_EQ(VEXDocumentServices::Remove(*product, 0), S_OK);
        EXPECT_TRUE(Session().Documents().empty());
        VEXDocument* const again = Open(top);
        ASSERT_NE(again, nullptr);
        EXPECT_EQ(FeaturesOf(*vex::Document::From(again)), before);

        fs::remove_all(part);
        hlxtest::WriteFile(part, sound);
        EXPECT_EQ(Walk(again, size, err), S_OK);
        EXPECT_EQ(size, 2) << "the use, and the part";
        EXPECT_EQ(err, "");
        EXPECT_EQ(VEXDocumentServices::Remove(*again, 0), S_OK);
    }

    hlxtest::TemporaryFolder folder;
    std::string part = folder.File("plate.VEXPart");
    std::string top = folder.File("top.VEXProduct");
    std::string sound;
};

TEST_F(DamagedLinks, APartThatCannotBeUsedIsRefusedByNameAndItsLinkIsKept)
{
    const auto changed = [&](const char* sql) {
        return [this, sql] {
            std::string error;
            EXPECT_TRUE(hlxtest::ChangeBySql(part, sql, error)) << error;
        };
    };
    ExpectLinkRefused("missing", "there is no such file. Check the path.",
                      [&] { fs::remove(part); });
    ExpectLinkRefused("a folder", "it is a folder. Give the path of a file.", [&] {
        fs::remove(part);
        fs::create_directory(part);
    });
    ExpectLinkRefused("empty",
                      "it is not a document: the file is empty. Give the path of a document.",
                      [&] { hlxtest::WriteFile(part, ""); });
    ExpectLinkRefused("cut off",
                      "the file is damaged: it has 16384 bytes, its header says " +
                          std::to_string(sound.size()) + ". Restore it from a copy.",
                      [&] { hlxtest::WriteFile(part, sound.substr(0, 16384)); });
    ExpectLinkRefused("damaged",
                      "the file is damaged: its content does not match its digest. Restore it from "
                      "a copy.",
                      changed("UPDATE feature SET alias = 'x' WHERE alias = 'the plate'"));
    ExpectLinkRefused("newer",
                      "it was written by a newer program (data version 9, this program reads up to "
                      "1). Open it with the newer program.",
                      changed("PRAGMA user_version = 9"));
    ExpectLinkRefused("an analysis",
                      "it is an analysis document, which cannot be used in a product. Put the "
                      "product or part back in its place.",
                      [&] { hlxtest::StoreAnalysisDocument(part, 1); });
}

TEST_F(DamagedLinks, AnAnalysisTellsWhichOfItsLinksCannotBeOpened)
{
    const std::string path = folder.File("a.VEXAnalysis");
    VEXISamAnalysisManager_var manager;
    VEXISamDocumentManager_var links;
    {
        hlxtest::AnalysisDocument analysis(1);
        analysis.SaveAs(path);
        ASSERT_EQ(HLXAnalysisDocUtils::GetAnalysisManager(manager, analysis.Get()), S_OK);
        ASSERT_EQ(manager->GetDocumentManager(links), S_OK);
        ASSERT_EQ(links->AddLink(Open(top)), S_OK);
        ASSERT_EQ(links->AddLink(Open(part)), S_OK);
        ASSERT_EQ(VEXDocumentServices::Save(*analysis.Get()), S_OK);
    }
    while (!Session().Documents().empty()) {
        ASSERT_EQ(VEXDocumentServices::Remove(*Session().Documents().front()->AsVEXDocument(), 1),
                  S_OK);
    }
    hlxtest::WriteFile(part, "no document");
    const auto openAndSave = [&] {
        VEXDocument* const document = Open(path);
        ASSERT_EQ(HLXAnalysisDocUtils::GetAnalysisManager(manager, document), S_OK);
        ASSERT_EQ(manager->GetDocumentManager(links), S_OK);
        VEXListPtrVEXDocument linked;
        const auto list = [&] { EXPECT_EQ(links->GetLinkedDocuments(linked), S_OK); };
        const std::string err = hlxtest::Capture(list).err;
        ASSERT_EQ(linked.Size(), 2);
        EXPECT_NE(linked[1], nullptr);
        EXPECT_EQ(linked[2], nullptr);
        EXPECT_EQ(err, "vex: linked document: '" + part +
                           "': it is not a document: it does not begin as an SQLite database does. "
                           "Give the path of a document.\n");
        // Saved with the link that cannot be opened, it still has it the second time.
        EXPECT_EQ(VEXDocumentServices::Save(*document), S_OK);
        EXPECT_EQ(VEXDocumentServices::Remove(*document, 0), S_OK);
        EXPECT_TRUE(Session().Documents().empty());
    };
    ExpectLimited(openAndSave);
    ExpectLimited(openAndSave);
}

TEST_F(DamagedLinks, DocumentsThatUseEachOtherOpenWalkAndClose)
{
    ExpectLimited([&] {
        const std::string sub = folder.File("sub.VEXProduct");
        Store("VEXProduct", sub, [&](vex::Feature& root) {
            Use(root, top);
            Use(root, sub);
            Use(root, part);
        });
        Store("VEXProduct", top, [&](vex::Feature& root) {
            Use(root, sub);
            Use(root, top);
        });
        VEXDocument* const product = Open(top);
        int size = 0;
        std::string err;
        EXPECT_EQ(Walk(product, size, err), S_OK) << err;
        EXPECT_EQ(size, 6) << "two uses in top, three in sub, and the part";
        EXPECT_EQ(Session().Documents().size(), 3U);
        EXPECT_EQ(VEXDocumentServices::Remove(*product, 0), S_OK);
        EXPECT_TRUE(Session().Documents().empty());
    });
}

TEST_F(DamagedLinks, ReferencesInACircleAreNoDamage)
{
    const std::string path = folder.File("circle.VEXAnalysis");
    std::string before;
    {
        hlxtest::AnalysisDocument analysis(0);
        vex::Document& document = *vex::Document::From(analysis.Get());
        vex::Feature& root = *document.SpecContainer();
        const vex::LateType& type = vex::LateTypes::Instance().Require("HLXHacAnaStepSolLT");
        vex::Feature& one = document.Tree().Create(type, &root);
        vex::Feature& two = document.Tree().Create(type, &one);
        ASSERT_EQ(one.Set("AnalysisStep", vex::Reference{two.Id()}), S_OK);
        ASSERT_EQ(two.Set("AnalysisStep", vex::Reference{one.Id()}), S_OK);
        vex::Feature& self = document.Tree().Create(type, &two);
        ASSERT_EQ(self.Set("AnalysisStep", vex::Reference{self.Id()}), S_OK);
        analysis.SaveAs(path);
        before = FeaturesOf(document);
    }
    ExpectLimited([&] {
        VEXDocument* const document = Open(path);
        ASSERT_NE(document, nullptr);
        EXPECT_EQ(FeaturesOf(*vex::Document::From(document)), before);
    });
}

}  // namespace
