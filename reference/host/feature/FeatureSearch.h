// SPDX-License-Identifier: Apache-2.0
// Features by the interface that they offer, and by their late type.
#pragma once

#include "host/feature/Feature.h"

#include <string_view>

namespace vex {

/// The feature behind an interface; null when there is none or it is gone.
inline Feature* FeatureBehind(const VEXBaseUnknown* object)
{
    auto* const feature = ComponentBehind<Feature>(object);
    return feature == nullptr || feature->Tree() == nullptr ? nullptr : feature;
}

/// The first child of a late type, or of one that extends it; null when there is none.
inline Feature* FirstChildOfType(const Feature& parent, std::string_view lateType)
{
    for (Feature* const child : parent.Children()) {
        if (child->Kind().IsKindOf(lateType)) {
            return child;
        }
    }
    return nullptr;
}

/// The first child that offers an interface; null when there is none.
template <class Interface>
Feature* FirstChild(const Feature& parent)
{
    for (Feature* const child : parent.Children()) {
        if (Offers<Interface>(*child)) {
            return child;
        }
    }
    return nullptr;
}

/// The last one; null when there is none.
template <class Interface>
Feature* LastChild(const Feature& parent)
{
    Feature* last = nullptr;
    for (Feature* const child : parent.Children()) {
        if (Offers<Interface>(*child)) {
            last = child;
        }
    }
    return last;
}

}  // namespace vex
