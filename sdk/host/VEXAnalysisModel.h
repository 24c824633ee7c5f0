// SPDX-License-Identifier: Apache-2.0
// The analysis side of a document: access, container, manager, models, cases, sets and entities.
#pragma once

#include "VEXDocument.h"
#include "VEXFeatures.h"
#include "VEXProductStructure.h"

/// A set of an analysis case; a step is one.
/// Names of ours: GetAnalysisFeatures.
class VEXISamAnalysisSet : public VEXBaseUnknown
{
public:
    /// Appends the features of a late type, or of one that extends it, that stand below the set at
    /// any depth, each before those below it; an empty text: all of them.
    /// @return S_OK; E_FAIL when the set is gone
    virtual HRESULT GetAnalysisFeatures(const VEXUnicodeString& lateType,
                                        VEXListValVEXBaseUnknown_var& features) const = 0;
};

VEX_INTERFACE(VEXISamAnalysisSet);

/// An analysis case: what is solved in one run.
/// Names of ours: GetAnalysisSets.
class VEXISamAnalysisCase : public VEXBaseUnknown
{
public:
    /// Appends the sets of the case, in order.
    virtual HRESULT GetAnalysisSets(VEXListValVEXBaseUnknown_var& sets) const = 0;
};

VEX_INTERFACE(VEXISamAnalysisCase);

/// Has what follows the mesh of a model told that it changed. Names of ours: all.
class VEXISamMeshNegotiator : public VEXBaseUnknown
{
public:
    /// Makes an entity of the model follow the mesh, which is stored with it; a second time changes
    /// nothing.
    /// @return S_OK; E_INVALIDARG for what is no entity of this model; E_FAIL when the model is
    /// gone
    virtual HRESULT Subscribe(const VEXISpecObject_var& entity) = 0;
};

VEX_INTERFACE(VEXISamMeshNegotiator);

/// An analysis model: a finite element model with its cases.
/// Names of ours: all.
class VEXISamAnalysisModel : public VEXBaseUnknown
{
public:
    /// Appends the analysis cases of the model, in order.
    virtual HRESULT GetAnalysisCases(VEXListValVEXBaseUnknown_var& cases) const = 0;

    /// The mesh negotiator of the model, with a reference added that the caller releases; null, and
    /// E_FAIL, when there is none.
    virtual HRESULT GetMeshNegotiator(VEXISamMeshNegotiator*& negotiator) const = 0;
};

VEX_INTERFACE(VEXISamAnalysisModel);

/// The documents that an analysis document is linked to.
/// Names of ours: GetLinkedDocuments, AddLink.
class VEXISamDocumentManager : public VEXBaseUnknown
{
public:
    /// Appends the linked documents, opening those not yet open. A link that cannot be opened
    /// appends null.
    virtual HRESULT GetLinkedDocuments(VEXListPtrVEXDocument& documents) const = 0;

    /// Links the analysis document to another open, stored document; a second time changes nothing.
    /// @return S_OK; E_INVALIDARG for one that is not open or not stored, and for itself; E_FAIL
    virtual HRESULT AddLink(VEXDocument* document) = 0;
};

VEX_INTERFACE(VEXISamDocumentManager);

/// The analysis manager of a document.
/// Names of ours: GetCurrentAnalysisModel, GetAllAnalysisModels, GetDocumentManager.
class VEXISamAnalysisManager : public VEXBaseUnknown
{
public:
    /// The current analysis model with a reference added that the caller releases; null, and
    /// E_FAIL, when there is none.
    virtual HRESULT GetCurrentAnalysisModel(VEXISamAnalysisModel*& model) const = 0;

    /// Appends all analysis models, in order.
    virtual HRESULT GetAllAnalysisModels(VEXListValVEXBaseUnknown_var& models) const = 0;

    /// The document manager.
    virtual HRESULT GetDocumentManager(VEXISamDocumentManager_var& documentManager) const = 0;
};

VEX_INTERFACE(VEXISamAnalysisManager);

/// The container of everything analysis in a document; it is the document's container of features.
/// Names of ours: GetAnalysisManager.
class VEXISamAnalysisContainer : public VEXBaseUnknown
{
public:
    /// The analysis manager of the document.
    virtual HRESULT GetAnalysisManager(VEXISamAnalysisManager_var& manager) const = 0;
};

VEX_INTERFACE(VEXISamAnalysisContainer);

/// Analysis access of a document; only analysis documents have it.
/// Names of ours: GetSpecContainer.
class VEXISamAccess : public VEXBaseUnknown
{
public:
    /// The container of features, with a reference added that the caller releases; null on failure.
    virtual HRESULT GetSpecContainer(VEXIContainer*& container) const = 0;
};

VEX_INTERFACE(VEXISamAccess);

/// Search among the objects below an analysis object.
/// Names of ours: AddObject, GetChildren.
class VEXISamAnalysisScan : public VEXBaseUnknown
{
public:
    /// Puts a feature of the document below this object, in front of `before`, which stands there;
    /// null: at the end.
    /// @return S_OK; E_INVALIDARG for a feature of another document, a container of the document,
    /// or one that this object stands below; E_FAIL when this object is gone
    virtual HRESULT AddObject(VEXBaseUnknown* object, VEXBaseUnknown* before) = 0;

    virtual HRESULT Reserved2() { return E_NOTIMPL; }

    /// Appends the objects of a late type, or of one that extends it, that stand below this one,
    /// down to `depth` levels, nearest first; an empty text: all of them.
    /// @return S_OK, also when there is none; E_FAIL when this object is gone
    virtual HRESULT GetChildren(const VEXUnicodeString& lateType,
                                VEXListValVEXBaseUnknown_var& objects, int depth) const = 0;
};

VEX_INTERFACE(VEXISamAnalysisScan);

/// Makes features of an analysis model from the loaded catalogues. The container of features of an
/// analysis document (VEXISamAccess::GetSpecContainer) is one.
/// Names of ours: CreateFeature.
class VEXISamAnalysisModelFactory : public VEXBaseUnknown
{
public:
    virtual HRESULT Reserved1() { return E_NOTIMPL; }
    virtual HRESULT Reserved2() { return E_NOTIMPL; }
    virtual HRESULT Reserved3() { return E_NOTIMPL; }

    /// Makes a feature of a late type.
    /// @param name    alias, valid UTF-8; empty for none
    /// @param father  feature of this document to make it under
    /// @return the feature with a reference that the caller releases; null when the type is
    /// unknown, the name is no valid UTF-8, or the father is gone or of another document
    virtual VEXBaseUnknown* CreateFeature(const VEXUnicodeString& lateType,
                                          const VEXUnicodeString& name, VEXISpecObject* father) = 0;
};

VEX_INTERFACE(VEXISamAnalysisModelFactory);
