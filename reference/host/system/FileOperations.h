// SPDX-License-Identifier: Apache-2.0
// The operations by which a stored file is replaced, in one table, so that tests can count them,
// make the k-th of them fail, or end the process there.
#pragma once

#include "VEXTypes.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>

namespace vex::system {

/// Each operation answers a negative error number (`-ENOSPC`) when it fails. No member may be
/// empty.
struct FileOperations
{
    /// Makes the file `path`, which must not exist, readable and writable, with the permissions
    /// `mode` less the process's mask. Answers its descriptor.
    std::function<int(const std::string& path, unsigned mode)> create;
    /// Writes all `size` bytes at `offset`. Answers 0.
    std::function<int(int file, const void* bytes, std::size_t size, std::int64_t offset)> write;
    /// Puts everything written to `file` on the disk. Answers 0.
    std::function<int(int file)> synchronize;
    /// Gives the file `from` the name `to`, in place of a file of that name. Answers 0.
    std::function<int(const std::string& from, const std::string& to)> rename;
    /// Gives the file `from` the name `to`, when nothing has it: answers -EEXIST otherwise, else 0.
    /// File systems that have no such operation answer -EINVAL or -ENOSYS: see RenameToNew.
    std::function<int(const std::string& from, const std::string& to)> renameToNew;
    /// Gives the file `from` the name `to` besides its own, as renameToNew. Answers 0.
    std::function<int(const std::string& from, const std::string& to)> link;
    /// Puts the names in the open folder on the disk. Answers 0.
    std::function<int(int folder)> synchronizeFolder;
    /// Removes the file `path`. Answers 0.
    std::function<int(const std::string& path)> remove;
};

/// The operations of the operating system.
VEX_EXPORT FileOperations SystemFileOperations();

/// The table in force in this process: at first the operating system's. It may be changed only
/// while no file is being replaced.
VEX_EXPORT FileOperations& CurrentFileOperations();

/// Gives the file `from` the name `to`, when nothing has it, on any file system: by the operation
/// made for that, else by a second name, of which the first one is then taken away. Answers as
/// renameToNew.
VEX_EXPORT int RenameToNew(const std::string& from, const std::string& to);

}  // namespace vex::system
