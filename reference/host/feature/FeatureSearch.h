// SPDX-License-Identifier: Apache-2.0
// A feature's children by the interface that they offer.
#pragma once

#include "host/feature/Feature.h"

namespace vex {

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
