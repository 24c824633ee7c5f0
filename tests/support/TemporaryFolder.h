// SPDX-License-Identifier: Apache-2.0
// A folder that lives as long as the object, and files in it.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace hlxtest {

class TemporaryFolder
{
public:
    TemporaryFolder();
    ~TemporaryFolder();
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    const std::string& Path() const { return _path; }
    std::string File(std::string_view name) const { return _path + "/" + std::string(name); }
    /// Names of what is in it, sorted.
    std::vector<std::string> Names() const;

private:
    std::string _path;
};

/// The bytes of a file; the test fails when it cannot be read.
std::string ReadFile(const std::string& path);
/// Puts a new file there, in place of the one of that name; the test fails when it cannot.
void WriteFile(const std::string& path, std::string_view bytes);
bool FileExists(const std::string& path);

}  // namespace hlxtest
