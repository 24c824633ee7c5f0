// SPDX-License-Identifier: Apache-2.0
// Packed attributes whose counts, kinds, texts and references lie, under a digest that is right.
#include "DamagedDocument.h"
#include "host/store/AttributePacker.h"
#include "support/SqlLiterals.h"

#include <gmock/gmock.h>

#include <concepts>

namespace {

using namespace damagetest;
using vex::store::AttributeKind;

/// Bytes as the format has them: little-endian.
class Packed
{
public:
    template <std::integral Number>
    Packed& Add(Number number)
    {
        for (std::size_t i = 0; i < sizeof number; ++i) {
            _bytes += static_cast<char>(static_cast<std::uint64_t>(number) >> (8 * i));
        }
        return *this;
    }
    Packed& Add(std::string_view text)
    {
        _bytes += text;
        return *this;
    }

    std::string Literal() const { return hlxtest::BlobLiteral(_bytes); }

private:
    std::string _bytes;
};

/// One attribute of name 0, its value still to come.
Packed One(AttributeKind kind)
{
    return Packed()
        .Add(std::uint16_t{1})
        .Add(std::uint16_t{0})
        .Add(static_cast<std::uint8_t>(kind));
}

Packed Nothing()
{
    return Packed();
}

struct Case
{
    const char* what;
    Packed packed;
    const char* reason;
};

constexpr auto kMost = std::uint32_t{0xFFFFFFFF};

std::vector<Case> Lengths()
{
    const char* const early = "the attributes end early";
    const char* const fewer = "an attribute has fewer numbers than it says";
    const char* const shorter = "a text attribute is shorter than it says";
    const char* const more = "bytes follow the last attribute";
    return {
        {"no bytes", Nothing(), early},
        {"half a count", Nothing().Add(std::uint8_t{1}), early},
        {"65535 attributes, none there", Nothing().Add(std::uint16_t{65535}), early},
        {"two attributes, one there",
         Nothing().Add(std::uint16_t{2}).Add(std::uint16_t{0}).Add(std::uint16_t{0x0101}), early},
        {"none, and a byte", Nothing().Add(std::uint16_t{0}).Add(std::uint8_t{0}), more},
        {"half a double", One(AttributeKind::Double).Add(std::uint32_t{0}), early},
        {"half a reference", One(AttributeKind::Reference).Add(std::uint32_t{1}), early},
        {"a text of four gibibytes", One(AttributeKind::Text).Add(kMost).Add("x"), shorter},
        {"a text one longer", One(AttributeKind::Text).Add(std::uint32_t{2}).Add("x"), shorter},
        {"a text one shorter", One(AttributeKind::Text).Add(std::uint32_t{0}).Add("x"), more},
        {"a list of 2^32 - 1", One(AttributeKind::List).Add(kMost).Add(std::uint64_t{0}), fewer},
        {"a list of 2^29, whose size is 2^32",
         One(AttributeKind::List).Add(std::uint32_t{1} << 29U).Add(std::uint64_t{0}), fewer},
        {"a table of 2^64 or so", One(AttributeKind::Table).Add(kMost).Add(kMost), fewer},
        {"a table of 2^61, whose size is 2^64",
         One(AttributeKind::Table)
             .Add(std::uint32_t{1} << 31U)
             .Add(std::uint32_t{1} << 30U)
             .Add(std::uint64_t{0}),
         fewer},
        {"a table of 2^32, which is 0 in 32 bits",
         One(AttributeKind::Table).Add(std::uint32_t{65536}).Add(std::uint32_t{65536}), fewer},
        {"rows without columns",
         One(AttributeKind::Table).Add(std::uint32_t{5}).Add(std::uint32_t{0}),
         "a table attribute has rows without columns"}};
}

std::vector<Case> Values()
{
    const char* const unknown = "an attribute is of an unknown kind";
    const char* const noText = "a text attribute is not valid UTF-8 without NUL";
    const auto kind = [](int number) {
        return One(static_cast<AttributeKind>(number)).Add(std::uint64_t{0});
    };
    const auto text = [](std::string_view bytes) {
        return One(AttributeKind::Text).Add(static_cast<std::uint32_t>(bytes.size())).Add(bytes);
    };
    const Packed twice = Nothing()
                             .Add(std::uint16_t{2})
                             .Add(std::uint16_t{0})
                             .Add(std::uint16_t{0x0101})
                             .Add(std::uint16_t{0})
                             .Add(std::uint16_t{0x0101});
    return {{"a boolean of 2", One(AttributeKind::Boolean).Add(std::uint8_t{2}),
             "a boolean attribute is neither 0 nor 1"},
            {"kind 0", kind(0), unknown},
            {"kind 9", kind(9), unknown},
            {"kind 255", kind(255), unknown},
            {"name 65535",
             Nothing().Add(std::uint16_t{1}).Add(std::uint16_t{65535}).Add(std::uint16_t{0x0101}),
             "attribute name 65535 does not exist"},
            {"a name twice", twice, "attribute name 0 stands twice"},
            {"an overlong form", text("\xC0\x80"), noText},
            {"half a character", text("\xE4\xB8"), noText},
            {"a surrogate", text("\xED\xA0\x80"), noText},
            {"a NUL", text(std::string_view("a\0b", 3)), noText}};
}

class DamagedAttributes : public testing::Test
{
protected:
    /// Gives the model, the feature of row 3, these attributes.
    ChildEnd Open(const Packed& packed) const
    {
        return document.OpenResealed("UPDATE feature SET attributes = " + packed.Literal() +
                                     " WHERE position = 3");
    }

    void ExpectDamaged(const char* what, const Packed& packed, const std::string& reason) const
    {
        const ChildEnd end = Open(packed);
        EXPECT_EQ(end.code, kRefused) << what << ' ' << testing::PrintToString(end);
        EXPECT_EQ(ReasonOf(end, document.Path()),
                  "the file is damaged: " + reason + ". Restore it from a copy.")
            << what;
    }

    DamagedDocument document;
};

TEST_F(DamagedAttributes, LengthsThatLie)
{
    for (const Case& one : Lengths()) {
        ExpectDamaged(one.what, one.packed,
                      std::string("table feature, row 3: feature 3: ") + one.reason);
    }
}

TEST_F(DamagedAttributes, ValuesThatCannotBe)
{
    for (const Case& one : Values()) {
        ExpectDamaged(one.what, one.packed,
                      std::string("table feature, row 3: feature 3: ") + one.reason);
    }
}

TEST_F(DamagedAttributes, ReferencesAndLinksThatLeadNowhere)
{
    for (const auto& [kind, noun] :
         {std::pair{AttributeKind::Reference, "feature"}, std::pair{AttributeKind::Link, "link"}}) {
        for (const std::int64_t id :
             {std::int64_t{99999}, std::int64_t{-1}, INT64_MAX, INT64_MIN}) {
            ExpectDamaged(noun, One(kind).Add(id),
                          "an attribute refers to " + std::string(noun) + ' ' + std::to_string(id) +
                              ", which does not exist");
        }
    }
}

}  // namespace
