// SPDX-License-Identifier: Apache-2.0
// Makes file names of names.
#include "host/product/DocumentNames.h"

#include "host/system/Texts.h"

#include <algorithm>

namespace vex {

namespace {

bool IsContinuation(char byte)
{
    return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
}

std::string InLowerCase(std::string text)
{
    std::ranges::transform(text, text.begin(), [](char c) {
        return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c;
    });
    return text;
}

std::string Cleaned(std::string_view name)
{
    std::string clean;
    for (std::size_t i = 0; i < name.size();) {
        std::size_t length = 1;
        while (i + length < name.size() && IsContinuation(name[i + length]) && length < 4) {
            ++length;
        }
        const std::string_view letter = name.substr(i, length);
        const bool isPlain = text::IsValid(letter) &&
                             static_cast<unsigned char>(letter[0]) >= 0x20U && letter != "/" &&
                             letter != "\\" && letter != "\x7F" &&
                             !(letter == "." && clean.empty());
        clean += isPlain ? letter : "_";
        i += length;
    }
    return clean;
}

void Shorten(std::string& name, std::size_t size)
{
    if (name.size() > size) {
        while (size > 0 && IsContinuation(name[size])) {
            --size;
        }
        name.resize(size);
    }
}

}  // namespace

std::string DocumentNames::Give(std::string_view name, std::string_view type)
{
    const std::string clean = Cleaned(name.empty() ? type : name);
    int& uses = _uses[InLowerCase(clean)];
    for (;;) {
        const std::string ending =
            (++uses == 1 ? "" : "_" + std::to_string(uses)) + "." + std::string(type);
        std::string file = clean;
        Shorten(file, longest - ending.size());
        file += ending;
        if (_given.insert(InLowerCase(file)).second) {
            return file;
        }
    }
}

}  // namespace vex
