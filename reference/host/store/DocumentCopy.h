// SPDX-License-Identifier: Apache-2.0
// Stores a document that is as it was stored by copying its file: several times quicker than
// writing its rows again.
#pragma once

#include "host/system/AtomicFile.h"
#include "host/system/FileBytes.h"

#include <string>

namespace vex::store {

enum class CopyResult {
    Copied,
    OtherContent,  ///< there is no such file any more, it cannot be read, or it has other bytes;
                   ///< nothing was changed
    Failed         ///< the message tells why; nothing was changed, with the exception that
                   ///< AtomicFile::Commit names
};

/// Makes the file `to` one with the bytes of the file `from`, whole or not at all (see AtomicFile),
/// `existing` allowing it and provided that these have the summary that DocumentReader or
/// DocumentWriter gave of them.
CopyResult CopyDocumentFile(const std::string& from, const system::FileSummary& summary,
                            const std::string& to, system::Existing existing, std::string& error);

}  // namespace vex::store
