// SPDX-License-Identifier: Apache-2.0
// The bytes of an open file, from its first to its last: their summary, and a copy of them.
#pragma once

#include "host/system/Digest.h"

#include <cstdint>
#include <optional>
#include <string>

namespace vex::system {

/// What tells a file's bytes from others.
struct FileSummary
{
    std::int64_t size = 0;
    Digest digest{};

    bool operator==(const FileSummary&) const = default;
};

/// The summary of the open file `file`; none when it cannot be read.
std::optional<FileSummary> SummaryOfFile(int file);

enum class CopyEnd {
    Copied,
    NotRead,    ///< the file copied from cannot be read
    NotWritten  ///< the new one cannot be written
};

/// Writes all bytes of the open file `from` to the empty file `to`, through
/// CurrentFileOperations(), and gives their summary. On failure `reason` gets the system's; what
/// was written stays.
CopyEnd CopyFileBytes(int from, int to, FileSummary& summary, std::string& reason);

}  // namespace vex::system
