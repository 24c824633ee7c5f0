// SPDX-License-Identifier: Apache-2.0
// Rows of time and value to and from the amplitude's attribute.
#include "product/amplitudes/AmplitudeTable.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

namespace hlx {

namespace {

constexpr std::size_t columns = 2;  // time, value

bool IsTable(const HLXCftArrayHLXCftArrayDouble& table)
{
    double time = -std::numeric_limits<double>::infinity();
    for (const HLXCftArraydouble& row : table) {
        if (row.size() != columns ||
            !std::ranges::all_of(row, [](double number) { return std::isfinite(number); }) ||
            row.front() < time) {
            return false;
        }
        time = row.front();
    }
    return !table.empty();
}

}  // namespace

HRESULT SetTable(vex::Feature& amplitude, const HLXCftArrayHLXCftArrayDouble& table)
{
    if (amplitude.Tree() == nullptr) {
        return E_FAIL;
    }
    if (!IsTable(table)) {
        return E_INVALIDARG;
    }
    vex::DoubleTable data{columns, {}};
    for (const HLXCftArraydouble& row : table) {
        data.cells.insert(data.cells.end(), row.begin(), row.end());
    }
    return amplitude.Set("Data", vex::Boxed<vex::DoubleTable>(std::move(data)));
}

HRESULT GetTable(const vex::Feature& amplitude, HLXCftArrayHLXCftArrayDouble& table)
{
    table.clear();
    if (amplitude.Tree() == nullptr) {
        return E_FAIL;
    }
    // A stored table may have any number of columns.
    const auto& data = amplitude.GetAs<vex::DoubleTable>("Data");
    const auto width = static_cast<std::ptrdiff_t>(data.columns);
    for (auto row = data.cells.begin(); width > 0 && data.cells.end() - row >= width;
         row += width) {
        table.emplace_back(row, row + width);
    }
    if (!IsTable(table)) {
        table.clear();
    }
    return S_OK;
}

}  // namespace hlx
