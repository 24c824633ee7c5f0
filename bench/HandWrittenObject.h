// SPDX-License-Identifier: Apache-2.0
// The baseline of casts: an object whose query, written by hand, compares the identifier with five
// that it knows, one after the other, in place. No adapters, no tables, no probes.
#pragma once

#include "VEXBaseUnknown.h"

#include <array>

namespace bench {

class HandWrittenObject : public VEXBaseUnknown
{
public:
    using VEXBaseUnknown::QueryInterface;
    HRESULT QueryInterface(const IID& iid, void** object) const override;
    unsigned long AddRef() const override { return ++_count; }
    unsigned long Release() const override;

    static const std::array<IID, 5> ids;
};

}  // namespace bench
