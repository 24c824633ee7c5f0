// SPDX-License-Identifier: Apache-2.0
// The trace of a process: each observed call as a line of text, or as a trace event (JSON) when the
// file's name ends in
// ".json". Each call is written when it ends, so that a process that dies leaves what it did.
#pragma once

#include "host/system/Descriptor.h"
#include "host/system/Probes.h"

#include <sys/types.h>
#include <memory>
#include <string>

namespace vex::probe {

class TraceFile
{
public:
    /// Null with the reason in `error` when the file cannot be made. An existing one is replaced.
    static std::unique_ptr<TraceFile> Open(const std::string& path, std::string& error);

    /// @param start  nanoseconds on the steady clock
    void Write(const Call& call, std::int64_t start);

    /// Ends the text; a child process that was forked leaves that to its parent.
    ~TraceFile();
    TraceFile(const TraceFile&) = delete;
    TraceFile& operator=(const TraceFile&) = delete;

private:
    TraceFile(system::Descriptor file, std::string path);
    void Append(const std::string& text);

    system::Descriptor _file;
    std::string _path;
    bool _json;
    bool _first = true;
    bool _failed = false;
    pid_t _owner;
};

/// "VEXIAlias::SetAlias("Load.1") -> S_OK, 1.250 us".
std::string TraceLine(const Call& call);

/// The call as an event of complete duration ("ph":"X"), times in microseconds.
std::string TraceEvent(const Call& call, std::int64_t start);

}  // namespace vex::probe
