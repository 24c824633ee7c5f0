// SPDX-License-Identifier: Apache-2.0
// 128-bit digests (XXH3) by which stored content is checked. They find damage, not forgery.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
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

    void Add(const void* bytes, std::size_t size)
    {
        if (size > _waiting.size() - _waitingSize) {
            AddWaiting();
        }
        if (size > _waiting.size()) {
            AddNow(bytes, size);
        } else if (size > 0) {
            std::memcpy(_waiting.data() + _waitingSize, bytes, size);
            _waitingSize += size;
        }
    }
    void AddNumber(std::int64_t number);
    void AddText(std::string_view text);

    /// The digest of everything added so far; more may be added.
    Digest Result();

private:
    void AddNow(const void* bytes, std::size_t size);
    void AddWaiting();

    struct Free
    {
        void operator()(XXH3_state_s* state) const;
    };
    std::unique_ptr<XXH3_state_s, Free> _state;
    std::array<std::byte, 1024> _waiting{};  ///< many small pieces go in together: that is faster
    std::size_t _waitingSize = 0;
};

}  // namespace vex::system
