// SPDX-License-Identifier: Apache-2.0
// Unpacks attributes, each count checked against the bytes that are there.
#include "host/store/AttributeUnpacker.h"

#include "host/system/MessageTexts.h"

namespace vex::store {
namespace {

constexpr const char* kTooShort = "the attributes end early";

}  // namespace

AttributeUnpacker::AttributeUnpacker(Bytes packed) : _rest(packed)
{
    Take(_left);
}

bool AttributeUnpacker::Refuse(const char* fault)
{
    _fault = fault;
    _left = 0;
    return false;
}

template <class Number>
bool AttributeUnpacker::Take(Number& number)
{
    if (_rest.size() < sizeof(Number)) return Refuse(kTooShort);
    number = system::LoadLittleEndian<Number>(_rest.data());
    _rest = _rest.subspan(sizeof(Number));
    return true;
}

bool AttributeUnpacker::TakeDoubles(std::uint64_t count, PackedDoubles& doubles)
{
    if (count > _rest.size() / sizeof(double)) {
        return Refuse("an attribute has fewer numbers than it says");
    }
    const std::size_t size = static_cast<std::size_t>(count) * sizeof(double);
    doubles = PackedDoubles(_rest.first(size));
    _rest = _rest.subspan(size);
    return true;
}

bool AttributeUnpacker::TakeValue(Attribute& attribute)
{
    std::uint64_t bits = 0;
    std::uint32_t size = 0;
    switch (attribute.kind) {
        case AttributeKind::Boolean: {
            std::uint8_t value = 0;
            if (!Take(value)) return false;
            if (value > 1) return Refuse("a boolean attribute is neither 0 nor 1");
            attribute.boolean = value == 1;
            return true;
        }
        case AttributeKind::Integer:
        case AttributeKind::Reference:
        case AttributeKind::Link:
            if (!Take(bits)) return false;
            attribute.integer = static_cast<std::int64_t>(bits);
            return true;
        case AttributeKind::Double:
            if (!Take(bits)) return false;
            attribute.number = std::bit_cast<double>(bits);
            return true;
        case AttributeKind::Text: {
            if (!Take(size)) return false;
            if (size > _rest.size()) return Refuse("a text attribute is shorter than it says");
            attribute.text = {reinterpret_cast<const char*>(_rest.data()), size};
            _rest = _rest.subspan(size);
            if (system::TextFault(attribute.text) == nullptr) return true;
            return Refuse("a text attribute is not valid UTF-8 without NUL");
        }
        case AttributeKind::List:
            return Take(size) && TakeDoubles(size, attribute.doubles);
        case AttributeKind::Table: {
            if (!Take(attribute.rows) || !Take(attribute.columns)) return false;
            if (attribute.columns == 0 && attribute.rows != 0) {
                return Refuse("a table attribute has rows without columns");
            }
            // The product of two numbers of 32 bits fits into 64.
            return TakeDoubles(std::uint64_t{attribute.rows} * attribute.columns,
                               attribute.doubles);
        }
    }
    return Refuse("an attribute is of an unknown kind");
}

bool AttributeUnpacker::Next(Attribute& attribute)
{
    if (_left == 0) {
        if (_fault == nullptr && !_rest.empty()) Refuse("bytes follow the last attribute");
        return false;
    }
    std::uint8_t kind = 0;
    if (!Take(attribute.name) || !Take(kind)) return false;
    attribute.kind = static_cast<AttributeKind>(kind);
    if (!TakeValue(attribute)) return false;
    --_left;
    return true;
}

}  // namespace vex::store
