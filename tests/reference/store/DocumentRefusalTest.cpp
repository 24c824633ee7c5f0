// SPDX-License-Identifier: Apache-2.0
// Files that are no sound documents are refused, each for its own reason; so is content that would
// make such a file.
#include "reference/store/StoreFixture.h"

#include <sys/stat.h>

namespace vex::store::test {
namespace {

using testing::AllOf;
using testing::HasSubstr;

class DocumentRefusal : public FolderTest
{
protected:
    // A sound document, changed by `sql`.
    std::string Changed(const std::string& sql)
    {
        const std::string path = In("changed.VEXAnalysis");
        std::string error;
        EXPECT_TRUE(Save(SmallContent(), path, error)) << error;
        ChangeBySql(path, sql);
        return path;
    }

    static void ExpectRefused(const std::string& path, const std::string& reason)
    {
        std::string error;
        EXPECT_FALSE(Load(path, error)) << reason;
        EXPECT_THAT(error, HasSubstr(reason));
        EXPECT_THAT(error, HasSubstr("'")) << "names the file";
        EXPECT_THAT(error, testing::EndsWith(".")) << "ends in a remedy";
    }

    void ExpectDamaged(const std::string& sql, const std::string& reason)
    {
        const std::string path = Changed(sql);
        ExpectRefused(path, reason);
        ExpectRefused(path, "the file is damaged: ");
    }

