// SPDX-License-Identifier: Apache-2.0
// Walks from an analysis document to the part that it is linked to, without a test case, and prints
// one line for each cell of the part: what it is, its number, the kind of shape that carries it,
// its size.
#include "HLXAnalysisTestUtils.h"
#include "HLXSession.h"
#include "VEXDocumentServices.h"

#include <charconv>
#include <cstdio>
#include <string>

namespace {

/// The same text whatever the locale.
template <class Number>
std::string TextOf(Number number)
{
    char digits[32];
    const std::to_chars_result end = std::to_chars(digits, digits + sizeof digits, number);
    return {digits, end.ptr};
}

std::string SizeOf(const VEXCell& cell, const char* unit)
{
    double measure = 0;
    if (FAILED(cell.GetMeasure(measure))) return " cannot be measured";
    return " " + TextOf(measure) + unit;
}

/// @param unit  of the cells' size; null when they have none
template <class Cell>
void Print(const VEXListPtr<Cell>& cells, const char* name, const char* unit)
{
    for (int i = 1; i <= cells.Size(); ++i) {
        const std::string size = unit == nullptr ? "" : SizeOf(*cells[i], unit);
        std::printf("%s %d %s%s\n", name, i, cells[i]->GetKind().ConvertToChar(), size.c_str());
    }
}

/// Prints the cells of the part. The utilities say on standard output what they cannot find.
HRESULT PrintCells(VEXDocument* document)
{
    VEXIProduct_var product;
    VEXISamAnalysisModel_var model;
    HRESULT rc = HLXAnalysisTestUtils::GetProductDocFromAnalysisDoc(document, product, model);
    if (FAILED(rc)) return rc;

    VEXISpecObject_var part;
    VEXILinkableObject_var linkable;
    VEXIContainer* accesses = nullptr;
    rc = HLXAnalysisTestUtils::GetMechPartFeatFromProductDoc(product, part, linkable, accesses);
    if (accesses != nullptr) accesses->Release();
    if (FAILED(rc)) return rc;

    VEXListPtrVEXFace faces;
    VEXListPtrVEXEdge edges;
    VEXListPtrVEXVertex vertices;
    VEXBody_var body;
    rc = HLXAnalysisTestUtils::GetSupportDataFromPartFeat(part, faces, edges, vertices, body);
    if (FAILED(rc)) return rc;
    if (body == nullptr) return E_FAIL;

    VEXListPtrVEXCell volumes;
    body->GetAllCells(volumes, 3);
    Print(volumes, "volume", " mm^3");
    Print(faces, "face", " mm^2");
    Print(edges, "edge", " mm");
    Print(vertices, "vertex", nullptr);
    return S_OK;
}

HRESULT Walk(const char* path)
{
    VEXDocument* document = nullptr;
    HRESULT rc = VEXDocumentServices::OpenDocument(path, document, 1);
    if (FAILED(rc)) return rc;
    if (document == nullptr) return E_FAIL;
    rc = PrintCells(document);
    const HRESULT removed = VEXDocumentServices::Remove(*document, 1);
    return FAILED(rc) ? rc : removed;
}

}  // namespace

int main(int argc, char** argv)
{
    if (argc != 2) {
        std::fputs("usage: walk DOCUMENT.VEXAnalysis\n", stderr);
        return 1;
    }
    HLXSession session("walk");
    if (session.IsSessionRunning() != 1) return 1;
    if (FAILED(Walk(argv[1]))) {
        std::fprintf(
            stderr,
            "walk: %s: no part with a shape can be reached from it. Give an analysis document "
            "whose first link is to a product that has such a part as its first child.\n",
            argv[1]);
        return 1;
    }
    if (std::fflush(stdout) != 0 || std::ferror(stdout) != 0) {
        std::fputs("walk: standard output cannot be written; check the disk\n", stderr);
        return 1;
    }
    return 0;
}
