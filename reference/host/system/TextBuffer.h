// SPDX-License-Identifier: Apache-2.0
// A long text while it is put together of many small pieces. What the host appends to a std::string
// it can append to this too, in less time.
#pragma once

#include "VEXTypes.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>
#include <utility>

namespace vex::text {

/// Its operations are named, and do, as those of std::string.
class VEX_EXPORT TextBuffer
{
public:
    /// @param begun     what it starts with
    /// @param expected  how much will be added, as far as is known
    explicit TextBuffer(std::string begun, std::size_t expected = 0)
        : _text(std::move(begun)), _size(_text.size())
    {
        _text.reserve(_size + expected);
        UseLargePages();
    }

    std::size_t size() const { return _size; }
    void resize(std::size_t size) { _size = std::min(size, _size); }  ///< never makes it longer

    TextBuffer& operator+=(char character)
    {
        *Room(1) = character;
        ++_size;
        return *this;
    }
    TextBuffer& operator+=(std::string_view text) { return append(text.data(), text.size()); }
    TextBuffer& append(const char* text, std::size_t size)
    {
        Copy(Room(size), text, size);
        _size += size;
        return *this;
    }
    TextBuffer& append(std::size_t count, char character)
    {
        std::memset(Room(count), character, count);
        _size += count;
        return *this;
    }

    /// The text, without much spare room; the buffer is empty afterwards.
    std::string Take()
    {
        _text.resize(std::exchange(_size, 0));
        if (_text.capacity() / 2 > _text.size()) {
            _text.shrink_to_fit();
        }
        return std::exchange(_text, {});
    }

private:
    char* Room(std::size_t size)
    {
        if (size > _text.size() - _size) {
            Grow(size);
        }
        return _text.data() + _size;
    }

    /// Most pieces are a word or two: the first and the last word of them, which may overlap, hold
    /// it all.
    static void Copy(char* to, const char* from, std::size_t size)
    {
        using Word = std::uint64_t;
        if (size >= sizeof(Word) && size <= 2 * sizeof(Word)) {
            std::memcpy(to, from, sizeof(Word));
            std::memcpy(to + size - sizeof(Word), from + size - sizeof(Word), sizeof(Word));
        } else if (size > 2 * sizeof(Word)) {
            std::memcpy(to, from, size);
        } else {
            std::copy_n(from, size, to);
        }
    }

    /// By pieces that stay in the cache from being filled with zeros to being written.
    void Grow(std::size_t size)
    {
        constexpr std::size_t piece = 4096;
        const std::size_t wanted = _size + size + piece;
        if (wanted > _text.capacity() && _size + size <= _text.capacity()) {
            _text.resize(_text.capacity());
        } else {
            _text.resize(wanted);
        }
    }

    /// A long text is touched for the first time from end to end: in few large pages rather than in
    /// tens of thousands of small ones, where the system has any.
    void UseLargePages();

    std::string _text;  ///< the first _size characters of it
    std::size_t _size;
};

}  // namespace vex::text
