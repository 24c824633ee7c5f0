// SPDX-License-Identifier: Apache-2.0
// What a document's tables hold, as the writer takes it and the reader hands it out.
//
// Texts and bytes are views: given to the writer they must live during the call; handed out by the
// reader they live as its operations say.
#pragma once

#include "host/store/DocumentKind.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

namespace vex::store {

using Bytes = std::span<const std::byte>;

/// The number of a feature, link or geometry blob, from 1; 0 stands for none.
using Id = std::int64_t;

/// The number of a late type or an attribute name in the document's table of such names, from 0.
using NameIndex = std::uint16_t;

/// The most late types, and the most attribute names, of one document.
inline constexpr std::size_t kMaximumNames = 65535;

struct FeatureRow
{
    Id id = 0;
    Id parent = 0;               ///< 0: none
    std::int32_t container = 0;  ///< the caller's numbering, from 0
    NameIndex lateType = 0;
    std::optional<std::string_view> alias;  ///< none differs from empty
    Bytes attributes;                       ///< by AttributePacker
};

struct LinkRow
{
    Id id = 0;
    DocumentKind kind = DocumentKind::Part;
    std::string_view path;  ///< relative to the document's folder, see LinkPath.h
};

/// How many rows each table has.
struct RowCounts
{
    std::int64_t lateTypes = 0;
    std::int64_t attributeNames = 0;
    std::int64_t links = 0;
    std::int64_t geometries = 0;
    std::int64_t features = 0;

    bool operator==(const RowCounts&) const = default;
};

}  // namespace vex::store
