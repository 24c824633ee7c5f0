// SPDX-License-Identifier: Apache-2.0
// The first look at a stored file, before SQLite sees it: is it one of ours, of a version this
// program reads, and all there?
#pragma once

#include "host/system/Descriptor.h"

#include <string>
#include <string_view>

namespace vex::system {

/// What a stored file must say of itself.
struct DatabaseKind
{
    std::string_view noun;  ///< for messages: "a document"
    int applicationId;
    int newestVersion;  ///< the newest version this program reads
};

/// Opens `path` for reading and checks that it is a file, an SQLite database of this kind, of a
/// version from 1 to the newest, in rollback mode, as long as its header says and with a schema of
/// one page. Gives the open file and its version; otherwise `error` gets the whole message. A path
/// that does not exist sets `missing` besides.
bool OpenDatabaseFile(std::string_view path, const DatabaseKind& kind, Descriptor& file,
                      int& version, bool& missing, std::string& error);

/// The message that refuses the stored file `path` for `reason` as damaged.
std::string DamagedMessage(std::string_view path, std::string_view reason);

}  // namespace vex::system
