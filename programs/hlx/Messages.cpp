// SPDX-License-Identifier: Apache-2.0
// Lines and text to the standard streams.
#include "Messages.h"

#include <cstdio>
#include <string>

namespace hlx {

bool Report(std::string_view reason)
{
    Progress(std::string("hlx: ").append(reason));
    return false;
}

void Progress(std::string_view what)
{
    // In one piece, so that lines of several programs on one terminal stay whole.
    const std::string line = std::string(what) + '\n';
    std::fwrite(line.data(), 1, line.size(), stderr);
}

void Write(std::string_view text)
{
    std::fwrite(text.data(), 1, text.size(), stdout);
}

bool OutputArrived()
{
    const bool flushed = std::fflush(stdout) == 0;
    return flushed && std::ferror(stdout) == 0;
}

}  // namespace hlx
