// SPDX-License-Identifier: Apache-2.0
// Bytes as a settings file: it is refused and stays as it is, or it is read, changed, stored and
// read again.
#include "SettingsCheck.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string path = hlxfuzz::InFolder("in.VEXSettings");
    hlxfuzz::WriteFile(path, hlxfuzz::TextOf({data, size}));
    hlxfuzz::CheckSettings(path, {});
    return 0;
}
