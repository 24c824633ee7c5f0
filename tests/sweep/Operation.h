// SPDX-License-Identifier: Apache-2.0
// A row of the sweep: an operation of the library that calls the platform.
//
//     const Operation operations[] = {
//         {"OpenDocument", 1, &World::Nothing, [](World& w) { return w.test.OpenDocument(); }},
//     };
//     INSTANTIATE_TEST_SUITE_P(Model, Sweep, testing::ValuesIn(operations), NameOfRow);
#pragma once

#include "sweep/World.h"

#include <ostream>

namespace hlxtest::sweep {

struct Operation
{
    const char* name;
    int cases;                 ///< how many analysis cases the document has
    void (World::*prepare)();  ///< run before it, with an unbroken platform
    long (*run)(World&);       ///< answers S_OK with an unbroken platform
};

inline void PrintTo(const Operation& operation, std::ostream* stream)
{
    *stream << operation.name;
}

/// For an operation that answers E_FAIL with an unbroken platform, too.
inline long Refused(long result)
{
    return result == E_FAIL ? S_OK : E_UNEXPECTED;
}

}  // namespace hlxtest::sweep
