// SPDX-License-Identifier: Apache-2.0
// Unpacks the attributes of one feature (format: PackedAttributes.h), trusting no byte of them.
#pragma once

#include "VEXTypes.h"
#include "host/store/PackedAttributes.h"

namespace vex::store {

/// Hands out one attribute after the other:
///
///     AttributeUnpacker unpacker(row.attributes);
///     for (Attribute attribute; unpacker.Next(attribute);) ...
///     if (unpacker.Fault() != nullptr) ...
///
/// Whether names and ids exist in the document is not known here; the document's reader checks it.
class VEX_EXPORT AttributeUnpacker
{
public:
    /// `packed` must outlive what is handed out.
    explicit AttributeUnpacker(Bytes packed);

    /// The next attribute. False at the end, and at the first fault.
    bool Next(Attribute& attribute);

    /// How many are still to come, as the bytes have it.
    std::uint16_t Left() const { return _left; }

    /// What is wrong with the bytes: a constant text, null as long as nothing is.
    const char* Fault() const { return _fault; }

private:
    template <class Number>
    bool Take(Number& number);
    bool TakeDoubles(std::uint64_t count, PackedDoubles& doubles);
    bool TakeValue(Attribute& attribute);
    bool Refuse(const char* fault);

    Bytes _rest;
    std::uint16_t _left = 0;
    const char* _fault = nullptr;
};

}  // namespace vex::store
