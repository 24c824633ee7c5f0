// SPDX-License-Identifier: Apache-2.0
// Texts, numbers and paths of features as docs/tree-dump.md describes them, read back. Written from
// that document alone, and strict: what it does not allow is a fault.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace hlxtest {

/// Takes a quoted text from the front of `rest` and answers its bytes in `text`. False when there
/// is none, or when it holds what has to be escaped, or escapes what has not.
bool TakeQuoted(std::string_view& rest, std::string& text);

/// The bytes of a quoted text that is all of `quoted`; a failure of the test when it is none.
std::string Unquoted(std::string_view quoted);

/// Takes the shortest text of a number from the front.
bool TakeNumber(std::string_view& rest);

/// Takes a word of letters, digits and underscores, a letter first.
bool TakeWord(std::string_view& rest, std::string_view& word);

/// Takes a character; false when another one stands there.
bool Take(std::string_view& rest, char expected);
bool Take(std::string_view& rest, std::string_view expected);

/// Takes a reference: "none", or the path of a feature. Its aliases are put at the end of
/// `aliases`.
bool TakeReference(std::string_view& rest, std::vector<std::string>& aliases);

/// The bytes of a character in UTF-8.
std::string Utf8Of(std::uint32_t point);

/// Whether a text of UTF-8 is shown without an escape anywhere: no controls, nothing that changes
/// the direction of writing or separates lines.
bool IsPlain(std::string_view text);

/// The lines of a text in which each is ended by a line feed; a failure of the test when the last
/// is not.
std::vector<std::string_view> LinesOf(std::string_view text);

}  // namespace hlxtest
