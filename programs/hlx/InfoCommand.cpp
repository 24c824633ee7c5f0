// SPDX-License-Identifier: Apache-2.0
// `hlx info DOC`: what a document is and holds, in a few lines. What cannot be had is told on
// standard error, the rest is shown.
#include "Commands.h"
#include "DocumentContents.h"
#include "Messages.h"
#include "OpenedDocument.h"
#include "ProductListing.h"
#include "host/product/PartGeometry.h"
#include "host/system/Texts.h"

#include <fmt/format.h>

namespace hlx {

namespace {

/// The quoted alias; `complete` becomes false when it cannot be had.
std::string NameOf(const VEXBaseUnknown_var& object, bool& complete)
{
    const VEXIAlias_var alias = object;
    if (!alias) {
        complete = Report("the name of an object cannot be read");
    }
    return vex::text::DoubleQuoted(alias ? alias->GetAlias().View() : std::string_view());
}

bool PrintLinks(const VEXISamAnalysisManager& manager)
{
    const VEXISamDocumentManager_var documentManager = DocumentManagerOf(manager);
    if (!documentManager) {
        return false;
    }
    VEXListPtrVEXDocument documents;
    bool complete = SUCCEEDED(documentManager->GetLinkedDocuments(documents)) ||
                    Report("the linked documents cannot be read");
    for (int i = 1; i <= documents.Size(); ++i) {
        const VEXDocument* const linked = documents[i];
        complete = complete && linked != nullptr;
        Write(fmt::format("linked to: {}\n",
                          linked == nullptr
                              ? "a document that cannot be opened"
                              : vex::text::DoubleQuoted(linked->StorageName().View())));
    }
    return complete;
}

bool PrintStep(const VEXBaseUnknown_var& step)
{
    bool complete = true;
    const std::string name = NameOf(step, complete);
    const VEXISpecObject_var feature = step;
    const std::string type(feature ? feature->GetType().View() : std::string_view());
    Write(fmt::format("    step {} ({})\n", name, vex::system::Printable(type)));
    return (feature || Report("the type of a step cannot be read")) && complete;
}

bool PrintCase(const VEXBaseUnknown_var& object)
{
    bool complete = true;
    const std::string name = NameOf(object, complete);
    Write(fmt::format("  case {}\n", name));
    VEXListValVEXBaseUnknown_var steps;
    const VEXISamAnalysisCase_var analysisCase = object;
    if (!analysisCase || FAILED(analysisCase->GetAnalysisSets(steps))) {
        complete = Report("the steps of case " + name + " cannot be read");
    }
    for (int i = 1; i <= steps.Size(); ++i) {
        complete = PrintStep(steps[i]) && complete;
    }
    return complete;
}

bool PrintModel(const VEXBaseUnknown_var& object)
{
    bool complete = true;
    const std::string name = NameOf(object, complete);
    Write(fmt::format("model {}\n", name));
    VEXListValVEXBaseUnknown_var cases;
    const VEXISamAnalysisModel_var model = object;
    if (!model || FAILED(model->GetAnalysisCases(cases))) {
        complete = Report("the cases of model " + name + " cannot be read");
    }
    for (int i = 1; i <= cases.Size(); ++i) {
        complete = PrintCase(cases[i]) && complete;
    }
    return complete;
}

bool PrintAnalysis(const OpenedDocument& opened)
{
    const VEXISamAnalysisManager_var manager = AnalysisManagerOf(*opened.Get());
    if (!manager) {
        return false;
    }
    bool complete = PrintLinks(*manager.Get());
    VEXListValVEXBaseUnknown_var models;
    complete = AppendModels(*manager.Get(), models) && complete;
    for (int i = 1; i <= models.Size(); ++i) {
        complete = PrintModel(models[i]) && complete;
    }
    return complete;
}

bool PrintProducts(const OpenedDocument& opened)
{
    VEXListValVEXBaseUnknown_var roots;
    bool complete = AppendRoots(*opened.Get(), roots);
    ProductListing listing(*opened.Inside());
    for (int i = 1; i <= roots.Size(); ++i) {
        complete = listing.Print(roots[i]) && complete;
    }
    return complete;
}

bool PrintPart(vex::Document& document)
{
    std::string error;
    vex::PartGeometry geometry(document);
    const vex::ShapeModel* const shape = geometry.Shape(error);
    if (shape == nullptr) {
        return Report(error);
    }
    Write(fmt::format("bodies: {}\nfaces: {}\nedges: {}\nvertices: {}\n", shape->BodyCount(),
                      shape->CellCount(2), shape->CellCount(1), shape->CellCount(0)));
    return true;
}

bool PrintContents(const OpenedDocument& opened)
{
    switch (opened.Inside()->DocType()) {
        case vex::DocumentType::Analysis:
            return PrintAnalysis(opened);
        case vex::DocumentType::Product:
            return PrintProducts(opened);
        case vex::DocumentType::Part:
            return PrintPart(*opened.Inside());
    }
    return Report("a document of this type cannot be shown");
}

}  // namespace

int PrintInfo(const std::string& path)
{
    const OpenedDocument opened(path);
    const vex::Document* const document = opened.Inside();
    if (document == nullptr) {
        return Failed;
    }
    Write(fmt::format("type: {}\ndata version: {}\nfeatures: {}\n", opened.Get()->GetType().View(),
                      document->DataVersion(), document->Tree().Size()));
    return PrintContents(opened) ? Done : Failed;
}

}  // namespace hlx
