// SPDX-License-Identifier: Apache-2.0
// Looks at a STEP file before the kernel does. The kernel takes a truncated file for a smaller one.
#include "host/topology/step/StepFileCheck.h"

#include "host/system/MessageTexts.h"

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <fstream>
#include <string_view>

namespace vex::topology {
namespace {

constexpr std::string_view kFirst = "ISO-10303-21;";
constexpr std::string_view kLast = "END-ISO-10303-21;";
constexpr std::string_view kBlanks = " \t\r\n\f\v";
constexpr std::size_t kEdge =
    4096;  // how far from either end a mark may stand: notes and blanks may surround it

std::string ReadAt(std::ifstream& file, std::uintmax_t offset, std::size_t length)
{
    std::string text(length, '\0');
    file.seekg(static_cast<std::streamoff>(offset));
    file.read(text.data(), static_cast<std::streamsize>(length));
    text.resize(static_cast<std::size_t>(file.gcount()));
    return text;
}

std::size_t CountLines(std::ifstream& file)
{
    file.clear();
    file.seekg(0);
    std::size_t lines = 1;
    std::string block(1 << 16, '\0');
    while (file.read(block.data(), static_cast<std::streamsize>(block.size())) ||
           file.gcount() > 0) {
        lines +=
            static_cast<std::size_t>(std::count(block.data(), block.data() + file.gcount(), '\n'));
    }
    return lines;
}

}  // namespace

std::string CheckStepFile(const std::string& path)
{
    if (path.empty() || path.find('\0') != std::string::npos) {
        return "this is no file name: give the path of a STEP file";
    }
    std::error_code failure;
    const auto status = std::filesystem::status(path, failure);
    if (!std::filesystem::exists(status)) return "there is no such file: check the path";
    // A pipe or a device could block for ever.
    if (!std::filesystem::is_regular_file(status))
        return "this is not a file: give the path of a STEP file";
    const std::uintmax_t size = std::filesystem::file_size(path, failure);
    std::ifstream file(path, std::ios::binary);
    if (failure || !file) {
        return "cannot be opened (" + system::SystemReason(errno) + "): check who may read it";
    }
    if (size == 0) return "the file is empty: export it again";

    const std::size_t edge = static_cast<std::size_t>(std::min<std::uintmax_t>(size, kEdge));
    if (ReadAt(file, 0, edge).find(kFirst) == std::string::npos) {
        return "line 1: a STEP file starts with '" + std::string(kFirst) +
               "', this one does not: give a STEP file";
    }
    std::string end = ReadAt(file, size - edge, edge);
    end.erase(end.find_last_not_of(kBlanks) + 1);
    if (end.find(kLast) == std::string::npos) {
        return "line " + std::to_string(CountLines(file)) + ": the file ends without '" +
               std::string(kLast) + "', so a piece is missing: copy or export it again";
    }
    return {};
}

}  // namespace vex::topology
