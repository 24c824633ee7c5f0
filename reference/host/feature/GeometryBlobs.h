// SPDX-License-Identifier: Apache-2.0
// The geometry blobs of a document by number. A stored document's blobs stay in its file until one
// is asked for: most programs open a part for its structure only.
#pragma once

#include "VEXTypes.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <map>
#include <span>
#include <string>
#include <vector>

namespace vex {

class VEX_EXPORT GeometryBlobs
{
public:
    /// Reads one blob from where the document is stored; its digest was checked. False with the
    /// reason in `error`.
    using Source = std::function<bool(std::uint64_t number, std::vector<std::byte>& bytes,
                                      std::string& error)>;

    /// Adds a blob that is in memory; answers its number, from 1.
    std::uint64_t Add(std::vector<std::byte> bytes);

    /// Replaces everything by blobs that are still where they are stored.
    void Restore(const std::vector<std::uint64_t>& numbers, Source source);

    /// Reads the blob when it is not in memory yet. The bytes live as long as this object does.
    /// False with the reason in `error`.
    bool Read(std::uint64_t number, std::span<const std::byte>& bytes, std::string& error);

    /// The digest of the blob's bytes, in hexadecimal; reckoned once. Null with the reason in
    /// `error`, as Read; else it lives as long as the blob.
    const std::string* Digest(std::uint64_t number, std::string& error);

    /// All numbers, ascending.
    std::vector<std::uint64_t> Numbers() const;

private:
    struct Blob
    {
        std::vector<std::byte> bytes;
        bool loaded = false;
        std::string digest;  ///< empty: not asked for yet
    };

    std::map<std::uint64_t, Blob> _blobs;
    Source _source;
};

}  // namespace vex
