// SPDX-License-Identifier: Apache-2.0
// A feature's name and attributes.
#include "host/feature/Feature.h"

#include "VEXMetaClass.h"
#include "host/feature/FeatureTree.h"
#include "host/system/MessageTexts.h"
#include "host/system/Texts.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <utility>

namespace vex {

namespace {

/// The class of a late type: that of its row when it has one of its own, else one below its base's.
VEXMetaClass* MetaObjectOf(const LateType& lateType)
{
    const ComponentType& row = lateType.Row();
    if (row.name == lateType.name) {
        return Component::MetaObjectOf(row);
    }
    const VEXMetaClass* const base =
        lateType.base == nullptr ? Component::MetaObjectOf(row) : MetaObjectOf(*lateType.base);
    return VEXMetaClass::Get(lateType.name.c_str(), VEXImplementationClass, base,
                             lateType.name.c_str(), row.library.c_str());
}

}  // namespace

Feature::Feature(FeatureTree& tree, const LateType& lateType, FeatureId id)
    : Component(lateType.Row(), 0), _lateType(&lateType), _tree(&tree), _id(id)
{}

Feature::~Feature() = default;

void Feature::OnUnreferenced() const
{
    if (_tree == nullptr) {
        delete this;
    }
}

void Feature::Detach() noexcept
{
    _tree = nullptr;
    _parent = nullptr;
    _previous = nullptr;
    _next = nullptr;
    _alias.reset();
    _children = {};
    _attributes = {};
}

VEXMetaClass* Feature::GetMetaObject() const
{
    return vex::MetaObjectOf(*_lateType);
}

int Feature::IsAKindOf(const char* name) const
{
    return (name != nullptr && _lateType->IsKindOf(name)) || Component::IsAKindOf(name) != 0 ? 1
                                                                                             : 0;
}

std::string_view Feature::Alias() const noexcept
{
    return _alias == nullptr ? std::string_view() : _alias.get();
}

HRESULT Feature::SetAlias(std::string_view alias)
{
    if (_tree == nullptr) {
        return E_FAIL;
    }
    if (!text::IsValid(alias)) {
        return E_INVALIDARG;
    }
    // No std::string: its spare room, a million times, is much.
    auto copy = std::make_unique_for_overwrite<char[]>(alias.size() + 1);
    *std::ranges::copy(alias, copy.get()).out = '\0';
    _alias = std::move(copy);
    ++_tree->_changes;
    return S_OK;
}

const Feature::Attribute* Feature::FindAttribute(int index) const
{
    // A handful of attributes is set as a rule: a search from end to end beats any other.
    for (const Attribute& attribute : _attributes) {
        if (std::cmp_equal(attribute.index, index)) {
            return &attribute;
        }
    }
    return nullptr;
}

bool Feature::HasGone(const Reference& reference) const
{
    return _tree->Find(reference.id) == nullptr;
}

const Value& Feature::Get(int index) const
{
    if (index < 0 || std::cmp_greater_equal(index, _lateType->attributes.size())) {
        FailAttribute(std::to_string(index), "does not exist");
    }
    const Attribute* const attribute = FindAttribute(index);
    if (attribute == nullptr) {
        return _lateType->attributes[static_cast<std::size_t>(index)].defaultValue;
    }
    static const Value none = Reference{};
    return IsDead(attribute->value) ? none : attribute->value;
}

bool Feature::IsSet(int index) const
{
    const Attribute* const attribute = FindAttribute(index);
    return attribute != nullptr && !IsDead(attribute->value);
}

HRESULT Feature::Set(int index, Value value)
{
    if (_tree == nullptr) {
        return E_FAIL;
    }
    if (index < 0 || std::cmp_greater_equal(index, _lateType->attributes.size()) ||
        KindOf(value) != _lateType->attributes[static_cast<std::size_t>(index)].kind ||
        !IsStorable(value) || IsDead(value)) {
        return E_INVALIDARG;
    }
    ++_tree->_changes;
    const auto wanted = static_cast<std::uint32_t>(index);
    if (_attributes.size() < _attributes.capacity() &&
        (_attributes.empty() || _attributes.back().index < wanted)) {
        _attributes.push_back({wanted, std::move(value)});
        return S_OK;
    }
    const auto place = std::ranges::lower_bound(_attributes, wanted, {}, &Attribute::index);
    if (place != _attributes.end() && place->index == wanted) {
        place->value = std::move(value);
        return S_OK;
    }
    const auto offset = place - _attributes.begin();
    if (_attributes.capacity() < 4) {
        // Most features have few attributes set: no spare room for them.
        _attributes.reserve(_attributes.size() + 1);
    }
    _attributes.insert(_attributes.begin() + offset, Attribute{wanted, std::move(value)});
    return S_OK;
}

void Feature::Unset(int index)
{
    const auto erased = std::erase_if(
        _attributes, [index](const Attribute& a) { return std::cmp_equal(a.index, index); });
    if (erased != 0 && _tree != nullptr) {
        ++_tree->_changes;
    }
}

int Feature::Require(std::string_view name) const
{
    const int index = _lateType->IndexOf(name);
    if (index < 0) {
        FailAttribute(name, "does not exist");
    }
    return index;
}

const Value& Feature::Get(std::string_view name) const
{
    return Get(Require(name));
}

HRESULT Feature::Set(std::string_view name, Value value)
{
    const int index = Require(name);
    if (KindOf(value) != _lateType->attributes[static_cast<std::size_t>(index)].kind) {
        FailAttribute(name, "is of another kind");
    }
    return Set(index, std::move(value));
}

Feature* Feature::Target(int index) const
{
    const Reference* const reference = std::get_if<Reference>(&Get(index));
    return reference == nullptr || _tree == nullptr ? nullptr : _tree->Find(reference->id);
}

Feature* Feature::Target(std::string_view name) const
{
    const int index = Require(name);
    if (_lateType->attributes[static_cast<std::size_t>(index)].kind != ValueKind::Reference) {
        FailAttribute(name, "is of another kind");
    }
    return Target(index);
}

void Feature::FailAttribute(std::string_view name, const char* reason) const
{
    std::fprintf(
        stderr,
        "vex: attribute %s of late type %s %s; the catalogue does not belong to these libraries\n",
        system::Quoted(name).c_str(), system::Quoted(_lateType->name).c_str(), reason);
    std::abort();
}

}  // namespace vex
