// SPDX-License-Identifier: Apache-2.0
// Any bytes at any place of a text can be read back from the quoted text: different bytes are
// quoted differently. (Quoting takes eight bytes at a time where it can.)
#include "host/system/MessageTexts.h"
#include "host/system/Texts.h"
#include "names/HostileNames.h"
#include "names/QuotedText.h"

#include <gtest/gtest.h>

namespace hlxtest {

namespace {

constexpr std::string_view kPlain = "abcdefghijklmnopqrstuvwxyz 0123456789";

/// `bytes` behind `before` plain ones and in front of `behind`.
std::string Among(std::string_view bytes, std::size_t before, std::size_t behind)
{
    return std::string(kPlain.substr(0, before)) + std::string(bytes) +
           std::string(kPlain.substr(0, behind));
}

/// True when the bytes can be read back, and quoting neither ends the line nor disturbs it.
bool CanBeReadBack(std::string_view bytes)
{
    const std::string quoted = vex::text::DoubleQuoted(bytes);
    std::string_view rest = quoted;
    std::string read;
    return TakeQuoted(rest, read) && rest.empty() && read == bytes && IsPlain(quoted);
}

TEST(Quoting, EachByteAtEachPlaceOfTextsOfAnyLength)
{
    for (int value = 0; value < 256; ++value) {
        const char byte = static_cast<char>(value);
        for (std::size_t before = 0; before <= 17; ++before) {
            for (std::size_t behind = 0; behind <= 17; ++behind) {
                EXPECT_TRUE(CanBeReadBack(Among({&byte, 1}, before, behind)))
                    << value << " at " << before << ", " << behind << " behind";
            }
        }
    }
}

TEST(Quoting, EachPairOfBytes)
{
    for (int first = 0; first < 256; ++first) {
        for (int second = 0; second < 256; ++second) {
            const char pair[] = {static_cast<char>(first), static_cast<char>(second)};
            for (const std::size_t before : {0U, 3U, 7U}) {
                EXPECT_TRUE(CanBeReadBack(Among({pair, 2}, before, 8)))
                    << first << ' ' << second << " at " << before;
            }
        }
    }
}

TEST(Quoting, EachNameAtEachPlace)
{
    for (const HostileNames* const names : {&StorableNames(), &UnstorableNames()}) {
        for (const HostileName& name : *names) {
            for (std::size_t before = 0; before <= 9; ++before) {
                EXPECT_TRUE(CanBeReadBack(Among(name.bytes, before, 8 - before % 9)))
                    << name.label << " at " << before;
            }
        }
    }
}

/// Every character there is, most of them untold by any other test.
TEST(Quoting, EachCodePoint)
{
    for (std::uint32_t point = 0; point <= 0x10FFFF; ++point) {
        if (point >= 0xD800 && point <= 0xDFFF) continue;
        EXPECT_TRUE(CanBeReadBack(Utf8Of(point))) << point;
    }
}

TEST(Quoting, WhatCannotBeStoredIsToldAtEachPlace)
{
    for (std::size_t before = 0; before <= 17; ++before) {
        for (const HostileName& name : StorableNames()) {
            EXPECT_EQ(vex::system::TextFault(Among(name.bytes, before, 9)), nullptr) << name.label;
        }
        for (const HostileName& name : UnstorableNames()) {
            EXPECT_NE(vex::system::TextFault(Among(name.bytes, before, 9)), nullptr) << name.label;
        }
    }
}

}  // namespace

}  // namespace hlxtest
