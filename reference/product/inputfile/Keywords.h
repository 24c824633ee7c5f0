// SPDX-License-Identifier: Apache-2.0
// What keyword of the deck stands for which late type.
#pragma once

#include <string_view>

namespace hlx {

enum class KeywordShape {
    Plain,    ///< a line; a block when there is something below the feature
    Block,    ///< always closed by its *END line, even when empty
    Omitted,  ///< not part of a deck, with everything below it
};

struct KeywordRule
{
    std::string_view lateType;
    std::string_view keyword;
    KeywordShape shape = KeywordShape::Plain;
    std::string_view procedure = {};  ///< of a step: the keyword line that follows its own
};

/// The rule for a late type; for one that the table does not know, the rule of the keyword FEATURE,
/// whose line gives the type.
const KeywordRule& RuleFor(std::string_view lateType);

/// True for the rule of the keyword FEATURE.
bool IsGeneric(const KeywordRule& rule);

}  // namespace hlx
