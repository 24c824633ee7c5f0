// SPDX-License-Identifier: Apache-2.0
// JSON (RFC 8259) read without leniency: UTF-8, no controls in strings, no commas too many, no key
// twice.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace hlxtest {

struct Json
{
    enum Kind { Null, Boolean, Number, String, Array, Object };

    Kind kind = Null;
    std::string text;         ///< the bytes of a string; a number as written; "true" or "false"
    std::vector<Json> items;  ///< of an array; values of an object
    std::vector<std::string> names;  ///< of the values of an object

    /// The member of that name; null when there is none.
    const Json* Find(std::string_view name) const;
};

/// Empty when the text is no JSON.
std::optional<Json> ReadJson(std::string_view text);

}  // namespace hlxtest
