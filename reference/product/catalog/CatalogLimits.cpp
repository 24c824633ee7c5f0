// SPDX-License-Identifier: Apache-2.0
// Counting dots and defaults.
#include "product/catalog/CatalogLimits.h"

#include <algorithm>

namespace hlx {

std::size_t LineWithTooManyDots(std::string_view text)
{
    for (std::size_t line = 1; !text.empty(); ++line) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        if (static_cast<std::size_t>(std::ranges::count(text.substr(0, end), '.')) >
            mostDotsOfALine) {
            return line;
        }
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return 0;
}

std::size_t ThingsHeld(const vex::AttributeDefinition& attribute)
{
    using vex::Boxed;
    const vex::Value& value = attribute.defaultValue;
    if (const auto* const text = std::get_if<Boxed<std::string>>(&value)) {
        return 1 + (*text)->size() / sizeof(double);
    }
    if (const auto* const list = std::get_if<Boxed<vex::DoubleList>>(&value)) {
        return 1 + (*list)->size();
    }
    if (const auto* const table = std::get_if<Boxed<vex::DoubleTable>>(&value)) {
        return 1 + (*table)->cells.size();
    }
    return 1;
}

}  // namespace hlx
