// SPDX-License-Identifier: Apache-2.0
// Memory for long texts.
#include "host/system/TextBuffer.h"

#include <sys/mman.h>

namespace vex::text {

void TextBuffer::UseLargePages()
{
    constexpr std::size_t page = std::size_t{2} << 20U;
    const std::size_t before = page - reinterpret_cast<std::uintptr_t>(_text.data()) % page;
    if (_text.capacity() > before + page) {
        const std::size_t whole = (_text.capacity() - before) / page * page;
        // Advice: without large pages everything goes on as before.
        ::madvise(_text.data() + before, whole, MADV_HUGEPAGE);
    }
}

}  // namespace vex::text
