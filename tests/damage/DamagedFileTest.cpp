// SPDX-License-Identifier: Apache-2.0
// Files that are no documents, or of another version or schema: each is refused for its own reason.
#include "DamagedDocument.h"
#include "support/ResealedDocument.h"

#include <gmock/gmock.h>

#include <filesystem>

#include <sys/stat.h>

namespace {

using namespace damagetest;
namespace fs = std::filesystem;

constexpr const char* kOther =
    "it is another application's database (application id 0x00000000). Give the path of a "
    "document.";
constexpr const char* kRestore = ". Restore it from a copy.";
constexpr const char* kForeignTables =
    "the file is damaged: its tables are not those of its data version. Restore it from a copy.";

class DamagedFile : public testing::Test
{
protected:
    void ExpectRefused(const std::string& what, const std::string& reason,
                       const std::function<void(const std::string& path)>& damage)
    {
        const ChildEnd end = document.Open(damage);
        EXPECT_EQ(end.code, kRefused) << what << ' ' << testing::PrintToString(end);
        EXPECT_EQ(ReasonOf(end, document.Path()), reason) << what;
    }

    /// What `sql` makes of the document, whose digest stays as it was.
    void ExpectChangedRefused(const std::string& sql, const std::string& reason)
    {
        ExpectRefused(sql, reason, [&](const std::string& path) {
            std::string error;
            EXPECT_TRUE(hlxtest::ChangeBySql(path, sql, error)) << sql << ": " << error;
        });
    }

    /// The sound file with some bytes replaced.
    std::string Patched(std::size_t place, const std::string& bytes) const
    {
        std::string patched = document.Bytes();
        return patched.replace(place, bytes.size(), bytes);
    }

    DamagedDocument document;
};

TEST_F(DamagedFile, WhatIsNoFile)
{
    ExpectRefused("missing", "there is no such file. Check the path.",
                  [](const std::string& path) { fs::remove(path); });
    ExpectRefused("folder", "it is a folder. Give the path of a file.",
                  [](const std::string& path) {
                      fs::remove(path);
                      fs::create_directory(path);
                  });
    ExpectRefused("pipe", "it is not a file. Give the path of a file.",
                  [](const std::string& path) {
                      fs::remove(path);
                      ASSERT_EQ(mkfifo(path.c_str(), 0600), 0);
                  });
    ExpectRefused("link to nothing", "there is no such file. Check the path.",
                  [](const std::string& path) {
                      fs::remove(path);
                      fs::create_symlink("nothing", path);
                  });
}

TEST_F(DamagedFile, OtherFiles)
{
    const std::string noDatabase =
        "it is not a document: it does not begin as an SQLite database does. Give the path of a "
        "document.";
    const std::pair<std::string, std::string> contents[] = {
        {"", "it is not a document: the file is empty. Give the path of a document."},
        {"SQLite", noDatabase},
        {"*HEADING\n" + std::string(200, 'x') + '\n', noDatabase},
        {std::string(100'000, '\0'), noDatabase},
        {document.Bytes().substr(0, 60),
         "the file is damaged: it is cut off within its header. Restore it from a copy."}};
    for (const auto& [bytes, reason] : contents) {
        ExpectRefused(bytes.substr(0, 20), reason, [&bytes = bytes](const std::string& path) {
            hlxtest::WriteFile(path, bytes);
        });
    }
    for (const auto& [sql, reason] :
         {std::pair<const char*, std::string>{"CREATE TABLE document (kind TEXT)",
                                              std::string("it is not a document: ") + kOther},
          {"PRAGMA application_id = 0x56455844;"
           "PRAGMA user_version = 1; CREATE TABLE document (kind TEXT)",
           kForeignTables}}) {
        ExpectRefused(sql, reason, [&sql = sql](const std::string& path) {
            fs::remove(path);
            std::string error;
            EXPECT_TRUE(hlxtest::ChangeBySql(path, sql, error)) << error;
        });
    }
}

TEST_F(DamagedFile, Versions)
{
    const auto newer = [](const char* version) {
        return std::string("it was written by a newer program (data version ") + version +
               ", this program reads up to 1). Open it with the newer program.";
    };
    ExpectChangedRefused("PRAGMA user_version = 2", newer("2"));
    ExpectChangedRefused("PRAGMA user_version = 2147483647", newer("2147483647"));
    ExpectChangedRefused("PRAGMA user_version = 0",
                         std::string("the file is damaged: data version 0 never was") + kRestore);
    ExpectChangedRefused("PRAGMA user_version = -1",
                         std::string("the file is damaged: data version -1 never was") + kRestore);
}

TEST_F(DamagedFile, HeadersThatLie)
{
    const std::string size = std::to_string(document.Bytes().size());
    const std::string strange =
        "the file is damaged: its header holds values that are never written. Restore it from a "
        "copy.";
    const auto sizes = [&](const std::string& has, const std::string& says) {
        return "the file is damaged: it has " + has + " bytes, its header says " + says + kRestore;
    };
    ExpectRefused(
        "a byte more", sizes(std::to_string(document.Bytes().size() + 1), size),
        [&](const std::string& path) { hlxtest::WriteFile(path, document.Bytes() + "x"); });
    ExpectRefused("a tebibyte of nothing behind it", sizes("1099511627776", size),
                  [](const std::string& path) { fs::resize_file(path, std::uintmax_t{1} << 40U); });
    const std::tuple<const char*, std::size_t, std::string, std::string> patches[] = {
        {"write-ahead log", 18, "\2\2", strange},
        {"UTF-16", 56, std::string("\0\0\0\2", 4), strange},
        {"4294967295 pages", 28, "\xFF\xFF\xFF\xFF", sizes(size, "17592186040320")},
        {"no pages", 28, std::string(4, '\0'), sizes(size, "0")}};
    for (const auto& [what, place, bytes, reason] : patches) {
        const std::string patched = Patched(place, bytes);
        ExpectRefused(what, reason,
                      [&](const std::string& path) { hlxtest::WriteFile(path, patched); });
    }
}

TEST_F(DamagedFile, Schemas)
{
    for (const char* const sql :
         {"CREATE INDEX i ON feature (id)",
          "CREATE TRIGGER t AFTER DELETE ON link BEGIN SELECT 1; END",
          "ALTER TABLE feature ADD COLUMN more TEXT", "DROP TABLE link",
          "DROP TABLE feature; CREATE VIEW feature AS SELECT 1",
          "DROP TABLE feature; CREATE VIEW feature AS WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL "
          "SELECT i + 1 FROM n) SELECT i AS position, i AS id FROM n"}) {
        ExpectChangedRefused(sql, kForeignTables);
    }
}

TEST_F(DamagedFile, AJournalBesideItDoesNotMatter)
{
    const ChildEnd end = document.Open([](const std::string& path) {
        hlxtest::WriteFile(path + "-journal", std::string("\xd9\xd5\x05\xf9\x20\xa1\x63\xd7", 8) +
                                                  std::string(2000, '\1'));
    });
    EXPECT_EQ(end.code, kSame) << testing::PrintToString(end);
}

}  // namespace
