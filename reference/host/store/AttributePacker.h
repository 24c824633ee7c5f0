// SPDX-License-Identifier: Apache-2.0
// Packs the attributes of one feature into bytes (format: PackedAttributes.h).
#pragma once

#include "VEXTypes.h"
#include "host/store/PackedAttributes.h"

#include <span>
#include <string_view>
#include <vector>

namespace vex::store {

/// Used again and again, a packer stops allocating. `Clear` begins each feature. Names and ids are
/// checked by DocumentWriter::AddFeature, not here; so is what a text holds.
class VEX_EXPORT AttributePacker
{
public:
    AttributePacker();

    /// Begins another feature: no attributes.
    void Clear();

    // Each adds one attribute. False, nothing added, when there are 65535 already, a text or a list
    // has more than 2^32 - 1 bytes or doubles, or a table's numbers are not rows times columns.
    bool AddBoolean(NameIndex name, bool value);
    bool AddInteger(NameIndex name, std::int64_t value);
    bool AddDouble(NameIndex name, double value);
    bool AddText(NameIndex name, std::string_view value);
    bool AddReference(NameIndex name, Id feature);
    bool AddLink(NameIndex name, Id link);
    bool AddList(NameIndex name, std::span<const double> values);
    bool AddTable(NameIndex name, std::size_t rows, std::size_t columns,
                  std::span<const double> values);

    /// The packed attributes; they live until the next operation on this packer.
    Bytes Packed() const { return Bytes(_bytes).first(_size); }

private:
    std::byte* Append(NameIndex name, AttributeKind kind, std::size_t valueSize);
    bool AddNumber(NameIndex name, AttributeKind kind, std::uint64_t bits);

    std::vector<std::byte> _bytes;  ///< the first _size of them
    std::size_t _size;
    std::uint16_t _count = 0;
};

}  // namespace vex::store
