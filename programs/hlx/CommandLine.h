// SPDX-License-Identifier: Apache-2.0
// The command line of `hlx`.
#pragma once

namespace hlx {

/// Reads the command line and runs the subcommand it names.
/// @return the exit code of `hlx`
int RunCommandLine(int argc, char** argv);

}  // namespace hlx
