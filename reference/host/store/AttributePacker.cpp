// SPDX-License-Identifier: Apache-2.0
// Packs attributes.
#include "host/store/AttributePacker.h"

#include <cstring>
#include <limits>

namespace vex::store {
namespace {

using system::StoreLittleEndian;

constexpr std::size_t kCountSize = 2;
constexpr std::size_t kHeadSize = 3;  // name and kind
constexpr std::size_t kMaximum = std::numeric_limits<std::uint32_t>::max();

void StoreDoubles(std::byte* bytes, std::span<const double> values)
{
    for (const double value : values) {
        StoreLittleEndian(bytes, std::bit_cast<std::uint64_t>(value));
        bytes += sizeof value;
    }
}

}  // namespace

AttributePacker::AttributePacker() : _bytes(kCountSize), _size(kCountSize) {}

void AttributePacker::Clear()
{
    _count = 0;
    _size = kCountSize;
    StoreLittleEndian(_bytes.data(), _count);
}

// Where the value goes, or null when there are too many attributes.
std::byte* AttributePacker::Append(NameIndex name, AttributeKind kind, std::size_t valueSize)
{
    if (_count == std::numeric_limits<std::uint16_t>::max()) return nullptr;
    const std::size_t start = _size;
    _size += kHeadSize + valueSize;
    if (_bytes.size() < _size) _bytes.resize(_size * 2);
    StoreLittleEndian(_bytes.data(), ++_count);
    StoreLittleEndian(_bytes.data() + start, name);
    _bytes[start + 2] = static_cast<std::byte>(kind);
    return _bytes.data() + start + kHeadSize;
}

bool AttributePacker::AddNumber(NameIndex name, AttributeKind kind, std::uint64_t bits)
{
    std::byte* value = Append(name, kind, sizeof bits);
    if (value == nullptr) return false;
    StoreLittleEndian(value, bits);
    return true;
}

bool AttributePacker::AddBoolean(NameIndex name, bool value)
{
    std::byte* place = Append(name, AttributeKind::Boolean, 1);
    if (place == nullptr) return false;
    *place = std::byte{value};
    return true;
}

bool AttributePacker::AddInteger(NameIndex name, std::int64_t value)
{
    return AddNumber(name, AttributeKind::Integer, static_cast<std::uint64_t>(value));
}

bool AttributePacker::AddDouble(NameIndex name, double value)
{
    return AddNumber(name, AttributeKind::Double, std::bit_cast<std::uint64_t>(value));
}

bool AttributePacker::AddText(NameIndex name, std::string_view value)
{
    if (value.size() > kMaximum) return false;
    std::byte* place = Append(name, AttributeKind::Text, 4 + value.size());
    if (place == nullptr) return false;
    StoreLittleEndian(place, static_cast<std::uint32_t>(value.size()));
    if (!value.empty()) std::memcpy(place + 4, value.data(), value.size());
    return true;
}

bool AttributePacker::AddReference(NameIndex name, Id feature)
{
    return AddNumber(name, AttributeKind::Reference, static_cast<std::uint64_t>(feature));
}

bool AttributePacker::AddLink(NameIndex name, Id link)
{
    return AddNumber(name, AttributeKind::Link, static_cast<std::uint64_t>(link));
}

bool AttributePacker::AddList(NameIndex name, std::span<const double> values)
{
    if (values.size() > kMaximum) return false;
    std::byte* place = Append(name, AttributeKind::List, 4 + values.size_bytes());
    if (place == nullptr) return false;
    StoreLittleEndian(place, static_cast<std::uint32_t>(values.size()));
    StoreDoubles(place + 4, values);
    return true;
}

bool AttributePacker::AddTable(NameIndex name, std::size_t rows, std::size_t columns,
                               std::span<const double> values)
{
    if (rows > kMaximum || columns > kMaximum || rows * columns != values.size()) return false;
    std::byte* place = Append(name, AttributeKind::Table, 8 + values.size_bytes());
    if (place == nullptr) return false;
    StoreLittleEndian(place, static_cast<std::uint32_t>(rows));
    StoreLittleEndian(place + 4, static_cast<std::uint32_t>(columns));
    StoreDoubles(place + 8, values);
    return true;
}

}  // namespace vex::store
