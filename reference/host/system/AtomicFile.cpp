// SPDX-License-Identifier: Apache-2.0
// Replaces files atomically and durably.
#include "host/system/AtomicFile.h"

#include "host/system/FileOperations.h"
#include "host/system/MessageTexts.h"
#include "host/system/Path.h"
#include "host/system/UnfinishedFile.h"

#include <fmt/format.h>

#include <cerrno>
#include <climits>
#include <cstdlib>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace vex::system {
namespace {

constexpr unsigned kPermissionBits = 07777;

// Whether a file of that name stays: one called like an unfinished file would be cleared away by
// the next save of the file whose name it begins with.
bool CheckLasts(std::string_view path, std::string& error)
{
    const std::string_view name = path.substr(path.rfind('/') + 1);
    if (!HasEndingOfUnfinishedFile(name)) return true;
    error = fmt::format(
        "{}: saving failed: a name with such an ending is that of a file whose saving was not "
        "finished. Give another name.",
        Quoted(path));
    return false;
}

std::string ThereIsOne(std::string_view path)
{
    return fmt::format(
        "{}: there is such a file already. Give another path, or allow it to be replaced.",
        Quoted(path));
}

enum class Ownership { Both, Group, Neither, Fault };

// What of the old file's ownership the new one gets. Only a privileged process can give a file to
// another user; one that is in the group can keep that. On a Fault errno tells which.
Ownership KeepOwnership(int file, const struct stat& now, const struct stat& old)
{
    if (now.st_uid == old.st_uid && now.st_gid == old.st_gid) return Ownership::Both;
    if (::fchown(file, old.st_uid, old.st_gid) == 0) return Ownership::Both;
    if (errno != EPERM) return Ownership::Fault;
    if (now.st_gid == old.st_gid || ::fchown(file, uid_t(-1), old.st_gid) == 0) {
        return Ownership::Group;
    }
    return errno == EPERM ? Ownership::Neither : Ownership::Fault;
}

// The permissions for a file of that ownership: what was given to a user or a group is not given to
// another one. A group that is another one may do what all others may.
unsigned ModeFor(Ownership kept, unsigned mode)
{
    if (kept != Ownership::Both) mode &= ~unsigned{S_ISUID};
    if (kept != Ownership::Neither) return mode;
    const unsigned others = mode & S_IRWXO;
    return mode & ~(unsigned{S_ISGID} | (unsigned{S_IRWXG} & ~(others << 3U)));
}

}  // namespace

std::string AtomicFile::Failure(std::string_view path, std::string_view step,
                                std::string_view reason)
{
    return fmt::format(
        "{}: saving failed: {}: {}. Check the folder's permissions and the room on "
        "the disk, or save to another place; the file as it was before is untouched.",
        Quoted(path), step, reason);
}

bool AtomicFile::Fail(std::string_view step, int code, std::string& error)
{
    error = Failure(_target, step, SystemReason(code));
    Discard();
    return false;
}

bool AtomicFile::ResolveTarget(std::string_view path, std::string& target, std::string& error)
{
    if (!CheckPath(path, error)) return false;
    target = path;
    struct stat status = {};
    if (::lstat(target.c_str(), &status) != 0 || !S_ISLNK(status.st_mode)) {
        return CheckLasts(target, error);
    }
    char* resolved = ::realpath(target.c_str(), nullptr);
    if (resolved == nullptr) {
        error = Failure(target, "the file is a symbolic link that cannot be followed",
                        SystemReason(errno));
        return false;
    }
    target = resolved;
    std::free(resolved);
    return CheckPath(target, error) && CheckLasts(target, error);
}

bool AtomicFile::Begin(std::string_view path, std::string& error, Existing existing)
{
    Discard();
    _existing = existing;
    struct stat old = {};
    if (existing == Existing::Keep && CheckPath(path, error) &&
        ::lstat(std::string(path).c_str(), &old) == 0) {
        error = ThereIsOne(path);
        return false;
    }
    if (!ResolveTarget(path, _target, error)) return false;
    const bool exists = ::stat(_target.c_str(), &old) == 0;
    if (exists && !S_ISREG(old.st_mode)) {
        error = fmt::format(
            "{}: saving failed: there is something there that is not a file. Save "
            "to another place.",
            Quoted(_target));
        return false;
    }
    if (exists && ::faccessat(AT_FDCWD, _target.c_str(), W_OK, AT_EACCESS) != 0) {
        return Fail("the file is protected from writing", errno, error);
    }
    const std::string folder = FolderOf(_target);
    _folder = Descriptor(Descriptor::AboveStandardStreams(
        ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)));
    if (!_folder.IsOpen()) return Fail("opening its folder", errno, error);

    // First, so that the room of what is removed can be used.
    RemoveAbandonedFiles(_folder.Number(), _target, exists ? old.st_uid : ::geteuid());
    const unsigned mode = exists ? old.st_mode & kPermissionBits : 0666U;
    const int made = MakeUnfinishedFile(_target, mode & 0777U, _temporary);
    if (made < 0) return Fail("making the new file beside it", -made, error);
    _file = Descriptor(made);
    if (!exists) return true;
    struct stat now = {};
    if (::fstat(_file.Number(), &now) != 0) return Fail("looking at the new file", errno, error);
    const Ownership kept = KeepOwnership(_file.Number(), now, old);
    if (kept == Ownership::Fault) return Fail("keeping the file's owner", errno, error);
    if (::fchmod(_file.Number(), ModeFor(kept, mode)) != 0) {
        return Fail("keeping the file's permissions", errno, error);
    }
    return true;
}

bool AtomicFile::Commit(std::string& error)
{
    if (_temporary.empty()) {
        error = fmt::format("{}: saving failed: it was not begun.", Quoted(_target));
        return false;
    }
    FileOperations& operations = CurrentFileOperations();
    const int synchronized = operations.synchronize(_file.Number());
    if (synchronized < 0) return Fail("putting the new file on the disk", -synchronized, error);
    // The file stays open, and with it the lock that keeps it, until it has its name. Closing it
    // can report nothing that synchronising it did not.
    const int renamed = _existing == Existing::Keep ? RenameToNew(_temporary, _target)
                                                    : operations.rename(_temporary, _target);
    if (renamed == -EEXIST && _existing == Existing::Keep) {
        error = ThereIsOne(_target);
        Discard();
        return false;
    }
    if (renamed < 0) return Fail("giving the new file its name", -renamed, error);
    _temporary.clear();
    _file.Close();
    const int named = operations.synchronizeFolder(_folder.Number());
    _folder.Close();
    if (named < 0) {
        error = fmt::format(
            "{}: saved, but putting its new name on the disk failed: {}. The new "
            "content is in place; check the disk and save again.",
            Quoted(_target), SystemReason(-named));
        return false;
    }
    return true;
}

void AtomicFile::Discard()
{
    if (!_temporary.empty()) CurrentFileOperations().remove(_temporary);
    _temporary.clear();
    _file.Close();
    _folder.Close();
}

}  // namespace vex::system
