// SPDX-License-Identifier: Apache-2.0
#include "support/ChildProgram.h"

#include "support/TemporaryFolder.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstring>
#include <string_view>

namespace hlxtest {

namespace {

std::vector<char*> Pointers(const std::vector<std::string>& texts)
{
    std::vector<char*> pointers;
    for (const std::string& text : texts) {
        pointers.push_back(const_cast<char*>(text.c_str()));
    }
    pointers.push_back(nullptr);
    return pointers;
}

/// The environment of this process with some variables in place of its own.
std::vector<std::string> Environment(const std::vector<std::string>& own)
{
    std::vector<std::string> all = own;
    for (char** entry = environ; *entry != nullptr; ++entry) {
        const std::string_view inherited = *entry;
        const std::string_view name = inherited.substr(0, inherited.find('=') + 1);
        bool replaced = false;
        for (const std::string& variable : own) {
            replaced = replaced || variable.starts_with(name);
        }
        if (!replaced) {
            all.emplace_back(inherited);
        }
    }
    return all;
}

}  // namespace

Ended RunProgram(const std::vector<std::string>& command, const Surroundings& surroundings)
{
    const TemporaryFolder folder;
    const std::string out = folder.File("out");
    const std::string err = folder.File("err");
    const std::vector<std::string> environment = Environment(surroundings.environment);

    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    constexpr int flags = O_WRONLY | O_CREAT | O_TRUNC;
    posix_spawn_file_actions_addopen(&actions, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
    posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, out.c_str(), flags, 0600);
    posix_spawn_file_actions_addopen(&actions, STDERR_FILENO, err.c_str(), flags, 0600);
    if (!surroundings.folder.empty()) {
        posix_spawn_file_actions_addchdir_np(&actions, surroundings.folder.c_str());
    }
    pid_t child = 0;
    const int fault = posix_spawn(&child, command[0].c_str(), &actions, nullptr,
                                  Pointers(command).data(), Pointers(environment).data());
    posix_spawn_file_actions_destroy(&actions);
    if (fault != 0) {
        ADD_FAILURE() << command[0] << " cannot be run: " << std::strerror(fault);
        return {-1, "", ""};
    }
    int status = 0;
    EXPECT_EQ(waitpid(child, &status, 0), child);
    return {WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status), ReadFile(out),
            ReadFile(err)};
}

}  // namespace hlxtest
