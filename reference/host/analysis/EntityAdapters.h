// SPDX-License-Identifier: Apache-2.0
// Entities, their supports, and the mesh negotiator of a model. Which component offers which stands
// in HostComponents.cpp.
#pragma once

#include "VEXAnalysisModel.h"
#include "VEXEntities.h"
#include "host/component/Adapter.h"
#include "host/feature/Feature.h"

namespace vex {

/// Of every entity.
class AnalysisEntityAdapter final : public Adapter<VEXISamAnalysisEntity, Feature>
{
public:
    using Adapter::Adapter;
    HRESULT GetVectorParameter(const VEXUnicodeString& name,
                               VEXIVectorParameter_var& parameter) override;
};

/// Of every entity too: its children that are supports.
class AnalysisSupportAdapter final : public Adapter<VEXISamAnalysisSupport, Feature>
{
public:
    using Adapter::Adapter;
    HRESULT GetSupports(VEXListValVEXBaseUnknown_var& supports) const override;
    HRESULT AddSupport(const VEXILinkableObject_var& geometry, const VEXISpecObject_var& part,
                       const VEXUnicodeString& connectorKind) override;
};

/// Of a support, which is a region (host/part/Region.h).
class SupportAdapter final : public Adapter<VEXISamSupport, Feature>
{
public:
    using Adapter::Adapter;
    HRESULT GetGeometry(VEXILinkableObject_var& geometry) const override;
    VEXUnicodeString GetConnectorKind() const override;
};

/// Of a model: what follows the mesh has its attribute "FollowsMesh" set.
class MeshNegotiatorAdapter final : public Adapter<VEXISamMeshNegotiator, Feature>
{
public:
    using Adapter::Adapter;
    HRESULT Subscribe(const VEXISpecObject_var& entity) override;
};

}  // namespace vex
