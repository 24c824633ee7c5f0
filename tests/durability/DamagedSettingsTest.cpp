// SPDX-License-Identifier: Apache-2.0
// A settings file that is not as it was written: refused and kept, never read differently.
#include "HLXIZPKWBGeneralSettingAtt.h"
#include "host/system/SettingsStore.h"
#include "reference/store/StoreFixture.h"
#include "support/Capture.h"
#include "support/ChildProcess.h"

#include <fmt/format.h>

#include <cstdlib>

namespace durabilitytest {
namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;
using vex::store::test::ChangeBySql;
using vex::store::test::ReadFile;
using vex::store::test::WriteFile;
using vex::system::SettingsStore;

class DamagedSettings : public vex::store::test::FolderTest
{
protected:
    DamagedSettings() { SaveThem(); }

    void SaveThem()
    {
        fs::remove_all(path);
        SettingsStore store(path);
        for (const auto& [key, value] : kept)
            ASSERT_TRUE(store.Set(key, value, error)) << error;
        ASSERT_TRUE(store.Commit(error)) << error;
    }

    // Loading and committing refuse the file and leave it as it is; once it is taken away, what was
    // set is committed.
    void ExpectRefused(const std::string& reason)
    {
        const std::string before = fs::is_directory(path) ? "" : ReadFile(path);
        SettingsStore store(path);
        EXPECT_FALSE(store.Load(error)) << reason;
        EXPECT_THAT(error, HasSubstr(path + "': "));
        EXPECT_THAT(error, HasSubstr(reason));
        EXPECT_THAT(error, testing::ContainsRegex("\\. (Restore|Give|Open) [^.]*\\.$"))
            << "no remedy";
        EXPECT_EQ(store.Get("Length"), std::nullopt);
        std::string second;
        EXPECT_TRUE(store.Set("Length", "m", second));
        EXPECT_FALSE(store.Commit(second));
        EXPECT_EQ(second, error);
        EXPECT_EQ(FileCount(), 1U);
        if (fs::is_directory(path)) return;
        EXPECT_TRUE(ReadFile(path) == before);
        fs::rename(path, path + " put aside");
        EXPECT_TRUE(store.Commit(second)) << second;
        EXPECT_EQ(store.Get("Length"), "m");
        fs::remove(path + " put aside");
    }

    // Refused, the file kept; or read as written.
    bool IsRefusedOrReadAsWritten(const std::string& bytes)
    {
        WriteFile(path, bytes);
        SettingsStore store(path);
        const bool isRead = store.Load(error);
        for (const auto& [key, value] : kept) {
            EXPECT_EQ(store.Get(key),
                      isRead ? std::optional<std::string_view>(value) : std::nullopt);
        }
        EXPECT_TRUE(isRead || error.find(path) != std::string::npos) << error;
        EXPECT_TRUE(ReadFile(path) == bytes);
        return !isRead;
    }

