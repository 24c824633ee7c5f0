// SPDX-License-Identifier: Apache-2.0
// Lines and blocks of a keyword deck.
#include "names/DeckGrammar.h"

#include "names/QuotedText.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <charconv>

namespace hlxtest {

namespace {

/// The keywords that are blocks without saying so, as far as decks of these tests have them.
constexpr std::string_view blocks[] = {
    "ASSEMBLY", "BOUNDARY CONDITIONS", "CASE",  "HISTORY", "INITIAL CONDITIONS", "INITIAL STEP",
    "INSTANCE", "INTERACTIONS",        "LOADS", "PART",    "TEMPERATURES",       "STEP"};

bool TakeKeyword(std::string_view& rest, std::string& keyword)
{
    constexpr std::string_view capitals = "ABCDEFGHIJKLMNOPQRSTUVWXYZ";
    do {
        const std::string_view word = rest.substr(0, rest.find_first_not_of(capitals));
        if (word.empty()) return false;
        keyword += (keyword.empty() ? "" : " ") + std::string(word);
        rest.remove_prefix(word.size());
    } while (Take(rest, ' '));
    return true;
}

bool TakeCount(std::string_view& rest, std::size_t& count)
{
    const auto end = std::from_chars(rest.data(), rest.data() + rest.size(), count);
    rest.remove_prefix(static_cast<std::size_t>(end.ptr - rest.data()));
    return end.ec == std::errc();
}

/// "[3]" or "[4x2]"; adds to `announced` how many data lines follow.
bool TakeSize(std::string_view& rest, std::size_t& announced)
{
    std::size_t count = 0;
    std::size_t columns = 0;
    if (!Take(rest, '[') || !TakeCount(rest, count)) return false;
    const bool isTable = Take(rest, 'x');
    if (isTable && !TakeCount(rest, columns)) return false;
    announced += isTable ? (columns == 0 ? 0 : count) : (count == 0 ? 0 : 1);
    return Take(rest, ']');
}

bool TakeValue(std::string_view& rest, std::string_view name, std::size_t& announced)
{
    if (rest.starts_with('[')) return TakeSize(rest, announced);
    if (Take(rest, "true") || Take(rest, "false")) return true;
    std::string_view word;
    if (name == "TYPE") return TakeWord(rest, word);
    std::string_view asNumber = rest;
    if (TakeNumber(asNumber) && (asNumber.empty() || asNumber.starts_with(", "))) {
        rest = asNumber;
        return true;
    }
    std::vector<std::string> aliases;
    return TakeReference(rest, aliases);
}

bool ReadKeywordLine(std::string_view rest, DeckLine& line, std::size_t& announced)
{
    if (!TakeKeyword(rest, line.keyword)) return false;
    while (Take(rest, ", ")) {
        std::string_view name;
        if (!TakeWord(rest, name)) return false;
        const bool hasValue = Take(rest, '=');
        const std::string_view before = rest;
        if (hasValue && !TakeValue(rest, name, announced)) return false;
        line.parameters.emplace_back(name, before.substr(0, before.size() - rest.size()));
    }
    return rest.empty();
}

bool ReadDataLine(std::string_view rest, DeckLine& line)
{
    do {
        if (rest.starts_with('"')) {
            if (!TakeQuoted(rest, line.texts.emplace_back())) return false;
        } else if (!TakeNumber(rest)) {
            return false;
        }
    } while (Take(rest, ", "));
    return rest.empty();
}

/// Behind "jobs of ": the case and its jobs.
bool ReadJobs(std::string_view rest, DeckLine& line)
{
    if (!TakeQuoted(rest, line.texts.emplace_back()) || !Take(rest, ": ")) return false;
    do {
        if (!Take(rest, "(no name)") && !TakeQuoted(rest, line.texts.emplace_back())) return false;
        Take(rest, " (one part)");
    } while (Take(rest, ", "));
    return rest.empty();
}

/// The comments of a deck: three headings, the place of a mesh, what is not expected in a step, the
/// jobs of a case, an instance of the flat form, a region of no instance.
bool ReadComment(std::string_view rest, DeckLine& line)
{
    for (const std::string_view known : {"structure", "model", "cases", "mesh: none"}) {
        if (rest == known) return true;
    }
    if (Take(rest, "jobs of ")) return ReadJobs(rest, line);
    if (Take(rest, "not expected in a")) return rest.find('"') == std::string_view::npos;
    const bool isInstance = Take(rest, "instance ");
    return (isInstance || Take(rest, "not in the structure: ")) &&
           TakeQuoted(rest, line.texts.emplace_back()) &&
           Take(rest, isInstance ? " of part " : " of ") &&
           TakeQuoted(rest, line.texts.emplace_back()) && rest.empty();
}

/// Follows the blocks and the data lines that were announced.
class DeckReader
{
public:
    std::vector<DeckLine> lines;

