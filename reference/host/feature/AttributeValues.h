// SPDX-License-Identifier: Apache-2.0
// Attributes as the operations of an interface set and give them, by the attribute's name. Each
// answers S_OK, or E_FAIL when the feature is gone: a getter then gives 0 or nothing, and leaves
// flags and whole numbers as they are.
#pragma once

#include "VEXFeatures.h"
#include "host/feature/Feature.h"

#include <string_view>

namespace vex {

/// @return also E_INVALIDARG for a number that is not finite
VEX_EXPORT HRESULT SetNumber(Feature& feature, std::string_view attribute, double number);
VEX_EXPORT HRESULT GetNumber(const Feature& feature, std::string_view attribute, double& number);

/// Whole numbers of 32 bits; a stored one that is larger or smaller is given as the nearest.
VEX_EXPORT HRESULT SetInteger(Feature& feature, std::string_view attribute, int number);
VEX_EXPORT HRESULT GetInteger(const Feature& feature, std::string_view attribute, int& number);

/// Any byte but 0 means true; what is given is 0 or 1.
VEX_EXPORT HRESULT SetFlag(Feature& feature, std::string_view attribute, unsigned char flag);
VEX_EXPORT HRESULT GetFlag(const Feature& feature, std::string_view attribute, unsigned char& flag);

/// @return also E_INVALIDARG for a text that is not valid UTF-8
VEX_EXPORT HRESULT SetText(Feature& feature, std::string_view attribute,
                           const VEXUnicodeString& text);
VEX_EXPORT HRESULT GetText(const Feature& feature, std::string_view attribute,
                           VEXUnicodeString& text);

/// @return also E_INVALIDARG for a list with a number that is not finite
VEX_EXPORT HRESULT SetNumbers(Feature& feature, std::string_view attribute,
                              const VEXRawColldouble& numbers);
/// Replaces what `numbers` holds.
VEX_EXPORT HRESULT GetNumbers(const Feature& feature, std::string_view attribute,
                              VEXRawColldouble& numbers);

/// One number of a list that has as many as its default, from 1: a vector. Where what is stored is
/// shorter, the default's is given.
/// @return also E_INVALIDARG for another index and a number that is not finite
VEX_EXPORT HRESULT SetNumberAt(Feature& feature, std::string_view attribute, int index,
                               double number);
VEX_EXPORT HRESULT GetNumberAt(const Feature& feature, std::string_view attribute, int index,
                               double& number);

/// Makes the attribute refer to a feature that offers an interface; an empty handle: to none.
/// @return also E_INVALIDARG for anything else than such a feature of the same document
VEX_EXPORT HRESULT SetTarget(Feature& feature, std::string_view attribute,
                             const VEXISpecObject_var& target, const IID& interface);
template <class Interface>
HRESULT SetTarget(Feature& feature, std::string_view attribute, const VEXISpecObject_var& target)
{
    return SetTarget(feature, attribute, target, VEXInterfaceTraits<Interface>::Id);
}
/// What a stored attribute refers to may be anything: without the interface it is given as none.
VEX_EXPORT HRESULT GetTarget(const Feature& feature, std::string_view attribute,
                             VEXISpecObject_var& target, const IID& interface);
template <class Interface>
HRESULT GetTarget(const Feature& feature, std::string_view attribute, VEXISpecObject_var& target)
{
    return GetTarget(feature, attribute, target, VEXInterfaceTraits<Interface>::Id);
}

}  // namespace vex
