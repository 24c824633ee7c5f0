// SPDX-License-Identifier: Apache-2.0
// The machine that the process runs on.
#include "VEXSystem.h"
#include "host/system/Probe.h"

#include <sys/utsname.h>

#include <algorithm>
#include <cstdlib>
#include <string>
#include <thread>

namespace {

template <std::size_t Size>
void Fill(char (&field)[Size], std::string_view text)
{
    std::size_t length = std::min(text.size(), Size - 1);
    // A text that is cut is cut between two characters of UTF-8.
    while (length < text.size() && length > 0 &&
           (static_cast<unsigned char>(text[length]) & 0xC0U) == 0x80U) {
        --length;
    }
    std::fill(std::begin(field), std::end(field), '\0');
    std::transform(text.begin(), text.begin() + static_cast<std::ptrdiff_t>(length), field,
                   [](char c) {
                       const auto byte = static_cast<unsigned char>(c);
                       return c == '%' || byte < 0x20 || byte == 0x7F ? '_' : c;
                   });
}

void Describe(VEXSystemInfo& information)
{
    utsname system{};
    uname(&system);
    const char* const given = std::getenv("VEX_SYSTEM_NAME");
    Fill(information.SystemName,
         given != nullptr ? given : std::string(system.sysname) + ' ' + system.machine);
    Fill(information.Release, system.release);
    Fill(information.HostName, system.nodename);
    information.ProcessorCount = std::max(1, static_cast<int>(std::thread::hardware_concurrency()));
}

}  // namespace

void VEXGetSystemInfo(VEXSystemInfo* information)
{
    vex::Probe<"VEXGetSystemInfo">([&] {
        if (information != nullptr) {
            Describe(*information);
        }
    });
}
