// SPDX-License-Identifier: Apache-2.0
// Packing and unpacking of attributes.
#include "host/store/AttributePacker.h"
#include "host/store/AttributeUnpacker.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <limits>
#include <random>
#include <string>

namespace vex::store {
namespace {

using testing::HasSubstr;

std::vector<std::byte> ToBytes(std::initializer_list<int> numbers)
{
    std::vector<std::byte> bytes;
    for (const int number : numbers)
        bytes.push_back(static_cast<std::byte>(number));
    return bytes;
}

// The fault found in `bytes`, "" when there is none.
std::string FaultOf(Bytes bytes)
{
    AttributeUnpacker unpacker(bytes);
    for (Attribute attribute; unpacker.Next(attribute);) {
    }
    return unpacker.Fault() != nullptr ? unpacker.Fault() : "";
}

TEST(PackedAttributes, EveryKindComesBack)
{
    AttributePacker packer;
    const double cells[] = {1.0, -0.0, std::numeric_limits<double>::infinity(), 4.0, 5.0, 6.0};
    ASSERT_TRUE(packer.AddBoolean(0, true));
    ASSERT_TRUE(packer.AddBoolean(1, false));
    ASSERT_TRUE(packer.AddInteger(2, std::numeric_limits<std::int64_t>::min()));
    ASSERT_TRUE(packer.AddDouble(3, 0.1));
    ASSERT_TRUE(packer.AddText(4, "é"));
    ASSERT_TRUE(packer.AddText(5, ""));
    ASSERT_TRUE(packer.AddReference(6, 42));
    ASSERT_TRUE(packer.AddLink(65534, 3));
    ASSERT_TRUE(packer.AddList(8, {}));
    ASSERT_TRUE(packer.AddTable(9, 2, 3, cells));

    AttributeUnpacker unpacker(packer.Packed());
    Attribute a;
    ASSERT_TRUE(unpacker.Next(a));
    EXPECT_TRUE(a.kind == AttributeKind::Boolean && a.name == 0 && a.boolean);
    ASSERT_TRUE(unpacker.Next(a));
    EXPECT_TRUE(a.kind == AttributeKind::Boolean && a.name == 1 && !a.boolean);
    ASSERT_TRUE(unpacker.Next(a));
    EXPECT_EQ(a.kind, AttributeKind::Integer);
    EXPECT_EQ(a.integer, std::numeric_limits<std::int64_t>::min());
    ASSERT_TRUE(unpacker.Next(a));
    EXPECT_EQ(a.kind, AttributeKind::Double);
    EXPECT_EQ(a.number, 0.1);
    ASSERT_TRUE(unpacker.Next(a));
    EXPECT_EQ(a.kind, AttributeKind::Text);
    EXPECT_EQ(a.text, "é");
    ASSERT_TRUE(unpacker.Next(a));
    EXPECT_EQ(a.text, "");
    ASSERT_TRUE(unpacker.Next(a));
    EXPECT_EQ(a.kind, AttributeKind::Reference);
    EXPECT_EQ(a.integer, 42);
    ASSERT_TRUE(unpacker.Next(a));
    EXPECT_EQ(a.kind, AttributeKind::Link);
    EXPECT_EQ(a.name, 65534);
    ASSERT_TRUE(unpacker.Next(a));
    EXPECT_EQ(a.kind, AttributeKind::List);
    EXPECT_EQ(a.doubles.Size(), 0U);
    ASSERT_TRUE(unpacker.Next(a));
    EXPECT_EQ(a.kind, AttributeKind::Table);
    EXPECT_EQ(a.rows, 2U);
    EXPECT_EQ(a.columns, 3U);
    ASSERT_EQ(a.doubles.Size(), 6U);
    for (std::size_t i = 0; i < 6; ++i)
        EXPECT_EQ(a.doubles[i], cells[i]);
    EXPECT_TRUE(std::signbit(a.doubles[1]));
    EXPECT_FALSE(unpacker.Next(a));
    EXPECT_EQ(unpacker.Fault(), nullptr);
}

TEST(PackedAttributes, LayoutIsTheDocumentedOne)
{
    AttributePacker packer;
    packer.AddText(0x0102, "ab");
    packer.AddInteger(1, -2);
    EXPECT_EQ(std::vector(packer.Packed().begin(), packer.Packed().end()),
              ToBytes({2, 0, 0x02, 0x01, 4,    2,    0,    0,    0,    'a',  'b',
                       1, 0, 2,    0xFE, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF}));
    packer.Clear();
    EXPECT_EQ(std::vector(packer.Packed().begin(), packer.Packed().end()), ToBytes({0, 0}));
}

TEST(PackedAttributes, NotANumberKeepsItsBits)
{
    const std::uint64_t bits = 0x7FF8'0000'DEAD'BEEFU;
    AttributePacker packer;
    packer.AddDouble(0, std::bit_cast<double>(bits));
    AttributeUnpacker unpacker(packer.Packed());
    Attribute a;
    ASSERT_TRUE(unpacker.Next(a));
    EXPECT_EQ(std::bit_cast<std::uint64_t>(a.number), bits);
}

TEST(PackedAttributes, PackerRefusesWhatDoesNotFit)
{
    AttributePacker packer;
    const double five[] = {1, 2, 3, 4, 5};
    EXPECT_FALSE(packer.AddTable(0, 2, 3, five));
    EXPECT_FALSE(packer.AddTable(0, std::size_t{1} << 63, 2, {}));
    EXPECT_EQ(packer.Packed().size(), 2U);
    for (int i = 0; i < 65535; ++i)
        ASSERT_TRUE(packer.AddBoolean(static_cast<NameIndex>(i), true));
    EXPECT_FALSE(packer.AddBoolean(0, true));
    EXPECT_EQ(FaultOf(packer.Packed()), "");
}

TEST(PackedAttributes, FaultsAreFound)
{
    EXPECT_THAT(FaultOf({}), HasSubstr("end early"));
    EXPECT_THAT(FaultOf(ToBytes({1, 0})), HasSubstr("end early"));
    EXPECT_THAT(FaultOf(ToBytes({0, 0, 0})), HasSubstr("follow the last"));
    EXPECT_THAT(FaultOf(ToBytes({1, 0, 0, 0, 0, 1})), HasSubstr("unknown kind"));
    EXPECT_THAT(FaultOf(ToBytes({1, 0, 0, 0, 9, 1})), HasSubstr("unknown kind"));
    EXPECT_THAT(FaultOf(ToBytes({1, 0, 0, 0, 1, 2})), HasSubstr("neither 0 nor 1"));
    EXPECT_THAT(FaultOf(ToBytes({1, 0, 0, 0, 4, 3, 0, 0, 0, 'a', 'b'})), HasSubstr("shorter"));
    EXPECT_THAT(FaultOf(ToBytes({1, 0, 0, 0, 4, 1, 0, 0, 0, 0xFF})), HasSubstr("UTF-8"));
    EXPECT_THAT(FaultOf(ToBytes({1, 0, 0, 0, 4, 1, 0, 0, 0, 0})), HasSubstr("NUL"));
    EXPECT_THAT(FaultOf(ToBytes({1, 0, 0, 0, 7, 0xFF, 0xFF, 0xFF, 0xFF})), HasSubstr("fewer"));
    // rows * columns overflows 32 bits, and times eight 64
    EXPECT_THAT(FaultOf(ToBytes({1, 0, 0, 0, 8, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF})),
                HasSubstr("fewer"));
    EXPECT_THAT(FaultOf(ToBytes({1, 0, 0, 0, 8, 0, 0, 0, 0x80, 2, 0, 0, 0})), HasSubstr("fewer"));
}

TEST(PackedAttributes, EveryCutIsFoundAndNoChangeIsHarmful)
{
    AttributePacker packer;
    const double values[] = {1, 2, 3, 4};
    packer.AddBoolean(0, true);
    packer.AddText(1, "some text");
    packer.AddTable(2, 2, 2, values);
    packer.AddReference(3, 1);
    const std::vector<std::byte> whole(packer.Packed().begin(), packer.Packed().end());
    for (std::size_t size = 0; size < whole.size(); ++size) {
        // A copy of its own size: reading past it is seen by the address sanitizer.
        const std::vector<std::byte> cut(whole.begin(),
                                         whole.begin() + static_cast<std::ptrdiff_t>(size));
        EXPECT_NE(FaultOf(cut), "") << size;
    }
    std::mt19937 random(1);
    for (int i = 0; i < 20'000; ++i) {
        std::vector<std::byte> changed = whole;
        for (int k = 0; k < 3; ++k)
            changed[random() % changed.size()] = std::byte(random() & 0xFF);
        std::size_t doubles = 0;
        AttributeUnpacker unpacker(changed);
        for (Attribute a; unpacker.Next(a);)
            doubles += a.doubles.Size() + a.text.size();
        EXPECT_LE(doubles, 1000U);
    }
}

}  // namespace
}  // namespace vex::store
