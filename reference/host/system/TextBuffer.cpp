// SPDX-License-Identifier: Apache-2.0
// Memory for long texts.
#include "host/system/TextBuffer.h"

#include <sys/mman.h>

namespace vex::text {

void TextBuffer::UseLargePages()
{
    constexpr std::uintptr_t page = std::uintptr_t{2} << 20U;
    const auto address = reinterpret_cast<std::uintptr_t>(_text.data());
    const std::uintptr_t first = (address + page - 1) / page * page;
    const std::uintptr_t end = (address + _text.capacity()) / page * page;
    if (end > first) {
        // Advice: without large pages everything goes on as before.
        ::madvise(reinterpret_cast<void*>(first), end - first, MADV_HUGEPAGE);
    }
}

}  // namespace vex::text
