// SPDX-License-Identifier: Apache-2.0
// The counts of a process: observed calls by name, and the components it still holds when it ends.
#pragma once

#include "host/system/HeldObjects.h"

#include <sys/types.h>
#include <memory>
#include <string>

namespace vex::probe {

/// Makes its file at once, so that an impossible path is known at the start, and fills it when
/// destroyed.
class CallCounts
{
public:
    /// Null with the reason in `error` when the file cannot be made.
    static std::unique_ptr<CallCounts> Open(const std::string& path, std::string& error);

    void Count(const std::string& name) { ++_calls[name]; }
    HeldObjectAccount& Held() { return _held; }

    ~CallCounts();
    CallCounts(const CallCounts&) = delete;
    CallCounts& operator=(const CallCounts&) = delete;

private:
    explicit CallCounts(std::string path);
    std::string Text() const;

    std::string _path;
    std::map<std::string, std::uint64_t> _calls;
    HeldObjectAccount _held;
    pid_t _owner;
};

}  // namespace vex::probe
