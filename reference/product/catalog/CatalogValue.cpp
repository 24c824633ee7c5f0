// SPDX-License-Identifier: Apache-2.0
// Reading kinds and defaults; nothing is converted, so that a catalogue says what it means.
#include "product/catalog/CatalogValue.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace hlx {

namespace {

using vex::Value;
using vex::ValueKind;

constexpr std::array<CatalogKind, 8> kindNames{{
    {"boolean", ValueKind::Boolean, "true or false"},
    {"integer", ValueKind::Integer, "a whole number"},
    {"double", ValueKind::Double, "a finite number with a point, such as 1.0"},
    {"text", ValueKind::Text, "a text in quotes, without a zero byte"},
    {"reference", ValueKind::Reference, "nothing: remove the default"},
    {"link", ValueKind::DocumentLink, "nothing: remove the default"},
    {"list", ValueKind::List, "finite numbers with a point in brackets, such as [1.0, 2.0]"},
    {"table", ValueKind::Table, "rows of one length, such as [[0.0, 0.0], [1.0, 2.0]]"},
}};

/// Appends the numbers of a row. False when one is no finite number written with a point.
bool AppendRow(const toml::node& node, std::vector<double>& numbers)
{
    const toml::array* const row = node.as_array();
    if (row == nullptr) {
        return false;
    }
    for (const toml::node& cell : *row) {
        const auto* const number = cell.as_floating_point();
        if (number == nullptr || !std::isfinite(number->get())) {
            return false;
        }
        numbers.push_back(number->get());
    }
    return true;
}

bool ReadTable(const toml::node& node, vex::DoubleTable& table)
{
    const toml::array* const rows = node.as_array();
    if (rows == nullptr) {
        return false;
    }
    for (const toml::node& row : *rows) {
        const std::size_t before = table.cells.size();
        if (!AppendRow(row, table.cells)) {
            return false;
        }
        const std::size_t columns = table.cells.size() - before;
        if (columns == 0 || (before != 0 && columns != table.columns)) {
            return false;
        }
        table.columns = columns;
    }
    return true;
}

}  // namespace

const CatalogKind* FindCatalogKind(std::string_view name)
{
    const auto* const found = std::ranges::find(kindNames, name, &CatalogKind::name);
    return found == kindNames.end() ? nullptr : found;
}

bool ReadDefault(const toml::node& node, ValueKind kind, Value& value)
{
    switch (kind) {
        case ValueKind::Boolean:
            if (const auto* const boolean = node.as_boolean()) {
                value = boolean->get();
                return true;
            }
            return false;
        case ValueKind::Integer:
            if (const auto* const integer = node.as_integer()) {
                value = integer->get();
                return true;
            }
            return false;
        case ValueKind::Double:
            if (const auto* const number = node.as_floating_point()) {
                value = number->get();
                return std::isfinite(number->get());
            }
            return false;
        case ValueKind::Text:
            if (const auto* const text = node.as_string()) {
                value = vex::Boxed<std::string>(text->get());
                return vex::IsStorable(value);
            }
            return false;
        case ValueKind::List: {
            vex::DoubleList list;
            const bool read = AppendRow(node, list);
            value = vex::Boxed<vex::DoubleList>(std::move(list));
            return read;
        }
        case ValueKind::Table: {
            vex::DoubleTable table;
            const bool read = ReadTable(node, table);
            value = vex::Boxed<vex::DoubleTable>(std::move(table));
            return read;
        }
        case ValueKind::Reference:
        case ValueKind::DocumentLink:
            break;
    }
    return false;
}

}  // namespace hlx
