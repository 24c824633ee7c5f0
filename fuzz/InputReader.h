// SPDX-License-Identifier: Apache-2.0
// Reads an input of the fuzzer as numbers and texts, front to back: a piece of an input that is
// moved or copied into another keeps its meaning. Behind the end there are zeros.
#pragma once

#include "FuzzProcess.h"

#include <algorithm>
#include <array>
#include <limits>

namespace hlxfuzz {

class InputReader
{
public:
    explicit InputReader(Input input) : _rest(input) {}

    bool AtEnd() const { return _rest.empty(); }

    std::uint8_t Byte()
    {
        const std::uint8_t byte = AtEnd() ? std::uint8_t{0} : _rest.front();
        _rest = _rest.subspan(AtEnd() ? 0 : 1);
        return byte;
    }

    /// A number below `count`, which is from 1 to 256.
    std::size_t Below(std::size_t count) { return Byte() % count; }

    /// Mostly small numbers and those beside which something ends; any other one too.
    std::int64_t Number()
    {
        const std::uint8_t choice = Byte();
        if (choice < 160) {
            return choice - 8;
        }
        if (const std::size_t edge = choice - 160U; edge < kEdges.size()) {
            return kEdges[edge];
        }
        std::uint64_t bits = 0;
        for (int i = 0; i < 8; ++i) {
            bits = bits << 8U | Byte();
        }
        return static_cast<std::int64_t>(bits);
    }

    /// Up to 255 bytes: their number, then they.
    std::string Bytes()
    {
        const std::size_t wanted = Byte();
        const std::size_t size = std::min(wanted, _rest.size());
        std::string bytes(TextOf(_rest.first(size)));
        _rest = _rest.subspan(size);
        return bytes;
    }

private:
    static constexpr std::int64_t kLargest = std::numeric_limits<std::int64_t>::max();
    static constexpr std::array<std::int64_t, 16> kEdges = {255,
                                                            256,
                                                            65534,
                                                            65535,
                                                            65536,
                                                            2147483647,
                                                            2147483648,
                                                            -2147483648,
                                                            4294967295,
                                                            4294967296,
                                                            std::int64_t{1} << 61U,
                                                            std::int64_t{1} << 62U,
                                                            (std::int64_t{1} << 62U) + 1,
                                                            kLargest - 1,
                                                            kLargest,
                                                            -kLargest - 1};

    Input _rest;
};

}  // namespace hlxfuzz
