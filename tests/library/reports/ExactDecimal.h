// SPDX-License-Identifier: Apache-2.0
// Numbers in general notation, worked out with whole numbers alone from the exact binary value: six
// significant digits, a half rounded to the even digit. To compare a quicker way of writing them
// with.
#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <stdexcept>
#include <string>
#include <vector>

namespace hlxtest {

/// A whole number of at most 1,280 bits that is not negative: room for each double divided by a
/// power of ten, some digits more besides. Plain arrays, as tests are compiled without
/// optimisation.
class Natural
{
public:
    explicit Natural(std::uint64_t value = 0)
    {
        Grow(static_cast<std::uint32_t>(value));
        Grow(static_cast<std::uint32_t>(value >> 32U));
        Trim();
    }

    Natural& operator*=(std::uint32_t factor)
    {
        std::uint64_t carry = 0;
        for (int i = 0; i < _size; ++i) {
            carry += std::uint64_t{_limbs[i]} * factor;
            _limbs[i] = static_cast<std::uint32_t>(carry);
            carry >>= 32U;
        }
        Grow(static_cast<std::uint32_t>(carry));
        Trim();
        return *this;
    }

    Natural& operator+=(const Natural& other)
    {
        while (_size < other._size) {
            Grow(0);
        }
        std::uint64_t carry = 0;
        for (int i = 0; i < _size; ++i) {
            carry += _limbs[i];
            carry += i < other._size ? other._limbs[i] : 0U;
            _limbs[i] = static_cast<std::uint32_t>(carry);
            carry >>= 32U;
        }
        Grow(static_cast<std::uint32_t>(carry));
        Trim();
        return *this;
    }

    /// @param other  not above this one
    Natural& operator-=(const Natural& other)
    {
        std::uint64_t borrowed = 0;
        for (int i = 0; i < other._size || borrowed != 0; ++i) {
            const std::uint64_t taken = borrowed + (i < other._size ? other._limbs[i] : 0U);
            borrowed = _limbs[i] < taken ? 1 : 0;
            _limbs[i] = static_cast<std::uint32_t>(_limbs[i] - taken);
        }
        Trim();
        return *this;
    }

    Natural& operator<<=(unsigned int bits)
    {
        Natural shifted;
        for (unsigned int whole = bits / 32U; whole > 0 && _size > 0; --whole) {
            shifted.Grow(0);
        }
        for (int i = 0; i < _size; ++i) {
            shifted.Grow(_limbs[i]);
        }
        *this = shifted;
        return bits % 32U == 0 ? *this : *this *= std::uint32_t{1} << (bits % 32U);
    }

    /// Below 0, 0 or above, as this one is below, the same as or above `other`.
    int Compare(const Natural& other) const
    {
        if (_size != other._size) {
            return _size < other._size ? -1 : 1;
        }
        for (int i = _size - 1; i >= 0; --i) {
            if (_limbs[i] != other._limbs[i]) {
                return _limbs[i] < other._limbs[i] ? -1 : 1;
            }
        }
        return 0;
    }

    /// Made once each.
    static const Natural& PowerOfTen(int exponent)
    {
        static const std::vector<Natural> powers = [] {
            std::vector<Natural> made{Natural(1)};
            while (made.size() <= 330) {
                made.push_back(made.back());
                made.back() *= 10;
            }
            return made;
        }();
        return powers.at(static_cast<std::size_t>(exponent));
    }

private:
    static constexpr int kLimbs = 42;

    void Grow(std::uint32_t limb)
    {
        if (_size == kLimbs) {
            throw std::length_error("a number of more bits than there is room for");
        }
        _limbs[_size++] = limb;
    }

    void Trim()
    {
        while (_size > 0 && _limbs[_size - 1] == 0) {
            --_size;
        }
    }

