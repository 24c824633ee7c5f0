// SPDX-License-Identifier: Apache-2.0
// Arguments and results as probes see them: their text for the trace, and how an output is emptied
// when a fault keeps the body from running (pointers and handles: empty; texts: empty; lists,
// growing texts and numbers: left as they are).
//
// In(x) is only read. Out(x) is given something through a reference, OutAt(p) through a pointer
// that may be null, and OutText(buffer) is a character buffer to fill. What may dangle (a document
// pointer that was not checked) is not shown to In: make a std::string of it, which is traced as it
// stands.
#pragma once

#include "VEXLists.h"

#include <cstdint>
#include <string>
#include <type_traits>
#include <vector>

namespace vex::probe {

VEX_EXPORT std::string TextOf(const char* text);
VEX_EXPORT std::string TextOf(const VEXUnicodeString& text);
VEX_EXPORT std::string TextOfNumber(std::int64_t number);
VEX_EXPORT std::string TextOfNumber(double number);
/// "S_OK", "E_FAIL", …; another negative code in hexadecimal, another positive one in decimal
/// digits.
VEX_EXPORT std::string TextOfResult(HRESULT result);
/// The class name of the object ("null" for none): never an address.
VEX_EXPORT std::string TextOfObject(const VEXBaseUnknown* object);
/// The name of the interface, or the identifier in hexadecimal when sdk/ has no such interface.
VEX_EXPORT std::string TextOf(const IID& iid);

inline std::string TextOf(const std::string& readyText)
{
    return readyText;
}

template <class Type>
inline constexpr bool IsListPointer = false;
template <class Value>
inline constexpr bool IsListPointer<VEXList<Value>*> = true;

template <class Value>
std::string TextOf(const VEXList<Value>& list)
{
    return "[" + TextOfNumber(std::int64_t{list.Size()}) + "]";
}

template <class Value>
std::string TextOf(const std::vector<Value>& array)
{
    return "[" + TextOfNumber(static_cast<std::int64_t>(array.size())) + "]";
}

template <class Interface>
std::string TextOf(const VEXVar<Interface>& handle)
{
    return TextOfObject(handle.Get());
}

template <class Value>
std::string TextOf(const Value& value)
{
    if constexpr (std::is_floating_point_v<Value>) {
        return TextOfNumber(static_cast<double>(value));
    } else if constexpr (std::is_integral_v<Value> || std::is_enum_v<Value>) {
        return TextOfNumber(static_cast<std::int64_t>(value));
    } else if constexpr (std::is_convertible_v<Value, const char*>) {
        return TextOf(static_cast<const char*>(value));
    } else if constexpr (std::is_convertible_v<Value, const VEXBaseUnknown*>) {
        return TextOfObject(value);
    } else if constexpr (IsListPointer<Value>) {
        return value == nullptr ? "null" : TextOf(*value);
    } else if constexpr (std::is_pointer_v<Value>) {
        return value == nullptr ? "null" : "pointer";
    } else if constexpr (requires { value.c_str(); }) {
        return TextOf(value.c_str());
    } else {
        static_assert(std::is_pointer_v<Value>, "a probe has no text for this kind of value");
    }
}

/// An argument that the body only reads.
template <class Value>
struct In
{
    explicit In(const Value& v) : value(v) {}
    std::string BeforeCall() const { return TextOf(value); }
    std::string AfterCall() const { return {}; }
    void Clear() const {}
    const Value& value;
};

/// An argument through which the body gives something.
template <class Value>
struct Out
{
    explicit Out(Value& v) : value(v) {}
    std::string BeforeCall() const { return "&"; }
    std::string AfterCall() const { return " " + TextOf(value); }
    void Clear() const
    {
        if constexpr (std::is_pointer_v<Value>) {
            value = nullptr;
        } else if constexpr (requires { value.Reset(); }) {
            value.Reset();
        } else if constexpr (std::is_same_v<Value, VEXUnicodeString>) {
            value = VEXUnicodeString();
        }
    }
    Value& value;
};

/// As Out, through a pointer; the caller may want nothing there.
template <class Value>
struct OutAt
{
    explicit OutAt(Value* p) : pointer(p) {}
    std::string BeforeCall() const { return pointer == nullptr ? "null" : "&"; }
    std::string AfterCall() const { return pointer == nullptr ? "" : Out(*pointer).AfterCall(); }
    void Clear() const
    {
        if (pointer != nullptr) {
            Out(*pointer).Clear();
        }
    }
    Value* pointer;
};

/// A buffer that the body fills with a text ended by a zero, on failure too; null when the caller
/// wants none.
struct OutText
{
    explicit OutText(char* b) : buffer(b) {}
    std::string BeforeCall() const { return buffer == nullptr ? "null" : "&"; }
    std::string AfterCall() const { return buffer == nullptr ? "" : " " + TextOf(buffer); }
    void Clear() const
    {
        if (buffer != nullptr) {
            *buffer = '\0';
        }
    }
    char* buffer;
};

template <class Value>
In(const Value&) -> In<Value>;
template <class Value>
Out(Value&) -> Out<Value>;
template <class Value>
OutAt(Value*) -> OutAt<Value>;

}  // namespace vex::probe
