// SPDX-License-Identifier: Apache-2.0
// The sweep: an operation is run once for each of its platform calls and each way to break it, that
// call alone and all from it on. It must come back each time, and leave the process such that the
// operation then does what it did the first time.
//
// HLX_SWEEP=full takes every such run; else rows with more than a few hundred take every so
// manieth.
#pragma once

#include "sweep/Operation.h"

#include <gtest/gtest.h>

#include <string>

namespace hlxtest::sweep {

class Sweep : public testing::TestWithParam<Operation>
{};

inline std::string NameOfRow(const testing::TestParamInfo<Operation>& row)
{
    return row.param.name;
}

}  // namespace hlxtest::sweep
