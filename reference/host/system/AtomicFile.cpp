// SPDX-License-Identifier: Apache-2.0
// Replaces files atomically and durably.
#include "host/system/AtomicFile.h"

#include "host/system/FileOperations.h"
#include "host/system/MessageTexts.h"
#include "host/system/Path.h"

#include <fmt/format.h>

#include <array>
#include <cerrno>
#include <climits>
#include <cstdlib>

#include <fcntl.h>
#include <sys/random.h>
#include <sys/stat.h>
#include <unistd.h>

namespace vex::system {
namespace {

constexpr unsigned kPermissionBits = 07777;

// Eight bytes to follow the file's name: a dot, six characters by chance, a tilde.
std::string UniqueEnding()
{
    constexpr std::string_view kCharacters = "0123456789abcdefghijklmnopqrstuv";
    std::array<unsigned char, 6> chance{};
    if (getentropy(chance.data(), chance.size()) != 0) chance.fill(0);
    std::string ending = ".";
    for (const unsigned char c : chance)
        ending += kCharacters[c % kCharacters.size()];
    return ending + "~";
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
    if (::lstat(target.c_str(), &status) != 0 || !S_ISLNK(status.st_mode)) return true;
    char* resolved = ::realpath(target.c_str(), nullptr);
    if (resolved == nullptr) {
        error = Failure(target, "the file is a symbolic link that cannot be followed",
                        SystemReason(errno));
        return false;
    }
    target = resolved;
    std::free(resolved);
    return CheckPath(target, error);
}

bool AtomicFile::CreateBeside(unsigned mode, std::string& error)
{
    for (int attempt = 0;; ++attempt) {
        std::string temporary = _target + UniqueEnding();
        const int file = CurrentFileOperations().create(temporary, mode);
        if (file >= 0) {
            _file = Descriptor(file);
            _temporary = std::move(temporary);
            return true;
        }
        if (file != -EEXIST || attempt == 100) {
            return Fail("making the new file beside it", -file, error);
        }
    }
}

bool AtomicFile::Begin(std::string_view path, std::string& error)
{
    Discard();
    if (!ResolveTarget(path, _target, error)) return false;
    struct stat old = {};
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

    const unsigned mode = exists ? old.st_mode & kPermissionBits : 0666U;
    if (!CreateBeside(mode & 0777U, error)) return false;
    if (!exists) return true;
    struct stat made = {};
    if (::fstat(_file.Number(), &made) != 0) return Fail("looking at the new file", errno, error);
    const bool ownerDiffers = made.st_uid != old.st_uid || made.st_gid != old.st_gid;
    // Only a privileged process can keep another's ownership; for others the file becomes theirs.
    if (ownerDiffers && ::fchown(_file.Number(), old.st_uid, old.st_gid) != 0 && errno != EPERM) {
        return Fail("keeping the file's owner", errno, error);
    }
    if (::fchmod(_file.Number(), mode) != 0) {
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
    const int closed = _file.Close();
    if (closed != 0) return Fail("closing the new file", closed, error);
    const int renamed = operations.rename(_temporary, _target);
    if (renamed < 0) return Fail("giving the new file its name", -renamed, error);
    _temporary.clear();
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
    _file.Close();
    _folder.Close();
    if (!_temporary.empty()) CurrentFileOperations().remove(_temporary);
    _temporary.clear();
}

}  // namespace vex::system
