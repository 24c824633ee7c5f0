// SPDX-License-Identifier: Apache-2.0
// Unsigned integers as little-endian bytes, whatever the machine's own order.
#pragma once

#include <bit>
#include <concepts>
#include <cstddef>
#include <cstring>

namespace vex::system {

/// Writes the sizeof(Number) bytes of `value`, lowest first, to `bytes`.
template <std::unsigned_integral Number>
void StoreLittleEndian(std::byte* bytes, Number value)
{
    if constexpr (std::endian::native == std::endian::little) {
        std::memcpy(bytes, &value, sizeof value);
    } else {
        for (std::size_t i = 0; i < sizeof(Number); ++i) {
            bytes[i] = static_cast<std::byte>((value >> (8 * i)) & 0xFFU);
        }
    }
}

/// The number whose sizeof(Number) bytes, lowest first, are at `bytes`.
template <std::unsigned_integral Number>
Number LoadLittleEndian(const std::byte* bytes)
{
    Number value = 0;
    if constexpr (std::endian::native == std::endian::little) {
        std::memcpy(&value, bytes, sizeof value);
    } else {
        for (std::size_t i = 0; i < sizeof(Number); ++i) {
            value = static_cast<Number>(value | (static_cast<Number>(bytes[i]) << (8 * i)));
        }
    }
    return value;
}

}  // namespace vex::system
