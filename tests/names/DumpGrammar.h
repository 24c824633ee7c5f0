// SPDX-License-Identifier: Apache-2.0
// The text of a feature tree read back, strictly by the grammar of docs/tree-dump.md.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace hlxtest {

struct DumpLine
{
    std::int64_t level = 0;
    std::string type;
    std::string alias;                                            ///< its bytes; empty for none
    std::vector<std::pair<std::string, std::string>> attributes;  ///< name, value as written
};

/// The lines of a dump whose root is on level 0; a failure of the test for each that is none.
std::vector<DumpLine> ReadDump(std::string_view dump);

/// Levels, types and names of attributes, a line a feature: what no alias and no text may change.
std::string OutlineOf(const std::vector<DumpLine>& lines);

}  // namespace hlxtest
