// SPDX-License-Identifier: Apache-2.0
// SQLite's file operations on one open descriptor.
#include "host/system/DescriptorVfs.h"

#include "host/system/FileOperations.h"

#include <sqlite3.h>

#include <cerrno>
#include <charconv>
#include <cstring>
#include <string_view>

#include <sys/stat.h>
#include <unistd.h>

namespace vex::system {
namespace {

constexpr const char* kName = "vex-descriptor";

struct DescriptorFile
{
    sqlite3_file base;  // must be first: SQLite holds a pointer to it
    int descriptor;
    bool readOnly;
};

thread_local int lastError = 0;

DescriptorFile& Self(sqlite3_file* file)
{
    return *reinterpret_cast<DescriptorFile*>(file);
}

int Fail(int code, int result)
{
    lastError = code;
    return result;
}

int Close(sqlite3_file*)
{
    return SQLITE_OK;  // the descriptor is the caller's
}

int Read(sqlite3_file* file, void* bytes, int size, sqlite3_int64 offset)
{
    char* next = static_cast<char*>(bytes);
    auto left = static_cast<std::size_t>(size);
    while (left > 0) {
        const ssize_t count = ::pread(Self(file).descriptor, next, left, offset);
        if (count < 0 && errno == EINTR) continue;
        if (count < 0) return Fail(errno, SQLITE_IOERR_READ);
        if (count == 0) {  // SQLite wants what is missing at the file's end as zeros
            std::memset(next, 0, left);
            return SQLITE_IOERR_SHORT_READ;
        }
        next += count;
        left -= static_cast<std::size_t>(count);
        offset += count;
    }
    return SQLITE_OK;
}

int Write(sqlite3_file* file, const void* bytes, int size, sqlite3_int64 offset)
{
    if (Self(file).readOnly) return SQLITE_READONLY;
    const int written = CurrentFileOperations().write(Self(file).descriptor, bytes,
                                                      static_cast<std::size_t>(size), offset);
    return written < 0 ? Fail(-written, SQLITE_IOERR_WRITE) : SQLITE_OK;
}

int Truncate(sqlite3_file* file, sqlite3_int64 size)
{
    if (Self(file).readOnly) return SQLITE_READONLY;
    return ::ftruncate(Self(file).descriptor, size) == 0 ? SQLITE_OK
                                                         : Fail(errno, SQLITE_IOERR_TRUNCATE);
}

int Synchronize(sqlite3_file*, int)
{
    return SQLITE_OK;  // whoever replaces the old file synchronises the new one once, at the end
}

int FileSize(sqlite3_file* file, sqlite3_int64* size)
{
    struct stat status = {};
    if (::fstat(Self(file).descriptor, &status) != 0) return Fail(errno, SQLITE_IOERR_FSTAT);
    *size = status.st_size;
    return SQLITE_OK;
}

// No locks: a file being written is known to its writer only, a file being read never changes.
int Lock(sqlite3_file*, int)
{
    return SQLITE_OK;
}

int CheckReservedLock(sqlite3_file*, int* reserved)
{
    *reserved = 0;
    return SQLITE_OK;
}

int FileControl(sqlite3_file*, int, void*)
{
    return SQLITE_NOTFOUND;
}

int SectorSize(sqlite3_file*)
{
    return 4096;
}

int DeviceCharacteristics(sqlite3_file* file)
{
    return Self(file).readOnly ? SQLITE_IOCAP_IMMUTABLE : SQLITE_IOCAP_POWERSAFE_OVERWRITE;
}

const sqlite3_io_methods* Methods()
{
    static const sqlite3_io_methods methods = [] {
        sqlite3_io_methods made{};
        made.iVersion = 1;
        made.xClose = Close;
        made.xRead = Read;
        made.xWrite = Write;
        made.xTruncate = Truncate;
        made.xSync = Synchronize;
        made.xFileSize = FileSize;
        made.xLock = Lock;
        made.xUnlock = Lock;
        made.xCheckReservedLock = CheckReservedLock;
        made.xFileControl = FileControl;
        made.xSectorSize = SectorSize;
        made.xDeviceCharacteristics = DeviceCharacteristics;
        return made;
    }();
    return &methods;
}

// Only the main database: a journal, a log or a temporary file has no place here.
int Open(sqlite3_vfs*, const char* name, sqlite3_file* file, int flags, int* outFlags)
{
    file->pMethods = nullptr;
    if (name == nullptr || (flags & SQLITE_OPEN_MAIN_DB) == 0) return SQLITE_CANTOPEN;
    int descriptor = -1;
    const std::string_view digits = name;
    const auto [end, code] =
        std::from_chars(digits.data(), digits.data() + digits.size(), descriptor);
    if (code != std::errc() || end != digits.data() + digits.size() || descriptor < 0) {
        return SQLITE_CANTOPEN;
    }
    lastError = 0;
    file->pMethods = Methods();
    Self(file).descriptor = descriptor;
    Self(file).readOnly = (flags & SQLITE_OPEN_READONLY) != 0;
    if (outFlags != nullptr) *outFlags = flags;
    return SQLITE_OK;
}

int Delete(sqlite3_vfs*, const char*, int)
{
    return SQLITE_IOERR_DELETE;
}

int Access(sqlite3_vfs*, const char*, int, int* result)
{
    *result = 0;  // there is no journal and no log beside a descriptor
    return SQLITE_OK;
}

int FullPathname(sqlite3_vfs*, const char* name, int size, char* full)
{
    if (std::strlen(name) >= static_cast<std::size_t>(size)) return SQLITE_CANTOPEN;
    std::strcpy(full, name);
    return SQLITE_OK;
}

int GetLastError(sqlite3_vfs*, int, char*)
{
    return lastError;
}

bool Register()
{
    if (sqlite3_initialize() != SQLITE_OK) return false;
    const sqlite3_vfs* standard = sqlite3_vfs_find(nullptr);
    if (standard == nullptr) return false;
    static sqlite3_vfs vfs = *standard;  // time, sleep and chance are the standard ones
    vfs.zName = kName;
    vfs.pNext = nullptr;
    vfs.szOsFile = sizeof(DescriptorFile);
    vfs.mxPathname = 64;
    vfs.xOpen = Open;
    vfs.xDelete = Delete;
    vfs.xAccess = Access;
    vfs.xFullPathname = FullPathname;
    vfs.xGetLastError = GetLastError;
    return sqlite3_vfs_register(&vfs, 0) == SQLITE_OK;
}

}  // namespace

const char* DescriptorVfs()
{
    static const bool registered = Register();
    return registered ? kName : nullptr;
}

std::string DescriptorName(int descriptor)
{
    return std::to_string(descriptor);
}

int DescriptorError()
{
    return lastError;
}

}  // namespace vex::system
