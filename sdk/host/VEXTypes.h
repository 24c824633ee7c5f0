// SPDX-License-Identifier: Apache-2.0
// Result codes, identifiers and export marks that every other header of the platform builds on.
#pragma once

#include <compare>
#include <cstddef>
#include <cstdint>

#define VEX_EXPORT __attribute__((visibility("default")))

/// Result of a platform operation: 32 bits, signed, on every system. Negative is failure; zero and
/// above is success.
using HRESULT = std::int32_t;

inline constexpr HRESULT S_OK = 0;
inline constexpr HRESULT S_FALSE = 1;
inline constexpr HRESULT E_NOTIMPL = static_cast<HRESULT>(0x80004001U);
inline constexpr HRESULT E_NOINTERFACE = static_cast<HRESULT>(0x80004002U);
inline constexpr HRESULT E_POINTER = static_cast<HRESULT>(0x80004003U);
inline constexpr HRESULT E_FAIL = static_cast<HRESULT>(0x80004005U);
inline constexpr HRESULT E_UNEXPECTED = static_cast<HRESULT>(0x8000FFFFU);
inline constexpr HRESULT E_ACCESSDENIED = static_cast<HRESULT>(0x80070005U);
inline constexpr HRESULT E_OUTOFMEMORY = static_cast<HRESULT>(0x8007000EU);
inline constexpr HRESULT E_INVALIDARG = static_cast<HRESULT>(0x80070057U);

constexpr bool SUCCEEDED(long result)
{
    return result >= 0;
}

constexpr bool FAILED(long result)
{
    return result < 0;
}

/// A 128-bit identifier of an interface or a class.
struct GUID
{
    std::uint64_t High = 0;
    std::uint64_t Low = 0;

    friend constexpr bool operator==(const GUID&, const GUID&) = default;
    friend constexpr auto operator<=>(const GUID&, const GUID&) = default;  // NOLINT: no null here
};

using IID = GUID;

/// The identifier of a name: two FNV-1a hashes of 64 bits, the second one over the name read
/// backwards. Identifiers are derived from names, at compile time, so that nobody types one and no
/// two texts of one name differ.
constexpr GUID VEXGuidOfName(const char* name)
{
    constexpr std::uint64_t basis = 0xCBF29CE484222325U;
    constexpr std::uint64_t prime = 0x00000100000001B3U;
    std::size_t length = 0;
    std::uint64_t forward = basis;
    for (; name[length] != '\0'; ++length) {
        forward = (forward ^ static_cast<unsigned char>(name[length])) * prime;
    }
    std::uint64_t backward = basis;
    for (std::size_t i = length; i > 0; --i) {
        backward = (backward ^ static_cast<unsigned char>(name[i - 1])) * prime;
    }
    return {forward, backward};
}