    std::uint32_t _limbs[kLimbs] = {};
    int _size = 0;
};

/// Six digits of a number above 0, the first of them not 0, and the place of the first: 0 for ones.
struct SixDigits
{
    std::string digits;
    int place;
};

/// @param mantissa  not 0; the number is it times two to the power of `exponent`
inline SixDigits ExactSixDigits(std::uint64_t mantissa, int exponent)
{
    // The number is over / under, brought to 1 or more and less than 10. Its place is known but for
    // one from that of its first bit, as 78913 / 2^18 is just below the logarithm of 2.
    const int firstBit = exponent + static_cast<int>(std::bit_width(mantissa)) - 1;
    int place = (firstBit * 78913) >> 18;
    Natural over(mantissa);
    Natural under(1);
    if (place < 0) {
        over = Natural::PowerOfTen(-place);
        over *= static_cast<std::uint32_t>(mantissa >> 32U);
        over <<= 32;
        Natural low = Natural::PowerOfTen(-place);
        low *= static_cast<std::uint32_t>(mantissa);
        over += low;
    } else {
        under = Natural::PowerOfTen(place);
    }
    (exponent < 0 ? under : over) <<=
        static_cast<unsigned int>(exponent < 0 ? -exponent : exponent);
    while (over.Compare(under) < 0) {
        over *= 10;
        --place;
    }
    Natural tenfold = under;
    tenfold *= 10;
    while (over.Compare(tenfold) >= 0) {
        under = tenfold;
        tenfold *= 10;
        ++place;
    }

    // Each digit is the sum of some of 8, 4, 2 and 1.
    Natural multiples[] = {under, under, under, under};
    for (int i = 1; i < 4; ++i) {
        multiples[i] = multiples[i - 1];
        multiples[i] *= 2;
    }
    int digits = 0;
    for (int i = 0; i < 6; ++i) {
        digits *= 10;
        over *= i == 0 ? 1 : 10;
        for (int bit = 3; bit >= 0; --bit) {
            if (over.Compare(multiples[bit]) >= 0) {
                over -= multiples[bit];
                digits += 1 << bit;
            }
        }
    }
    over *= 2;
    const int half = over.Compare(under);
    if (half > 0 || (half == 0 && digits % 2 != 0)) {
        ++digits;
    }
    if (digits == 1'000'000) {
        digits = 100'000;
        ++place;
    }
    return {std::to_string(digits), place};
}

/// As C's %g writes the number in the "C" locale, but with three digits or more in an exponent.
inline std::string ExactGeneral(double number)
{
    const auto bits = std::bit_cast<std::uint64_t>(number);
    const std::string sign = (bits >> 63U) != 0 ? "-" : "";
    const auto biased = static_cast<int>((bits >> 52U) & 0x7FFU);
    const std::uint64_t fraction = bits & 0xF'FFFF'FFFF'FFFFU;
    if (biased == 0x7FF) {
        return sign + (fraction == 0 ? "inf" : "nan");
    }
    if (biased == 0 && fraction == 0) {
        return sign + "0";
    }
    const std::uint64_t hidden = biased == 0 ? 0 : std::uint64_t{1} << 52U;
    auto [digits, place] = ExactSixDigits(fraction | hidden, (biased == 0 ? 1 : biased) - 1075);
    digits.erase(digits.find_last_not_of('0') + 1);

    const std::size_t count = digits.size();
    if (place < -4 || place >= 6) {
        const std::string tail = count > 1 ? "." + digits.substr(1) : "";
        const std::string exponent = std::to_string(place < 0 ? -place : place);
        return sign + digits[0] + tail + (place < 0 ? "e-" : "e+") +
               std::string(exponent.size() < 3 ? 3 - exponent.size() : 0, '0') + exponent;
    }
    if (place < 0) {
        return sign + "0." + std::string(static_cast<std::size_t>(-place - 1), '0') + digits;
    }
    const auto whole = static_cast<std::size_t>(place) + 1;
    if (count <= whole) {
        return sign + digits + std::string(whole - count, '0');
    }
    return sign + digits.substr(0, whole) + "." + digits.substr(whole);
}

}  // namespace hlxtest
