// SPDX-License-Identifier: Apache-2.0
// The new file that is to replace another one, until it gets that one's name: what it is called,
// how others see that its maker lives, and how it goes away when its maker died.
//
// Its name is the name of the file to be replaced and an ending of 8 bytes: a dot, three times a
// letter (a to z) and a digit, a tilde. No word reads like this, so that whatever else stands
// beside the file, the copies that editors keep included, is never taken for one.
//
// Its maker holds an exclusive flock() on it until it is renamed or removed. One that nobody holds
// was left by a process that died. Where a file system has no locks, none is ever taken for
// abandoned.
#pragma once

#include "VEXTypes.h"

#include <string>
#include <string_view>

#include <sys/types.h>

namespace vex::system {

/// Whether `name` is `target`'s, both without folders, with the ending of an unfinished file.
VEX_EXPORT bool IsNameOfUnfinishedFile(std::string_view name, std::string_view target);

/// Whether `name` has that ending behind a name of at least one byte.
bool HasEndingOfUnfinishedFile(std::string_view name);

/// Makes an empty file beside `target`, with the permissions `mode` less the process's mask, and
/// locks it. Answers its descriptor, and its path in `path`; or a negative error number.
int MakeUnfinishedFile(const std::string& target, unsigned mode, std::string& path);

/// Removes the abandoned files beside `target`, whose folder is open as `folder`: regular ones that
/// belong to the process's user, or to `owner`, who owns the target, when that user is privileged
/// (his new files are given to the owner). What cannot be removed stays until the next time.
void RemoveAbandonedFiles(int folder, const std::string& target, uid_t owner);

}  // namespace vex::system
