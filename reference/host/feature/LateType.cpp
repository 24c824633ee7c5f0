// SPDX-License-Identifier: Apache-2.0
// A late type's attributes and its row of the component table; which values fit an attribute.
#include "host/feature/LateType.h"

#include "host/component/ComponentTypes.h"
#include "host/system/Texts.h"

#include <algorithm>

namespace vex {

int LateType::IndexOf(std::string_view attributeName) const
{
    const auto found = std::ranges::find(attributes, attributeName, &AttributeDefinition::name);
    return found == attributes.end() ? -1 : static_cast<int>(found - attributes.begin());
}

bool LateType::IsKindOf(std::string_view typeName) const
{
    for (const LateType* type = this; type != nullptr; type = type->base) {
        if (type->name == typeName) {
            return true;
        }
    }
    return false;
}

const ComponentType& LateType::Row() const
{
    for (const LateType* type = this; type != nullptr && _row == nullptr; type = type->base) {
        const ComponentType* const row = ComponentTypes::Instance().Find(type->name);
        // A catalogue may name a type like a component that is no feature.
        if (row != nullptr && row->IsKindOf(featureComponent)) {
            _row = row;
        }
    }
    if (_row == nullptr) {
        _row = &ComponentTypes::Instance().Require(featureComponent);
    }
    return *_row;
}

Value EmptyValue(ValueKind kind)
{
    switch (kind) {
        case ValueKind::Boolean:
            return false;
        case ValueKind::Integer:
            return std::int64_t{0};
        case ValueKind::Double:
            return 0.0;
        case ValueKind::Text:
            return Boxed<std::string>();
        case ValueKind::Reference:
            return Reference{};
        case ValueKind::DocumentLink:
            return Boxed<DocumentLink>();
        case ValueKind::List:
            return Boxed<DoubleList>();
        case ValueKind::Table:
            return Boxed<DoubleTable>();
    }
    return false;
}

bool IsStorable(const Value& value)
{
    if (const auto* const string = std::get_if<Boxed<std::string>>(&value)) {
        return text::IsValid(**string);
    }
    if (const auto* const link = std::get_if<Boxed<DocumentLink>>(&value)) {
        const std::string& path = (*link)->path;
        return path.empty() || (path.front() == '/' && text::IsValid(path));
    }
    if (const auto* const table = std::get_if<Boxed<DoubleTable>>(&value)) {
        const std::size_t columns = (*table)->columns;
        return columns == 0 ? (*table)->cells.empty() : (*table)->cells.size() % columns == 0;
    }
    return true;
}

}  // namespace vex
