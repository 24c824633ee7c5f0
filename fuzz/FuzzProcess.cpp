// SPDX-License-Identifier: Apache-2.0
// The process of a fuzz target.
#include "FuzzProcess.h"

#include "host/system/Texts.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>

#include <stdlib.h>
#include <unistd.h>

namespace hlxfuzz {

namespace {

namespace fs = std::filesystem;

/// Standard error as it was: libFuzzer closes what the host writes to (-close_fd_mask=2).
const int ownStandardError = ::dup(STDERR_FILENO);

class ProcessFolder
{
public:
    ProcessFolder()
    {
        const char* const base = std::getenv("TMPDIR");
        _path = std::string(base == nullptr ? "/dev/shm" : base) + "/hlx-fuzz-XXXXXX";
        if (::mkdtemp(_path.data()) == nullptr) {
            std::perror(_path.c_str());
            std::_Exit(2);
        }
        // Settings of whoever runs this are neither read nor written.
        ::setenv("VEX_SETTINGS", (_path + "/user.VEXSettings").c_str(), 1);
    }
    ProcessFolder(const ProcessFolder&) = delete;
    ProcessFolder& operator=(const ProcessFolder&) = delete;
    ~ProcessFolder()
    {
        std::error_code ignored;
        fs::remove_all(_path, ignored);
    }
    const std::string& Path() const { return _path; }

private:
    std::string _path;
};

const ProcessFolder folder;

}  // namespace

std::string InFolder(std::string_view name)
{
    return folder.Path() + "/" + std::string(name);
}

std::size_t FileCount()
{
    return static_cast<std::size_t>(
        std::distance(fs::directory_iterator(folder.Path()), fs::directory_iterator()));
}

void WriteFile(const std::string& path, std::string_view bytes)
{
    std::ofstream stream(path, std::ios::binary);
    stream.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    Require(stream.flush().good(), "a file in memory can be written");
}

std::string ReadFile(const std::string& path)
{
    std::ifstream stream(path, std::ios::binary);
    Require(stream.is_open(), "a file that was written can be read");
    return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
}

void Fail(std::string_view what)
{
    const std::string line = "does not hold: " + std::string(what) + "\n";
    [[maybe_unused]] const auto written = ::write(ownStandardError, line.data(), line.size());
    std::abort();
}

void RequireMessage(const std::string& message)
{
    Require(!message.empty(), "a refusal has a reason");
    Require(vex::text::IsValid(message), "a message is text");
    Require(std::ranges::none_of(message, [](char c) { return c >= 0 && c < ' '; }),
            "a message is of one line");
}

}  // namespace hlxfuzz
