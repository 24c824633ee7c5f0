// SPDX-License-Identifier: Apache-2.0
// The analysis interfaces of documents and features. Which component offers which stands in
// HostComponents.cpp; each works on whatever feature offers the interfaces it looks for, not on
// particular late types.
#pragma once

#include "VEXAnalysisModel.h"
#include "host/component/Adapter.h"
#include "host/feature/Document.h"

namespace vex {

/// Of the analysis document.
class AnalysisAccessAdapter final : public Adapter<VEXISamAccess, Document>
{
public:
    using Adapter::Adapter;
    HRESULT GetSpecContainer(VEXIContainer*& container) const override;
};

/// Of the document's container of features: the manager is a child of it.
class AnalysisContainerAdapter final : public Adapter<VEXISamAnalysisContainer, Feature>
{
public:
    using Adapter::Adapter;
    HRESULT GetAnalysisManager(VEXISamAnalysisManager_var& manager) const override;
};

/// Of the document's container of features too.
class AnalysisModelFactoryAdapter final : public Adapter<VEXISamAnalysisModelFactory, Feature>
{
public:
    using Adapter::Adapter;
    VEXBaseUnknown* CreateFeature(const VEXUnicodeString& lateType, const VEXUnicodeString& name,
                                  VEXISpecObject* father) override;
};

/// Of the manager: its children that are models; the current one is its reference "CurrentModel".
class AnalysisManagerAdapter final : public Adapter<VEXISamAnalysisManager, Feature>
{
public:
    using Adapter::Adapter;
    HRESULT GetCurrentAnalysisModel(VEXISamAnalysisModel*& model) const override;
    HRESULT GetAllAnalysisModels(VEXListValVEXBaseUnknown_var& models) const override;
    HRESULT GetDocumentManager(VEXISamDocumentManager_var& documentManager) const override;
};

/// Of the manager too: each link is a child "VEXSamDocumentLink".
class DocumentManagerAdapter final : public Adapter<VEXISamDocumentManager, Feature>
{
public:
    using Adapter::Adapter;
    HRESULT GetLinkedDocuments(VEXListPtrVEXDocument& documents) const override;
    HRESULT AddLink(VEXDocument* document) override;
};

/// Of a model: its children that are cases.
class AnalysisModelAdapter final : public Adapter<VEXISamAnalysisModel, Feature>
{
public:
    using Adapter::Adapter;
    HRESULT GetAnalysisCases(VEXListValVEXBaseUnknown_var& cases) const override;
    HRESULT GetMeshNegotiator(VEXISamMeshNegotiator*& negotiator) const override;
};

/// Of a case: its children that are sets, or where a child groups sets, that child's.
class AnalysisCaseAdapter final : public Adapter<VEXISamAnalysisCase, Feature>
{
public:
    using Adapter::Adapter;
    HRESULT GetAnalysisSets(VEXListValVEXBaseUnknown_var& sets) const override;
};

/// Of a set: everything that stands below it, each feature before those below it.
class AnalysisSetAdapter final : public Adapter<VEXISamAnalysisSet, Feature>
{
public:
    using Adapter::Adapter;
    HRESULT GetAnalysisFeatures(const VEXUnicodeString& lateType,
                                VEXListValVEXBaseUnknown_var& features) const override;
};

/// Of every analysis object that others stand below.
class AnalysisScanAdapter final : public Adapter<VEXISamAnalysisScan, Feature>
{
public:
    using Adapter::Adapter;
    HRESULT AddObject(VEXBaseUnknown* object, VEXBaseUnknown* before) override;
    HRESULT GetChildren(const VEXUnicodeString& lateType, VEXListValVEXBaseUnknown_var& objects,
                        int depth) const override;
};

}  // namespace vex
