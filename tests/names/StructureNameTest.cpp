// SPDX-License-Identifier: Apache-2.0
// Names of parts and products, and of the documents that hold them, as decks and dumps show them.
#include "host/feature/Document.h"
#include "host/feature/FeatureTree.h"
#include "names/DeckGrammar.h"
#include "names/DumpGrammar.h"
#include "names/HostileNames.h"
#include "names/NamedAnalysis.h"
#include "names/QuotedText.h"
#include "product/treedump/TreeDump.h"
#include "support/Capture.h"
#include "support/InputFileWriter.h"
#include "support/ResealedDocument.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <set>

namespace hlxtest {

namespace {

using vex::Feature;

class StructureNames : public testing::Test
{
protected:
    /// A new document of the session, and its one object.
    static VEXDocument* New(const char* type)
    {
        VEXDocument* document = nullptr;
        EXPECT_EQ(VEXDocumentServices::New(type, document), S_OK);
        return document;
    }
    static Feature& Object(VEXDocument* document)
    {
        return *vex::Document::From(document)->SpecContainer()->Children().front();
    }

    /// Stores a part under `fileName`; answers its path.
    std::string Part(const std::string& fileName, const std::string& alias)
    {
        VEXDocument* const part = New("VEXPart");
        EXPECT_EQ(SetAlias(Object(part), alias), S_OK);
        return Store(part, fileName);
    }

    std::string Store(VEXDocument* document, const std::string& fileName)
    {
        const std::string path = analysis.Folder().File(fileName);
        EXPECT_EQ(VEXDocumentServices::SaveAs(*document, VEXUnicodeString(path), "", 1), S_OK);
        EXPECT_EQ(VEXDocumentServices::Remove(*document, 1), S_OK);
        return path;
    }

    /// A use of the document at `path` in a product.
    static Feature& Use(Feature& parent, const std::string& alias, const std::string& partNumber,
                        const std::string& path)
    {
        Feature& node = parent.Tree()->Create(parent.Kind(), &parent);
        EXPECT_EQ(SetAlias(node, alias), S_OK);
        EXPECT_EQ(node.Set("PartNumber", vex::Boxed<std::string>(partNumber)), S_OK);
        if (!path.empty()) {
            EXPECT_EQ(node.Set("Document", vex::Boxed<vex::DocumentLink>({path})), S_OK);
        }
        return node;
    }

    void Link(const std::string& path)
    {
        Feature& manager = *analysis.Model().Parent();
        Feature& link = manager.Tree()->Create(
            vex::LateTypes::Instance().Require("VEXSamDocumentLink"), &manager);
        EXPECT_EQ(link.Set("Document", vex::Boxed<vex::DocumentLink>({path})), S_OK);
    }

