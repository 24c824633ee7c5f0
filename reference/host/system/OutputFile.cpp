// SPDX-License-Identifier: Apache-2.0
#include "host/system/OutputFile.h"

#include <fcntl.h>

namespace vex::system {

Descriptor OpenOutputFile(const std::string& path)
{
    Descriptor file(Descriptor::AboveStandardStreams(
        ::open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_NONBLOCK | O_CLOEXEC, 0666)));
    // Only opening must not wait: a slow reader of a pipe gets all that is written.
    if (file.IsOpen()) ::fcntl(file.Number(), F_SETFL, 0);
    return file;
}

}  // namespace vex::system
