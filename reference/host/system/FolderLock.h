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
    /// Waits at most five seconds for the lock. False with a message when the folder cannot be
    /// opened or another process keeps the lock that long. Where the file system has no locks the
    /// answer is true: a replaced file is whole even so, only the last writer wins.
    bool Take(const std::string& folder, std::string& error);

private:
    Descriptor _folder;
};

}  // namespace vex::system
