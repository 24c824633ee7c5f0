// SPDX-License-Identifier: Apache-2.0
// A settings file with rows that the input gives and with the right digest: it is read when they
// are sound, and then they are what it holds.
#include "SettingsCheck.h"
#include "SettingsRows.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string path = hlxfuzz::InFolder("in.VEXSettings");
    hlxfuzz::SettingsRows rows({data, size});
    rows.Store(path);
    const bool read = hlxfuzz::CheckSettings(path, rows.Sound());
    hlxfuzz::Require(read == rows.AreSound(), "sound settings are read, and no others");
    return 0;
}
