// SPDX-License-Identifier: Apache-2.0
// A reader of JSON.
#include "names/StrictJson.h"

#include "host/system/MessageTexts.h"
#include "names/QuotedText.h"

#include <algorithm>
#include <utility>

namespace hlxtest {

namespace {

constexpr int kDeepest = 20;

void SkipBlanks(std::string_view& rest)
{
    const std::size_t found = rest.find_first_not_of(" \t\r\n");
    rest.remove_prefix(found == std::string_view::npos ? rest.size() : found);
}

bool TakeString(std::string_view& rest, std::string& text)
{
    if (!Take(rest, '"')) return false;
    while (!rest.empty() && !Take(rest, '"')) {
        if (static_cast<unsigned char>(rest[0]) < 0x20) return false;
        if (!Take(rest, '\\')) {
            text += rest[0];
            rest.remove_prefix(1);
            continue;
        }
        const std::size_t letter = std::string_view("\"\\/bfnrt").find(rest.substr(0, 1));
        if (!rest.empty() && letter != std::string_view::npos) {
            text += "\"\\/\b\f\n\r\t"[letter];
            rest.remove_prefix(1);
            continue;
        }
        // Only what has no other form needs \u: controls.
        if (!Take(rest, "u00") || rest.size() < 2 ||
            rest.find_first_not_of("0123456789abcdefABCDEF") < 2) {
            return false;
        }
        text += static_cast<char>(std::stoi(std::string(rest.substr(0, 2)), nullptr, 16));
        rest.remove_prefix(2);
    }
    return vex::system::TextFault(text) == nullptr;
}

bool TakeDigits(std::string_view& rest)
{
    const std::size_t found = rest.find_first_not_of("0123456789");
    const std::size_t length = found == std::string_view::npos ? rest.size() : found;
    rest.remove_prefix(length);
    return length > 0;
}

bool TakeJsonNumber(std::string_view& rest)
{
    Take(rest, '-');
    const bool isZero = Take(rest, '0');
    if (!isZero && !TakeDigits(rest)) return false;
    if (Take(rest, '.') && !TakeDigits(rest)) return false;
    if (!Take(rest, 'e') && !Take(rest, 'E')) return true;
    if (!Take(rest, '-')) Take(rest, '+');
    return TakeDigits(rest);
}

bool TakeJson(std::string_view& rest, Json& value, int depth);

bool TakeMember(std::string_view& rest, Json& object, int depth)
{
    std::string name;
    SkipBlanks(rest);
    if (!TakeString(rest, name) || object.Find(name) != nullptr) return false;
    object.names.push_back(std::move(name));
    SkipBlanks(rest);
    return Take(rest, ':') && TakeJson(rest, object.items.emplace_back(), depth);
}

/// Items or members, up to the bracket that ends them.
bool TakeItems(std::string_view& rest, Json& value, char end, int depth)
{
    SkipBlanks(rest);
    if (Take(rest, end)) return true;
    do {
        const bool taken = value.kind == Json::Array
                               ? TakeJson(rest, value.items.emplace_back(), depth)
                               : TakeMember(rest, value, depth);
        if (!taken) return false;
        SkipBlanks(rest);
    } while (Take(rest, ','));
    return Take(rest, end);
}

bool TakeJson(std::string_view& rest, Json& value, int depth)
{
    SkipBlanks(rest);
    if (depth == kDeepest) return false;
    if (rest.starts_with('"')) {
        value.kind = Json::String;
        return TakeString(rest, value.text);
    }
    if (Take(rest, '[')) {
        value.kind = Json::Array;
        return TakeItems(rest, value, ']', depth + 1);
    }
    if (Take(rest, '{')) {
        value.kind = Json::Object;
        return TakeItems(rest, value, '}', depth + 1);
    }
    if (Take(rest, "null")) return true;
    for (const std::string_view word : {"true", "false"}) {
        if (Take(rest, word)) {
            value.kind = Json::Boolean;
            value.text = word;
            return true;
        }
    }
    const std::string_view before = rest;
    value.kind = Json::Number;
    const bool isNumber = TakeJsonNumber(rest);
    value.text = before.substr(0, before.size() - rest.size());
    return isNumber;
}

}  // namespace

const Json* Json::Find(std::string_view name) const
{
    const auto found = std::ranges::find(names, name);
    return found == names.end() ? nullptr : &items[static_cast<std::size_t>(found - names.begin())];
}

std::optional<Json> ReadJson(std::string_view text)
{
    Json value;
    const bool isJson = TakeJson(text, value, 0);
    SkipBlanks(text);
    return isJson && text.empty() ? std::optional(std::move(value)) : std::nullopt;
}

}  // namespace hlxtest
