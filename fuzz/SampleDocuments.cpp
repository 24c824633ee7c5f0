// SPDX-License-Identifier: Apache-2.0
// Made through the host itself and stored with its own writer.
#include "SampleDocuments.h"

#include "FuzzProcess.h"
#include "host/feature/DocumentSession.h"
#include "host/product/PartGeometry.h"
#include "product/cases/AnalysisCaseBuilder.h"
#include "product/steps/StepBuilder.h"
#include "support/ResealedDocument.h"

#include <filesystem>

namespace hlxfuzz {

namespace {

using vex::Boxed;
using vex::Document;
using vex::DocumentSession;
using vex::Feature;

Feature& Add(Feature& parent, std::string_view lateType, std::string_view alias)
{
    Feature& feature = parent.Tree()->Create(vex::LateTypes::Instance().Require(lateType), &parent);
    Require(alias.empty() || feature.SetAlias(alias) == S_OK, "a sample's alias can be");
    return feature;
}

Feature& FirstOf(Document& document, std::string_view lateType)
{
    Feature* found = nullptr;
    for (Feature* const root : document.Tree().Roots()) {
        vex::FeatureTree::Walk(*root, [&](Feature& feature, int) {
            if (found == nullptr && feature.Kind().IsKindOf(lateType)) {
                found = &feature;
            }
        });
    }
    Require(found != nullptr, "a new document has its structure");
    return *found;
}

/// The bytes that stand for the shape of the sample part.
std::vector<std::byte> PartGeometry()
{
    return std::vector<std::byte>(60, std::byte{7});
}

/// A support on the body of the sample part: no geometry kernel is asked for it.
void AddSupport(Feature& load)
{
    vex::GeometryBlobs blobs;
    std::string error;
    const std::string* const digest = blobs.Digest(blobs.Add(PartGeometry()), error);
    Require(digest != nullptr, "bytes have a digest: " + error);
    Feature& support = Add(load, "VEXSamSupport", "");
    support.Set("Document", Boxed<vex::DocumentLink>(vex::DocumentLink{InFolder("other.VEXPart"),
                                                                       vex::DocumentType::Part}));
    support.Set("Dimension", std::int64_t{3});
    support.Set("Index", std::int64_t{1});
    support.Set("Shape", Boxed<std::string>(*digest));
    support.Set("Connector", Boxed<std::string>("GeometrySmartConnector"));
}

vex::Value Link(std::string_view name)
{
    return Boxed<vex::DocumentLink>(vex::DocumentLink{InFolder(name)});
}

Document& New(std::string_view type)
{
    Document* document = nullptr;
    std::string error;
    const HRESULT made = DocumentSession::Instance().New(type, document, error);
    Require(made == S_OK, "a document can be made: " + error);
    return *document;
}

/// Stores the document, removes it and gives the bytes of its file without empty pages. Smaller
/// pages would not do: the list of tables must fit on the first one.
std::string BytesOf(Document& document)
{
    const std::string path = InFolder("sample");
    std::string error;
    DocumentSession& session = DocumentSession::Instance();
    Require(session.SaveAs(document, path, "", true, error) == S_OK &&
                session.Remove(document, true, error) == S_OK &&
                hlxtest::ChangeBySql(path, "VACUUM", error),
            "a sample can be stored: " + error);
    std::string bytes = ReadFile(path);
    std::filesystem::remove(path);
    return bytes;
}

}  // namespace

std::string SampleAnalysis()
{
    Document& document = New("VEXAnalysis");
    Feature& analysisCase = hlx::AddAnalysisCase(FirstOf(document, "VEXSamAnalysisModel"),
                                                 HLXIAnalysisCase::StructuralAnalysis);
    std::string error;
    Feature* const step =
        hlx::AddStep(analysisCase, "HLXGeneralStaticStepLT", "Schritt \"1\"", error);
    Require(step != nullptr, "a step can be made: " + error);
    step->Set("Description", Boxed<std::string>("größer"));
    step->Set("NonlinearGeometry", true);
    step->Set("MaximumNumberOfIncrements", std::int64_t{-7});
    step->Set("TimePeriod", 0.5);
    Feature& pressure = Add(*step, "HLXPressure", "P1");
    pressure.Set("Amplitude", vex::Reference{step->Id()});
    AddSupport(pressure);
    Feature& node = Add(analysisCase, "VEXProductNode", "");
    node.Set("Placement", Boxed<vex::DoubleList>(vex::DoubleList{1.0, -2.5, 1e300}));
    node.Set("Document", Link("other.VEXPart"));
    Feature& link = Add(FirstOf(document, "VEXSamAnalysisManager"), "VEXSamDocumentLink", "");
    link.Set("Document", Link("other.VEXPart"));
    Feature& table = Add(*step, "HLXTabularAmplitudeLT", "P1");
    table.Set("Data", Boxed<vex::DoubleTable>(vex::DoubleTable{2, {0.0, 1.0, 2.0, 3.0}}));
    document.AddGeometry(std::vector<std::byte>(40, std::byte{0x5A}));
    return BytesOf(document);
}

std::string SampleProduct()
{
    Document& document = New("VEXProduct");
    Feature& node = Add(FirstOf(document, "VEXProductNode"), "VEXProductNode", "Plate.1");
    node.Set("PartNumber", Boxed<std::string>("Plate"));
    node.Set("Document", Link("other.VEXPart"));
    Feature& assembly = Add(FirstOf(document, "VEXProductNode"), "VEXProductNode", "All.1");
    assembly.Set("Document", Link("in.VEXAnalysis"));  // itself: the name that targets open
    return BytesOf(document);
}

std::string SamplePart()
{
    Document& document = New("VEXPart");
    Require(vex::GiveGeometry(document, PartGeometry()), "a part can have a geometry");
    Feature& access = Add(FirstOf(document, "VEXBRepContainer"), "VEXBRepAccess", "");
    access.Set("Part", vex::Reference{FirstOf(document, "VEXPart").Id()});
    access.Set("Dimension", std::int64_t{2});
    access.Set("Index", std::int64_t{1});
    access.Set("Shape", Boxed<std::string>("0123456789abcdef0123456789abcdef"));
    return BytesOf(document);
}

bool StoreLinkedSamples()
{
    WriteFile(InFolder("other.VEXPart"), SamplePart());
    return true;
}

}  // namespace hlxfuzz
