// SPDX-License-Identifier: Apache-2.0
// Closes descriptors and keeps them off the standard streams.
#include "host/system/Descriptor.h"

#include <cerrno>

#include <fcntl.h>
#include <unistd.h>

namespace vex::system {

int Descriptor::Close()
{
    if (_number < 0) return 0;
    const int failed = ::close(std::exchange(_number, -1));
    return failed != 0 && errno != EINTR ? errno : 0;  // after EINTR the descriptor is closed
}

int Descriptor::AboveStandardStreams(int number)
{
    if (number < 0 || number > STDERR_FILENO) return number;
    const int copy = ::fcntl(number, F_DUPFD_CLOEXEC, STDERR_FILENO + 1);
    const int code = errno;
    ::close(number);
    errno = code;
    return copy;
}

}  // namespace vex::system
