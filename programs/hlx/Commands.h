// SPDX-License-Identifier: Apache-2.0
// The subcommands of `hlx`. Each does its work, tells on standard error what it cannot do and
// answers with the exit code.
#pragma once

#include <string>

namespace hlx {

/// Exit codes of `hlx`, as its help tells them.
enum ExitCode : int {
    Done = 0,
    Failed = 1,  ///< the reason is on standard error
    WrongCommandLine = 2,
};

/// What `hlx new` is to make; the help of the options tells the rest.
struct NewOptions
{
    std::string out;
    std::string from;
    int cases = 1;
    std::string steps;
};

int MakeDocument(const NewOptions& options);
int PrintTree(const std::string& path);
int PrintInfo(const std::string& path);
int PrintProbes(bool casts);

}  // namespace hlx
