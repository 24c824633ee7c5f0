// SPDX-License-Identifier: Apache-2.0
// Numbers as reports write them: typed examples, and a million numbers beside exact arithmetic.
#include "HLXNumber.h"

#include "library/reports/ExactDecimal.h"
#include "support/ForeignNumbers.h"

#include <gtest/gtest.h>

#include <bit>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <limits>
#include <random>

namespace hlxtest {
namespace {

std::string General(double number)
{
    return std::string(HLXNumber::General(number).View());
}

using Limits = std::numeric_limits<double>;

struct Example
{
    double number;
    const char* text;
};

const Example kExamples[] = {
    {0, "0"},
    {-0.0, "-0"},
    {1, "1"},
    {-1, "-1"},
    {0.5, "0.5"},
    {10, "10"},
    {100000, "100000"},
    {999999, "999999"},
    {1000000, "1e+006"},
    {1234567, "1.23457e+006"},
    {-1234567, "-1.23457e+006"},
    {123456, "123456"},
    {12345.6, "12345.6"},
    {1.5, "1.5"},
    {-9.81, "-9.81"},
    {0.1 + 0.2, "0.3"},
    {1.0 / 3.0, "0.333333"},
    {2.0 / 3.0, "0.666667"},
    {200.0 / 3.0, "66.6667"},
    {3.14159265358979, "3.14159"},
    {1.10000, "1.1"},
    {100.5, "100.5"},
    {1e-7, "1e-007"},
    {0.0001, "0.0001"},
    {0.00012345678, "0.000123457"},
    {0.00001, "1e-005"},
    {0.000012345678, "1.23457e-005"},
    {1e99, "1e+099"},
    {1e100, "1e+100"},
    {1e-100, "1e-100"},
    {-2.5e-12, "-2.5e-012"},
    // A half goes to the even digit, a little more or less to the nearer one.
    {100000.5, "100000"},
    {100001.5, "100002"},
    {100000.50000000001, "100001"},
    {100001.49999999999, "100001"},
    {12345.25, "12345.2"},
    {12345.75, "12345.8"},
    {1000005, "1e+006"},
    {1000015, "1.00002e+006"},
    // Rounding that makes a digit more, also across the ends of the plain notation.
    {9.999994, "9.99999"},
    {9.999996, "10"},
    {99999.96, "100000"},
    {999999.4, "999999"},
    {999999.5, "1e+006"},
    {0.0000999999, "9.99999e-005"},
    {0.00009999996, "0.0001"},
    {9.9999996e-100, "1e-099"},
    {9.9999996e99, "1e+100"},
    // The ends of the range.
    {Limits::max(), "1.79769e+308"},
    {Limits::lowest(), "-1.79769e+308"},
    {Limits::min(), "2.22507e-308"},
    {Limits::denorm_min(), "4.94066e-324"},
    {-Limits::denorm_min(), "-4.94066e-324"},
    {Limits::epsilon(), "2.22045e-016"},
    {Limits::infinity(), "inf"},
    {-Limits::infinity(), "-inf"},
};

TEST(Number, IsWrittenAsTyped)
{
    for (const Example& example : kExamples) {
        EXPECT_EQ(General(example.number), example.text);
    }
}

TEST(Number, IsWrittenAsTypedInAForeignLocale)
{
    const ForeignNumbers foreign;
    for (const Example& example : kExamples) {
        EXPECT_EQ(General(example.number), example.text);
    }
}

TEST(Number, ThatIsNoneIsWrittenWithItsSign)
{
    for (const double none : {Limits::quiet_NaN(), Limits::signaling_NaN(), std::nan("12345")}) {
        EXPECT_EQ(General(std::copysign(none, 1.0)), "nan");
        EXPECT_EQ(General(std::copysign(none, -1.0)), "-nan");
    }
}

TEST(ExactDecimal, IsAsTyped)
{
    for (const Example& example : kExamples) {
        EXPECT_EQ(ExactGeneral(example.number), example.text);
    }
    EXPECT_EQ(ExactGeneral(std::copysign(Limits::quiet_NaN(), 1.0)), "nan");
    EXPECT_EQ(ExactGeneral(std::copysign(Limits::quiet_NaN(), -1.0)), "-nan");
}

// --- Beside exact arithmetic --------------------------------------------------------------------

class Comparison
{
public:
    ~Comparison() { EXPECT_GE(_count, _wanted) << "fewer numbers than were meant to be compared"; }
    explicit Comparison(int wanted) : _wanted(wanted) {}
    Comparison(const Comparison&) = delete;
    Comparison& operator=(const Comparison&) = delete;

    void Take(double number)
    {
        ++_count;
        const std::string written = General(number);
        const std::string exact = ExactGeneral(number);
        if (written != exact && ++_failures <= 10) {
            ADD_FAILURE() << "the number of bits 0x" << std::hex
                          << std::bit_cast<std::uint64_t>(number) << " is written " << written
                          << ", exactly it is " << exact;
        }
    }

    /// Takes the number, its neighbours, and the same below 0.
    void TakeAround(double number, int neighbours)
    {
        double above = number;
        double below = number;
        TakeWithSigns(number);
        for (int i = 0; i < neighbours; ++i) {
            above = std::nextafter(above, Limits::infinity());
            below = std::nextafter(below, -Limits::infinity());
            TakeWithSigns(above);
            TakeWithSigns(below);
        }
    }

private:
    void TakeWithSigns(double number)
    {
        Take(number);
        Take(-number);
    }

