// SPDX-License-Identifier: Apache-2.0
// Documents whose linked document cannot be used: they open as ever, what needs the link is refused
// by name, and nothing of the link is lost by saving.
#include "DocumentContents.h"
#include "HLXProductUtilities.h"
#include "LimitedChild.h"
#include "LinkedProduct.h"
#include "VEXAnalysisModel.h"
#include "support/AnalysisDocuments.h"
#include "support/ResealedDocument.h"

#include <filesystem>

namespace {

using namespace damagetest;
namespace fs = std::filesystem;

class DamagedLinks : public LinkedProduct
{
protected:
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
        EXPECT_EQ(size, 3) << "the use, the part, and its body";
        EXPECT_EQ(err, "");
        EXPECT_EQ(VEXDocumentServices::Remove(*again, 0), S_OK);
    }
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
    const auto ofType = [](const std::string& type) {
        return "it is a document of type " + type +
               ", and the link to it says VEXPart. Put that one back in its place, or link to "
               "this one anew.";
    };
    ExpectLinkRefused("a product", ofType("VEXProduct"), [&] {
        const std::string product = folder.File("other.VEXProduct");
        Store("VEXProduct", product, [](vex::Feature&) {});
        fs::rename(product, part);
    });
    ExpectLinkRefused("an analysis", ofType("VEXAnalysis"),
                      [&] { hlxtest::StoreAnalysisDocument(part, 1); });
}

TEST_F(DamagedLinks, AnAnalysisIsNothingToUse)
{
    const std::string analysis = folder.File("a.VEXAnalysis");
    hlxtest::StoreAnalysisDocument(analysis, 1);
    Store("VEXProduct", top, [&](vex::Feature& root) { Use(root, analysis); });
    int size = 0;
    std::string err;
    EXPECT_EQ(Walk(Open(top), size, err), E_FAIL);
    EXPECT_EQ(err, "vex: '" + analysis +
                       "': it is an analysis document, which cannot be used in a product. Put the "
                       "product or part back in its place.\n");
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

}  // namespace
