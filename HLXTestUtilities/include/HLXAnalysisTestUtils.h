// SPDX-License-Identifier: Apache-2.0
// Static utilities for analysis documents, usable without a test case. Grouped by subject; the
// source has the same order. Nothing is kept between calls. Messages go to standard output.
#pragma once

#include "VEXAnalysisModel.h"
#include "VEXMechanicalPart.h"

class VEX_EXPORT HLXAnalysisTestUtils
{
public:
    // --- Navigation: each message ends a line -------------------------------------------------

    /// From an analysis document to the product that it is linked to and to its first analysis
    /// model.
    /// @param document  an open analysis document; not changed
    /// @param product   receives the root product of the first linked document, empty when that is
    ///                  no product
    /// @param model     receives the model, also when what follows fails
    /// @return S_OK when `product` is set, also when it was before; else E_FAIL
    static HRESULT GetProductDocFromAnalysisDoc(VEXDocument*& document, VEXIProduct_var& product,
                                                VEXISamAnalysisModel_var& model);

    /// From a product to the mechanical part of its first child.
    /// @param partFeature    receives the mechanical part
    /// @param partLinkable   receives the part as the target of links
    /// @param partContainer  receives the part document's container of B-rep accesses with a
    ///                       reference added that the caller releases, also when what follows fails
    /// @return S_OK; the query's result when the part's document has no containers; else E_FAIL
    static HRESULT GetMechPartFeatFromProductDoc(VEXIProduct_var& product,
                                                 VEXISpecObject_var& partFeature,
                                                 VEXILinkableObject_var& partLinkable,
                                                 VEXIContainer*& partContainer);

    /// Appends the faces, edges and vertices of the part's main body to the lists; the body owns
    /// them.
    /// @param body  receives the body: hold it as long as the cells are used
    /// @return S_OK, also without a body or cells; E_FAIL, without a message when the main body
    ///         is none that has results
    static HRESULT GetSupportDataFromPartFeat(VEXISpecObject_var& partFeature,
                                              VEXListPtrVEXFace& faces, VEXListPtrVEXEdge& edges,
                                              VEXListPtrVEXVertex& vertices, VEXBody_var& body);

    /// Finds a container of a step. Those of output requests
    /// ("HLXHistoryOutputRequestContainerLT", "HLXFieldOutputRequestContainerLT") are made when
    /// they are not there. No message.
    /// @param step       an empty one gives nothing
    /// @param container  receives the container; left as it is when there is none
    /// @return S_OK, also when there is none; the query's result when the step makes no containers
    static HRESULT GetFeatContainer(VEXUnicodeString lateType, VEXISpecObject_var step,
                                    VEXBaseUnknown_var& container);

    /// Finds the first feature of a late type and a name in the sets of a document, such as its
    /// steps. Prints each name that it looks at, a line each.
    /// @param setLateType  late type of the sets
    /// @param feature      receives it; left as it is when there is none
    /// @return S_OK; 1 when there is no such set; E_FAIL when no feature has the name; the
    ///         platform's result when the sets cannot be listed
    static HRESULT GetFeatureByName(VEXUnicodeString lateType, VEXUnicodeString setLateType,
                                    VEXUnicodeString name, VEXISpecObject_var& feature,
                                    VEXDocument* document);

    // --- Input files --------------------------------------------------------------------------

    /// Writes the solver input file of one analysis case, structured whatever the user's option
    /// says.
    /// @param analysisCase   the case; not checked: an empty one is handed to the writer as it is
    /// @param inputFilePath  full path of the file, its ending included
    /// @return S_OK, also when the writer failed; with a message E_FAIL when the writer component
    ///         cannot be made and the query's own result when it has no writing interface
    static HRESULT WriteInputFileForAnalysisCase(VEXISamAnalysisCase* analysisCase,
                                                 VEXUnicodeString inputFilePath);
    /// As above.
    static HRESULT WriteInputFileForAnalysisCase(VEXISamAnalysisCase_var analysisCase,
                                                 VEXUnicodeString inputFilePath);

    /// Writes the feature tree of the document's current analysis model into a text file, which is
    /// replaced: "Propagation Load Test", "Feature tree:", the tree. Whether the file could be
    /// opened is not checked.
    /// @param document  an open analysis document; not changed
    /// @param fileName  path of the file
    /// @return S_OK; E_FAIL without an analysis manager (no message) or without a current model
    ///         ("Failed to get the Analysis Model")
    static HRESULT WriteFeatTreeFileForAnalysisCase(VEXDocument*& document,
                                                    VEXUnicodeString fileName);
};
