// SPDX-License-Identifier: Apache-2.0
// Reads open files from end to end.
#include "host/system/FileBytes.h"

#include "host/system/FileOperations.h"
#include "host/system/MessageTexts.h"

#include <array>
#include <cerrno>
#include <cstdint>

#include <unistd.h>

namespace vex::system {
namespace {

/// Hands the file's bytes to `take`, piece by piece. `take` answers 0, or the negative error number
/// that ends the reading. Answers that, or the negative error number of a read that failed, or 0.
template <class Take>
int Read(int file, FileSummary& summary, Take&& take)
{
    DigestStream digest;
    std::array<char, 32'768> piece;  // not from the heap, whose new pages cost more than reading
    for (summary.size = 0;;) {
        const ssize_t size = ::pread(file, piece.data(), piece.size(), summary.size);
        if (size < 0 && errno == EINTR) continue;
        if (size < 0) return -errno;
        if (size == 0) break;
        digest.Add(piece.data(), static_cast<std::size_t>(size));
        const int code = take(piece.data(), static_cast<std::size_t>(size), summary.size);
        if (code < 0) return code;
        summary.size += size;
    }
    summary.digest = digest.Result();
    return 0;
}

}  // namespace

std::optional<FileSummary> SummaryOfFile(int file)
{
    FileSummary summary;
    const int code = Read(file, summary, [](const char*, std::size_t, std::int64_t) { return 0; });
    return code == 0 ? std::optional(summary) : std::nullopt;
}

CopyEnd CopyFileBytes(int from, int to, FileSummary& summary, std::string& reason)
{
    int written = 0;
    const int code =
        Read(from, summary, [&](const char* bytes, std::size_t size, std::int64_t offset) {
            return written = CurrentFileOperations().write(to, bytes, size, offset);
        });
    if (code == 0) return CopyEnd::Copied;
    reason = SystemReason(-code);
    return written < 0 ? CopyEnd::NotWritten : CopyEnd::NotRead;
}

}  // namespace vex::system
