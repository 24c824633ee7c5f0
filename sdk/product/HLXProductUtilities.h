// SPDX-License-Identifier: Apache-2.0
// Free-standing services of the product: what a document holds, its feature tree as text, its data
// version.
#pragma once

#include "HLXGenString.h"
#include "HLXIAnalysisCase.h"

/// Puts the text of the feature tree below `root` at the end of `text`: one line a feature, as
/// docs/tree-dump.md says.
/// @param depth  levels by which the text is indented
/// @return S_OK; E_INVALIDARG for a null root; E_FAIL when the root's document is gone
VEX_EXPORT HRESULT DumpFeatureTree(VEXINavigateObject* root, int depth, HLXGenString& text);

class VEX_EXPORT HLXAnalysisDocUtils
{
public:
    /// The analysis manager of an open analysis document.
    /// @return S_OK; E_INVALIDARG for no open analysis document; E_FAIL
    static HRESULT GetAnalysisManager(VEXISamAnalysisManager_var& manager,
                                      const VEXDocument* document);

    /// Appends the analysis cases of all models of the document, in order.
    /// @return S_OK, also when there is none; E_INVALIDARG for no open analysis document; E_FAIL
    static HRESULT GetAllAnalysisCases(VEXListValVEXBaseUnknown_var& cases, VEXDocument* document);

    /// Appends the sets of a late type, or of one that extends it, of all cases of the document, in
    /// order; an empty text: all of them. A step is a set.
    /// @return S_OK, also when there is none; E_INVALIDARG for no open analysis document; E_FAIL
    static HRESULT GetAnalysisSets(VEXListValVEXBaseUnknown_var& sets, VEXDocument* document,
                                   VEXUnicodeString lateType);

    /// Finds the step of the current case that holds before all others: its initial step, the first
    /// of several. The current case is the first one of the document's current model.
    /// @param step               receives the step with a reference added that the caller releases;
    ///                           null on failure
    /// @param containerLateType  a container that the step is to have, of those of initial steps:
    ///                           "HLXHacFieldContainerLT", "HLXBoundaryConditionContainerLT",
    ///                           "HLXInteractionContainerLT"; empty: whichever it has
    /// @param stepName           empty: any name will do; receives the name of the step. Another
    ///                           text: only an initial step of that name is taken. Left as it is on
    ///                           failure
    /// @param make               0: only a step that has the container is taken; not 0: the first
    ///                           one is, and what is missing of step and container is made. A new
    ///                           step stands in front of the others; without another name it is
    ///                           called "Initial"
    /// @param document           an open analysis document
    /// @return S_OK; E_INVALIDARG for no open analysis document, another type, and a name that is
    /// not valid UTF-8 or has a zero; E_FAIL without a current model or a case in it, and when
    /// nothing was found or made
    static HRESULT ValidateStep(VEXISamAnalysisSet*& step,
                                const VEXUnicodeString& containerLateType,
                                VEXUnicodeString& stepName, unsigned char make,
                                VEXDocument* document);

    /// Appends the jobs in the job containers of the cases, in order.
    /// @param cases  each an analysis case of an open document
    /// @return S_OK, also when there is none; E_INVALIDARG, nothing appended, for an entry that is
    /// no analysis case
    static HRESULT GetJobs(const VEXListValVEXBaseUnknown_var& cases,
                           VEXListValVEXBaseUnknown_var& jobs);

    /// The document that holds an analysis case, not counted; null for an empty handle or a case
    /// whose document is gone.
    static VEXDocument* GetDocument(const VEXISamAnalysisCase_var& analysisCase);
};

class VEX_EXPORT HLXZPKVersionManager
{
public:
    /// Brings the data of an older document up to this release, step by step; a current one is left
    /// as it is.
    /// @param mode  0: quietly; 1: each step is told on standard error
    /// @return S_OK; E_INVALIDARG for no open analysis document; E_FAIL when a step is missing; a
    /// failing step's code
    static HRESULT HandleZPKVersioning(VEXDocument* document, int mode);
};
