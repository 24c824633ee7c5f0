// SPDX-License-Identifier: Apache-2.0
// Lines of the tree dump.
#include "names/DumpGrammar.h"

#include "names/QuotedText.h"

#include <gtest/gtest.h>

namespace hlxtest {

namespace {

bool TakeLevel(std::string_view& rest, std::int64_t& level)
{
    const std::size_t blanks = std::min(rest.find_first_not_of(' '), rest.size());
    rest.remove_prefix(blanks);
    level = static_cast<std::int64_t>(blanks / 2);
    if (level == 100 && Take(rest, '@')) {
        const std::string_view digits = rest.substr(0, rest.find(' '));
        level = std::stoll(std::string(digits));
        rest.remove_prefix(digits.size());
        return level > 100 && Take(rest, ' ');
    }
    return blanks % 2 == 0 && level <= 100;
}

/// "(1 2 3)"
bool TakeList(std::string_view& rest)
{
    if (!Take(rest, '(')) return false;
    if (Take(rest, ')')) return true;
    do {
        if (!TakeNumber(rest)) return false;
    } while (Take(rest, ' '));
    return Take(rest, ')');
}

/// "((0 0) (1 2))"
bool TakeTable(std::string_view& rest)
{
    if (!Take(rest, '(')) return false;
    do {
        if (!TakeList(rest)) return false;
    } while (Take(rest, ' '));
    return Take(rest, ')');
}

bool TakeValue(std::string_view& rest)
{
    if (rest.starts_with("((")) return TakeTable(rest);
    if (rest.starts_with('(')) return TakeList(rest);
    if (Take(rest, "true") || Take(rest, "false")) return true;
    std::string_view asNumber = rest;
    if (TakeNumber(asNumber) && (asNumber.empty() || asNumber.starts_with(' '))) {
        rest = asNumber;
        return true;
    }
    // A text of its own is a path of one alias, as far as the grammar goes.
    std::vector<std::string> aliases;
    return TakeReference(rest, aliases);
}

bool ReadLine(std::string_view rest, DumpLine& line)
{
    std::string_view word;
    if (!TakeLevel(rest, line.level) || !TakeWord(rest, word)) return false;
    line.type = word;
    if (rest.starts_with(" \"")) {
        rest.remove_prefix(1);
        if (!TakeQuoted(rest, line.alias) || line.alias.empty()) return false;
    }
    while (Take(rest, ' ')) {
        if (!TakeWord(rest, word) || !Take(rest, '=')) return false;
        const std::string_view before = rest;
        if (!TakeValue(rest)) return false;
        line.attributes.emplace_back(word, before.substr(0, before.size() - rest.size()));
    }
    return rest.empty();
}

}  // namespace

std::vector<DumpLine> ReadDump(std::string_view dump)
{
    std::vector<DumpLine> lines;
    for (const std::string_view text : LinesOf(dump)) {
        DumpLine line;
        EXPECT_TRUE(ReadLine(text, line)) << "no line of a dump: " << text.substr(0, 1000);
        // The root alone stands on level 0; every other feature below one further up.
        const bool standsBelow = lines.empty()
                                     ? line.level == 0
                                     : line.level > 0 && line.level <= lines.back().level + 1;
        EXPECT_TRUE(standsBelow) << "on a level of its own: " << text.substr(0, 1000);
        lines.push_back(std::move(line));
    }
    return lines;
}

std::string OutlineOf(const std::vector<DumpLine>& lines)
{
    std::string outline;
    for (const DumpLine& line : lines) {
        outline += std::to_string(line.level) + ' ' + line.type;
        for (const auto& [name, value] : line.attributes) {
            outline += ' ' + name;
        }
        outline += '\n';
    }
    return outline;
}

}  // namespace hlxtest
