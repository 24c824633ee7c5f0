// SPDX-License-Identifier: Apache-2.0
// Attribute values of features. Compact: texts, lists and tables are held on the heap, so that a
// value takes 16 bytes.
#pragma once

#include "VEXTypes.h"
#include "host/store/DocumentKind.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <type_traits>
#include <variant>
#include <vector>

namespace vex {

enum class ValueKind : std::uint8_t {
    Boolean = 1,
    Integer = 2,
    Double = 3,
    Text = 4,
    Reference = 5,     ///< another feature of the same document
    DocumentLink = 6,  ///< another document
    List = 7,          ///< doubles
    Table = 8,         ///< rows of doubles, all of one length
};

using FeatureId = std::uint64_t;  ///< 0: none

struct Reference
{
    FeatureId id = 0;
    friend bool operator==(const Reference&, const Reference&) = default;
};

/// A text whose copies share it: it is there once, however many values have it.
class SharedText
{
public:
    SharedText() = default;
    SharedText(std::string text)
        : _text(text.empty() ? nullptr : std::make_shared<const std::string>(std::move(text)))
    {}
    SharedText(const char* text) : SharedText(std::string(text)) {}
    /// Lives as long as this text or a copy of it.
    operator const std::string&() const { return _text == nullptr ? Empty() : *_text; }
    friend bool operator==(const SharedText& left, const SharedText& right)
    {
        return static_cast<const std::string&>(left) == static_cast<const std::string&>(right);
    }

private:
    static const std::string& Empty()
    {
        static const std::string empty;
        return empty;
    }
    std::shared_ptr<const std::string> _text;  ///< null: empty
};

struct DocumentLink
{
    SharedText path;  ///< absolute while open; stored relative to the document
    /// Of the other document. None: nobody said; it is found out when the link is stored.
    std::optional<store::DocumentKind> kind = {};
    friend bool operator==(const DocumentLink&, const DocumentLink&) = default;
};

using DoubleList = std::vector<double>;

struct DoubleTable
{
    std::size_t columns = 0;
    std::vector<double> cells;  ///< row by row; size is rows times columns
    friend bool operator==(const DoubleTable&, const DoubleTable&) = default;
};

/// A heap-held value that copies like one.
template <class T>
class Boxed
{
public:
    Boxed() : _value(std::make_unique<T>()) {}
    Boxed(T value) : _value(std::make_unique<T>(std::move(value))) {}
    Boxed(const Boxed& other) : _value(std::make_unique<T>(*other._value)) {}
    Boxed(Boxed&&) noexcept = default;
    Boxed& operator=(Boxed other) noexcept
    {
        _value = std::move(other._value);
        return *this;
    }
    ~Boxed() = default;
    const T& operator*() const { return *_value; }
    T& operator*() { return *_value; }
    const T* operator->() const { return _value.get(); }
    friend bool operator==(const Boxed& left, const Boxed& right) { return *left == *right; }

private:
    std::unique_ptr<T> _value;
};

/// Alternatives stand in the order of ValueKind (kind = index + 1).
using Value = std::variant<bool, std::int64_t, double, Boxed<std::string>, Reference,
                           Boxed<DocumentLink>, Boxed<DoubleList>, Boxed<DoubleTable>>;

/// Whether values of this type are held on the heap.
template <class T>
inline constexpr bool isBoxed = std::is_same_v<T, std::string> || std::is_same_v<T, DocumentLink> ||
                                std::is_same_v<T, DoubleList> || std::is_same_v<T, DoubleTable>;

inline ValueKind KindOf(const Value& value)
{
    return static_cast<ValueKind>(value.index() + 1);
}

}  // namespace vex
