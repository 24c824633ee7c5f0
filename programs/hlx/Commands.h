// SPDX-License-Identifier: Apache-2.0
// The subcommands of `hlx`. Each adds itself to the command line and, when it was chosen, leaves
// its exit code in `exitCode`.
#pragma once

#include <CLI/CLI.hpp>

namespace hlx {

/// Exit codes of `hlx`, as its help tells them.
enum ExitCode : int {
    Done = 0,
    Failed = 1,  ///< the reason is on standard error
    WrongCommandLine = 2,
};

void AddNewCommand(CLI::App& program, int& exitCode);
void AddTreeCommand(CLI::App& program, int& exitCode);
void AddInfoCommand(CLI::App& program, int& exitCode);
void AddProbesCommand(CLI::App& program, int& exitCode);

}  // namespace hlx
