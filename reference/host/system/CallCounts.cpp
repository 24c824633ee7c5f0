// SPDX-License-Identifier: Apache-2.0
// Writes counts.
#include "host/system/CallCounts.h"

#include "host/system/MessageTexts.h"
#include "host/system/OutputFile.h"

#include <fmt/format.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>

namespace vex::probe {

namespace {

std::string Refusal(const std::string& path)
{
    return fmt::format("{}: the counts cannot be written: {}. Name a file that can be made.",
                       system::Quoted(path), system::SystemReason(errno));
}

bool WriteFile(const std::string& path, const std::string& text)
{
    system::Descriptor opened = system::OpenOutputFile(path);
    std::FILE* const file = opened.IsOpen() ? ::fdopen(opened.Number(), "w") : nullptr;
    if (file == nullptr) {
        return false;
    }
    opened.Release();
    const bool written = std::fwrite(text.data(), 1, text.size(), file) == text.size();
    return std::fclose(file) == 0 && written;
}

}  // namespace

std::unique_ptr<CallCounts> CallCounts::Open(const std::string& path, std::string& error)
{
    if (!WriteFile(path, "")) {
        error = Refusal(path);
        return nullptr;
    }
    return std::unique_ptr<CallCounts>(new CallCounts(path));
}

CallCounts::CallCounts(std::string path) : _path(std::move(path)), _owner(getpid()) {}

CallCounts::~CallCounts()
{
    if (getpid() == _owner && !WriteFile(_path, Text())) {
        std::fprintf(stderr, "VEX_COUNTS: %s\n", Refusal(_path).c_str());
    }
}

std::string CallCounts::Text() const
{
    std::string text = "calls\n";
    for (const auto& [name, count] : _calls) {
        text += fmt::format("{:>10} {}\n", count, name);
    }
    text += "objects still held\n";
    for (const auto& [type, count] : _held.ByType()) {
        text += fmt::format("{:>10} {}\n", count, type);
    }
    return text;
}

}  // namespace vex::probe
