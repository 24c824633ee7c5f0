// SPDX-License-Identifier: Apache-2.0
// Joining and splitting of paths.
#include "VEXSystem.h"
#include "host/system/Probe.h"

#include <algorithm>
#include <string>
#include <string_view>

namespace {

constexpr char kSeparator = '/';

std::string_view TextOrEmpty(const char* text)
{
    return text == nullptr ? std::string_view() : std::string_view(text);
}

std::string_view WithoutTrailingSeparators(std::string_view text)
{
    return text.substr(0, text.find_last_not_of(kSeparator) + 1);
}

std::string Join(std::string_view directory, std::string_view name)
{
    if (directory.empty()) {
        return std::string(name);
    }
    std::string path(WithoutTrailingSeparators(directory));
    if (name.empty()) {
        return directory.ends_with(kSeparator) ? path + kSeparator : path;
    }
    path += kSeparator;
    return path.append(name.substr(std::min(name.find_first_not_of(kSeparator), name.size())));
}

/// Puts the text and its ending zero into a buffer of VEXMaxPathSize bytes.
void Fill(char* buffer, std::string_view text)
{
    text.copy(buffer, text.size());
    buffer[text.size()] = '\0';
}

HRESULT MakePath(const char* directory, const char* name, char* path)
{
    if (path == nullptr) {
        return E_INVALIDARG;
    }
    // Joined apart first: the buffer may be one of the texts.
    const std::string joined = Join(TextOrEmpty(directory), TextOrEmpty(name));
    const bool fits = joined.size() < VEXMaxPathSize;
    Fill(path, fits ? joined : std::string_view());
    return fits ? S_OK : E_INVALIDARG;
}

HRESULT SplitPath(const char* path, char* directory, char* name)
{
    const std::string whole(TextOrEmpty(path));
    for (char* const buffer : {directory, name}) {
        if (buffer != nullptr) {
            Fill(buffer, {});
        }
    }
    if (path == nullptr || directory == nullptr || name == nullptr ||
        whole.size() >= VEXMaxPathSize) {
        return E_INVALIDARG;
    }
    const std::size_t separator = whole.rfind(kSeparator);
    if (separator == std::string::npos) {
        Fill(name, whole);
        return S_OK;
    }
    const std::string_view parts = whole;
    Fill(directory, parts.substr(0, separator == 0 ? 1 : separator));
    Fill(name, parts.substr(separator + 1));
    return S_OK;
}

}  // namespace

HRESULT VEXMakePath(const char* directory, const char* name, char* path)
{
    return vex::Probe<"VEXMakePath">([&] { return MakePath(directory, name, path); },
                                     vex::In(directory), vex::In(name), vex::OutText(path));
}

HRESULT VEXSplitPath(const char* path, char* directory, char* name)
{
    return vex::Probe<"VEXSplitPath">([&] { return SplitPath(path, directory, name); },
                                      vex::In(path), vex::OutText(directory), vex::OutText(name));
}
