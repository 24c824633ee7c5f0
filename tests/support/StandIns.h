// SPDX-License-Identifier: Apache-2.0
// Objects that stand where a test case holds interfaces of the model, to see who counts and
// releases them, and in which order. They answer nothing.
#pragma once

#include "VEXAnalysisModel.h"
#include "VEXTopology.h"

#include <string>
#include <utility>
#include <vector>

namespace hlxtest {

/// Names of the stand-ins that died, in order.
using Deaths = std::vector<std::string>;

template <class Interface>
class Mortal : public Interface
{
public:
    explicit Mortal(Deaths& deaths, std::string name = "") : _deaths(deaths), _name(std::move(name))
    {}
    ~Mortal() override { _deaths.push_back(_name); }

private:
    Deaths& _deaths;
    std::string _name;
};

using AnyStandIn = Mortal<VEXBaseUnknown>;

class ProductStandIn : public Mortal<VEXIProduct>
{
public:
    using Mortal::Mortal;
    VEXListValVEXBaseUnknown_var* GetChildren(const char*) const override { return nullptr; }
    VEXUnicodeString GetPartNumber() const override { return {}; }
};

class BodyStandIn : public Mortal<VEXBody>
{
public:
    using Mortal::Mortal;
    HRESULT GetAllCells(VEXListPtrVEXCell&, short) const override { return E_FAIL; }
    VEXDomain* GetDomain(int, int) const override { return nullptr; }
};

class DocumentContainersStandIn : public Mortal<VEXIContainerOfDocument>
{
public:
    using Mortal::Mortal;
    HRESULT GetSpecContainer(VEXIContainer*&) const override { return E_FAIL; }
    HRESULT GetBRepContainer(VEXIContainer*&) const override { return E_FAIL; }
};

class NavigateStandIn : public Mortal<VEXINavigateObject>
{
public:
    using Mortal::Mortal;
    VEXListValVEXBaseUnknown_var* GetChildren() const override { return nullptr; }
    HRESULT GetSpecObject(VEXISpecObject*&) const override { return E_FAIL; }
};

class FeatureStandIn : public Mortal<VEXISpecObject>
{
public:
    using Mortal::Mortal;
    VEXUnicodeString GetType() const override { return {}; }
    VEXISpecObject_var GetFather() const override { return {}; }
    VEXListPtrVEXISpecAttribute* ListAttributes(const VEXUnicodeString&, const VEXUnicodeString&,
                                                const VEXUnicodeString&) const override
    {
        return nullptr;
    }
};

class LinkStandIn : public Mortal<VEXILinkableObject>
{
public:
    using Mortal::Mortal;
    VEXDocument* GetDocument() const override { return nullptr; }
};

class AnalysisContainerStandIn : public Mortal<VEXISamAnalysisContainer>
{
public:
    using Mortal::Mortal;
    HRESULT GetAnalysisManager(VEXISamAnalysisManager_var&) const override { return E_FAIL; }
};

}  // namespace hlxtest
