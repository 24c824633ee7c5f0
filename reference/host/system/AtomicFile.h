// SPDX-License-Identifier: Apache-2.0
// Replaces a file as a whole: whoever opens it, at any moment and after any crash, finds either the
// old content or the new one, complete.
#pragma once

#include "VEXTypes.h"
#include "host/system/Descriptor.h"

#include <string>
#include <string_view>

namespace vex::system {

/// Whether what is there may be replaced.
enum class Existing { Replace, Keep };

/// One replacement: `Begin` makes a new file beside the old one, the caller writes its content,
/// `Commit` synchronises it, renames it over the old one and synchronises the folder. Without a
/// successful `Commit` the new file is removed and the old one is untouched. A process that dies
/// in between leaves its new file (see UnfinishedFile.h); `Begin` of the next replacement of the
/// same file removes it.
///
/// The new file has the permissions of the file it replaces, and its owner and group as far as the
/// process may give them; where it may not keep the group, what that may do beyond all others is
/// left out. A symbolic link is followed: the file it leads to is replaced. Of several hard
/// links the one named is replaced; the others keep the old content. A file that the process may
/// not write is refused, although its folder would let it be replaced. The new file is made,
/// written, synchronised, renamed and removed through CurrentFileOperations(); its owner and its
/// permissions are set directly.
class VEX_EXPORT AtomicFile
{
public:
    AtomicFile() = default;
    AtomicFile(const AtomicFile&) = delete;
    AtomicFile& operator=(const AtomicFile&) = delete;
    ~AtomicFile() { Discard(); }

    /// Begins the replacement of `path`, which need not exist; its folder must. A replacement begun
    /// earlier with this object is discarded. On failure `error` gets the message.
    /// With Existing::Keep it fails when there is anything called `path`, and Commit when there is
    /// meanwhile.
    bool Begin(std::string_view path, std::string& error, Existing existing = Existing::Replace);

    /// The new file, open for reading and writing, empty at first; owned by this object.
    int File() const { return _file.Number(); }

    /// Ends the replacement. On failure `error` gets the message, and the old file is untouched
    /// with one exception, which the message tells: when only the last step (synchronising the
    /// folder) failed, the new file is in place, but may not outlive a loss of power.
    bool Commit(std::string& error);

    /// Gives up: removes the new file. Does nothing when none is begun.
    void Discard();

    /// The file that a replacement of `path` replaces, in `target`: `path` itself, or where its
    /// symbolic link leads. On failure `error` gets the message.
    static bool ResolveTarget(std::string_view path, std::string& target, std::string& error);

    /// The message for a save of `path` that failed in `step` before anything was replaced.
    static std::string Failure(std::string_view path, std::string_view step,
                               std::string_view reason);

private:
    bool Fail(std::string_view step, int code, std::string& error);

    Existing _existing = Existing::Replace;
    std::string _target;     // the file to be replaced, links resolved
    std::string _temporary;  // the new file's path; empty when there is none
    Descriptor _file;
    Descriptor _folder;
};

}  // namespace vex::system
