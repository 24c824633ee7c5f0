// SPDX-License-Identifier: Apache-2.0
// Copies document files.
#include "host/store/DocumentCopy.h"

#include "host/system/AtomicFile.h"
#include "host/system/Descriptor.h"

#include <fcntl.h>
#include <sys/stat.h>

namespace vex::store {

CopyResult CopyDocumentFile(const std::string& from, const system::FileSummary& summary,
                            const std::string& to, system::Existing existing, std::string& error)
{
    // Never waits: a pipe may have taken the file's place.
    const system::Descriptor source(system::Descriptor::AboveStandardStreams(
        ::open(from.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK)));
    struct stat status = {};
    if (!source.IsOpen() || ::fstat(source.Number(), &status) != 0 || !S_ISREG(status.st_mode) ||
        status.st_size != summary.size) {
        return CopyResult::OtherContent;
    }
    system::AtomicFile copy;
    if (!copy.Begin(to, error, existing)) return CopyResult::Failed;
    std::string reason;
    system::FileSummary copied;
    switch (system::CopyFileBytes(source.Number(), copy.File(), copied, reason)) {
        case system::CopyEnd::Copied:
            break;
        case system::CopyEnd::NotRead:
            return CopyResult::OtherContent;
        case system::CopyEnd::NotWritten:
            error = system::AtomicFile::Failure(to, "writing the document", reason);
            return CopyResult::Failed;
    }
    if (copied != summary) return CopyResult::OtherContent;
    return copy.Commit(error) ? CopyResult::Copied : CopyResult::Failed;
}

}  // namespace vex::store
