// SPDX-License-Identifier: Apache-2.0
// Files of the platform, by numbers that are never used twice: a stale one reaches nobody else's
// file.
#include "VEXSystem.h"
#include "host/system/Descriptor.h"
#include "host/system/Probe.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <map>
#include <optional>
#include <string_view>

namespace {

using vex::system::Descriptor;

class FileTable
{
public:
    static FileTable& Instance()
    {
        static FileTable& table = *new FileTable;
        return table;
    }

    unsigned int Add(Descriptor file)
    {
        do {
            ++_last;
        } while (_last == 0 || _files.contains(_last));
        _files.emplace(_last, std::move(file));
        return _last;
    }

    Descriptor* Find(unsigned int number)
    {
        const auto found = _files.find(number);
        return found == _files.end() ? nullptr : &found->second;
    }

    void Remove(unsigned int number) { _files.erase(number); }

private:
    std::map<unsigned int, Descriptor> _files;
    unsigned int _last = 0;
};

/// The open flags of a standard mode: one of r, w, a, then at most one '+' and one 'b' in any
/// order.
std::optional<int> FlagsOfMode(const char* mode)
{
    const std::string_view text = mode == nullptr ? "" : mode;
    if (text.empty() || std::string_view("rwa").find(text[0]) == std::string_view::npos) {
        return std::nullopt;
    }
    const std::string_view rest = text.substr(1);
    const bool update = rest.find('+') != std::string_view::npos;
    if (!rest.empty() && rest != "+" && rest != "b" && rest != "+b" && rest != "b+") {
        return std::nullopt;
    }
    const int creation = text[0] == 'r' ? 0 : O_CREAT | (text[0] == 'w' ? O_TRUNC : O_APPEND);
    const int access = update ? O_RDWR : (text[0] == 'r' ? O_RDONLY : O_WRONLY);
    return access | creation | O_CLOEXEC;
}

HRESULT Open(const char* path, const char* mode, unsigned int& descriptor)
{
    const std::optional<int> flags = FlagsOfMode(mode);
    if (!flags) {
        return E_INVALIDARG;
    }
    int number = -1;
    do {
        number = open(path == nullptr ? "" : path, *flags, 0666);
    } while (number < 0 && errno == EINTR);
    if (number < 0) {
        return E_FAIL;
    }
    Descriptor file(Descriptor::AboveStandardStreams(number));
    if (!file.IsOpen()) {
        return E_FAIL;
    }
    descriptor = FileTable::Instance().Add(std::move(file));
    return S_OK;
}

HRESULT Write(unsigned int descriptor, const void* bytes, std::size_t length)
{
    const Descriptor* const file = FileTable::Instance().Find(descriptor);
    if (file == nullptr || (bytes == nullptr && length > 0)) {
        return E_FAIL;
    }
    const char* next = static_cast<const char*>(bytes);
    while (length > 0) {
        const ssize_t count = write(file->Number(), next, length);
        if (count == 0 || (count < 0 && errno != EINTR)) {
            return E_FAIL;
        }
        if (count > 0) {
            next += count;
            length -= static_cast<std::size_t>(count);
        }
    }
    return S_OK;
}

HRESULT Close(unsigned int descriptor)
{
    Descriptor* const file = FileTable::Instance().Find(descriptor);
    if (file == nullptr) {
        return E_FAIL;
    }
    const int fault = file->Close();
    FileTable::Instance().Remove(descriptor);
    return fault == 0 ? S_OK : E_FAIL;
}

}  // namespace

HRESULT VEXFOpen(const char* path, const char* mode, unsigned int& descriptor)
{
    descriptor = 0;
    return vex::Probe<"VEXFOpen">([&] { return Open(path, mode, descriptor); }, vex::In(path),
                                  vex::In(mode), vex::Out(descriptor));
}

HRESULT VEXFWrite(unsigned int descriptor, const void* bytes, std::size_t length)
{
    return vex::Probe<"VEXFWrite">([&] { return Write(descriptor, bytes, length); },
                                   vex::In(descriptor), vex::In(bytes), vex::In(length));
}

HRESULT VEXFClose(unsigned int descriptor)
{
    return vex::Probe<"VEXFClose">([&] { return Close(descriptor); }, vex::In(descriptor));
}
