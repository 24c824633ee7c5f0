// SPDX-License-Identifier: Apache-2.0
// What is saved is what is opened.
#include "reference/store/StoreFixture.h"

#include <fmt/format.h>

#include <random>

#include <sys/stat.h>

namespace vex::store::test {
namespace {

using testing::HasSubstr;

class DocumentRoundTrip : public FolderTest
{
protected:
    void ExpectRoundTrip(const Content& content)
    {
        const std::string path = In("a.VEXAnalysis");
        std::string error;
        ASSERT_TRUE(Save(content, path, error)) << error;
        const std::optional<Content> loaded = Load(path, error);
        ASSERT_TRUE(loaded) << error;
        EXPECT_TRUE(*loaded == content);
        EXPECT_EQ(FileCount(), 1U);
    }
};

TEST_F(DocumentRoundTrip, EveryTable)
{
    ExpectRoundTrip(SmallContent());
}

TEST_F(DocumentRoundTrip, EveryKind)
{
    for (const DocumentKind kind :
         {DocumentKind::Analysis, DocumentKind::Product, DocumentKind::Part}) {
        Content content = SmallContent();
        content.kind = kind;
        ExpectRoundTrip(content);
    }
}

TEST_F(DocumentRoundTrip, NothingAtAll)
{
    ExpectRoundTrip(Content());
}

TEST_F(DocumentRoundTrip, LongTextsAndLargestIds)
{
    Content content;
    content.attributeNames = {std::string(100'000, 'n')};
    AttributePacker packer;
    std::string longText(1 << 20, 'x');
    longText += "é";
    packer.AddText(0, longText);
    content.features = {{INT64_MAX, 0, INT32_MAX, std::string(70'000, 't'),
                         std::string(1 << 20, 'a'), ToVector(packer.Packed())},
                        {1, INT64_MAX, 0, "T", std::nullopt, ToVector(packer.Packed())}};
    ExpectRoundTrip(content);
}

TEST_F(DocumentRoundTrip, HundredThousandFeaturesInARandomTree)
{
    std::mt19937 random(7);
    Content content;
    content.attributeNames = {"Value", "Target"};
    std::vector<Id> ids;
    for (Id id = 1; id <= 100'000; ++id)
        ids.push_back(id * 3);
    std::shuffle(ids.begin(), ids.end(), random);
    std::vector<Id> path;
    AttributePacker packer;
    for (std::size_t i = 0; i < ids.size(); ++i) {
        while (!path.empty() && random() % 2 == 0)
            path.pop_back();
        packer.Clear();
        packer.AddDouble(0, static_cast<double>(i));
        packer.AddReference(1, ids[random() % ids.size()]);
        content.features.push_back({ids[i], path.empty() ? 0 : path.back(), 0, "T",
                                    fmt::format("F{}", i), ToVector(packer.Packed())});
        path.push_back(ids[i]);
    }
    ExpectRoundTrip(content);
}

TEST_F(DocumentRoundTrip, ChainOfHundredThousand)
{
    Content content;
    const std::vector<std::byte> none(2);
    for (Id id = 1; id <= 100'000; ++id) {
        content.features.push_back({id, id - 1, 0, "T", std::nullopt, none});
    }
    ExpectRoundTrip(content);
}

TEST_F(DocumentRoundTrip, PlacesAreHandedOut)
{
    const std::string path = In("a.VEXAnalysis");
    std::string error;
    ASSERT_TRUE(Save(SmallContent(), path, error)) << error;
    DocumentReader reader;
    ASSERT_TRUE(reader.Open(path, error)) << error;
    EXPECT_EQ(reader.Counts().features, 5);
    std::vector<std::pair<std::int64_t, std::int64_t>> places;  // ordinal, parent's row
    for (FeatureRow row; reader.Next(row);) {
        places.emplace_back(reader.Place().ordinal, reader.Place().parentRow);
    }
    EXPECT_TRUE(reader.Finish(error)) << error;
    using P = std::pair<std::int64_t, std::int64_t>;
    EXPECT_THAT(places, testing::ElementsAre(P{1, -1}, P{1, 0}, P{1, 1}, P{2, 0}, P{2, -1}));
}

TEST_F(DocumentRoundTrip, FinishReadsWhatIsLeft)
{
    const std::string path = In("a.VEXAnalysis");
    std::string error;
    ASSERT_TRUE(Save(SmallContent(), path, error)) << error;
    DocumentReader reader;
    ASSERT_TRUE(reader.Open(path, error)) << error;
    std::vector<std::byte> bytes;
    EXPECT_FALSE(reader.ReadGeometry(2, bytes, error))
        << "before the document is known to be sound";
    ASSERT_TRUE(reader.Finish(error)) << error;
    ASSERT_TRUE(reader.ReadGeometry(2, bytes, error)) << error;
    EXPECT_EQ(bytes, SmallContent().geometry[2]);
    EXPECT_FALSE(reader.ReadGeometry(3, bytes, error));
    EXPECT_THAT(error, HasSubstr("no geometry 3"));
    EXPECT_TRUE(bytes.empty());
}

TEST_F(DocumentRoundTrip, GeometryStaysReadableWhenTheFileIsReplaced)
{
    const std::string path = In("a.VEXAnalysis");
    std::string error;
    Content content = SmallContent();
    ASSERT_TRUE(Save(content, path, error)) << error;
    DocumentReader reader;
    ASSERT_TRUE(reader.Open(path, error) && reader.Finish(error)) << error;
    ASSERT_TRUE(Save(Content(), path, error)) << error;
    std::vector<std::byte> bytes;
    ASSERT_TRUE(reader.ReadGeometry(2, bytes, error)) << error;
    EXPECT_EQ(bytes, content.geometry[2]);
}

TEST_F(DocumentRoundTrip, SameContentGivesSameFile)
{
    std::string error;
    ASSERT_TRUE(Save(SmallContent(), In("a"), error)) << error;
    ASSERT_TRUE(Save(SmallContent(), In("b"), error)) << error;
    EXPECT_TRUE(ReadFile(In("a")) == ReadFile(In("b")));
}

TEST_F(DocumentRoundTrip, DataVersionIsHandedOut)
{
    std::string error;
    Content content = SmallContent();
    content.dataVersion = kDataVersion;
    ASSERT_TRUE(Save(content, In("a"), error)) << error;
    EXPECT_TRUE(Load(In("a"), error, kDataVersion) == content);
    EXPECT_TRUE(Load(In("a"), error, kDataVersion + 1) == content);
    EXPECT_FALSE(Load(In("a"), error, kDataVersion - 1));
    content.dataVersion = kDataVersion + 1;
    EXPECT_FALSE(Save(content, In("a"), error)) << "nobody could open it";
    EXPECT_THAT(error, testing::HasSubstr("is newer than"));
    EXPECT_TRUE(Load(In("a"), error));
    EXPECT_FALSE(Save(SmallContent(), In("c/d"), error)) << "its folder does not exist";
    content.dataVersion = 0;
    EXPECT_FALSE(Save(content, In("a"), error));
}

TEST_F(DocumentRoundTrip, WriterAndReaderCanBeUsedAgain)
{
    std::string error;
    DocumentWriter writer;
    EXPECT_FALSE(writer.Commit(error));
    EXPECT_THAT(error, HasSubstr("not begun"));
    ASSERT_TRUE(writer.Begin(In("a"), DocumentKind::Part));
    EXPECT_TRUE(writer.LateType("First"));
    ASSERT_TRUE(writer.Begin(In("b"), DocumentKind::Product));
    EXPECT_EQ(writer.LateType("Second"), 0);
    EXPECT_EQ(writer.LateType("Third"), 1);
    EXPECT_EQ(writer.LateType("Second"), 0);
    ASSERT_TRUE(writer.Commit(error)) << error;
    EXPECT_FALSE(writer.Commit(error)) << "committed already";
    EXPECT_EQ(FileCount(), 1U);

    DocumentReader reader;
    EXPECT_FALSE(reader.Open(In("a"), error));
    EXPECT_FALSE(reader.Finish(error));
    ASSERT_TRUE(reader.Open(In("b"), error) && reader.Finish(error)) << error;
    EXPECT_THAT(reader.LateTypes(), testing::ElementsAre("Second", "Third"));
    EXPECT_EQ(reader.Kind(), DocumentKind::Product);
}

TEST_F(DocumentRoundTrip, NamesOfFilesAreOnlyNames)
{
    fs::current_path(folder);
    std::string error;
    for (const std::string name : {":memory:", "file:x?mode=memory", "-", "a\nb", "%41"}) {
        ASSERT_TRUE(Save(SmallContent(), name, error)) << error;
        EXPECT_TRUE(fs::is_regular_file(folder / name)) << name;
        EXPECT_TRUE(Load(name, error) == SmallContent()) << error;
        fs::remove(folder / name);
    }
    const std::string longest(247, 'n');
    EXPECT_TRUE(Save(SmallContent(), In(longest), error)) << error;
    EXPECT_TRUE(Load(In(longest), error)) << error;
    fs::current_path("/");
}

TEST_F(DocumentRoundTrip, DeepFolders)
{
    fs::path deep = folder;
    for (int i = 0; i < 8; ++i)
        deep /= std::string(200, 'd');
    fs::create_directories(deep);
    std::string error;
    const std::string path = (deep / "a.VEXPart").string();
    ASSERT_TRUE(Save(SmallContent(), path, error)) << error;
    EXPECT_TRUE(Load(path, error) == SmallContent()) << error;
}

TEST(DocumentKind, NamesAndTypes)
{
    EXPECT_EQ(NameOf(DocumentKind::Product), "VEXProduct");
    EXPECT_EQ(KindFromType("VEXAnalysis"), DocumentKind::Analysis);
    EXPECT_EQ(KindFromType("x/New.one.VEXPart"), DocumentKind::Part);
    EXPECT_EQ(KindFromType("VEXPart.txt"), std::nullopt);
    EXPECT_EQ(KindFromType(""), std::nullopt);
    EXPECT_EQ(KindFromName(".VEXPart"), std::nullopt);
}

}  // namespace
}  // namespace vex::store::test
