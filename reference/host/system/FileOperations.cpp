// SPDX-License-Identifier: Apache-2.0
// The operating system's file operations.
#include "host/system/FileOperations.h"

#include "host/system/Descriptor.h"

#include <cerrno>
#include <cstdio>

#include <fcntl.h>
#include <unistd.h>

namespace vex::system {
namespace {

int Result(int answer)
{
    return answer < 0 ? -errno : answer;
}

int WriteAll(int file, const void* bytes, std::size_t size, std::int64_t offset)
{
    const char* next = static_cast<const char*>(bytes);
    while (size > 0) {
        const ssize_t written = ::pwrite(file, next, size, offset);
        if (written < 0 && errno == EINTR) continue;
        if (written < 0) return -errno;
        if (written == 0) return -ENOSPC;
        next += written;
        size -= static_cast<std::size_t>(written);
        offset += written;
    }
    return 0;
}

int Synchronize(int file)
{
    int answer = ::fsync(file);
    while (answer != 0 && errno == EINTR)
        answer = ::fsync(file);
    return Result(answer);
}

int SynchronizeFolder(int folder)
{
    const int answer = Synchronize(folder);
    // File systems that have no such operation for a folder say EINVAL; there is nothing to wait
    // for.
    return answer == -EINVAL ? 0 : answer;
}

}  // namespace

FileOperations SystemFileOperations()
{
    FileOperations operations;
    operations.create = [](const std::string& path, unsigned mode) {
        const int flags = O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC;
        return Result(Descriptor::AboveStandardStreams(::open(path.c_str(), flags, mode)));
    };
    operations.write = WriteAll;
    operations.synchronize = Synchronize;
    operations.rename = [](const std::string& from, const std::string& to) {
        return Result(std::rename(from.c_str(), to.c_str()));
    };
    operations.renameToNew = [](const std::string& from, const std::string& to) {
        return Result(::renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), RENAME_NOREPLACE));
    };
    operations.link = [](const std::string& from, const std::string& to) {
        return Result(::link(from.c_str(), to.c_str()));
    };
    operations.synchronizeFolder = SynchronizeFolder;
    operations.remove = [](const std::string& path) { return Result(::unlink(path.c_str())); };
    return operations;
}

FileOperations& CurrentFileOperations()
{
    static FileOperations operations = SystemFileOperations();
    return operations;
}

int RenameToNew(const std::string& from, const std::string& to)
{
    const FileOperations& operations = CurrentFileOperations();
    const int renamed = operations.renameToNew(from, to);
    if (renamed != -EINVAL && renamed != -ENOSYS) return renamed;
    const int linked = operations.link(from, to);
    // The file has its name. A first name that stays is that of a file which nobody holds.
    if (linked == 0) operations.remove(from);
    return linked;
}

}  // namespace vex::system
