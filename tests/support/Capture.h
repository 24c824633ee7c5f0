// SPDX-License-Identifier: Apache-2.0
// What a piece of code wrote to standard output and standard error, as bytes. Kept in memory: a
// process that is killed meanwhile leaves no file, and a full disk does not matter.
#pragma once

#include <functional>
#include <string>

namespace hlxtest {

struct Captured
{
    std::string out;
    std::string err;
};

/// Runs `body` and answers what it wrote. Also catches what was written through the file
/// descriptors themselves. Captures may be nested: the inner one has what is written meanwhile.
Captured Capture(const std::function<void()>& body);

/// The same of standard error alone.
std::string StandardErrorOf(const std::function<void()>& body);

}  // namespace hlxtest
