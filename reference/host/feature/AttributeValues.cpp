// SPDX-License-Identifier: Apache-2.0
// From the types of operations to the values of attributes, and back.
#include "host/feature/AttributeValues.h"

#include "host/feature/FeatureSearch.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

namespace vex {

namespace {

HRESULT ResultOf(const Feature& feature)
{
    return feature.Tree() == nullptr ? E_FAIL : S_OK;
}

/// The numbers of a vector: as many as the default has.
DoubleList VectorOf(const Feature& feature, std::string_view attribute)
{
    const DoubleList& stored = feature.GetAs<DoubleList>(attribute);
    const auto place = static_cast<std::size_t>(feature.Kind().IndexOf(attribute));
    const Value& standard = feature.Kind().attributes[place].defaultValue;
    DoubleList vector = *std::get<Boxed<DoubleList>>(standard);
    std::copy_n(stored.begin(), std::min(stored.size(), vector.size()), vector.begin());
    return vector;
}

bool HasIndex(const DoubleList& vector, int index)
{
    return index >= 1 && static_cast<std::size_t>(index) <= vector.size();
}

}  // namespace

HRESULT SetNumber(Feature& feature, std::string_view attribute, double number)
{
    if (feature.Tree() != nullptr && !std::isfinite(number)) {
        return E_INVALIDARG;
    }
    return feature.Set(attribute, number);
}

HRESULT GetNumber(const Feature& feature, std::string_view attribute, double& number)
{
    const HRESULT result = ResultOf(feature);
    number = FAILED(result) ? 0 : feature.GetAs<double>(attribute);
    return result;
}

HRESULT SetInteger(Feature& feature, std::string_view attribute, int number)
{
    return feature.Set(attribute, std::int64_t{number});
}

HRESULT GetInteger(const Feature& feature, std::string_view attribute, int& number)
{
    if (feature.Tree() == nullptr) {
        return E_FAIL;
    }
    number = static_cast<int>(std::clamp<std::int64_t>(feature.GetAs<std::int64_t>(attribute),
                                                       std::numeric_limits<int>::min(),
                                                       std::numeric_limits<int>::max()));
    return S_OK;
}

HRESULT SetFlag(Feature& feature, std::string_view attribute, unsigned char flag)
{
    return feature.Set(attribute, flag != 0);
}

HRESULT GetFlag(const Feature& feature, std::string_view attribute, unsigned char& flag)
{
    if (feature.Tree() == nullptr) {
        return E_FAIL;
    }
    flag = feature.GetAs<bool>(attribute) ? 1 : 0;
    return S_OK;
}

HRESULT SetText(Feature& feature, std::string_view attribute, const VEXUnicodeString& text)
{
    return feature.Set(attribute, Boxed<std::string>(std::string(text.View())));
}

HRESULT GetText(const Feature& feature, std::string_view attribute, VEXUnicodeString& text)
{
    const HRESULT result = ResultOf(feature);
    text = FAILED(result) ? VEXUnicodeString()
                          : VEXUnicodeString(feature.GetAs<std::string>(attribute));
    return result;
}

HRESULT SetNumbers(Feature& feature, std::string_view attribute, const VEXRawColldouble& numbers)
{
    DoubleList list;
    for (int i = 1; i <= numbers.Size(); ++i) {
        if (feature.Tree() != nullptr && !std::isfinite(numbers[i])) {
            return E_INVALIDARG;
        }
        list.push_back(numbers[i]);
    }
    return feature.Set(attribute, Boxed<DoubleList>(std::move(list)));
}

HRESULT GetNumbers(const Feature& feature, std::string_view attribute, VEXRawColldouble& numbers)
{
    numbers.RemoveAll();
    if (feature.Tree() == nullptr) {
        return E_FAIL;
    }
    for (const double number : feature.GetAs<DoubleList>(attribute)) {
        numbers.Append(number);
    }
    return S_OK;
}

HRESULT SetNumberAt(Feature& feature, std::string_view attribute, int index, double number)
{
    if (feature.Tree() == nullptr) {
        return E_FAIL;
    }
    DoubleList vector = VectorOf(feature, attribute);
    if (!HasIndex(vector, index) || !std::isfinite(number)) {
        return E_INVALIDARG;
    }
    vector[static_cast<std::size_t>(index) - 1] = number;
    return feature.Set(attribute, Boxed<DoubleList>(std::move(vector)));
}

HRESULT GetNumberAt(const Feature& feature, std::string_view attribute, int index, double& number)
{
    number = 0;
    if (feature.Tree() == nullptr) {
        return E_FAIL;
    }
    const DoubleList vector = VectorOf(feature, attribute);
    if (!HasIndex(vector, index)) {
        return E_INVALIDARG;
    }
    number = vector[static_cast<std::size_t>(index) - 1];
    return S_OK;
}

HRESULT SetTarget(Feature& feature, std::string_view attribute, const VEXISpecObject_var& target,
                  const IID& interface)
{
    if (feature.Tree() == nullptr) {
        return E_FAIL;
    }
    if (!target) {
        return feature.Set(attribute, Reference{});
    }
    const Feature* const found = FeatureBehind(target.Get());
    if (found == nullptr || found->Tree() != feature.Tree() ||
        found->Type().Find(interface) == nullptr) {
        return E_INVALIDARG;
    }
    return feature.Set(attribute, Reference{found->Id()});
}

HRESULT GetTarget(const Feature& feature, std::string_view attribute, VEXISpecObject_var& target,
                  const IID& interface)
{
    const Feature* const found = feature.Target(attribute);
    const bool fits = found != nullptr && found->Type().Find(interface) != nullptr;
    target = FaceOf<VEXISpecObject>(fits ? found : nullptr);
    return ResultOf(feature);
}

}  // namespace vex