    static void ExpectUnsaved(const Content& content, const std::string& path,
                              const std::string& reason)
    {
        std::string error;
        EXPECT_FALSE(Save(content, path, error)) << reason;
        EXPECT_THAT(error, AllOf(HasSubstr(reason), HasSubstr("untouched")));
    }
};

TEST_F(DocumentRefusal, Paths)
{
    ExpectRefused("", "the path is empty");
    ExpectRefused(In(std::string("a\0b", 3)), "NUL");
    ExpectRefused(In(""), "a folder, not a file");
    ExpectRefused(In(".."), "a folder, not a file");
    ExpectRefused(In(std::string(248, 'n')), "248 bytes");
    ExpectRefused(In("missing.VEXPart"), "there is no such file");
    ExpectRefused(In("missing/a.VEXPart"), "there is no such file");
    fs::create_directory(folder / "sub");
    ExpectRefused(In("sub"), "it is a folder");
    ASSERT_EQ(::mkfifo(In("pipe").c_str(), 0600), 0);
    ExpectRefused(In("pipe"), "it is not a file");
    std::string error;
    EXPECT_FALSE(Save(Content(), "", error));
    EXPECT_FALSE(Save(Content(), In(std::string("a\0b", 3)), error));
    EXPECT_FALSE(Save(Content(), In(std::string(248, 'n')), error));
    EXPECT_FALSE(Save(Content(), In("sub"), error));
    EXPECT_FALSE(Save(Content(), In("pipe"), error));
    EXPECT_EQ(FileCount(), 2U);
}

TEST_F(DocumentRefusal, OtherFiles)
{
    WriteFile(In("empty"), "");
    ExpectRefused(In("empty"), "it is not a document: the file is empty");
    WriteFile(In("text"),
              "*HEADING\nnothing like a document, though longer than a header is; "
              "a hundred bytes and a few more of them\n");
    ExpectRefused(In("text"), "does not begin as an SQLite database");
    WriteFile(In("short"), "SQLite");
    ExpectRefused(In("short"), "does not begin as an SQLite database");
    ChangeBySql(In("other"), "CREATE TABLE document (kind TEXT)");
    ExpectRefused(In("other"), "another application's database");
    ChangeBySql(In("disguised"),
                "PRAGMA application_id = 0x56455844; PRAGMA user_version = 1;"
                "CREATE TABLE document (kind TEXT)");
    ExpectRefused(In("disguised"), "its tables are not those");
}

TEST_F(DocumentRefusal, Versions)
{
    ExpectRefused(Changed("PRAGMA user_version = 2"), "newer program (data version 2");
    ExpectRefused(Changed("PRAGMA user_version = 2147483647"), "newer program");
    ExpectDamaged("PRAGMA user_version = 0", "data version 0");
    ExpectDamaged("PRAGMA user_version = -1", "data version -1");
}

TEST_F(DocumentRefusal, Headers)
{
    const std::string path = In("a.VEXAnalysis");
    std::string error;
    ASSERT_TRUE(Save(SmallContent(), path, error)) << error;
    const std::string whole = ReadFile(path);
    WriteFile(path, whole.substr(0, 60));
    ExpectRefused(path, "cut off within its header");
    WriteFile(path, whole + "x");
    ExpectRefused(path, "its header says");
    std::string log = whole;
    log[18] = log[19] = 2;
    WriteFile(path, log);
    ExpectRefused(path, "values that are never written");
    EXPECT_EQ(FileCount(), 1U) << "no log was made beside it";
}

TEST_F(DocumentRefusal, AJournalBesideItDoesNotMatter)
{
    const std::string path = In("a.VEXAnalysis");
    std::string error;
    ASSERT_TRUE(Save(SmallContent(), path, error)) << error;
    WriteFile(path + "-journal",
              std::string("\xd9\xd5\x05\xf9\x20\xa1\x63\xd7", 8) + std::string(2000, '\1'));
    EXPECT_TRUE(Load(path, error) == SmallContent()) << error;
    EXPECT_EQ(FileCount(), 2U);
}

TEST_F(DocumentRefusal, Schemas)
{
    ExpectDamaged("CREATE INDEX i ON feature (id)", "its tables are not those");
    ExpectDamaged("CREATE TRIGGER t AFTER DELETE ON link BEGIN SELECT 1; END", "its tables");
    ExpectDamaged("ALTER TABLE feature ADD COLUMN more TEXT", "its tables");
    ExpectDamaged("DROP TABLE link", "its tables");
    ExpectDamaged("DROP TABLE feature; CREATE VIEW feature AS SELECT 1", "its tables");
}

TEST_F(DocumentRefusal, TheDocumentRow)
{
    ExpectDamaged("DELETE FROM document", "table document is empty");
    ExpectDamaged("INSERT INTO document SELECT * FROM document", "more than one row");
    ExpectDamaged("UPDATE document SET kind = 'VEXNothing'", "unknown kind 'VEXNothing'");
    ExpectDamaged("UPDATE document SET kind = 'VEXPart'", "does not match its digest");
    ExpectDamaged("UPDATE document SET digest = x'00'", "wrong type");
    ExpectDamaged("UPDATE document SET digest = zeroblob(16)", "does not match its digest");
    for (const char* count : {"feature", "link", "geometry", "late_type", "attribute_name"}) {
        const std::string column = std::string(count) + "_count";
        ExpectDamaged("UPDATE document SET " + column + " = " + column + " + 1",
                      "its tables do not have the rows it states");
    }
    ExpectDamaged("DELETE FROM feature WHERE id = 4", "its tables do not have the rows it states");
}

TEST_F(DocumentRefusal, Trees)
{
    ExpectDamaged("UPDATE feature SET id = 3 WHERE id = 4", "feature 3: its id stands twice");
    ExpectDamaged("UPDATE feature SET id = 0 WHERE id = 4",
                  "table feature, row 5: feature 0: its id");
    ExpectDamaged("UPDATE feature SET parent = 99 WHERE id = 4",
                  "table feature, row 5: feature 4: "
                  "its parent 99 does not exist");
    ExpectDamaged("UPDATE feature SET parent = 5 WHERE id = 2",
                  "table feature, row 2: feature 2: "
                  "its parent 5 does not exist or "
                  "comes later");
    ExpectDamaged("UPDATE feature SET parent = 3 WHERE id = 1", "row 1: feature 1: its parent 3");
    ExpectDamaged("UPDATE feature SET parent = 4 WHERE id = 4", "it is its own parent");
    ExpectDamaged("UPDATE feature SET parent = 3 WHERE id = 4",
                  "stands before it, but not depth "
                  "first");
    ExpectDamaged("UPDATE feature SET ordinal = 3 WHERE id = 5", "its ordinal is 3 instead of 2");
    ExpectDamaged("UPDATE feature SET position = 9 WHERE id = 4", "row 5: its position is wrong");
    ExpectDamaged("DELETE FROM feature WHERE id = 3", "row 3: its position is wrong");
}

TEST_F(DocumentRefusal, Values)
{
    ExpectDamaged("UPDATE feature SET alias = CAST(x'C328' AS TEXT) WHERE id = 1",
                  "row 1: feature 1: its alias holds bytes that are not valid UTF-8");
    ExpectDamaged("UPDATE feature SET alias = CAST(x'410042' AS TEXT) WHERE id = 1",
                  "its alias holds a NUL");
    ExpectDamaged("UPDATE feature SET alias = 'other' WHERE id = 1", "does not match its digest");
    ExpectDamaged("UPDATE feature SET alias = NULL WHERE id = 2", "does not match its digest");
    ExpectDamaged("UPDATE feature SET alias = x'41' WHERE id = 1", "row 1: a value is of a wrong");
    ExpectDamaged("UPDATE feature SET late_type = 'x' WHERE id = 1",
                  "row 1: a value is of a wrong");
    ExpectDamaged("UPDATE feature SET late_type = 3 WHERE id = 1", "its late type does not exist");
    ExpectDamaged("UPDATE feature SET late_type = 65536 WHERE id = 1", "its late type does not");
    ExpectDamaged("UPDATE feature SET container = -1 WHERE id = 1", "its container's number");
    ExpectDamaged("UPDATE feature SET container = 4294967296 WHERE id = 1", "its container's");
    ExpectDamaged("UPDATE feature SET attributes = x'0100' WHERE id = 3",
                  "row 3: feature 3: the "
                  "attributes end early");
    ExpectDamaged("UPDATE feature SET attributes = x'0100080001' || x'01' WHERE id = 3",
                  "row 3: a value is of a wrong type");
    ExpectDamaged("UPDATE feature SET attributes = x'010008000101' WHERE id = 3",
                  "attribute name 8 does not exist");
    ExpectDamaged("UPDATE feature SET attributes = x'020000000101' || x'' WHERE id = 3", "row 3");
    ExpectDamaged("UPDATE feature SET attributes = x'020000000101' WHERE id = 3", "end early");
    ExpectDamaged("UPDATE feature SET attributes = x'0200000001010000' || x'0101' WHERE id = 3",
                  "row 3");
    ExpectDamaged("UPDATE feature SET attributes = x'02000000010100000101' WHERE id = 3",
                  "attribute name 0 stands twice");
    ExpectDamaged("UPDATE feature SET attributes = x'01000400050600000000000000' WHERE id = 3",
                  "refers to feature 6, which does not exist");
    ExpectDamaged("UPDATE feature SET attributes = x'01000500060200000000000000' WHERE id = 3",
                  "refers to link 2, which does not exist");
    ExpectDamaged("UPDATE late_type SET id = 7 WHERE id = 1", "name 1 of a table of names");
    ExpectDamaged("UPDATE late_type SET name = '' WHERE id = 1",
                  "table late_type, name 1: it is empty");
    ExpectDamaged("UPDATE attribute_name SET name = CAST(x'FF' AS TEXT) WHERE id = 0", "UTF-8");
    ExpectDamaged("UPDATE attribute_name SET name = 'Other' WHERE id = 0", "its digest");
}

TEST_F(DocumentRefusal, LinksAndGeometry)
{
    ExpectDamaged("UPDATE link SET path = '/etc/x' WHERE id = 1", "its path is not a relative one");
    ExpectDamaged("UPDATE link SET path = '' WHERE id = 1", "its path is not a relative one");
    ExpectDamaged("UPDATE link SET path = CAST(x'6100' AS TEXT) WHERE id = 1", "holds a NUL");
    ExpectDamaged("UPDATE link SET path = 'x' WHERE id = 1", "does not match its digest");
    ExpectDamaged("UPDATE link SET kind = 'x' WHERE id = 1", "link 1: unknown kind 'x'");
    ExpectDamaged("UPDATE link SET id = -3 WHERE id = 1", "its id is not above");
    ExpectDamaged("UPDATE geometry SET digest = x'00' WHERE id = 2", "geometry 2: a value is of");
    ExpectDamaged("UPDATE geometry SET size = 1 WHERE id = 2", "does not match its digest");
    ExpectDamaged("UPDATE geometry SET id = 3 WHERE id = 2", "does not match its digest");
    ExpectDamaged("UPDATE geometry SET bytes = zeroblob(100000) WHERE id = 2",
                  "geometry 2: its bytes do not match their digest");
    ExpectDamaged("UPDATE geometry SET bytes = x'00' WHERE id = 9", "geometry 9: its bytes");
    ExpectDamaged("UPDATE geometry SET bytes = 'text' WHERE id = 9",
                  "geometry 9: its bytes cannot");
}

TEST_F(DocumentRefusal, UnsoundContentIsNotSaved)
{
    const std::string path = In("a.VEXAnalysis");
    std::string error;
    ASSERT_TRUE(Save(SmallContent(), path, error)) << error;
    const auto changed = [](auto change) {
        Content content = SmallContent();
        change(content);
        return content;
    };
    ExpectUnsaved(changed([](Content& c) { c.features[4].id = 3; }), path, "stands twice");
    ExpectUnsaved(changed([](Content& c) { c.features[4].parent = 99; }), path, "parent 99");
    ExpectUnsaved(changed([](Content& c) { std::swap(c.features[1], c.features[2]); }), path,
                  "comes later");
    ExpectUnsaved(changed([](Content& c) { c.features[0].alias = "a\xC0\x80"; }), path, "UTF-8");
    ExpectUnsaved(changed([](Content& c) { c.features[0].alias = std::string(1, '\0'); }), path,
                  "NUL");
    ExpectUnsaved(changed([](Content& c) { c.features[0].lateType = ""; }), path, "it is empty");
    ExpectUnsaved(changed([](Content& c) { c.features[0].attributes.clear(); }), path, "end early");
    ExpectUnsaved(changed([](Content& c) { c.attributeNames.pop_back(); }), path,
                  "attribute name 7 does not exist");
    ExpectUnsaved(changed([](Content& c) { c.links.pop_back(); }), path, "refers to link 7");
    ExpectUnsaved(changed([](Content& c) { c.links[1].id = 1; }), path, "not above");
    ExpectUnsaved(changed([](Content& c) { c.links[0].path = "/abs"; }), path, "relative");
    ExpectUnsaved(changed([](Content& c) { c.features.erase(c.features.begin() + 3); }), path,
                  "refers to feature 5");
    EXPECT_TRUE(Load(path, error) == SmallContent()) << error;
    EXPECT_EQ(FileCount(), 1U);
}

TEST_F(DocumentRefusal, MessagesCannotBeForged)
{
    std::string error;
    EXPECT_FALSE(Load(In("a\nb\x1b[31m\xFF"), error));
    EXPECT_THAT(error, HasSubstr("a\\nb\\u{1b}[31m\\xff"));
    EXPECT_EQ(error.find('\n'), std::string::npos);
    ExpectDamaged("UPDATE document SET kind = 'x' || char(10) || 'y'", "unknown kind 'x\\ny'");
}

}  // namespace
}  // namespace vex::store::test
