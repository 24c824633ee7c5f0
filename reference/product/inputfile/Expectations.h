// SPDX-License-Identifier: Apache-2.0
// What a solver expects to find in the kinds of step. Nothing is refused for it: a deck marks what
// is not expected where it stands.
#pragma once

#include "host/feature/LateType.h"

#include <span>
#include <string_view>

namespace hlx {

struct StepExpectations
{
    std::string_view lateType;                     ///< of the steps
    std::string_view words;                        ///< "a heat transfer step"
    std::span<const std::string_view> unexpected;  ///< late types

    /// Whether conditions of a late type are expected: neither it nor what it extends is among the
    /// unexpected ones.
    bool Expects(const vex::LateType& condition) const;
};

/// What is expected in steps of a late type, or of the nearest that it extends; null for no step
/// and for one of which nothing is known.
const StepExpectations* ExpectationsOf(const vex::LateType& step);

}  // namespace hlx
