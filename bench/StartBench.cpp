// SPDX-License-Identifier: Apache-2.0
// The start and end of HLXFileDump without arguments, beside those of a program with the same
// libraries that does nothing.
#include "Comparison.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <string>

namespace {

using namespace bench;

/// Runs a program with nothing to read and nowhere to write; answers its exit code.
int Run(const std::string& program)
{
    posix_spawn_file_actions_t files;
    posix_spawn_file_actions_init(&files);
    posix_spawn_file_actions_addopen(&files, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
    posix_spawn_file_actions_addopen(&files, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
    posix_spawn_file_actions_adddup2(&files, STDOUT_FILENO, STDERR_FILENO);
    std::string name = program;
    char* const arguments[] = {name.data(), nullptr};
    pid_t child = 0;
    const int spawned = posix_spawn(&child, program.c_str(), &files, nullptr, arguments, environ);
    posix_spawn_file_actions_destroy(&files);
    int status = 0;
    Require(spawned == 0 && waitpid(child, &status, 0) == child && WIFEXITED(status),
            "a program cannot be run");
    return WEXITSTATUS(status);
}

void Start(benchmark::State& state)
{
    const std::string ours = HLX_BINARY_DIR "/bin/HLXFileDump";
    const std::string bare = HLX_BINARY_DIR "/bin/bare_program";
    Comparison comparison(state);
    for ([[maybe_unused]] auto round : state) {
        comparison.Ours(SecondsOf([&] { Require(Run(ours) == 1, "HLXFileDump ends otherwise"); }));
        comparison.Baseline(0, SecondsOf([&] { Require(Run(bare) == 0, "it ends otherwise"); }));
    }
    comparison.Report(1.3);
}

}  // namespace

BENCHMARK(Start)->Iterations(501)->UseManualTime();
