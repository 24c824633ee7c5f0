// SPDX-License-Identifier: Apache-2.0
// Damage by chance: a document cut off or changed anywhere opens as it was or not at all.
#include "DamagedDocument.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <random>
#include <string>
#include <vector>

namespace {

using namespace damagetest;

class DamagedBytes : public testing::Test
{
protected:
    static constexpr std::size_t kPage = 4096;

    static void SetUpTestSuite() { _document = new DamagedDocument; }
    static void TearDownTestSuite()
    {
        delete _document;
        _document = nullptr;
    }

    /// Opens the changed file; it must be refused or the same.
    int Open(const std::string& bytes, const std::string& what)
    {
        const ChildEnd end = _document->OpenBytes(bytes);
        EXPECT_TRUE(end.code == kSame || end.code == kRefused || end.code == kGeometryRefused)
            << what << ' ' << testing::PrintToString(end);
        if (end.code == kRefused) {
            EXPECT_FALSE(ReasonOf(end, _document->Path()).empty()) << what;
        }
        ++(end.code == kRefused ? _refused : end.code == kSame ? _same : _geometryRefused);
        return end.code;
    }

    void Report()
    {
        RecordProperty("refused", _refused);
        RecordProperty("geometry_refused", _geometryRefused);
        RecordProperty("same", _same);
        std::printf("%d refused, %d with their geometry refused when read, %d the same\n", _refused,
                    _geometryRefused, _same);
    }

    const std::string& Whole() const { return _document->Bytes(); }

    static inline DamagedDocument* _document = nullptr;
    int _refused = 0;
    int _geometryRefused = 0;
    int _same = 0;
};

/// The sanitizers look at what reading does, not at whether a change is seen: every tenth place is
/// enough for them.
constexpr std::size_t kStride = kSanitized ? 10 : 1;
constexpr int kPlacesOfQuarter = 250 / static_cast<int>(kStride);

/// A quarter of the thousand places.
class DamagedPlaces : public DamagedBytes, public testing::WithParamInterface<std::size_t>
{
protected:
    /// The first hundred places of all are within the file's header, the others over the whole
    /// file.
    std::vector<std::size_t> Places() const
    {
        std::vector<std::size_t> places;
        for (std::size_t i = GetParam(); i < 1000; i += 4 * kStride) {
            places.push_back(i < 100 ? i : 100 + (i - 100) * (Whole().size() - 100) / 900);
        }
        return places;
    }
};

TEST_P(DamagedPlaces, CutOffThereItIsRefused)
{
    for (const std::size_t place : Places()) {
        ASSERT_EQ(Open(Whole().substr(0, place), std::to_string(place)), kRefused);
    }
    Report();
    EXPECT_EQ(_refused, kPlacesOfQuarter);
}

TEST_P(DamagedPlaces, ABitFlippedThereNeverChangesItSilently)
{
    std::mt19937 random(static_cast<unsigned>(GetParam()));
    for (const std::size_t place : Places()) {
        std::string flipped = Whole();
        flipped[place] = static_cast<char>(flipped[place] ^ (1 << (random() % 8)));
        Open(flipped, "byte " + std::to_string(place));
        ASSERT_FALSE(HasFailure());
    }
    Report();
    EXPECT_EQ(_refused + _geometryRefused + _same, kPlacesOfQuarter);
    EXPECT_GT(_refused + _geometryRefused, kPlacesOfQuarter / 3)
        << "the others are in pages that are not full";
}

// What a file system may leave of a file after a loss of power: its size, and zeros for what was
// not written yet. The header's look at the size is passed.
TEST_P(DamagedPlaces, WithZerosFromThereToTheEndItIsRefused)
{
    for (const std::size_t place : Places()) {
        std::string zeros = Whole().substr(0, place);
        zeros.resize(Whole().size(), '\0');
        ASSERT_NE(zeros, Whole());
        Open(zeros, "from byte " + std::to_string(place));
        ASSERT_FALSE(HasFailure());
    }
    Report();
    EXPECT_EQ(_refused + _geometryRefused, kPlacesOfQuarter);
}

INSTANTIATE_TEST_SUITE_P(Quarter, DamagedPlaces, testing::Range(std::size_t{0}, std::size_t{4}));

// Geometry is read when it is asked for: a cut that takes nothing else shows then.
TEST_F(DamagedBytes, TruncationsWithAHeaderToMatchAreNeverTheSame)
{
    const std::size_t pages = Whole().size() / kPage;
    ASSERT_GT(pages, 10U);
    ASSERT_LT(pages, 256U);
    for (std::size_t count = 1; count < pages; ++count) {
        std::string cut = Whole().substr(0, count * kPage);
        cut[28] = cut[29] = cut[30] = 0;
        cut[31] = static_cast<char>(count);
        ASSERT_NE(Open(cut, std::to_string(count)), kSame);
        ASSERT_FALSE(HasFailure());
    }
    Report();
}

TEST_F(DamagedBytes, OverwrittenRangesNeverChangeADocumentSilently)
{
    std::mt19937 random(5);
    for (int i = 0; i < 200; ++i) {
        std::string changed = Whole();
        const std::size_t start = random() % changed.size();
        const std::size_t count =
            std::min<std::size_t>(1 + random() % 5000, changed.size() - start);
        for (std::size_t k = 0; k < count; ++k) {
            changed[start + k] = i % 2 == 0 ? '\0' : static_cast<char>(random() & 0xFF);
        }
        Open(changed, "from byte " + std::to_string(start));
        ASSERT_FALSE(HasFailure());
    }
    Report();
}

TEST_F(DamagedBytes, PagesInAnotherOrderNeverChangeADocumentSilently)
{
    std::mt19937 random(6);
    const std::size_t pages = Whole().size() / kPage;
    for (int i = 0; i < 60; ++i) {
        std::string changed = Whole();
        const std::size_t from = random() % pages;
        const std::size_t to = random() % pages;
        changed.replace(to * kPage, kPage, Whole(), from * kPage, kPage);
        const int code = Open(changed, std::to_string(from) + " to " + std::to_string(to));
        ASSERT_FALSE(HasFailure());
        EXPECT_EQ(code == kSame, changed == Whole()) << from << " to " << to;
    }
    Report();
}

}  // namespace
