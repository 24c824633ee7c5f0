// SPDX-License-Identifier: Apache-2.0
// Pages that lead to the same bytes again and again: a small file that is as large as one likes to
// whoever reads all of it. Refused before that, by documents and settings alike.
#include "DatabasePages.h"
#include "LimitedChild.h"
#include "VEXDocumentServices.h"
#include "host/system/SettingsStore.h"
#include "support/AnalysisDocuments.h"
#include "support/ResealedDocument.h"
#include "support/TemporaryFolder.h"

#include <gmock/gmock.h>

#include <cstdio>
#include <fstream>

namespace {

using namespace damagetest;
using vex::system::SettingsStore;

struct StoredKind
{
    const char* name;
    std::string applicationId;
    bool (*open)(const std::string& path, std::string& error);
    /// Stores one whose last row has the long text.
    bool (*store)(const std::string& path, const std::string& longText, std::string& error);
    DatabasePages::Kind leaf;  ///< of the pages of its rows
    std::string row;           ///< how the row behind that one is told

    friend void PrintTo(const StoredKind& kind, std::ostream* stream) { *stream << kind.name; }
};

bool OpenDocument(const std::string& path, std::string& /*error*/)
{
    VEXDocument* document = nullptr;
    return SUCCEEDED(VEXDocumentServices::OpenDocument(VEXUnicodeString(path), document, 0));
}

bool LoadSettings(const std::string& path, std::string& error)
{
    SettingsStore store(path);
    const bool loaded = store.Load(error);
    error = loaded ? "" : "vex: " + error + "\n";
    return loaded;
}

bool StoreDocument(const std::string& path, const std::string& longText, std::string& error)
{
    hlxtest::StoreAnalysisDocument(path, 0);
    return hlxtest::ChangeAndReseal(path,
                                    "UPDATE feature SET alias = '" + longText +
                                        "' WHERE position = (SELECT max(position) FROM feature)",
                                    error);
}

bool StoreSettings(const std::string& path, const std::string& longText, std::string& error)
{
    SettingsStore store(path);
    return store.Set("a", longText, error) && store.Commit(error);
}

std::string NameOf(const testing::TestParamInfo<StoredKind>& kind)
{
    return kind.param.name;
}

class SharedPages : public testing::TestWithParam<StoredKind>
{
protected:
    /// In a child, which says the reason to its standard error.
    ChildEnd Open(const DatabasePages& pages)
    {
        std::ofstream(path, std::ios::binary | std::ios::trunc) << pages.Bytes();
        return RunLimited([this] {
            std::string error;
            const bool opened = GetParam().open(path, error);
            std::fputs(error.c_str(), stderr);
            return opened ? 1 : 0;
        });
    }

    void ExpectDamaged(const DatabasePages& pages, const std::string& reason)
    {
        const ChildEnd end = Open(pages);
        EXPECT_EQ(end.code, 0) << testing::PrintToString(end);
        EXPECT_EQ(end.err, "vex: '" + path + "': the file is damaged: " + reason +
                               ". Restore it from a copy.\n");
        EXPECT_LT(end.kibibytes, 512 * 1024) << testing::PrintToString(end);
    }

    /// A file that says it is of this kind, with one table and an index that names it.
    DatabasePages OneIndex(const std::string& pageSize, const std::string& more)
    {
        std::string error;
        EXPECT_TRUE(
            hlxtest::ChangeBySql(path,
                                 "PRAGMA page_size = " + pageSize +
                                     "; PRAGMA application_id = " + GetParam().applicationId +
                                     "; PRAGMA user_version = 1; CREATE TABLE x (a UNIQUE)" + more,
                                 error))
            << error;
        DatabasePages pages(hlxtest::ReadFile(path));
        EXPECT_EQ(pages.CellCount(1), 2U);
        return pages;
    }

    hlxtest::TemporaryFolder folder;
    const std::string path = folder.File("shared.VEXAnalysis");
};

INSTANTIATE_TEST_SUITE_P(, SharedPages,
                         testing::Values(StoredKind{"Document", "1447385156", OpenDocument,
                                                    StoreDocument, DatabasePages::TableLeaf,
                                                    "table feature, row 5: "},
                                         StoredKind{"Settings", "1447385171", LoadSettings,
                                                    StoreSettings, DatabasePages::IndexLeaf, ""}),
                         NameOf);

// A hundred times a hundred times a hundred ... rows of the schema, each of which is right.
TEST_P(SharedPages, ASchemaThatLeadsToOneRowAgainAndAgain)
{
    DatabasePages pages = OneIndex("4096", "");
    const std::size_t table = pages.AddLeafOf(1, 0);
    std::size_t repeated = pages.AddLeafOf(1, 1);
    for (int depth = 0; depth < 12; ++depth) {
        repeated = pages.AddInterior(repeated, 100);
    }
    pages.LeadFromFirstPage(table, repeated);
    ExpectDamaged(pages, "its list of tables is longer than any that is written");
}

// Some ten thousand rows of eight megabytes, which are one.
TEST_P(SharedPages, ASchemaThatNamesOneLongTextAgainAndAgain)
{
    DatabasePages pages = OneIndex(
        "65536",
        "; PRAGMA writable_schema = ON; UPDATE sqlite_schema SET tbl_name = hex(zeroblob(4000000)) "
        "WHERE type = 'index'");
    pages.RepeatLastCell(1);
    EXPECT_GT(pages.CellCount(1), 10'000U);
    ExpectDamaged(pages, "string or blob too big");
}

// Rows whose long values are the same bytes: more than the file has.
TEST_P(SharedPages, RowsThatShareTheirBytes)
{
    const std::string longText(397'500, 'x');  // little of it is on its row's own page
    std::string error;
    ASSERT_TRUE(GetParam().store(path, longText, error)) << error;
    DatabasePages pages(hlxtest::ReadFile(path));
    const ChildEnd sound = Open(pages);
    EXPECT_EQ(sound.code, 1) << testing::PrintToString(sound);
    const std::size_t leaf = pages.FindLeafOfLong(GetParam().leaf, longText.size());
    ASSERT_NE(leaf, 0U);
    pages.AddSharingCell(leaf);
    ExpectDamaged(pages, GetParam().row + "the rows hold more bytes than the file has");
}

}  // namespace
