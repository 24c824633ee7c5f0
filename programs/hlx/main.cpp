// SPDX-License-Identifier: Apache-2.0
// `hlx`: makes and looks at documents of the reference host without writing a test program.
#include "CommandLine.h"
#include "Commands.h"
#include "Messages.h"
#include "host/system/MessageTexts.h"
#include "host/system/SettingsStore.h"

#include <cstdlib>
#include <exception>
#include <filesystem>
#include <string>

namespace {

/// Unless the environment names a store: one of its own beside the user's, so that a program that
/// runs meanwhile and this one never restore each other's options.
void UseOwnSettings()
{
    const char* const given = std::getenv("VEX_SETTINGS");
    std::string error;
    const std::filesystem::path usual = vex::system::SettingsStore::DefaultPath(error);
    if ((given == nullptr || *given == '\0') && !usual.empty()) {
        setenv("VEX_SETTINGS", (usual.parent_path() / "hlx.VEXSettings").c_str(), 1);
    }
}

}  // namespace

int main(int argc, char** argv)
{
    int exitCode = hlx::Failed;
    try {
        UseOwnSettings();
        exitCode = hlx::RunCommandLine(argc, argv);
    } catch (const std::exception& error) {
        hlx::Report(vex::system::Printable(error.what()));
    }
    if (!hlx::OutputArrived()) {
        hlx::Report("standard output could not be written: some of what was to be shown is lost");
        return exitCode == hlx::Done ? hlx::Failed : exitCode;
    }
    return exitCode;
}
