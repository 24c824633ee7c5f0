// SPDX-License-Identifier: Apache-2.0
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <utility>

namespace hlxtest {

TemporaryFolder::TemporaryFolder()
{
    std::string pattern = (std::filesystem::temp_directory_path() / "hlxtest-XXXXXX").string();
    if (mkdtemp(pattern.data()) == nullptr) {
        std::perror("mkdtemp");
        std::abort();
    }
    _path = pattern;
}

TemporaryFolder::~TemporaryFolder()
{
    std::error_code ignored;
    std::filesystem::remove_all(_path, ignored);
}

std::vector<std::string> TemporaryFolder::Names() const
{
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(_path)) {
        names.push_back(entry.path().filename().string());
    }
    std::sort(names.begin(), names.end());
    return names;
}

std::string ReadFile(const std::string& path)
{
    std::ifstream stream(path, std::ios::binary);
    EXPECT_TRUE(stream.is_open()) << "cannot read " << path;
    // At once: iterators take a hundred times as long under the sanitizers.
    std::ostringstream text;
    text << stream.rdbuf();
    return std::move(text).str();
}

void WriteFile(const std::string& path, std::string_view bytes)
{
    // File systems hurry to write a file that is emptied and filled again.
    std::error_code ignored;
    std::filesystem::remove(path, ignored);
    std::ofstream stream(path, std::ios::binary);
    stream.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    ASSERT_TRUE(stream.flush().good()) << "cannot write " << path;
}

bool FileExists(const std::string& path)
{
    return std::filesystem::exists(path);
}

}  // namespace hlxtest
