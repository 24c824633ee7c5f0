// SPDX-License-Identifier: Apache-2.0
// Ordered lists and raw collections. Indices start at 1; an index outside 1..Size() yields an empty
// value, never undefined behaviour. Lists of values copy what they hold (handles count); lists of
// pointers own nothing.
#pragma once

#include "VEXUnicodeString.h"
#include "VEXVar.h"

#include <utility>
#include <vector>

template <class Value>
class VEXList
{
public:
    int Size() const noexcept { return static_cast<int>(_values.size()); }

    /// The value at `index` (1-based), by value; an empty one outside the list.
    Value operator[](int index) const
    {
        return index < 1 || index > Size() ? Value{} : _values[static_cast<std::size_t>(index - 1)];
    }

    void Append(Value value) { _values.push_back(std::move(value)); }

    /// Appends the values of another list, or of this one.
    void Append(const VEXList& tail)
    {
        const std::size_t count = tail._values.size();
        for (std::size_t i = 0; i < count; ++i) {
            Append(Value(tail._values[i]));
        }
    }

    /// Removes the value at `index` (1-based); outside the list nothing happens.
    void RemovePosition(int index)
    {
        if (index >= 1 && index <= Size()) {
            _values.erase(_values.begin() + (index - 1));
        }
    }

    void RemoveAll() noexcept { _values.clear(); }

private:
    std::vector<Value> _values;
};

template <class Value>
using VEXListVal = VEXList<Value>;

template <class Object>
using VEXListPtr = VEXList<Object*>;

class VEXDocument;
class VEXCell;
class VEXISpecObject;
class VEXISpecAttribute;

using VEXListValVEXBaseUnknown_var = VEXListVal<VEXVar<VEXBaseUnknown>>;
using VEXListValVEXISpecObject_var = VEXListVal<VEXVar<VEXISpecObject>>;
using VEXListValVEXUnicodeString = VEXListVal<VEXUnicodeString>;
using VEXListPtrVEXBaseUnknown = VEXListPtr<VEXBaseUnknown>;
using VEXListPtrVEXDocument = VEXListPtr<VEXDocument>;
using VEXListPtrVEXCell = VEXListPtr<VEXCell>;
using VEXListPtrVEXISpecAttribute = VEXListPtr<VEXISpecAttribute>;

/// Raw collection of untyped pointers, owned by nobody here.
using VEXRawCollPV = VEXList<void*>;
using VEXRawColldouble = VEXList<double>;
