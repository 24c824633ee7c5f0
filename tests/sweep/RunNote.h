// SPDX-License-Identifier: Apache-2.0
// Says which run it was when a run ends the process or takes too long.
#pragma once

#include <string>

namespace hlxtest::sweep {

/// While it lives, a crash, the end of the process, or a minute without its death writes `text` to
/// standard error, past any capture of it. One at a time.
class RunNote
{
public:
    explicit RunNote(const std::string& text);
    ~RunNote();
    RunNote(const RunNote&) = delete;
    RunNote& operator=(const RunNote&) = delete;
};

}  // namespace hlxtest::sweep
