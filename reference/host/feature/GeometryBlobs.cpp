// SPDX-License-Identifier: Apache-2.0
// Geometry blobs: in memory, or still in the document's file.
#include "host/feature/GeometryBlobs.h"

#include "host/system/Digest.h"

#include <fmt/format.h>

#include <iterator>
#include <new>
#include <utility>

namespace vex {

std::uint64_t GeometryBlobs::Add(std::vector<std::byte> bytes)
{
    const std::uint64_t number = _blobs.empty() ? 1 : _blobs.rbegin()->first + 1;
    _blobs.emplace(number, Blob{std::move(bytes), true, {}});
    return number;
}

void GeometryBlobs::Restore(const std::vector<std::uint64_t>& numbers, Source source)
{
    _blobs.clear();
    for (const std::uint64_t number : numbers) {
        _blobs.try_emplace(number);
    }
    _source = std::move(source);
}

bool GeometryBlobs::Read(std::uint64_t number, std::span<const std::byte>& bytes,
                         std::string& error)
{
    const auto found = _blobs.find(number);
    if (found == _blobs.end()) {
        error = "the document has no geometry of number " + std::to_string(number) +
                "; import the part again";
        return false;
    }
    Blob& blob = found->second;
    try {
        blob.loaded = blob.loaded || _source(number, blob.bytes, error);
    } catch (const std::bad_alloc&) {
        error = "the geometry of number " + std::to_string(number) +
                " does not fit into memory; free some and try again";
    }
    if (!blob.loaded) {
        blob.bytes.clear();
        return false;
    }
    bytes = blob.bytes;
    return true;
}

const std::string* GeometryBlobs::Digest(std::uint64_t number, std::string& error)
{
    std::span<const std::byte> bytes;
    if (!Read(number, bytes, error)) {
        return nullptr;
    }
    std::string& digest = _blobs.at(number).digest;
    if (digest.empty()) {
        for (const std::byte byte : system::DigestOf(bytes)) {
            fmt::format_to(std::back_inserter(digest), "{:02x}", std::to_integer<unsigned>(byte));
        }
    }
    return &digest;
}

std::vector<std::uint64_t> GeometryBlobs::Numbers() const
{
    std::vector<std::uint64_t> numbers;
    numbers.reserve(_blobs.size());
    for (const auto& [number, blob] : _blobs) {
        numbers.push_back(number);
    }
    return numbers;
}

}  // namespace vex
