// SPDX-License-Identifier: Apache-2.0
// The host's components and late types with interfaces of their own: one line each. A late type
// that is not here has the interfaces of the nearest base in the catalogue that is, else those of
// VEXFeature.
#include "host/analysis/AnalysisAdapters.h"
#include "host/analysis/AnalysisStructure.h"
#include "host/analysis/EntityAdapters.h"
#include "host/analysis/EntityParameter.h"
#include "host/component/HostLibrary.h"
#include "host/feature/DocumentAdapters.h"
#include "host/feature/DocumentSession.h"
#include "host/feature/FeatureAdapters.h"
#include "host/part/BodyAdapters.h"
#include "host/part/PartAdapters.h"
#include "host/product/ProductAdapters.h"
#include "host/product/ProductStructure.h"

namespace vex {

namespace {

constexpr VEXInterfaceRow analysisDocument[] = {InterfaceRow<AnalysisAccessAdapter>()};
constexpr VEXInterfaceRow analysisObject[] = {InterfaceRow<AnalysisScanAdapter>()};
constexpr VEXInterfaceRow analysisContainer[] = {InterfaceRow<AnalysisContainerAdapter>(),
                                                 InterfaceRow<AnalysisModelFactoryAdapter>()};
constexpr VEXInterfaceRow analysisManager[] = {InterfaceRow<AnalysisManagerAdapter>(),
                                               InterfaceRow<DocumentManagerAdapter>()};
constexpr VEXInterfaceRow analysisModel[] = {InterfaceRow<AnalysisModelAdapter>(),
                                             InterfaceRow<MeshNegotiatorAdapter>(),
                                             InterfaceRow<NavigateAdapter>()};
constexpr VEXInterfaceRow analysisCase[] = {InterfaceRow<AnalysisCaseAdapter>(),
                                            InterfaceRow<NavigateAdapter>()};
constexpr VEXInterfaceRow analysisSet[] = {InterfaceRow<AnalysisSetAdapter>()};
constexpr VEXInterfaceRow analysisEntity[] = {InterfaceRow<AnalysisEntityAdapter>(),
                                              InterfaceRow<AnalysisSupportAdapter>()};
constexpr VEXInterfaceRow support[] = {InterfaceRow<SupportAdapter>()};
constexpr VEXInterfaceRow parameter[] = {InterfaceRow<ParameterAdapter>()};
constexpr VEXInterfaceRow vectorParameter[] = {InterfaceRow<VectorParameterAdapter>()};

HRESULT Start()
{
    DocumentSession::SetStructure(DocumentType::Product, &MakeProductStructure);
    DocumentSession::SetStructure(DocumentType::Part, &MakePartStructure);
    DocumentSession::SetStructure(DocumentType::Analysis, &MakeAnalysisStructure);
    return S_OK;
}

}  // namespace

const VEXComponentLibrary& HostComponentLibrary()
{
    static const VEXComponentRow components[] = {
        // Documents.
        {"VEXDocumentBase", nullptr, documentInterfaces, nullptr},
        {"VEXAnalysisDocument", "VEXDocumentBase", analysisDocument, nullptr},
        {"VEXProductDocument", "VEXDocumentBase", docRootsInterfaces, nullptr},
        {"VEXPartDocument", "VEXDocumentBase", docRootsInterfaces, nullptr},
        // Features and their containers.
        {"VEXFeature", nullptr, featureInterfaces, nullptr},
        {"VEXSpecAttribute", nullptr, specAttributeInterfaces, nullptr},
        {"VEXContainer", "VEXFeature", containerInterfaces, nullptr},
        {"VEXBRepContainer", "VEXContainer", {}, nullptr},
        // Product structure and parts.
        {"VEXProductContainer", "VEXContainer", {}, nullptr},
        {"VEXProductNode", "VEXFeature", productNodeInterfaces, nullptr},
        {"VEXPrtContainer", "VEXContainer", partContainerInterfaces, nullptr},
        {"VEXPart", "VEXFeature", partInterfaces, nullptr},
        {"VEXMechanicalTool", "VEXFeature", mechanicalToolInterfaces, nullptr},
        {"VEXImportedShape", "VEXFeature", importedShapeInterfaces, nullptr},
        {"VEXBRepAccess", "VEXFeature", brepAccessInterfaces, nullptr},
        // Shapes of parts.
        {"VEXBody", nullptr, bodyInterfaces, nullptr},
        {"VEXDomain", nullptr, domainInterfaces, nullptr},
        {"VEXVolumeCell", nullptr, volumeCellInterfaces, nullptr},
        {"VEXFaceCell", nullptr, faceCellInterfaces, nullptr},
        {"VEXEdgeCell", nullptr, edgeCellInterfaces, nullptr},
        {"VEXVertexCell", nullptr, vertexCellInterfaces, nullptr},
        // Analysis.
        {"VEXSamAnalysisContainer", "VEXContainer", analysisContainer, nullptr},
        {"VEXSamAnalysisObject", "VEXFeature", analysisObject, nullptr},
        {"VEXSamAnalysisManager", "VEXSamAnalysisObject", analysisManager, nullptr},
        {"VEXSamAnalysisModel", "VEXSamAnalysisObject", analysisModel, nullptr},
        {"VEXSamAnalysisCase", "VEXSamAnalysisObject", analysisCase, nullptr},
        {"VEXSamAnalysisSet", "VEXSamAnalysisObject", analysisSet, nullptr},
        {"VEXSamAnalysisEntity", "VEXFeature", analysisEntity, nullptr},
        {"VEXSamSupport", "VEXFeature", support, nullptr},
        {"VEXSamParameter", nullptr, parameter, nullptr},
        {"VEXSamVectorParameter", nullptr, vectorParameter, nullptr},
    };
    static const VEXComponentLibrary library = {VEXComponentLibraryVersion, "VEXHost", components,
                                                &Start};
    return library;
}

}  // namespace vex
