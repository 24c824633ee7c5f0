// SPDX-License-Identifier: Apache-2.0
// The features that documents and their baseline hold, as plain structures.
#pragma once

#include <cstdint>
#include <string>
#include <variant>
#include <vector>

namespace bench {

/// The late type of all of them, and its attributes in the order of their names: a text, an
/// integer, a double.
inline constexpr const char* lateType = "HLXGeneralStaticStepLT";
inline constexpr const char* attributeNames[] = {"Description", "MaximumNumberOfIncrements",
                                                 "TimePeriod"};

struct PlainAttribute
{
    std::string name;
    std::variant<std::int64_t, double, std::string> value;
    bool operator==(const PlainAttribute&) const = default;
};

struct PlainFeature
{
    std::int64_t id = 0;
    std::int64_t parent = 0;  ///< 0: none
    std::int64_t ordinal = 0;
    std::string lateType;
    std::string alias;
    std::vector<PlainAttribute> attributes;
    bool operator==(const PlainFeature&) const = default;
};

/// Features with an alias and three attributes each: every 50th is below none, those behind it
/// are its children. Depth first; ids from 1.
std::vector<PlainFeature> MakeFeatures(std::int64_t count);

/// Bytes of the features' texts, and eight for each number.
std::size_t BytesOfTextsAndValues(const std::vector<PlainFeature>& features);

}  // namespace bench
