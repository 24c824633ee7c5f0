// SPDX-License-Identifier: Apache-2.0
// Writes the lines of a keyword deck (docs/input-file.md) into one text. Every name goes through
// Quoted, so that none can forge a line; lines have no greatest length.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace hlx {

class Deck
{
public:
    /// A line "** text"; `text` is this program's, or was quoted.
    void Comment(std::string_view text);

    /// Begins a keyword line, which EndLine ends: "*KEYWORD".
    void Keyword(std::string_view keyword);
    /// ", NAME"
    void Parameter(std::string_view name);
    /// ", NAME=text" for words of this program and of the catalogue.
    void Word(std::string_view name, std::string_view word);
    /// ", NAME=7"
    void Number(std::string_view name, std::int64_t number);
    /// ", NAME="text""
    void Quoted(std::string_view name, std::string_view text);
    void EndLine() { _text += '\n'; }

    /// A whole keyword line without parameters.
    void KeywordLine(std::string_view keyword);
    /// A whole line "*END KEYWORD".
    void End(std::string_view keyword);

    /// A data line with one quoted text.
    void QuotedData(std::string_view text);
    /// A data line: "1, 2, 3". No line for no numbers.
    void Data(std::span<const double> numbers);

    /// The text so far; what a caller appends belongs to the line begun.
    std::string& Text() { return _text; }

private:
    std::string _text;
};

}  // namespace hlx
