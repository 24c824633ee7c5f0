// SPDX-License-Identifier: Apache-2.0
// Digests by XXH3.
#include "host/system/Digest.h"

#include "host/system/LittleEndian.h"

#include <xxhash.h>

#include <new>

namespace vex::system {
namespace {

Digest Canonical(XXH128_hash_t hash)
{
    XXH128_canonical_t canonical;
    XXH128_canonicalFromHash(&canonical, hash);
    static_assert(sizeof canonical.digest == sizeof(Digest));
    Digest digest;
    for (std::size_t i = 0; i < digest.size(); ++i)
        digest[i] = std::byte{canonical.digest[i]};
    return digest;
}

}  // namespace

Digest DigestOf(std::span<const std::byte> bytes)
{
    return Canonical(XXH3_128bits(bytes.data(), bytes.size()));
}

void DigestStream::Free::operator()(XXH3_state_s* state) const
{
    XXH3_freeState(state);
}

DigestStream::DigestStream() : _state(XXH3_createState())
{
    if (!_state) throw std::bad_alloc();
    XXH3_128bits_reset(_state.get());
}

DigestStream::~DigestStream() = default;
DigestStream::DigestStream(DigestStream&&) noexcept = default;
DigestStream& DigestStream::operator=(DigestStream&&) noexcept = default;

void DigestStream::AddNow(const void* bytes, std::size_t size)
{
    XXH3_128bits_update(_state.get(), bytes, size);
}

void DigestStream::AddWaiting()
{
    AddNow(_waiting.data(), _waitingSize);
    _waitingSize = 0;
}

void DigestStream::AddNumber(std::int64_t number)
{
    std::array<std::byte, 8> bytes;
    StoreLittleEndian(bytes.data(), static_cast<std::uint64_t>(number));
    Add(bytes.data(), bytes.size());
}

void DigestStream::AddText(std::string_view text)
{
    AddNumber(static_cast<std::int64_t>(text.size()));
    Add(text.data(), text.size());
}

Digest DigestStream::Result()
{
    AddWaiting();
    return Canonical(XXH3_128bits_digest(_state.get()));
}

}  // namespace vex::system
