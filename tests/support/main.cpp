// SPDX-License-Identifier: Apache-2.0
// Main of every test program: a folder of its own for the run, a settings store of its own, never
// the user's.
#include "support/TemporaryFolder.h"

#include <gmock/gmock.h>

#include <cstdlib>

int main(int argc, char** argv)
{
    const hlxtest::TemporaryFolder folder;
    setenv("VEX_SETTINGS", (folder.Path() + "/settings.VEXSettings").c_str(), 1);
    testing::InitGoogleMock(&argc, argv);
    return RUN_ALL_TESTS();
}