    bool Add(std::string_view text)
    {
        DeckLine& line = lines.emplace_back();
        if (Take(text, "** ")) {
            line.kind = DeckLine::Comment;
            return _announced == 0 && ReadComment(text, line);
        }
        if (!Take(text, '*')) {
            line.kind = DeckLine::Data;
            const bool isOfNames =
                _keyword == "HEADING" || _keyword == "SUPPORT" || _keyword == "AXIS";
            const bool isAnnounced = isOfNames || _announced > 0;
            _announced -= !isOfNames && isAnnounced ? 1U : 0U;
            return isAnnounced && ReadDataLine(text, line) && isOfNames == !line.texts.empty();
        }
        line.kind = DeckLine::Keyword;
        if (_announced != 0 || !ReadKeywordLine(text, line, _announced)) return false;
        _keyword = line.keyword;
        if (_keyword == "INSTANCE") _announced = 3;
        if (_keyword.starts_with("END ")) return Close(_keyword.substr(4));
        if (std::ranges::find(blocks, _keyword) != std::end(blocks) || line.Has("CONTENTS")) {
            _open.push_back(_keyword);
        }
        return true;
    }

    bool IsComplete() const { return _open.empty() && _announced == 0; }

private:
    bool Close(const std::string& keyword)
    {
        const bool isOpen = !_open.empty() && _open.back() == keyword;
        if (isOpen) _open.pop_back();
        return isOpen;
    }

    std::vector<std::string> _open;
    std::string _keyword;
    std::size_t _announced = 0;
};

}  // namespace

bool DeckLine::Has(std::string_view parameter) const
{
    return std::ranges::any_of(parameters,
                               [&](const auto& each) { return each.first == parameter; });
}

std::string DeckLine::Text(std::string_view parameter) const
{
    for (const auto& [name, value] : parameters) {
        if (name == parameter) return Unquoted(value);
    }
    ADD_FAILURE() << keyword << " has no parameter " << parameter;
    return {};
}

std::vector<DeckLine> ReadDeck(std::string_view deck)
{
    DeckReader reader;
    for (const std::string_view text : LinesOf(deck)) {
        EXPECT_TRUE(reader.Add(text)) << "no line of a deck here: " << text.substr(0, 1000);
    }
    EXPECT_TRUE(reader.IsComplete()) << "a block is not ended";
    EXPECT_TRUE(deck.starts_with("*HEADING\n"));
    return std::move(reader.lines);
}

std::string OutlineOf(const std::vector<DeckLine>& lines)
{
    std::string outline;
    for (const DeckLine& line : lines) {
        outline += std::to_string(line.kind) + ' ' + line.keyword;
        for (const auto& [name, value] : line.parameters) {
            outline += ' ' + name;
        }
        outline += ' ' + std::to_string(line.texts.size()) + '\n';
    }
    return outline;
}

std::vector<DeckLine> LinesOf(const std::vector<DeckLine>& lines, std::string_view keyword)
{
    std::vector<DeckLine> found;
    std::ranges::copy_if(lines, std::back_inserter(found),
                         [&](const DeckLine& line) { return line.keyword == keyword; });
    return found;
}

}  // namespace hlxtest
