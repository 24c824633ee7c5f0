// SPDX-License-Identifier: Apache-2.0
// What a piece of code wrote to standard output and standard error, as bytes.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <string>

namespace hlxtest {

struct Captured
{
    std::string out;
    std::string err;
};

/// Runs `body` and answers what it wrote. Also catches what was written through the file
/// descriptors themselves.
inline Captured Capture(const std::function<void()>& body)
{
    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();
    body();
    Captured captured;
    captured.out = testing::internal::GetCapturedStdout();
    captured.err = testing::internal::GetCapturedStderr();
    return captured;
}

}  // namespace hlxtest
