// SPDX-License-Identifier: Apache-2.0
// The way from a part document to its shape. Features that are gone answer failure or nothing.
#include "host/part/PartAdapters.h"

#include "VEXMechanicalPart.h"
#include "host/feature/FeatureSearch.h"
#include "host/feature/Refusal.h"
#include "host/part/BRepAccesses.h"
#include "host/product/ProductAdapters.h"
#include "host/product/ProductStructure.h"
#include "host/system/Probe.h"

namespace vex {

namespace {

/// Whether a view context means the part as it is modelled.
bool IsModelView(const VEXUnicodeString& viewContext)
{
    return viewContext.IsEmpty() || viewContext.View() == "MfDefault3DView";
}

class PrtContainerAdapter final : public Adapter<VEXIPrtContainer, Feature>
{
public:
    using Adapter::Adapter;

    VEXISpecObject_var GetMechanicalPart() const override
    {
        return Probe<"VEXIPrtContainer::GetMechanicalPart">([&] {
            return Self().Tree() == nullptr
                       ? VEXISpecObject_var()
                       : FaceOf<VEXISpecObject>(PartOf(Self().Tree()->Owner()));
        });
    }
};

class PartRequestAdapter final : public Adapter<VEXIPartRequest, Feature>
{
public:
    using Adapter::Adapter;

    HRESULT GetMainBody(const VEXUnicodeString& viewContext,
                        VEXISpecObject_var& mainBody) const override
    {
        return Probe<"VEXIPartRequest::GetMainBody">(
            [&]() -> HRESULT {
                mainBody = IsModelView(viewContext)
                               ? FaceOf<VEXISpecObject>(FirstChild<VEXIMechanicalTool>(Self()))
                               : VEXISpecObject_var();
                return mainBody == nullptr ? E_FAIL : S_OK;
            },
            In(viewContext), Out(mainBody));
    }
};

/// The last one that stands below a body gave it the shape it has.
Feature* LastShape(const Feature& body)
{
    return LastChild<VEXIGeometricalElement>(body);
}

class BodyRequestAdapter final : public Adapter<VEXIBodyRequest, Feature>
{
public:
    using Adapter::Adapter;

    HRESULT GetResults(const VEXUnicodeString& viewContext,
                       VEXListValVEXBaseUnknown_var& results) const override
    {
        return Probe<"VEXIBodyRequest::GetResults">(
            [&]() -> HRESULT {
                if (Self().Tree() == nullptr) {
                    return E_FAIL;
                }
                Feature* const shape = IsModelView(viewContext) ? LastShape(Self()) : nullptr;
                if (shape != nullptr) {
                    results.Append(VEXShare<VEXBaseUnknown>(shape));
                }
                return S_OK;
            },
            In(viewContext), Out(results));
    }
};

class MechanicalToolAdapter final : public Adapter<VEXIMechanicalTool, Feature>
{
public:
    using Adapter::Adapter;

    VEXISpecObject_var GetLastShapedObject() const override
    {
        return Probe<"VEXIMechanicalTool::GetLastShapedObject">(
            [&] { return FaceOf<VEXISpecObject>(LastShape(Self())); });
    }
};

class GeometricalElementAdapter final : public Adapter<VEXIGeometricalElement, Feature>
{
public:
    using Adapter::Adapter;

    VEXBody_var GetBody() const override
    {
        return Probe<"VEXIGeometricalElement::GetBody">([&]() -> VEXBody_var {
            if (Self().Tree() == nullptr) {
                return {};
            }
            std::string error;
            const BodyHolder body = Body::Of(Self().Tree()->Owner(), error);
            if (body == nullptr) {
                Refuse(E_FAIL, error);
                return {};
            }
            return VEXShare(body->Face<VEXBody>());
        });
    }
};

class BRepAccessAdapter final : public Adapter<VEXIBRepAccess, Feature>
{
public:
    using Adapter::Adapter;

    HRESULT GetCell(VEXCell_var& cell, VEXBody_var& body) const override
    {
        return Probe<"VEXIBRepAccess::GetCell">(
            [&]() -> HRESULT {
                cell.Reset();
                body.Reset();
                if (Self().Tree() == nullptr) {
                    return E_FAIL;
                }
                BodyHolder foundBody;
                Cell* found = nullptr;
                std::string error;
                if (!FindAccessedCell(Self(), foundBody, found, error)) {
                    return Refuse(E_FAIL, error);
                }
                body = VEXShare(foundBody->Face<VEXBody>());
                cell = VEXShare(found->Face<VEXCell>());
                return S_OK;
            },
            Out(cell), Out(body));
    }
};

constexpr VEXInterfaceRow partContainerRows[] = {InterfaceRow<PrtContainerAdapter>()};
constexpr VEXInterfaceRow partRows[] = {
    InterfaceRow<PartRequestAdapter>(), InterfaceRow<LinkableObjectAdapter>(),
    InterfaceRow<DescendantsAdapter>(), InterfaceRow<NavigateAdapter>()};
constexpr VEXInterfaceRow mechanicalToolRows[] = {InterfaceRow<MechanicalToolAdapter>(),
                                                  InterfaceRow<BodyRequestAdapter>(),
                                                  InterfaceRow<LinkableObjectAdapter>()};
constexpr VEXInterfaceRow importedShapeRows[] = {InterfaceRow<GeometricalElementAdapter>(),
                                                 InterfaceRow<LinkableObjectAdapter>()};
constexpr VEXInterfaceRow brepAccessRows[] = {InterfaceRow<BRepAccessAdapter>(),
                                              InterfaceRow<LinkableObjectAdapter>()};

}  // namespace

constinit const std::span<const VEXInterfaceRow> partContainerInterfaces = partContainerRows;
constinit const std::span<const VEXInterfaceRow> partInterfaces = partRows;
constinit const std::span<const VEXInterfaceRow> mechanicalToolInterfaces = mechanicalToolRows;
constinit const std::span<const VEXInterfaceRow> importedShapeInterfaces = importedShapeRows;
constinit const std::span<const VEXInterfaceRow> brepAccessInterfaces = brepAccessRows;

}  // namespace vex