    NamedAnalysis analysis;
};

TEST_F(StructureNames, OfInstancesAndPartsCanBeReadBackFromTheDeck)
{
    VEXDocument* const product = New("VEXProduct");
    std::vector<std::string> instances;
    int number = 0;
    for (const HostileName& name : StorableNames()) {
        const std::string path = Part(std::to_string(++number) + ".VEXPart", name.bytes);
        // Half of the parts have a part number, half are called by their alias.
        Use(Object(product), name.bytes, number % 2 == 0 ? name.bytes : "", path);
        instances.push_back(name.bytes);
    }
    Link(Store(product, "top.VEXProduct"));
    const std::vector<DeckLine> lines = ReadDeck(analysis.Deck());
    std::vector<std::string> parts;
    for (const DeckLine& line : LinesOf(lines, "PART")) {
        parts.push_back(line.Text("NAME"));
    }
    EXPECT_EQ(parts, instances);
    std::vector<std::string> named;
    std::vector<std::string> ofParts;
    for (const DeckLine& line : LinesOf(lines, "INSTANCE")) {
        named.push_back(line.Text("NAME"));
        ofParts.push_back(line.Text("PART"));
    }
    EXPECT_EQ(named, instances);
    EXPECT_EQ(ofParts, instances);

    std::vector<std::string> flat;
    for (const DeckLine& line : ReadDeck(analysis.Deck(true))) {
        if (line.kind == DeckLine::Comment && line.texts.size() == 2) {
            EXPECT_EQ(line.texts.at(0), line.texts.at(1));
            flat.push_back(line.texts.at(0));
        }
    }
    EXPECT_EQ(flat, instances);
}

TEST_F(StructureNames, AreEachGivenOnce)
{
    VEXDocument* const product = New("VEXProduct");
    const std::string one = Part("one.VEXPart", "Bolt");
    Feature& group = Use(Object(product), "a", "", "");
    Use(group, "b", "", one);
    for (const char* const alias : {"a/b", "a/b", "a/b (2)", "a/b (3)", "a/b (2)"}) {
        Use(Object(product), alias, "", one);
    }
    Link(Store(product, "top.VEXProduct"));
    std::set<std::string> names;
    for (const DeckLine& line : LinesOf(ReadDeck(analysis.Deck()), "INSTANCE")) {
        EXPECT_TRUE(names.insert(line.Text("NAME")).second) << line.Text("NAME");
    }
    EXPECT_EQ(names.size(), 6U);
}

TEST_F(StructureNames, OfLinkedFilesAreKeptAndShown)
{
    std::vector<std::string> expected;
    for (const HostileName& name : StorableFileNames()) {
        Link(Part(name.bytes, name.bytes));
        expected.push_back(name.bytes);
    }
    analysis.Reopen();
    VEXISamAnalysisManager_var manager;
    VEXISamDocumentManager_var documents;
    VEXListPtrVEXDocument linked;
    ASSERT_EQ(HLXAnalysisDocUtils::GetAnalysisManager(manager, analysis.Document()), S_OK);
    ASSERT_EQ(manager->GetDocumentManager(documents), S_OK);
    ASSERT_EQ(documents->GetLinkedDocuments(linked), S_OK);
    ASSERT_EQ(linked.Size(), static_cast<int>(expected.size()));
    for (int i = 1; i <= linked.Size(); ++i) {
        const std::string& name = expected[static_cast<std::size_t>(i) - 1];
        ASSERT_NE(linked[i], nullptr) << name;
        EXPECT_EQ(linked[i]->StorageName().View(), analysis.Folder().File(name));
    }
    std::string dump;
    hlx::AppendFeatureTree(dump, *analysis.Model().Parent(), 0);
    std::vector<std::string> shown;
    for (const DumpLine& line : ReadDump(dump)) {
        if (line.type == "VEXSamDocumentLink") {
            shown.push_back(Unquoted(line.attributes.at(0).second));
        }
    }
    EXPECT_EQ(shown, expected);
    std::vector<std::string> parts;
    for (const DeckLine& line : LinesOf(ReadDeck(analysis.Deck()), "PART")) {
        parts.push_back(line.Text("NAME"));
    }
    EXPECT_EQ(parts, expected);
}

TEST_F(StructureNames, OfLinksThatNoFileCanHaveAreRefused)
{
    analysis.Reopen();
    const std::string path = analysis.Folder().File("names.VEXAnalysis");
    const std::string before = ReadFile(path);
    Link("/" + Repeated("x/", std::size_t{1} << 20U) + "a.VEXPart");
    const Captured captured =
        Capture([&] { EXPECT_EQ(VEXDocumentServices::Save(*analysis.Document()), E_FAIL); });
    EXPECT_NE(captured.err.find("link 1: its path has "), std::string::npos) << captured.err;
    EXPECT_NE(captured.err.find(" bytes, more than the 10240 allowed"), std::string::npos);
    EXPECT_TRUE(ReadFile(path) == before);
}

TEST_F(StructureNames, OfLinksThatNoFileCanHaveAreRefusedInADocumentThatHasThem)
{
    Link(Part("bolt.VEXPart", "Bolt"));
    analysis.Reopen();
    const std::string copy = analysis.Folder().File("copy.VEXAnalysis");
    std::filesystem::copy_file(analysis.Folder().File("names.VEXAnalysis"), copy);
    std::string error;
    ASSERT_TRUE(ChangeAndReseal(
        copy, "UPDATE link SET path = printf('%.*c', 10241, 'x') WHERE id = 1", error))
        << error;
    VEXDocument* document = nullptr;
    const Captured captured = Capture([&] {
        EXPECT_EQ(VEXDocumentServices::OpenDocument(VEXUnicodeString(copy), document, 0), E_FAIL);
    });
    EXPECT_EQ(document, nullptr);
    EXPECT_NE(captured.err.find("link 1: its path has 10241 bytes, more than the 10240 allowed"),
              std::string::npos)
        << captured.err;
    ASSERT_TRUE(ChangeAndReseal(
        copy, "UPDATE link SET path = printf('%.*c', 10240, 'x') WHERE id = 1", error))
        << error;
    EXPECT_EQ(VEXDocumentServices::OpenDocument(VEXUnicodeString(copy), document, 0), S_OK);
    ASSERT_NE(document, nullptr);
    EXPECT_EQ(VEXDocumentServices::Remove(*document, 1), S_OK);
}

/// A name holds those above it: ten thousand bytes on each of a hundred levels.
TEST_F(StructureNames, ThatMultiplyAreRefused)
{
    const std::string bolt = Part("bolt.VEXPart", "Bolt");
    VEXDocument* const product = New("VEXProduct");
    Feature* node = &Object(product);
    for (int level = 0; level < 100; ++level) {
        node = &Use(*node, std::string(10'000, 'x'), "", "");
    }
    for (int use = 0; use < 1000; ++use) {
        Use(*node, "y", "", bolt);
    }
    Link(Store(product, "top.VEXProduct"));
    VEXListValVEXBaseUnknown_var cases;
    ASSERT_EQ(HLXAnalysisDocUtils::GetAllAnalysisCases(cases, analysis.Document()), S_OK);
    const std::string path = analysis.Folder().File("refused.inp");
    const Captured captured = Capture([&] {
        EXPECT_EQ(InputFileWriter()->WriteInputFile(VEXUnicodeString(path), cases), E_FAIL);
    });
    EXPECT_EQ(captured.err,
              "vex: HLXIIfwTraverser::WriteInputFile: the names of the product structure, each "
              "with those above it, take more than 256 MiB; shorten the aliases in the product "
              "documents. Nothing was written\n");
    EXPECT_FALSE(FileExists(path));
}

}  // namespace

}  // namespace hlxtest
