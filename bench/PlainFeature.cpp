// SPDX-License-Identifier: Apache-2.0
// Makes features.
#include "PlainFeature.h"

#include <fmt/format.h>

namespace bench {

std::vector<PlainFeature> MakeFeatures(std::int64_t count)
{
    constexpr std::int64_t family = 50;
    std::vector<PlainFeature> features(static_cast<std::size_t>(count));
    for (std::int64_t i = 0; i < count; ++i) {
        PlainFeature& feature = features[static_cast<std::size_t>(i)];
        const bool isHead = i % family == 0;
        feature.id = i + 1;
        feature.parent = isHead ? 0 : i - i % family + 1;
        feature.ordinal = isHead ? i / family + 1 : i % family;
        feature.lateType = lateType;
        feature.alias = fmt::format("Step.{}", i);
        feature.attributes = {
            {attributeNames[0], fmt::format("Run {}", i)},
            {attributeNames[1], 1000 + i},
            {attributeNames[2], 1.5 + static_cast<double>(i) / 7.0},
        };
    }
    return features;
}

std::size_t BytesOfTextsAndValues(const std::vector<PlainFeature>& features)
{
    std::size_t bytes = 0;
    for (const PlainFeature& feature : features) {
        bytes += feature.alias.size();
        for (const PlainAttribute& attribute : feature.attributes) {
            const auto* const text = std::get_if<std::string>(&attribute.value);
            bytes += text == nullptr ? sizeof(double) : text->size();
        }
    }
    return bytes;
}

}  // namespace bench
