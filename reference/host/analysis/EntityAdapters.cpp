// SPDX-License-Identifier: Apache-2.0
// Parameters and supports of entities, and entities that follow the mesh.
#include "host/analysis/EntityAdapters.h"

#include "host/analysis/AnalysisObjects.h"
#include "host/analysis/EntityParameter.h"
#include "host/feature/Refusal.h"
#include "host/part/Region.h"
#include "host/part/RegionGeometry.h"
#include "host/system/Probe.h"
#include "host/system/Texts.h"

namespace vex {

HRESULT AnalysisEntityAdapter::GetVectorParameter(const VEXUnicodeString& name,
                                                  VEXIVectorParameter_var& parameter)
{
    return Probe<"VEXISamAnalysisEntity::GetVectorParameter">(
        [&] {
            parameter = VectorParameterOf(Self(), name.View());
            return parameter == nullptr ? E_FAIL : S_OK;
        },
        In(name), Out(parameter));
}

HRESULT AnalysisSupportAdapter::GetSupports(VEXListValVEXBaseUnknown_var& supports) const
{
    return Probe<"VEXISamAnalysisSupport::GetSupports">(
        [&] { return AppendChildren<VEXISamSupport>(Self(), supports); }, Out(supports));
}

HRESULT AnalysisSupportAdapter::AddSupport(const VEXILinkableObject_var& geometry,
                                           const VEXISpecObject_var& part,
                                           const VEXUnicodeString& connectorKind)
{
    return Probe<"VEXISamAnalysisSupport::AddSupport">(
        [&]() -> HRESULT {
            if (Self().Tree() == nullptr) {
                return E_FAIL;
            }
            if (!text::IsValid(connectorKind.View())) {
                return E_INVALIDARG;
            }
            Document* document = nullptr;
            RegionGeometry description;
            std::string error;
            const HRESULT result = DescribeGeometry(geometry, part, document, description, error);
            if (FAILED(result)) {
                return error.empty() ? result : Refuse(result, error);
            }
            Feature& support = AddFeature(Self(), "VEXSamSupport");
            support.Set("Connector", Boxed<std::string>(std::string(connectorKind.View())));
            return SetRegion(support, *document, description);
        },
        In(geometry), In(part), In(connectorKind));
}

HRESULT SupportAdapter::GetGeometry(VEXILinkableObject_var& geometry) const
{
    return Probe<"VEXISamSupport::GetGeometry">(
        [&]() -> HRESULT {
            geometry.Reset();
            if (Self().Tree() == nullptr) {
                return E_FAIL;
            }
            std::string error;
            geometry = FindGeometry(Self(), error);
            return geometry == nullptr ? Refuse(E_FAIL, error) : S_OK;
        },
        Out(geometry));
}

VEXUnicodeString SupportAdapter::GetConnectorKind() const
{
    return Probe<"VEXISamSupport::GetConnectorKind">(
        [&] { return VEXUnicodeString(Self().GetAs<std::string>("Connector")); });
}

HRESULT MeshNegotiatorAdapter::Subscribe(const VEXISpecObject_var& entity)
{
    return Probe<"VEXISamMeshNegotiator::Subscribe">(
        [&]() -> HRESULT {
            if (Self().Tree() == nullptr) {
                return E_FAIL;
            }
            Feature* const found = FeatureBehind(entity.Get());
            const Feature* model = found;
            while (model != nullptr && model != &Self()) {
                model = model->Parent();
            }
            if (model == nullptr || !Offers<VEXISamAnalysisEntity>(*found)) {
                return E_INVALIDARG;
            }
            // An entity of another catalogue need not have the attribute, or of that kind.
            const int index = found->Kind().IndexOf("FollowsMesh");
            return index < 0 ? E_INVALIDARG : found->Set(index, true);
        },
        In(entity));
}

}  // namespace vex