    const std::string path = In("s.VEXSettings");
    const std::map<std::string, std::string> kept{{"BasicUnitLength", "in"},
                                                  {"Größe", ""},
                                                  {"Length", "mm"},
                                                  {"Long", std::string(20'000, 'x')}};
    std::string error;
};

TEST_F(DamagedSettings, OtherThingsInTheirPlaceAreRefused)
{
    WriteFile(path, "");
    ExpectRefused("it is not a settings file: the file is empty");
    WriteFile(path, "Length = mm\n");
    ExpectRefused("does not begin as an SQLite database");
    fs::remove(path);
    ChangeBySql(path, "CREATE TABLE setting (key, value)");
    ExpectRefused("another application's database");
    fs::remove(path);
    fs::create_directory(path);
    ExpectRefused("it is a folder");
    SaveThem();
    ChangeBySql(path, "PRAGMA user_version = 2");
    ExpectRefused("newer program (data version 2, this program reads up to 1)");
    SaveThem();
    ChangeBySql(path, "PRAGMA user_version = 0");
    ExpectRefused("data version 0 never was");
}

TEST_F(DamagedSettings, RowsThatWereChangedAreRefused)
{
    const std::pair<const char*, const char*> changes[] = {
        {"UPDATE setting SET value = 'm' WHERE key = 'Length'", "do not match their digest"},
        {"UPDATE setting SET key = 'Width' WHERE key = 'Length'", "do not match their digest"},
        {"DELETE FROM setting WHERE key = 'Length'", "do not match their digest"},
        {"DELETE FROM setting", "do not match their digest"},
        {"INSERT INTO setting VALUES ('x', 'y')", "do not match their digest"},
        {"INSERT INTO setting VALUES ('', 'y')", "is not a pair of texts"},
        {"INSERT INTO setting VALUES ('x', CAST(x'FF' AS TEXT))", "is not a pair of texts"},
        {"INSERT INTO setting VALUES ('x', x'41')", "is not a pair of texts"},
        {"INSERT INTO setting VALUES ('x', CAST(x'410041' AS TEXT))", "is not a pair of texts"},
        {"UPDATE repository SET setting_count = 9", "do not match their digest"},
        {"UPDATE repository SET digest = zeroblob(16)", "do not match their digest"},
        {"UPDATE repository SET digest = 'text'", "its digest is missing"},
        {"DELETE FROM repository", "its digest is missing"},
        {"CREATE INDEX i ON setting (value)", "its tables are not those"},
        {"DROP TABLE setting", "its tables are not those"}};
    for (const auto& [sql, reason] : changes) {
        SaveThem();
        ChangeBySql(path, sql);
        ExpectRefused(reason);
    }
}

TEST_F(DamagedSettings, AFileCutOffAnywhereIsRefused)
{
    const std::string whole = ReadFile(path);
    ASSERT_GT(whole.size(), 30'000U);
    for (std::size_t size = 0; size < whole.size(); size += 64)
        EXPECT_TRUE(IsRefusedOrReadAsWritten(whole.substr(0, size))) << size;
    EXPECT_TRUE(IsRefusedOrReadAsWritten(whole.substr(0, whole.size() - 1)));
    EXPECT_TRUE(IsRefusedOrReadAsWritten(whole + std::string(16'384, '\0')));
    EXPECT_FALSE(IsRefusedOrReadAsWritten(whole));
}

TEST_F(DamagedSettings, AChangedBitIsNeverReadAsOtherSettings)
{
    const std::string whole = ReadFile(path);
    int refused = 0;
    int flips = 0;
    for (std::size_t place = 0; place < whole.size(); place += place < 4096 ? 7 : 31) {
        std::string changed = whole;
        changed[place] = static_cast<char>(changed[place] ^ (1 << (place % 8)));
        refused += IsRefusedOrReadAsWritten(changed) ? 1 : 0;
        ++flips;
    }
    EXPECT_GT(refused, 20'000 / 31) << "each in the long value at least";
    RecordProperty("flips", flips);
    RecordProperty("refused", refused);
    std::printf("%d of %d flipped bits were refused, the others read as written\n", refused, flips);
}

// A change that means nothing is gone with the next commit, which rewrites the whole file.
TEST_F(DamagedSettings, BytesThatMeanNothingAreWrittenAnew)
{
    constexpr std::size_t kChangeCounter = 27;
    std::string bytes = ReadFile(path);
    bytes[kChangeCounter] = '\x55';
    ASSERT_FALSE(IsRefusedOrReadAsWritten(bytes));
    SettingsStore store(path);
    ASSERT_TRUE(store.Load(error) && store.Set("Length", "m", error) && store.Commit(error))
        << error;
    EXPECT_NE(ReadFile(path)[kChangeCounter], '\x55');
    ASSERT_TRUE(store.Load(error));
    EXPECT_EQ(store.Get("Long"), kept.at("Long"));
}

TEST_F(DamagedSettings, TheProgramIsToldAndGoesOnWithoutThem)
{
    WriteFile(path, ReadFile(path).substr(0, 1000));
    const std::string before = ReadFile(path);
    EXPECT_EQ(hlxtest::InChild([&] {
                  ::setenv("VEX_SETTINGS", path.c_str(), 1);
                  void* object = &error;
                  HRESULT result = S_OK;
                  const std::string said = hlxtest::StandardErrorOf([&] {
                      result = GetZPKWBGeneralSettingCtrl(IID_HLXIZPKWBGeneralSettingAtt, &object);
                  });
                  EXPECT_TRUE(FAILED(result));
                  EXPECT_EQ(object, nullptr);
                  EXPECT_THAT(said,
                              HasSubstr("general settings: '" + path + "': the file is damaged"));
              }),
              0);
    EXPECT_TRUE(ReadFile(path) == before);
}

}  // namespace
}  // namespace durabilitytest
