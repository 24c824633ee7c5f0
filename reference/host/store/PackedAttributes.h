// SPDX-License-Identifier: Apache-2.0
// The attributes of one feature as bytes. All numbers are little-endian; nothing is aligned.
//
//   count       2 bytes, how many attributes follow
//   attribute   name   2 bytes, index in the document's attribute names
//               kind   1 byte, AttributeKind
//               value  by kind:
//                 Boolean    1 byte, 0 or 1
//                 Integer    8 bytes, two's complement
//                 Double     8 bytes, IEEE 754; every bit pattern is kept
//                 Text       4 bytes length, then that many bytes of UTF-8 without NUL
//                 Reference  8 bytes, id of a feature of the document, 0 for none
//                 Link       8 bytes, id of a link of the document, 0 for none
//                 List       4 bytes count, then as many doubles
//                 Table      4 bytes rows, 4 bytes columns, then rows * columns doubles, row by row
//
// Nothing follows the last attribute. No name stands twice in one feature.
#pragma once

#include "host/store/Rows.h"
#include "host/system/LittleEndian.h"

#include <bit>

namespace vex::store {

enum class AttributeKind : std::uint8_t {
    Boolean = 1,
    Integer = 2,
    Double = 3,
    Text = 4,
    Reference = 5,
    Link = 6,
    List = 7,
    Table = 8
};

/// Doubles in a packed list or table, read where they are.
class PackedDoubles
{
public:
    PackedDoubles() = default;
    /// `bytes` has a multiple of eight bytes.
    explicit PackedDoubles(Bytes bytes) : _bytes(bytes) {}

    std::size_t Size() const { return _bytes.size() / sizeof(double); }

    /// The double at `index`, from 0, less than Size().
    double operator[](std::size_t index) const
    {
        return std::bit_cast<double>(
            system::LoadLittleEndian<std::uint64_t>(_bytes.data() + index * sizeof(double)));
    }

private:
    Bytes _bytes;
};

/// One unpacked attribute. Which members are set depends on the kind; texts and doubles live as
/// long as the packed bytes.
struct Attribute
{
    NameIndex name = 0;
    AttributeKind kind = AttributeKind::Boolean;
    bool boolean = false;
    std::int64_t integer = 0;  ///< Integer, Reference and Link
    double number = 0.0;
    std::string_view text;
    PackedDoubles doubles;      ///< List and Table
    std::uint32_t rows = 0;     ///< Table
    std::uint32_t columns = 0;  ///< Table
};

}  // namespace vex::store
