// SPDX-License-Identifier: Apache-2.0
// One attribute of a feature as a program gets it: a counted object that holds its feature.
#pragma once

#include "VEXFeatures.h"
#include "host/component/Adapter.h"
#include "host/feature/Feature.h"

#include <string>
#include <string_view>

namespace vex {

/// The row of attributes in the component table.
inline constexpr const char* specAttributeComponent = "VEXSpecAttribute";

/// The type name by which VEXISpecObject::ListAttributes tells a kind: "VEXISpecObject" for
/// references, "string" for texts, …
std::string_view TypeNameOf(ValueKind kind);

class SpecAttribute final : public Component
{
public:
    SpecAttribute(Feature& feature, int index);

    const std::string& Name() const { return Definition().name; }
    ValueKind Kind() const { return Definition().kind; }
    /// Whether it is an attribute of that feature.
    bool IsOf(const Feature& feature) const { return _feature.Get() == &feature; }
    /// The feature referred to; null for another kind, an empty reference, or one whose target or
    /// whose own feature is gone.
    Feature* Target() const { return static_cast<Feature*>(_feature.Get())->Target(_index); }
    int IsNull() const override { return _feature->IsNull(); }

private:
    const AttributeDefinition& Definition() const;

    VEXBaseUnknown_var _feature;
    int _index;
};

class SpecAttributeAdapter final : public Adapter<VEXISpecAttribute, SpecAttribute>
{
public:
    using Adapter::Adapter;
    VEXISpecObject* GetValueObject() const override;
    VEXUnicodeString GetName() const override;
};

/// The attribute as the key of its value.
class SpecAttrKeyAdapter final : public Adapter<VEXISpecAttrKey, SpecAttribute>
{
public:
    using Adapter::Adapter;
    VEXUnicodeString GetName() const override;
};

}  // namespace vex
