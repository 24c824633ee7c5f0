// SPDX-License-Identifier: Apache-2.0
// A file's size as a budget.
#include "host/system/ReadBudget.h"

#include <sys/stat.h>

namespace vex::system {
namespace {

std::uint64_t SizeOf(int file)
{
    struct stat status = {};
    return ::fstat(file, &status) == 0 ? static_cast<std::uint64_t>(status.st_size) : 0;
}

}  // namespace

ReadBudget::ReadBudget(int file) : _left(SizeOf(file)) {}

}  // namespace vex::system
