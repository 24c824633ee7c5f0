// SPDX-License-Identifier: Apache-2.0
// Damage by chance: a document cut off or changed anywhere opens as it was or not at all.
#include "reference/store/StoreFixture.h"

#include <fmt/format.h>

#include <random>

namespace vex::store::test {
namespace {

class DocumentDamage : public FolderTest
{
protected:
    DocumentDamage() : content(SmallContent())
    {
        const std::vector<std::byte> attributes = content.features[1].attributes;
        for (Id id = 10; id < 3000; ++id) {
            content.features.push_back(
                {id, 4, 0, fmt::format("T{}", id % 20), fmt::format("Alias {}", id), attributes});
        }
        std::string error;
        EXPECT_TRUE(Save(content, path, error)) << error;
        whole = ReadFile(path);
    }

    // True when the changed file is refused; otherwise its content must be the same.
    bool IsRefused(const std::string& bytes, const std::string& what)
    {
        WriteFile(path, bytes);
        std::string error;
        const std::optional<Content> loaded = Load(path, error);
        if (loaded) {
            EXPECT_TRUE(*loaded == content) << what;
        } else {
            EXPECT_FALSE(error.empty()) << what;
        }
        EXPECT_EQ(FileCount(), 1U) << what;
        return !loaded;
    }

    std::string path = In("a.VEXAnalysis");
    Content content;
    std::string whole;
};

TEST_F(DocumentDamage, TruncationAt200Places)
{
    std::mt19937 random(3);
    for (std::size_t i = 0; i < 200; ++i) {
        const std::size_t size = i < 20 ? i * 10 : random() % whole.size();
        EXPECT_TRUE(IsRefused(whole.substr(0, size), std::to_string(size)));
    }
}

TEST_F(DocumentDamage, TruncationAtPagesWithAHeaderToMatch)
{
    for (std::size_t pages = 1; pages < whole.size() / 16384; ++pages) {
        std::string cut = whole.substr(0, pages * 16384);
        cut[28] = cut[29] = cut[30] = 0;
        cut[31] = static_cast<char>(pages);
        EXPECT_TRUE(IsRefused(cut, std::to_string(pages)));
    }
}

TEST_F(DocumentDamage, BitFlips)
{
    std::mt19937 random(4);
    int refused = 0;
    for (int i = 0; i < 300; ++i) {
        std::string flipped = whole;
        const std::size_t place = i < 100 ? static_cast<std::size_t>(i) : random() % whole.size();
        flipped[place] = static_cast<char>(flipped[place] ^ (1 << (random() % 8)));
        if (IsRefused(flipped, fmt::format("byte {}", place))) ++refused;
    }
    EXPECT_GT(refused, 150);
}

TEST_F(DocumentDamage, OverwrittenRanges)
{
    std::mt19937 random(5);
    for (int i = 0; i < 200; ++i) {
        std::string changed = whole;
        const std::size_t start = random() % whole.size();
        const std::size_t count = std::min<std::size_t>(1 + random() % 5000, whole.size() - start);
        for (std::size_t k = 0; k < count; ++k) {
            changed[start + k] = i % 2 == 0 ? '\0' : static_cast<char>(random() & 0xFF);
        }
        IsRefused(changed, fmt::format("from byte {}", start));
    }
}

TEST_F(DocumentDamage, PagesInAnotherOrder)
{
    std::mt19937 random(6);
    const std::size_t pages = whole.size() / 16384;
    ASSERT_GT(pages, 10U);
    for (int i = 0; i < 60; ++i) {
        std::string changed = whole;
        const std::size_t from = random() % pages;
        const std::size_t to = random() % pages;
        changed.replace(to * 16384, 16384, whole, from * 16384, 16384);
        EXPECT_TRUE(IsRefused(changed, "page") || from == to);
    }
}

}  // namespace
}  // namespace vex::store::test
