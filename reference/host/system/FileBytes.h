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

/// Writes all bytes of the open file `from` to the empty file `to`, through
/// CurrentFileOperations(), and answers their summary. None, with the system's reason in `reason`,
/// on failure; what was written stays.
std::optional<FileSummary> CopyFileBytes(int from, int to, std::string& reason);

}  // namespace vex::system
