// SPDX-License-Identifier: Apache-2.0
// Validity and quoting look at eight characters at a time: what is special is found at every place
// of texts of every length.
#include "host/system/TextBuffer.h"
#include "host/system/Texts.h"

#include <gtest/gtest.h>

namespace {

using namespace vex::text;

struct Special
{
    std::string text;
    std::string quoted;
    bool valid;
};

const Special specials[] = {
    {"\"", "\\\"", true},
    {"\\", "\\\\", true},
    {"\n", "\\n", true},
    {"\x1F", "\\u{1f}", true},
    {" ", " ", true},
    {"~", "~", true},
    {"!", "!", true},
    {"#", "#", true},
    {"[", "[", true},
    {"]", "]", true},
    {"\x7F", "\\u{7f}", true},
    {"\xC2\x80", "\\u{80}", true},
    {"\xC3\xA9", "\xC3\xA9", true},
    {"\xE2\x80\xAE", "\\u{202e}", true},
    {"\xF0\x9F\x94\xA9", "\xF0\x9F\x94\xA9", true},
    {"\x80", "\\x80", false},
    {"\xFF", "\\xff", false},
    {std::string(1, '\0'), "\\u{0}", false},
};

/// Calls `check` with each special text within plain ones, and what it is quoted as.
template <class Check>
void ForEachPlace(Check&& check)
{
    for (const Special& special : specials) {
        for (std::size_t before = 0; before <= 17; ++before) {
            for (std::size_t behind = 0; behind <= 17; ++behind) {
                const std::string head(before, 'a');
                const std::string tail(behind, 'z');
                check(special, head + special.text + tail,
                      '"' + head + special.quoted + tail + '"');
            }
        }
    }
}

TEST(TextsTest, QuotesEachCharacterAtEachPlace)
{
    ForEachPlace([](const Special&, const std::string& text, const std::string& quoted) {
        ASSERT_EQ(DoubleQuoted(text), quoted);
    });
}

TEST(TextsTest, QuotesIntoABufferAsIntoAText)
{
    TextBuffer buffer("begun ");
    std::string expected = "begun ";
    ForEachPlace([&](const Special&, const std::string& text, const std::string&) {
        AppendQuoted(buffer, text);
        AppendQuoted(expected, text);
    });
    EXPECT_EQ(buffer.Take(), expected);
}

TEST(TextsTest, TellsWhetherATextIsValidAtEachPlace)
{
    ForEachPlace([](const Special& special, const std::string& text, const std::string&) {
        ASSERT_EQ(IsValid(text), special.valid) << text;
    });
}

TEST(TextsTest, NothingIsQuotedAsAnEmptyText)
{
    EXPECT_EQ(DoubleQuoted(""), "\"\"");
    EXPECT_TRUE(IsValid(""));
}

TEST(TextBufferTest, HoldsWhatWasAddedWhateverIsExpected)
{
    for (const std::size_t expected :
         {std::size_t{0}, std::size_t{1}, std::size_t{5'000}, std::size_t{1'000'000}}) {
        TextBuffer buffer("", expected);
        std::string all;
        for (std::size_t size = 0; size < 300; ++size) {
            const std::string piece(size, static_cast<char>('a' + size % 26));
            buffer += piece;
            buffer += '.';
            buffer.append(size % 7, '-');
            all += piece + '.' + std::string(size % 7, '-');
        }
        EXPECT_EQ(buffer.size(), all.size());
        EXPECT_EQ(buffer.Take(), all);
        EXPECT_EQ(buffer.size(), 0U);
    }
}

TEST(TextBufferTest, ShortensButNeverLengthens)
{
    TextBuffer buffer("abcdef");
    buffer.resize(3);
    buffer += 'X';
    buffer.resize(100);
    EXPECT_EQ(buffer.Take(), "abcX");
}

}  // namespace
