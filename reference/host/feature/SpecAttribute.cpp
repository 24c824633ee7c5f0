// SPDX-License-Identifier: Apache-2.0
// Attributes as objects.
#include "host/feature/SpecAttribute.h"

#include "host/component/ComponentTypes.h"
#include "host/feature/FeatureAdapters.h"
#include "host/system/Probe.h"

namespace vex {

std::string_view TypeNameOf(ValueKind kind)
{
    switch (kind) {
        case ValueKind::Boolean:
            return "boolean";
        case ValueKind::Integer:
            return "integer";
        case ValueKind::Double:
            return "double";
        case ValueKind::Text:
            return "string";
        case ValueKind::Reference:
            return "VEXISpecObject";
        case ValueKind::DocumentLink:
            return "link";
        case ValueKind::List:
            return "list";
        case ValueKind::Table:
            return "table";
    }
    return {};
}

SpecAttribute::SpecAttribute(Feature& feature, int index)
    : Component(ComponentTypes::Instance().Require(specAttributeComponent)),
      _feature(VEXShare<VEXBaseUnknown>(&feature)),
      _index(index)
{}

const AttributeDefinition& SpecAttribute::Definition() const
{
    return static_cast<Feature*>(_feature.Get())
        ->Kind()
        .attributes[static_cast<std::size_t>(_index)];
}

VEXISpecObject* SpecAttributeAdapter::GetValueObject() const
{
    return Probe<"VEXISpecAttribute::GetValueObject">(
        [&] { return FaceOf<VEXISpecObject>(Self().Target()).Detach(); });
}

VEXUnicodeString SpecAttributeAdapter::GetName() const
{
    return Probe<"VEXISpecAttribute::GetName">([&] { return VEXUnicodeString(Self().Name()); });
}

VEXUnicodeString SpecAttrKeyAdapter::GetName() const
{
    return Probe<"VEXISpecAttrKey::GetName">([&] { return VEXUnicodeString(Self().Name()); });
}

}  // namespace vex
