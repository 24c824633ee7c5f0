// SPDX-License-Identifier: Apache-2.0
// Paths that lead to no document are refused, each for its own reason; so is content that would
// make a damaged file. Damaged files: tests/damage.
#include "reference/store/StoreFixture.h"

#include <sys/stat.h>

namespace vex::store::test {
namespace {

using testing::AllOf;
using testing::HasSubstr;

class DocumentRefusal : public FolderTest
{
protected:
    static void ExpectRefused(const std::string& path, const std::string& reason)
    {
        std::string error;
        EXPECT_FALSE(Load(path, error)) << reason;
        EXPECT_THAT(error, HasSubstr(reason));
        EXPECT_THAT(error, HasSubstr("'")) << "names the file";
        EXPECT_THAT(error, testing::EndsWith(".")) << "ends in a remedy";
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
}

}  // namespace
}  // namespace vex::store::test
