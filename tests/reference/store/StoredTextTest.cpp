// SPDX-License-Identifier: Apache-2.0
// Which texts can be stored, and how any text is shown.
#include "host/system/MessageTexts.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cerrno>

namespace vex::system {
namespace {

using testing::HasSubstr;

TEST(StoredText, ValidTexts)
{
    for (const std::string text : {"", "a", "12345678", "123456789", "\x7F\x01\n", "é", "€", "𝄞",
                                   "\xED\x9F\xBF", "\xEE\x80\x80", "\xF4\x8F\xBF\xBF", "\xC2\x80",
                                   "\xE0\xA0\x80", "\xF0\x90\x80\x80", "1234567é"}) {
        EXPECT_EQ(TextFault(text), nullptr) << Quoted(text);
    }
}

TEST(StoredText, InvalidTexts)
{
    for (const std::string text :
         {"\x80", "\xBF", "\xC0\x80", "\xC1\xBF", "\xC2", "\xC3(", "\xE0\x9F\xBF", "\xE2\x82",
          "\xED\xA0\x80", "\xED\xBF\xBF", "\xF0\x8F\xBF\xBF", "\xF0\x90\x80", "\xF4\x90\x80\x80",
          "\xF5\x80\x80\x80", "\xFE", "\xFF", "12345678\xFF", "1234567\xC3",
          "1234567\xFF"
          "12345678"}) {
        ASSERT_NE(TextFault(text), nullptr) << Quoted(text);
        EXPECT_THAT(TextFault(text), HasSubstr("UTF-8"));
    }
    for (std::size_t place = 0; place < 20; ++place) {
        std::string text(20, 'x');
        text[place] = '\0';
        ASSERT_NE(TextFault(text), nullptr) << place;
        EXPECT_THAT(TextFault(text), HasSubstr("NUL"));
    }
}

TEST(StoredText, ShownTextsAreOneLine)
{
    EXPECT_EQ(Quoted("it's é"), "'it\\'s é'");
    EXPECT_EQ(Quoted("say \"no\""), "'say \"no\"'");
    EXPECT_EQ(Printable("a\nb\t\\\x7F"), "a\\nb\\t\\\\\\u{7f}");
    EXPECT_EQ(Printable("\xC2\x9B"), "\\u{9b}") << "a control character of terminals";
    EXPECT_EQ(Printable("\u202E"), "\\u{202e}") << "turns the direction of what follows";
    EXPECT_EQ(Printable(std::string_view("\xFF\0z", 3)), "\\xff\\u{0}z");
    EXPECT_EQ(Quoted(""), "''");
}

TEST(StoredText, ReasonsAreEnglish)
{
    EXPECT_EQ(SystemReason(ENOENT), "No such file or directory");
    EXPECT_EQ(SystemReason(99999), "error 99999");
}

}  // namespace
}  // namespace vex::system
