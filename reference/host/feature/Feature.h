// SPDX-License-Identifier: Apache-2.0
// A feature: every object of a document below its containers. The document's tree owns its
// features; the count counts outside holders only. A feature lives while it is in the tree or held;
// once it was deleted or its document removed it answers failure or nothing.
#pragma once

#include "VEXUnicodeString.h"
#include "host/component/Component.h"
#include "host/feature/FeatureList.h"
#include "host/feature/LateType.h"

#include <memory>
#include <string>
#include <vector>

namespace vex {

class FeatureTree;

class VEX_EXPORT Feature final : public Component
{
public:
    const LateType& Kind() const noexcept { return *_lateType; }
    FeatureId Id() const noexcept { return _id; }

    /// Null once the feature was deleted or its document removed.
    FeatureTree* Tree() const noexcept { return _tree; }
    Feature* Parent() const noexcept { return _parent; }
    const FeatureList& Children() const noexcept { return _children; }
    /// The one behind it in its parent's children; null when it is the last.
    Feature* NextSibling() const noexcept { return _next; }

    bool HasAlias() const noexcept { return _alias != nullptr; }
    std::string_view Alias() const noexcept;
    /// @return S_OK; E_INVALIDARG for invalid UTF-8 or an embedded zero; E_FAIL when the feature is
    /// gone
    HRESULT SetAlias(std::string_view alias);

    /// The value set, or the catalogue's default; the empty reference where the target is gone.
    /// `index` as in LateType::attributes; one outside them ends the process with a message. The
    /// answer lives until the attribute changes.
    const Value& Get(int index) const;
    /// Whether a value was set; a reference whose target is gone is not.
    bool IsSet(int index) const;
    /// @return S_OK; E_INVALIDARG for another kind, no such attribute, a value that is not storable
    /// (IsStorable) or a
    ///         reference to no feature of the tree; E_FAIL when the feature is gone
    HRESULT Set(int index, Value value);
    void Unset(int index);
    /// Makes room for that many attributes at once.
    void Reserve(std::size_t attributes) { _attributes.reserve(attributes); }

    /// Visits the attributes that are set (IsSet), by index.
    template <class Visitor>
    void ForEachSet(Visitor&& visit) const
    {
        for (const Attribute& attribute : _attributes) {
            if (!IsDead(attribute.value)) {
                visit(static_cast<int>(attribute.index), attribute.value);
            }
        }
    }

    /// By name, for code that names the attribute; an unknown name or another kind ends the process
    /// with a message.
    const Value& Get(std::string_view name) const;
    HRESULT Set(std::string_view name, Value value);
    template <class T>
    const T& GetAs(std::string_view name) const
    {
        const Value& value = Get(name);
        if constexpr (isBoxed<T>) {
            if (const auto* const boxed = std::get_if<Boxed<T>>(&value)) {
                return **boxed;
            }
        } else if (const T* const plain = std::get_if<T>(&value)) {
            return *plain;
        }
        FailAttribute(name, "is of another kind");
    }

    /// The feature that a reference attribute holds; null when empty or its target is gone.
    Feature* Target(std::string_view name) const;
    Feature* Target(int index) const;

    /// The late type, and whether it is or extends one of that name; other names as the component's
    /// row has them.
    const char* IsA() const override { return _lateType->name.c_str(); }
    VEXMetaClass* GetMetaObject() const override;
    int IsAKindOf(const char* name) const override;
    int IsNull() const override { return _tree == nullptr ? 1 : 0; }

private:
    friend class FeatureTree;
    friend class FeatureList;
    Feature(FeatureTree& tree, const LateType& lateType, FeatureId id);
    ~Feature() override;
    void OnUnreferenced() const override;

    struct Attribute
    {
        std::uint32_t index;
        Value value;
    };

    const Attribute* FindAttribute(int index) const;
    bool IsDead(const Value& value) const
    {
        const Reference* const reference = std::get_if<Reference>(&value);
        return reference != nullptr && reference->id != 0 && HasGone(*reference);
    }
    bool HasGone(const Reference& reference) const;
    int Require(std::string_view name) const;
    [[noreturn]] void FailAttribute(std::string_view name, const char* reason) const;
    void Detach() noexcept;

    const LateType* _lateType;
    FeatureTree* _tree;
    FeatureId _id;
    Feature* _parent = nullptr;
    std::unique_ptr<char[]> _alias;  ///< ended by a zero: there is none within
    Feature* _previous = nullptr;    ///< among its siblings
    Feature* _next = nullptr;
    FeatureList _children;
    std::vector<Attribute> _attributes;  ///< those set, by index
};

inline FeatureList::Iterator& FeatureList::Iterator::operator++()
{
    _feature = _feature->NextSibling();
    return *this;
}

template <class Interface>
bool Offers(const Feature& feature)
{
    return feature.Type().Find(VEXInterfaceTraits<Interface>::Id) != nullptr;
}

/// An interface of a feature as a counted handle; empty when the feature is null or does not offer
/// it.
template <class Interface>
VEXVar<Interface> FaceOf(const Feature* feature)
{
    return feature == nullptr ? VEXVar<Interface>() : VEXShare(feature->Face<Interface>());
}

}  // namespace vex
