// SPDX-License-Identifier: Apache-2.0
// Reads the 100 bytes that begin an SQLite database. Its numbers are big-endian.
#include "host/system/DatabaseFile.h"

#include "host/system/MessageTexts.h"
#include "host/system/Path.h"

#include <fmt/format.h>

#include <array>
#include <cerrno>
#include <cstdint>
#include <cstring>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace vex::system {
namespace {

constexpr std::string_view kMagic{"SQLite format 3\0", 16};

struct Header
{
    std::array<unsigned char, 101> bytes{};  // the last one begins the page behind the header

    std::uint32_t Number(std::size_t offset, std::size_t size) const
    {
        std::uint32_t number = 0;
        for (std::size_t i = 0; i < size; ++i)
            number = (number << 8) | bytes[offset + i];
        return number;
    }
    std::int32_t Signed(std::size_t offset) const
    {
        return static_cast<std::int32_t>(Number(offset, 4));
    }
    std::uint64_t PageSize() const
    {
        const std::uint32_t stored = Number(16, 2);
        return stored == 1 ? 65536 : stored;
    }
};

constexpr std::size_t kWriteFormat = 18;  // 1: rollback journal, 2: write-ahead log
constexpr std::size_t kReadFormat = 19;
constexpr std::size_t kPageCount = 28;
constexpr std::size_t kTextEncoding = 56;  // 1: UTF-8
constexpr std::size_t kUserVersion = 60;
constexpr std::size_t kApplicationId = 68;
constexpr std::size_t kKindOfFirstPage = 100;
constexpr unsigned char kTableLeaf = 0x0D;

std::string Refusal(std::string_view path, std::string_view reason, std::string_view remedy)
{
    return fmt::format("{}: {}. {}.", Quoted(path), reason, remedy);
}

bool OpenRegularFile(const std::string& path, Descriptor& file, std::uint64_t& size, bool& missing,
                     std::string& error)
{
    // Without O_NONBLOCK the open of a pipe would wait for a writer.
    file = Descriptor(Descriptor::AboveStandardStreams(
        ::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY)));
    if (!file.IsOpen()) {
        missing = errno == ENOENT;
        error = Refusal(path, missing ? "there is no such file" : SystemReason(errno),
                        missing ? "Check the path" : "Check the path and the permissions");
        return false;
    }
    struct stat status = {};
    if (::fstat(file.Number(), &status) != 0) {
        error = Refusal(path, SystemReason(errno), "Check the disk");
        return false;
    }
    if (!S_ISREG(status.st_mode)) {
        error = Refusal(path, S_ISDIR(status.st_mode) ? "it is a folder" : "it is not a file",
                        "Give the path of a file");
        return false;
    }
    size = static_cast<std::uint64_t>(status.st_size);
    return true;
}

}  // namespace

std::string DamagedMessage(std::string_view path, std::string_view reason)
{
    return Refusal(path, fmt::format("the file is damaged: {}", reason), "Restore it from a copy");
}

bool OpenDatabaseFile(std::string_view path, const DatabaseKind& kind, Descriptor& file,
                      int& version, bool& missing, std::string& error)
{
    missing = false;
    const auto refuse = [&](const std::string& message) {
        error = message;
        file.Close();
        return false;
    };
    if (!CheckPath(path, error)) return false;
    std::uint64_t size = 0;
    if (!OpenRegularFile(std::string(path), file, size, missing, error)) {
        file.Close();
        return false;
    }
    const auto foreign = [&](std::string_view reason) {
        return refuse(Refusal(path, fmt::format("it is not {}: {}", kind.noun, reason),
                              fmt::format("Give the path of {}", kind.noun)));
    };
    if (size == 0) return foreign("the file is empty");
    Header header;
    const ssize_t count = ::pread(file.Number(), header.bytes.data(), header.bytes.size(), 0);
    if (count < 0) return refuse(Refusal(path, SystemReason(errno), "Check the disk"));
    if (static_cast<std::size_t>(count) < kMagic.size() ||
        std::memcmp(header.bytes.data(), kMagic.data(), kMagic.size()) != 0) {
        return foreign("it does not begin as an SQLite database does");
    }
    if (static_cast<std::size_t>(count) < header.bytes.size()) {
        return refuse(DamagedMessage(path, "it is cut off within its header"));
    }
    if (header.Signed(kApplicationId) != kind.applicationId) {
        return foreign(fmt::format("it is another application's database (application id {:#010x})",
                                   header.Number(kApplicationId, 4)));
    }
    version = header.Signed(kUserVersion);
    if (version > kind.newestVersion) {
        return refuse(Refusal(
            path,
            fmt::format("it was written by a newer program (data version {}, this program reads "
                        "up to {})",
                        version, kind.newestVersion),
            "Open it with the newer program"));
    }
    if (version < 1) {
        return refuse(DamagedMessage(path, fmt::format("data version {} never was", version)));
    }
    const std::uint64_t expected = header.PageSize() * header.Number(kPageCount, 4);
    if (size != expected) {
        return refuse(DamagedMessage(
            path, fmt::format("it has {} bytes, its header says {}", size, expected)));
    }
    if (header.bytes[kWriteFormat] != 1 || header.bytes[kReadFormat] != 1 ||
        header.Number(kTextEncoding, 4) != 1) {
        return refuse(DamagedMessage(path, "its header holds values that are never written"));
    }
    // The schema: SQLite reads all of it before anything can be asked, and pages that lead to the
    // same page again and again would keep it busy for ever.
    if (header.bytes[kKindOfFirstPage] != kTableLeaf) {
        return refuse(
            DamagedMessage(path, "its list of tables is longer than any that is written"));
    }
    return true;
}

}  // namespace vex::system
