// SPDX-License-Identifier: Apache-2.0
// Breaking and watching the platform in a test. Everything here ends with the object.
#pragma once

#include "host/system/Probes.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

namespace hlxtest {

/// Faults in force while the object lives: 'NAME[#N]=OUTCOME;…' as in docs/probes.md.
class Faults
{
public:
    explicit Faults(std::string_view script)
    {
        std::string error;
        EXPECT_TRUE(vex::probe::SetFaults(script, error)) << error;
    }
    ~Faults() { vex::probe::ClearFaults(); }
    Faults(const Faults&) = delete;
    Faults& operator=(const Faults&) = delete;
};

/// Records the platform calls made while the object lives.
class Recording
{
public:
    Recording() { vex::probe::StartRecording(); }
    ~Recording()
    {
        if (_running) {
            vex::probe::StopRecording();
        }
    }
    Recording(const Recording&) = delete;
    Recording& operator=(const Recording&) = delete;

    std::vector<vex::probe::Call> Stop()
    {
        _running = false;
        return vex::probe::StopRecording();
    }

    /// Stops and answers the names of the calls whose name begins with one of `prefixes` (none:
    /// all), in order.
    std::vector<std::string> StopNames(const std::vector<std::string>& prefixes = {})
    {
        std::vector<std::string> names;
        for (const vex::probe::Call& call : Stop()) {
            bool wanted = prefixes.empty();
            for (const std::string& prefix : prefixes) {
                wanted = wanted || call.name.starts_with(prefix);
            }
            if (wanted) {
                names.push_back(call.name);
            }
        }
        return names;
    }

private:
    bool _running = true;
};

}  // namespace hlxtest
