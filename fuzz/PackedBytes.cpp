// SPDX-License-Identifier: Apache-2.0
// Packs without a check: the host's packer would refuse what is wanted here.
#include "PackedBytes.h"

#include "host/store/PackedAttributes.h"

namespace hlxfuzz {

namespace {

using vex::store::AttributeKind;

void Append(std::string& bytes, std::int64_t number, std::size_t size)
{
    for (std::size_t i = 0; i < size; ++i) {
        bytes += static_cast<char>(static_cast<std::uint64_t>(number) >> (8 * i));
    }
}

/// One time in eight another count than the true one.
std::int64_t CountOf(InputReader& input, std::size_t truth)
{
    return input.Below(8) == 7 ? input.Number() : static_cast<std::int64_t>(truth);
}

void AppendDoubles(std::string& bytes, InputReader& input, std::size_t count)
{
    for (std::size_t i = 0; i < count; ++i) {
        Append(bytes, input.Number(), 8);
    }
}

void AppendValue(std::string& bytes, InputReader& input, AttributeKind kind)
{
    switch (kind) {
        case AttributeKind::Boolean:
            Append(bytes, input.Below(8) == 7 ? input.Byte() : 1, 1);
            break;
        case AttributeKind::Text: {
            const std::string text = input.Bytes();
            Append(bytes, CountOf(input, text.size()), 4);
            bytes += text;
            break;
        }
        case AttributeKind::List: {
            const std::size_t count = input.Below(16);
            Append(bytes, CountOf(input, count), 4);
            AppendDoubles(bytes, input, count);
            break;
        }
        case AttributeKind::Table: {
            const std::size_t rows = input.Below(5);
            const std::size_t columns = input.Below(5);
            Append(bytes, CountOf(input, rows), 4);
            Append(bytes, CountOf(input, columns), 4);
            AppendDoubles(bytes, input, rows * columns);
            break;
        }
        default:
            Append(bytes, input.Number(), 8);
            break;
    }
}

}  // namespace

std::string PackedAttributesOf(InputReader& input)
{
    const std::size_t count = input.Below(4);
    std::string bytes;
    Append(bytes, CountOf(input, count), 2);
    for (std::size_t i = 0; i < count; ++i) {
        Append(bytes, input.Byte(), 2);
        const auto kind = static_cast<AttributeKind>(input.Below(10));
        Append(bytes, static_cast<std::int64_t>(kind), 1);
        AppendValue(bytes, input, kind);
    }
    return bytes;
}

}  // namespace hlxfuzz
