// SPDX-License-Identifier: Apache-2.0
// Keeps other processes from changing the files of a folder by the same procedure at the same time.
#pragma once

#include "host/system/Descriptor.h"

#include <string>

namespace vex::system {

/// Holds an advisory lock on a folder as long as it lives.
class FolderLock
{
public:
    /// Waits for the lock as long as others finish what they do in the folder, at most a minute.
    /// False with a message when the folder cannot be opened, or when another process keeps the
    /// lock and for five seconds nothing changes in the folder. Where the file system has no locks
    /// the answer is true: a replaced file is whole even so, only the last writer wins.
    bool Take(const std::string& folder, std::string& error);

private:
    Descriptor _folder;
};

}  // namespace vex::system
