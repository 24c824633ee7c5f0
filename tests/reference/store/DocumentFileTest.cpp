// SPDX-License-Identifier: Apache-2.0
// What a document's file is to other programs, and which files of other programs are opened.
#include "reference/store/StoreFixture.h"

namespace vex::store::test {
namespace {

using testing::HasSubstr;

class DocumentFile : public FolderTest
{
protected:
    std::string Saved(const std::string& name) const
    {
        std::string error;
        EXPECT_TRUE(Save(SmallContent(), In(name), error)) << error;
        return In(name);
    }
};

TEST_F(DocumentFile, BeginsWithWhatItIs)
{
    const std::string bytes = ReadFile(Saved("a.VEXAnalysis"));
    ASSERT_GT(bytes.size(), 100U);
    EXPECT_EQ(bytes.substr(0, 16), std::string("SQLite format 3\0", 16));
    EXPECT_EQ(bytes.substr(16, 4), std::string("\x10\0\1\1", 4)) << "pages, rollback journal";
    EXPECT_EQ(bytes.substr(52, 4), std::string(4, '\0')) << "not vacuumed by itself";
    EXPECT_EQ(bytes.substr(56, 4), std::string("\0\0\0\1", 4)) << "UTF-8";
    EXPECT_EQ(bytes.substr(60, 4), std::string("\0\0\0\1", 4)) << "data version";
    EXPECT_EQ(bytes.substr(68, 4), "VEXD");
}

TEST_F(DocumentFile, IsTheSameBytesForTheSameContent)
{
    EXPECT_TRUE(ReadFile(Saved("a.VEXAnalysis")) == ReadFile(Saved("b.VEXAnalysis")));
}

TEST_F(DocumentFile, WithAnyPagesThatHoldItsSchemaIsOpened)
{
    for (const char* size : {"4096", "8192", "16384", "65536"}) {
        const std::string path = Saved("a.VEXAnalysis");
        std::string error;
        ASSERT_TRUE(hlxtest::ChangeBySql(
            path, "PRAGMA page_size = " + std::string(size) + "; VACUUM", error))
            << error;
        const std::optional<Content> loaded = Load(path, error);
        ASSERT_TRUE(loaded) << size << ": " << error;
        EXPECT_TRUE(*loaded == SmallContent()) << size;
    }
}

TEST_F(DocumentFile, WithPagesThatDoNotHoldItsSchemaIsRefused)
{
    const std::string path = Saved("a.VEXAnalysis");
    std::string error;
    ASSERT_TRUE(hlxtest::ChangeBySql(path, "PRAGMA page_size = 1024; VACUUM", error)) << error;
    EXPECT_FALSE(Load(path, error));
    EXPECT_THAT(error, HasSubstr("its list of tables is longer than any that is written"));
}

// An empty document is begun from bytes that are made once: no save may change them for the next.
TEST_F(DocumentFile, OfAnEmptyDocumentIsTheSameBeforeAndAfterAnotherSave)
{
    std::string error;
    ASSERT_TRUE(Save(Content(), In("before.VEXAnalysis"), error)) << error;
    Saved("between.VEXAnalysis");
    ASSERT_TRUE(Save(Content(), In("after.VEXAnalysis"), error)) << error;
    EXPECT_TRUE(ReadFile(In("before.VEXAnalysis")) == ReadFile(In("after.VEXAnalysis")));
}

}  // namespace
}  // namespace vex::store::test
