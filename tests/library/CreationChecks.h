// SPDX-License-Identifier: Apache-2.0
// What is looked at after a creation with something broken, whatever it was to create.
#pragma once

#include "VEXVar.h"
#include "support/FlushedOutput.h"
#include "support/Platform.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>

namespace hlxtest::statics {

/// What the caller's handle holds after a creation.
enum class Handle { New, Former, Empty };

/// @param given   what the handle holds now
/// @param former  what it held before
/// @param made    what the creation left in the document
inline void ExpectHandle(Handle expected, const VEXBaseUnknown_var& given,
                         const VEXBaseUnknown_var& former, const VEXBaseUnknown_var& made)
{
    switch (expected) {
        case Handle::New:
            EXPECT_TRUE(given && given == made);
            break;
        case Handle::Former:
            EXPECT_TRUE(given == former);
            break;
        case Handle::Empty:
            EXPECT_FALSE(given);
            break;
    }
}

/// What `operation` flushes while faults are in force; none for an empty script.
template <class Operation>
std::string FlushedWith(const std::string& faults, Operation operation)
{
    std::optional<Faults> inForce;
    if (!faults.empty()) {
        inForce.emplace(faults);
    }
    const FlushedOutput output;
    operation();
    return output.Text();
}

}  // namespace hlxtest::statics
