// SPDX-License-Identifier: Apache-2.0
// `hlx`: makes and looks at documents of the reference host without writing a test program.
#include "Commands.h"

int main(int argc, char** argv)
{
    CLI::App program{"Makes and shows documents of the reference host."};
    program.name("hlx");
    program.require_subcommand(1);
    program.footer(
        "exit codes: 0 done, 1 failed (reason on standard error), 2 wrong command line\n"
        "environment: VEX_SETTINGS=FILE settings store, VEX_COMPONENT_PATH, VEX_CATALOG_PATH "
        "search paths,\n"
        "             VEX_TRACE, VEX_COUNTS, VEX_FAULTS see and break platform calls "
        "(docs/probes.md)");
    int exitCode = hlx::Done;
    hlx::AddNewCommand(program, exitCode);
    hlx::AddTreeCommand(program, exitCode);
    hlx::AddInfoCommand(program, exitCode);
    hlx::AddProbesCommand(program, exitCode);
    try {
        program.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        return program.exit(error) == 0 ? hlx::Done : hlx::WrongCommandLine;
    }
    return exitCode;
}
