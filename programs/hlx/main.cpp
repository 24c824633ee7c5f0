// SPDX-License-Identifier: Apache-2.0
// `hlx`: makes and looks at documents of the reference host without writing a test program.
#include "Commands.h"
#include "Messages.h"
#include "host/system/MessageTexts.h"
#include "host/system/SettingsStore.h"

#include <cstdlib>
#include <exception>
#include <filesystem>

namespace {

/// The same as CLI11 says, but nothing on the command line forges a line of it.
std::string WrongLine(const CLI::App*, const CLI::Error& error)
{
    return vex::system::Printable(error.what()) + "\nRun with --help for more information.\n";
}

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

int Run(int argc, char** argv)
{
    CLI::App program{"Makes and shows documents of the reference host."};
    program.name("hlx");
    // None is refused below: a wrong word is then named rather than a missing subcommand.
    program.require_subcommand(0, 1);
    program.failure_message(WrongLine);
    program.footer(
        "exit codes: 0 done, 1 failed (reason on standard error), 2 wrong command line\n"
        "environment: VEX_SETTINGS=FILE settings store (else one of its own beside the user's),\n"
        "             VEX_COMPONENT_PATH, VEX_CATALOG_PATH search paths,\n"
        "             VEX_TRACE, VEX_COUNTS, VEX_FAULTS see and break platform calls "
        "(docs/probes.md)");
    int exitCode = hlx::Done;
    hlx::AddNewCommand(program, exitCode);
    hlx::AddTreeCommand(program, exitCode);
    hlx::AddInfoCommand(program, exitCode);
    hlx::AddProbesCommand(program, exitCode);
    try {
        program.parse(argc, argv);
        if (program.get_subcommands().empty()) throw CLI::RequiredError("A subcommand");
    } catch (const CLI::ParseError& error) {
        return program.exit(error) == 0 ? hlx::Done : hlx::WrongCommandLine;
    }
    return exitCode;
}

}  // namespace

int main(int argc, char** argv)
{
    int exitCode = hlx::Failed;
    try {
        UseOwnSettings();
        exitCode = Run(argc, argv);
    } catch (const std::exception& error) {
        hlx::Report(vex::system::Printable(error.what()));
    }
    if (!hlx::OutputArrived()) {
        hlx::Report("standard output could not be written: some of what was to be shown is lost");
        return exitCode == hlx::Done ? hlx::Failed : exitCode;
    }
    return exitCode;
}
