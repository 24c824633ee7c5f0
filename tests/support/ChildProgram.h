// SPDX-License-Identifier: Apache-2.0
// Running a program to its end as a user does.
#pragma once

#include <ostream>
#include <string>
#include <vector>

namespace hlxtest {

/// How a program ended and what it wrote.
struct Ended
{
    int code;  ///< exit code; the negative number of the signal that ended it
    std::string out;
    std::string err;

    friend bool operator==(const Ended&, const Ended&) = default;
    friend void PrintTo(const Ended& ended, std::ostream* stream)
    {
        *stream << "exit code " << ended.code << "\nout: " << ended.out << "\nerr: " << ended.err;
    }
};

struct Surroundings
{
    std::vector<std::string> environment;  ///< "NAME=value", besides what this process has
    std::string folder = {};               ///< current folder; empty: this process's
};

/// Runs command[0], a path, with the other entries as arguments.
Ended RunProgram(const std::vector<std::string>& command, const Surroundings& surroundings = {});

/// Path of one of this project's programs.
inline std::string Program(const std::string& name)
{
    return HLX_BINARY_DIR "/bin/" + name;
}

}  // namespace hlxtest