    int _wanted;
    int _count = 0;
    int _failures = 0;
};

/// A generator whose seed is printed.
std::mt19937_64 Generator(std::uint64_t seed)
{
    std::printf("seed %llu\n", static_cast<unsigned long long>(seed));
    return std::mt19937_64(seed);
}

/// The number nearest to a decimal text.
double NumberOf(const std::string& text)
{
    double number = 0;
    const std::from_chars_result read =
        std::from_chars(text.data(), text.data() + text.size(), number);
    EXPECT_TRUE(read.ec == std::errc() && read.ptr == text.data() + text.size()) << text;
    return number;
}

class RandomNumbers : public testing::TestWithParam<int>
{};

TEST_P(RandomNumbers, OfAnyBitsAreAsExactArithmeticHasThem)
{
    std::mt19937_64 generator = Generator(20'080'515U + static_cast<unsigned int>(GetParam()));
    Comparison comparison(100'000);
    for (int i = 0; i < 100'000; ++i) {
        comparison.Take(std::bit_cast<double>(generator()));
    }
}

TEST_P(RandomNumbers, OfUsualSizesAreAsExactArithmeticHasThem)
{
    std::mt19937_64 generator = Generator(51'520'080U + static_cast<unsigned int>(GetParam()));
    Comparison comparison(50'000);
    for (int i = 0; i < 50'000; ++i) {
        const auto mantissa = static_cast<double>(generator() >> 11U);
        comparison.Take(std::ldexp(mantissa, static_cast<int>(generator() % 80U) - 93));
    }
}

INSTANTIATE_TEST_SUITE_P(Shard, RandomNumbers, testing::Range(0, 5));

TEST(NumberBesideExactArithmetic, PowersOfTenTheirMultiplesAndNeighbours)
{
    Comparison comparison(50'000);
    for (int exponent = -323; exponent <= 308; ++exponent) {
        const std::string tail = "e" + std::to_string(exponent);
        comparison.TakeAround(NumberOf("1" + tail), 16);
        for (char digit = '2'; digit <= '9' && exponent < 308; ++digit) {
            comparison.TakeAround(NumberOf(digit + tail), 1);
        }
    }
}

TEST(NumberBesideExactArithmetic, PowersOfTwoAndNeighbours)
{
    Comparison comparison(12'000);
    for (int exponent = -1074; exponent <= 1023; ++exponent) {
        comparison.TakeAround(std::ldexp(1.0, exponent), 1);
    }
}

/// Halves at the sixth digit that are doubles: odd multiples of a power of five, divided by one of
/// two, which come out as seven digits with a 5 at the end; and whole ones.
TEST(NumberBesideExactArithmetic, HalvesAtTheSixthDigitAndNeighbours)
{
    Comparison comparison(100'000);
    long powerOfFive = 1;
    for (int power = 0; power <= 8; ++power, powerOfFive *= 5) {
        const long first = (200'001 + powerOfFive - 1) / powerOfFive;
        const long step = power == 0 ? 118 : power == 1 ? 22 : 2;
        for (long odd = first + (first % 2 == 0 ? 1 : 0); odd * powerOfFive <= 1'999'999;
             odd += step) {
            comparison.TakeAround(std::ldexp(static_cast<double>(odd), -power - 1), 1);
        }
    }
    for (double size = 10; size <= 1e9; size *= 10) {
        for (double digits = 100'000; digits < 1'000'000; digits += 997) {
            comparison.TakeAround((digits + 0.5) * size, 1);
        }
    }
}

/// Where no double is the half, the exact value decides.
TEST(NumberBesideExactArithmetic, NumbersNearestToHalvesAtTheSixthDigit)
{
    std::mt19937_64 generator = Generator(150'508);
    Comparison comparison(120'000);
    for (int i = 0; i < 20'000; ++i) {
        const auto digits = std::to_string(100'000 + generator() % 900'000U);
        const int exponent = static_cast<int>(generator() % 620U) - 314;
        comparison.TakeAround(NumberOf(digits + "5e" + std::to_string(exponent - 6)), 1);
    }
}

TEST(NumberBesideExactArithmetic, SubnormalNumbers)
{
    std::mt19937_64 generator = Generator(4'940'656);
    Comparison comparison(60'000);
    comparison.TakeAround(Limits::min(), 1000);
    for (std::uint64_t fraction = 0; fraction < 2000; ++fraction) {
        comparison.Take(std::bit_cast<double>(fraction));
    }
    for (int i = 0; i < 56'000; ++i) {
        const std::uint64_t fraction = generator() >> 12U;
        comparison.Take(std::bit_cast<double>(fraction >> generator() % 52U));
    }
}

TEST(NumberBesideExactArithmetic, NumbersThatAreNone)
{
    std::mt19937_64 generator = Generator(2047);
    Comparison comparison(2004);
    for (const double number : {0.0, -0.0, Limits::infinity(), -Limits::infinity()}) {
        comparison.Take(number);
    }
    const auto infinite = std::bit_cast<std::uint64_t>(Limits::infinity());
    for (int i = 0; i < 1000; ++i) {
        const std::uint64_t none = infinite | (generator() >> 12U) | 1U;
        comparison.Take(std::bit_cast<double>(none));
        comparison.Take(std::bit_cast<double>(none | std::uint64_t{1} << 63U));
    }
}

}  // namespace
}  // namespace hlxtest
