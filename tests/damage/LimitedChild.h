// SPDX-License-Identifier: Apache-2.0
// Work in a child process that may take ten seconds of processor time and four gibibytes.
#pragma once

#include "support/Sanitized.h"

#include <functional>
#include <ostream>
#include <string>

namespace damagetest {

using hlxtest::kSanitized;

/// A sanitized program does the same work several times more slowly.
inline constexpr int kMostSeconds = kSanitized ? 60 : 10;
inline constexpr long kMostKibibytes = 4L * 1024 * 1024;

/// What a child answers when its work cannot.
enum ChildFailure : int {
    kExpectedInVain = 97,  ///< an expectation of the test failed in it
    kThrew = 98,           ///< the work threw
    kNotLimited = 99,      ///< the limits could not be set
};

/// How a child ended and what it took.
struct ChildEnd
{
    int code = -1;         ///< what its work answered, or a ChildFailure; the negative number of
                           ///< the signal that ended it
    std::string err;       ///< what it wrote to standard error
    double seconds = 0.0;  ///< of processor time
    long kibibytes = 0;    ///< of memory, at its peak

    friend void PrintTo(const ChildEnd& end, std::ostream* stream)
    {
        *stream << "ended with " << end.code << " after " << end.seconds << " s, " << end.kibibytes
                << " KiB, err: " << end.err;
    }
};

/// Runs `work` in a copy of this process and waits for its end. A child that takes more than is
/// allowed, or a minute more than its processor time, is ended by a signal. The test fails when it
/// took more memory than is allowed.
ChildEnd RunLimited(const std::function<int()>& work);

/// The same for work that says by expectations what it finds: the test fails when one of them does.
void ExpectLimited(const std::function<void()>& work);

}  // namespace damagetest
