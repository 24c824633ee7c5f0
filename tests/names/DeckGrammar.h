// SPDX-License-Identifier: Apache-2.0
// A solver input file read back, strictly by the grammar of docs/input-file.md: lines, blocks and
// the data lines that keyword lines announce.
#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace hlxtest {

struct DeckLine
{
    enum Kind { Comment, Keyword, Data };

    Kind kind = Comment;
    std::string keyword;  ///< of a keyword line, "END ..." too
    /// Of a keyword line: name and value as written, "" for a parameter without one.
    std::vector<std::pair<std::string, std::string>> parameters;
    /// The bytes of the quoted texts of a data line or a comment, in order.
    std::vector<std::string> texts;

    /// The bytes of a parameter that is a quoted text; a failure of the test when there is none.
    std::string Text(std::string_view parameter) const;
    bool Has(std::string_view parameter) const;
};

/// The lines of a deck; a failure of the test for each that is none or stands in a wrong place.
std::vector<DeckLine> ReadDeck(std::string_view deck);

/// Keywords and names of parameters, a line each: what no name may change.
std::string OutlineOf(const std::vector<DeckLine>& lines);

/// Those of the lines that have the keyword.
std::vector<DeckLine> LinesOf(const std::vector<DeckLine>& lines, std::string_view keyword);

}  // namespace hlxtest
