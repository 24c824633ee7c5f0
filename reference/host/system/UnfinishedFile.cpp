// SPDX-License-Identifier: Apache-2.0
// Makes new files that others can see to be in the making, and clears away those that nobody makes.
#include "host/system/UnfinishedFile.h"

#include "host/system/Descriptor.h"
#include "host/system/FileOperations.h"

#include <array>
#include <cerrno>
#include <memory>

#include <dirent.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/random.h>
#include <sys/stat.h>
#include <unistd.h>

namespace vex::system {
namespace {

constexpr std::size_t kPairs = 3;
constexpr std::size_t kEndingSize = 2 * kPairs + 2;

std::string EndingByChance()
{
    std::array<unsigned char, 2 * kPairs> chance{};
    if (getentropy(chance.data(), chance.size()) != 0) chance.fill(0);
    std::string ending = ".";
    for (std::size_t i = 0; i < chance.size(); i += 2) {
        ending += "abcdefghijklmnopqrstuvwxyz"[chance[i] % 26];
        ending += "0123456789"[chance[i + 1] % 10];
    }
    return ending + "~";
}

int LockAtOnce(int file)
{
    while (::flock(file, LOCK_EX | LOCK_NB) != 0) {
        if (errno != EINTR) return errno;
    }
    return 0;
}

bool IsOne(const struct stat& one, const struct stat& other)
{
    return one.st_dev == other.st_dev && one.st_ino == other.st_ino;
}

// Between the making of the file and its lock somebody who collects abandoned files may have come:
// he holds it, or has removed it already.
bool IsCollected(int file)
{
    const int code = LockAtOnce(file);
    struct stat made = {};
    return code == EWOULDBLOCK || (::fstat(file, &made) == 0 && made.st_nlink == 0);
}

void RemoveIfAbandoned(int folder, const std::string& name, const std::string& path, uid_t owner)
{
    const Descriptor file(Descriptor::AboveStandardStreams(
        ::openat(folder, name.c_str(), O_RDWR | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY | O_CLOEXEC)));
    struct stat opened = {};
    if (!file.IsOpen() || ::fstat(file.Number(), &opened) != 0 || !S_ISREG(opened.st_mode)) return;
    // Another's file is not even locked: that could make its maker give it up.
    const uid_t user = ::geteuid();
    if (opened.st_uid != user && (user != 0 || opened.st_uid != owner)) return;
    if (LockAtOnce(file.Number()) != 0) return;
    // Its maker may have finished it since it was opened: it is the target then.
    struct stat named = {};
    if (::fstatat(folder, name.c_str(), &named, AT_SYMLINK_NOFOLLOW) == 0 && IsOne(named, opened)) {
        CurrentFileOperations().remove(path);
    }
}

struct FolderCloser
{
    void operator()(DIR* entries) const { ::closedir(entries); }
};

std::unique_ptr<DIR, FolderCloser> EntriesOf(int folder)
{
    const int own =
        Descriptor::AboveStandardStreams(::openat(folder, ".", O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    DIR* const entries = own < 0 ? nullptr : ::fdopendir(own);
    if (own >= 0 && entries == nullptr) ::close(own);
    return std::unique_ptr<DIR, FolderCloser>(entries);
}

}  // namespace

bool HasEndingOfUnfinishedFile(std::string_view name)
{
    return name.size() > kEndingSize &&
           IsNameOfUnfinishedFile(name, name.substr(0, name.size() - kEndingSize));
}

bool IsNameOfUnfinishedFile(std::string_view name, std::string_view target)
{
    if (name.size() != target.size() + kEndingSize || !name.starts_with(target)) return false;
    const std::string_view ending = name.substr(target.size());
    if (ending.front() != '.' || ending.back() != '~') return false;
    for (std::size_t i = 1; i + 1 < ending.size(); i += 2) {
        const char letter = ending[i];
        const char digit = ending[i + 1];
        if (letter < 'a' || letter > 'z' || digit < '0' || digit > '9') return false;
    }
    return true;
}

int MakeUnfinishedFile(const std::string& target, unsigned mode, std::string& path)
{
    int code = -EEXIST;
    for (int attempt = 0; code == -EEXIST && attempt < 100; ++attempt) {
        std::string name = target + EndingByChance();
        code = CurrentFileOperations().create(name, mode);
        if (code < 0) continue;
        Descriptor file(code);
        if (IsCollected(file.Number())) {
            code = -EEXIST;  // as good as taken
            continue;
        }
        path = std::move(name);
        return file.Release();
    }
    return code;
}

void RemoveAbandonedFiles(int folder, const std::string& target, uid_t owner)
{
    const std::string name = target.substr(target.rfind('/') + 1);  // all of it without a slash
    const std::string before = target.substr(0, target.size() - name.size());
    const auto entries = EntriesOf(folder);
    if (entries == nullptr) return;
    while (const dirent* const entry = ::readdir(entries.get())) {
        const bool mayBeFile = entry->d_type == DT_REG || entry->d_type == DT_UNKNOWN;
        if (mayBeFile && IsNameOfUnfinishedFile(entry->d_name, name)) {
            const std::string found = entry->d_name;
            RemoveIfAbandoned(folder, found, before + found, owner);
        }
    }
}

}  // namespace vex::system
