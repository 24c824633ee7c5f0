// SPDX-License-Identifier: Apache-2.0
// Names of document kinds.
#include "host/store/DocumentKind.h"

#include <array>

namespace vex::store {
namespace {

constexpr std::array<std::string_view, 3> kNames = {"VEXAnalysis", "VEXProduct", "VEXPart"};

}  // namespace

std::string_view NameOf(DocumentKind kind)
{
    return kNames[static_cast<std::size_t>(kind)];
}

std::optional<DocumentKind> KindFromName(std::string_view name)
{
    for (std::size_t i = 0; i < kNames.size(); ++i) {
        if (kNames[i] == name) return static_cast<DocumentKind>(i);
    }
    return std::nullopt;
}

std::optional<DocumentKind> KindFromType(std::string_view type)
{
    const std::size_t dot = type.rfind('.');
    return KindFromName(dot == std::string_view::npos ? type : type.substr(dot + 1));
}

}  // namespace vex::store
