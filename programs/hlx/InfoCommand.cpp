// SPDX-License-Identifier: Apache-2.0
// `hlx info DOC`: what a document is and holds, in a few lines.
#include "Commands.h"
#include "HLXProductUtilities.h"
#include "OpenedDocument.h"
#include "host/feature/Document.h"
#include "host/product/PartGeometry.h"
#include "host/system/Texts.h"

#include <fmt/format.h>

namespace hlx {

namespace {

std::string Quoted(std::string_view text)
{
    std::string quoted;
    vex::text::AppendQuoted(quoted, text);
    return quoted;
}

std::string NameOf(const VEXBaseUnknown_var& object)
{
    const VEXIAlias_var alias = object;
    return Quoted(alias ? alias->GetAlias().View() : std::string_view());
}

void PrintLinks(const VEXISamAnalysisManager_var& manager)
{
    VEXISamDocumentManager_var documentManager;
    VEXListPtrVEXDocument documents;
    if (FAILED(manager->GetDocumentManager(documentManager)) ||
        FAILED(documentManager->GetLinkedDocuments(documents))) {
        fmt::print("linked to: cannot be read\n");
        return;
    }
    for (int i = 1; i <= documents.Size(); ++i) {
        const VEXDocument* const linked = documents[i];
        fmt::print("linked to: {}\n", linked == nullptr ? "a document that cannot be opened"
                                                        : Quoted(linked->StorageName().View()));
    }
}

void PrintAnalysis(const VEXISamAnalysisManager_var& manager)
{
    PrintLinks(manager);
    VEXListValVEXBaseUnknown_var models;
    manager->GetAllAnalysisModels(models);
    for (int m = 1; m <= models.Size(); ++m) {
        fmt::print("model {}\n", NameOf(models[m]));
        VEXListValVEXBaseUnknown_var cases;
        if (const VEXISamAnalysisModel_var model = models[m]) {
            model->GetAnalysisCases(cases);
        }
        for (int c = 1; c <= cases.Size(); ++c) {
            fmt::print("  case {}\n", NameOf(cases[c]));
            VEXListValVEXBaseUnknown_var sets;
            if (const VEXISamAnalysisCase_var analysisCase = cases[c]) {
                analysisCase->GetAnalysisSets(sets);
            }
            for (int s = 1; s <= sets.Size(); ++s) {
                const VEXISpecObject_var set = sets[s];
                fmt::print("    step {} ({})\n", NameOf(sets[s]), set ? set->GetType().View() : "");
            }
        }
    }
}

void PrintProduct(const VEXIProduct_var& product, int depth)
{
    const VEXListValVEXBaseUnknown_var* const children = product->GetChildren("VEXIProduct");
    for (int i = 1; children != nullptr && i <= children->Size(); ++i) {
        const VEXIProduct_var child = (*children)[i];
        fmt::print("{:{}}product {} of {}\n", "", depth * 2, NameOf((*children)[i]),
                   Quoted(child->GetPartNumber().View()));
        PrintProduct(child, depth + 1);
    }
    delete children;
}

bool PrintPart(vex::Document& document)
{
    std::string error;
    vex::PartGeometry geometry(document);
    const vex::ShapeModel* const shape = geometry.Shape(error);
    if (shape == nullptr) {
        fmt::print(stderr, "hlx: {}\n", error);
        return false;
    }
    fmt::print("bodies: {}\nfaces: {}\nedges: {}\nvertices: {}\n", shape->BodyCount(),
               shape->CellCount(2), shape->CellCount(1), shape->CellCount(0));
    return true;
}

int PrintInfo(const std::string& path)
{
    const OpenedDocument opened(path);
    vex::Document* const document = vex::Document::From(opened.Get());
    if (document == nullptr) {
        return Failed;
    }
    fmt::print("type: {}\ndata version: {}\nfeatures: {}\n", opened.Get()->GetType().View(),
               document->DataVersion(), document->Tree().Size());
    VEXISamAnalysisManager_var manager;
    if (document->DocType() == vex::DocumentType::Part) {
        return PrintPart(*document) ? Done : Failed;
    }
    if (document->DocType() == vex::DocumentType::Analysis) {
        if (FAILED(HLXAnalysisDocUtils::GetAnalysisManager(manager, opened.Get()))) {
            return Failed;
        }
        PrintAnalysis(manager);
        return Done;
    }
    const VEXIDocRoots_var docRoots = VEXShare(opened.Get());
    const VEXListValVEXBaseUnknown_var* const roots = docRoots ? docRoots->GetRoots() : nullptr;
    for (int i = 1; roots != nullptr && i <= roots->Size(); ++i) {
        if (const VEXIProduct_var product = (*roots)[i]) {
            fmt::print("product {}\n", Quoted(product->GetPartNumber().View()));
            PrintProduct(product, 1);
        }
    }
    delete roots;
    return Done;
}

}  // namespace

void AddInfoCommand(CLI::App& program, int& exitCode)
{
    CLI::App* const command =
        program.add_subcommand("info",
                               "Show what a document is and holds: links, models, cases and steps, "
                               "products, or a part's cells");
    static std::string path;
    command->add_option("DOC", path, "Document (.VEXAnalysis, .VEXProduct or .VEXPart)")
        ->required();
    command->callback([&exitCode] { exitCode = PrintInfo(path); });
}

}  // namespace hlx
