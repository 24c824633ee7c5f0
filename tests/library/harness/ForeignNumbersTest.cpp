// SPDX-License-Identifier: Apache-2.0
// The locale under which other tests run is what they take it for.
#include "support/ForeignNumbers.h"

#include "support/Outcome.h"

#include <clocale>
#include <iostream>
#include <sstream>

namespace hlxtest {

namespace {

TEST(ForeignNumbers, AreInForceInCxx)
{
    const ForeignNumbers foreign;
    std::ostringstream text;
    text << 1234567 << ' ' << 1.5;
    EXPECT_EQ(text.str(), "1.234.567 1,5");
    EXPECT_EQ(OutcomeOf([] { std::cout << 255; }).out, "0XFF");
}

TEST(ForeignNumbers, AreInForceInC)
{
    const ForeignNumbers foreign;
    if (!foreign.AreInForceInC()) {
        GTEST_SKIP()
            << "NO C LOCALE WITH A DECIMAL COMMA CAN BE HAD HERE: localedef is missing, and "
               "no such locale is installed. Tests in a foreign locale see a C++ one only. "
               "Install libc-bin.";
    }
    char text[32];
    std::snprintf(text, sizeof text, "%.1f", 1.5);
    EXPECT_STREQ(text, "1,5");
    EXPECT_STREQ(std::localeconv()->thousands_sep, ".");
}

TEST(ForeignNumbers, AreGoneAfterwards)
{
    {
        const ForeignNumbers foreign;
    }
    char text[32];
    std::snprintf(text, sizeof text, "%.1f", 1.5);
    EXPECT_STREQ(text, "1.5");
    EXPECT_EQ(OutcomeOf([] { std::cout << 1255; }).out, "1255");
}

}  // namespace

}  // namespace hlxtest
