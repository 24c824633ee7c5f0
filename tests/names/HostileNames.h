// SPDX-License-Identifier: Apache-2.0
// Names that a careless program takes for something else: for the end of a line, a keyword, a
// format, an option, a path, a database in memory. What kind of name a row is, is typed here and
// asked of no part of the host.
#pragma once

#include <ostream>
#include <string>
#include <vector>

namespace hlxtest {

struct HostileName
{
    std::string label;  ///< what is special about it; harmless to print
    std::string bytes;

    friend void PrintTo(const HostileName& name, std::ostream* stream) { *stream << name.label; }
};

using HostileNames = std::vector<HostileName>;

/// Texts that can be stored: valid UTF-8 without NUL, none empty, none longer than 300 bytes, all
/// different.
const HostileNames& StorableNames();

/// Those of them that are the name of one file in its folder: no slash, at most 247 bytes, neither
/// "." nor "..", nor the name of a file whose saving was not finished.
const HostileNames& StorableFileNames();

/// Texts that cannot be stored: not UTF-8, or with a NUL.
const HostileNames& UnstorableNames();

/// Those of them without NUL: the system makes files of such names.
const HostileNames& ForeignFileNames();

/// Last parts of paths that name no file to store anything in.
const HostileNames& ImpossibleFileNames();

/// A text of at least `size` bytes made of whole copies of `piece`.
std::string Repeated(const std::string& piece, std::size_t size);

}  // namespace hlxtest
