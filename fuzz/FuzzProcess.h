// SPDX-License-Identifier: Apache-2.0
// What every fuzz target needs of its process: a folder in memory for files, and a way to say that
// something which must hold does not.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace hlxfuzz {

using Input = std::span<const std::uint8_t>;

inline std::string_view TextOf(Input input)
{
    return {reinterpret_cast<const char*>(input.data()), input.size()};
}

/// The path of a file of that name in this process's own folder, which is in memory (below TMPDIR,
/// else in /dev/shm) and goes with the process.
std::string InFolder(std::string_view name);

/// How many files the folder has.
std::size_t FileCount();

void WriteFile(const std::string& path, std::string_view bytes);
std::string ReadFile(const std::string& path);

/// Ends the process as a finding, with `what` on the standard error that it was started with.
[[noreturn]] void Fail(std::string_view what);

inline void Require(bool holds, std::string_view what)
{
    if (!holds) {
        Fail(what);
    }
}

/// A message must be there, be text, and be of one line: what a file holds may not forge another.
void RequireMessage(const std::string& message);

}  // namespace hlxfuzz
