// SPDX-License-Identifier: Apache-2.0
// 128-bit digests (XXH3) by which stored content is checked. They find damage, not forgery.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string_view>

struct XXH3_state_s;

namespace vex::system {

/// A digest in its byte order for files.
using Digest = std::array<std::byte, 16>;

/// The digest of `bytes`.
Digest DigestOf(std::span<const std::byte> bytes);

/// The digest of content that comes piece by piece. Numbers go in as eight little-endian bytes;
/// texts with their length before them, so that no two different sequences run into the same bytes.
class DigestStream
{
public:
    DigestStream();
    ~DigestStream();
    DigestStream(DigestStream&&) noexcept;
    DigestStream& operator=(DigestStream&&) noexcept;

    void Add(const void* bytes, std::size_t size);
    void AddNumber(std::int64_t number);
    void AddText(std::string_view text);

    /// The digest of everything added so far; more may be added.
    Digest Result() const;

private:
    struct Free
    {
        void operator()(XXH3_state_s* state) const;
    };
    std::unique_ptr<XXH3_state_s, Free> _state;
};

}  // namespace vex::system
