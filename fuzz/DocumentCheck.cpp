// SPDX-License-Identifier: Apache-2.0
// Opens, uses, stores and opens again.
#include "DocumentCheck.h"

#include "DocumentWalk.h"
#include "VEXDocumentServices.h"
#include "host/feature/DocumentSession.h"
#include "product/treedump/TreeDump.h"

#include <filesystem>

namespace hlxfuzz {

namespace {

bool NothingIsOpen()
{
    return vex::DocumentSession::Instance().Documents().empty();
}

/// Null when the file is refused.
VEXDocument* Open(const std::string& path)
{
    VEXDocument* document = nullptr;
    const HRESULT result = VEXDocumentServices::OpenDocument(VEXUnicodeString(path), document, 0);
    Require((document != nullptr) == SUCCEEDED(result), "a document comes with success alone");
    Require(document != nullptr || NothingIsOpen(), "a refused document leaves nothing open");
    return document;
}

void Remove(VEXDocument& document)
{
    Require(VEXDocumentServices::Remove(document, 1) == S_OK, "a document can be removed");
    Require(NothingIsOpen(), "the linked documents go with a document");
}

std::string Dump(VEXDocument& document)
{
    std::string text = document.GetType().ConvertToChar();
    text += '\n';
    for (vex::Feature* const root : vex::Document::From(&document)->Tree().Roots()) {
        hlx::AppendFeatureTree(text, *root, 0);
    }
    return text;
}

/// Damaged geometry is found when it is read: to be stored, among other things.
bool HasGeometry(VEXDocument& document)
{
    return !vex::Document::From(&document)->Blobs().Numbers().empty();
}

}  // namespace

void CheckDocument(const std::string& path)
{
    const std::size_t files = FileCount();
    VEXDocument* const document = Open(path);
    if (document == nullptr) {
        return;
    }
    const std::string before = ReadFile(path);
    const std::string text = Dump(*document);
    WalkDocument(*document);
    Require(Dump(*document) == text, "asking changes nothing");

    const std::string copyPath =
        InFolder("copy." + std::string(document->GetType().ConvertToChar()));
    const HRESULT stored =
        VEXDocumentServices::SaveAs(*document, VEXUnicodeString(copyPath), "", 1);
    Require(stored == S_OK || HasGeometry(*document), "what was opened can be stored");
    Remove(*document);
    Require(ReadFile(path) == before, "using a document leaves its file alone");
    if (stored == S_OK) {
        VEXDocument* const copy = Open(copyPath);
        Require(copy != nullptr, "what was stored can be opened");
        Require(Dump(*copy) == text, "what was stored is what was opened");
        Remove(*copy);
    }
    std::filesystem::remove(copyPath);
    Require(FileCount() == files, "no file is left behind");
}

}  // namespace hlxfuzz
