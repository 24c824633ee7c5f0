// SPDX-License-Identifier: Apache-2.0
// Opens, makes, stores and removes documents.
#include "host/feature/DocumentSession.h"

#include "host/feature/DocumentLinks.h"
#include "host/feature/DocumentPath.h"
#include "host/feature/DocumentStorage.h"
#include "host/system/MessageTexts.h"

#include <algorithm>
#include <array>
#include <new>

namespace vex {

namespace {

using system::Quoted;

DocumentSession::StructureMaker& Maker(DocumentType type)
{
    static std::array<DocumentSession::StructureMaker, 3> makers{};
    return makers[static_cast<std::size_t>(type)];
}

std::string NameOf(const Document& document)
{
    return document.Path().empty()
               ? std::string("a new document of type ") + Document::TypeName(document.DocType())
               : Quoted(document.Path());
}

/// Does `work`. When memory runs out meanwhile, the program keeps what it has, and is told: a
/// document that is not stored yet is not lost with the process.
template <class Work>
HRESULT WithinMemory(const std::string& what, std::string& error, Work&& work)
{
    try {
        return work();
    } catch (const std::bad_alloc&) {
        error = system::NotEnoughMemory(what);
        return E_FAIL;
    }
}

}  // namespace

DocumentSession& DocumentSession::Instance()
{
    // Never destroyed: handles of static objects may outlive any static session.
    static DocumentSession* const session = new DocumentSession;
    return *session;
}

void DocumentSession::SetStructure(DocumentType type, StructureMaker maker)
{
    Maker(type) = maker;
}

DocumentHolder DocumentSession::Make(DocumentType type)
{
    DocumentHolder document(new Document(type));
    if (const StructureMaker make = Maker(type)) {
        make(*document);
    }
    return document;
}

bool DocumentSession::IsOpen(const Document* document) const noexcept
{
    return std::ranges::find(_documents, document) != _documents.end();
}

Document* DocumentSession::Find(std::string_view path) const
{
    // Paths of links are mostly written as the document's own: the disk need not be asked.
    if (Document* const document = FindKnown(std::string(path))) {
        return document;
    }
    std::string ignored;
    const std::string absolute = AbsoluteDocumentPath(path, ignored);
    if (absolute.empty() || _byPath.empty()) return nullptr;
    Document* const document = FindKnown(absolute);
    return document != nullptr ? document : FindKnown(DocumentPathIdentity(absolute));
}

Document* DocumentSession::FindKnown(const std::string& name) const
{
    const auto known = _byPath.find(name);
    return known == _byPath.end() ? nullptr : known->second;
}

void DocumentSession::Remember(Document& document)
{
    // A path comes before an identity: the one asked for under its own path is meant.
    _byPath.insert_or_assign(document.Path(), &document);
    _byPath.try_emplace(document.PathIdentity(), &document);
}

void DocumentSession::Forget(const Document& document)
{
    for (const std::string* const name : {&document.Path(), &document.PathIdentity()}) {
        if (FindKnown(*name) == &document) {
            _byPath.erase(*name);
        }
    }
}

HRESULT DocumentSession::Load(const std::string& absolutePath, bool readOnly,
                              const DocumentLink& link, Document*& document, std::string& error)
{
    return WithinMemory(Quoted(absolutePath), error, [&] {
        DocumentHolder loaded = LoadDocument(absolutePath, error);
        if (loaded == nullptr || !IsAsLinked(*loaded, link, error)) return E_FAIL;
        loaded->SetReadOnly(readOnly);
        document = Keep(std::move(loaded));
        return S_OK;
    });
}

Document* DocumentSession::Keep(DocumentHolder document)
{
    _documents.reserve(_documents.size() + 1);
    try {
        if (!document->Path().empty()) Remember(*document);
    } catch (...) {
        Forget(*document);
        throw;
    }
    _documents.push_back(document.get());
    return document.release();
}

HRESULT DocumentSession::Open(std::string_view path, bool readOnly, Document*& document,
                              std::string& error)
{
    document = nullptr;
    const std::string absolute = AbsoluteDocumentPath(path, error);
    if (absolute.empty()) {
        return E_INVALIDARG;
    }
    if (Document* const open = Find(absolute)) {
        open->SetReadOnly(open->IsReadOnly() && readOnly);
        document = open;
    } else if (const HRESULT result = Load(absolute, readOnly, {}, document, error);
               FAILED(result)) {
        return result;
    }
    document->SetOfProgram(true);
    return S_OK;
}

Document* DocumentSession::OpenLinked(const DocumentLink& link, std::string& error)
{
    const std::string& path = link.path;
    Document* document = Find(path);
    if (document != nullptr) return IsAsLinked(*document, link, error) ? document : nullptr;
    const std::string absolute = AbsoluteDocumentPath(path, error);
    if (!absolute.empty()) {
        Load(absolute, false, link, document, error);
    }
    return document;
}

HRESULT DocumentSession::New(std::string_view type, Document*& document, std::string& error)
{
    document = nullptr;
    const std::optional<DocumentType> known = Document::TypeFromText(type);
    if (!known) {
        error = Quoted(type) +
                ": no document type. Give VEXAnalysis, VEXProduct or VEXPart, or a name that ends "
                "in one of them.";
        return E_INVALIDARG;
    }
    if (!LateTypes::Instance().AreLoaded(error)) return E_FAIL;
    return WithinMemory(std::string("a new document of type ") + Document::TypeName(*known), error,
                        [&] {
                            document = Keep(Make(*known));
                            document->SetOfProgram(true);
                            return S_OK;
                        });
}

HRESULT DocumentSession::Save(Document& document, std::string& error)
{
    if (document.IsReadOnly()) {
        error = NameOf(document) + ": opened read-only. Store it under another path.";
        return E_ACCESSDENIED;
    }
    if (document.Path().empty()) {
        error = NameOf(document) + ": it has no path yet. Store it under a path first.";
        return E_FAIL;
    }
    return WithinMemory(NameOf(document), error, [&] {
        return SaveDocument(document, document.Path(), error) ? S_OK : E_FAIL;
    });
}

HRESULT DocumentSession::SaveAs(Document& document, std::string_view path, std::string_view type,
                                bool replaceExisting, std::string& error)
{
    const std::string absolute = AbsoluteDocumentPath(path, error);
    if (absolute.empty()) {
        return E_INVALIDARG;
    }
    if (!type.empty() && Document::TypeFromText(type) != document.DocType()) {
        error = NameOf(document) + ": it cannot be stored as " + Quoted(type) +
                ". Leave the type empty, or give " + Document::TypeName(document.DocType()) + ".";
        return E_INVALIDARG;
    }
    if (const Document* const open = Find(absolute); open == &document && document.IsReadOnly()) {
        error = NameOf(document) + ": opened read-only. Store it under another path.";
        return E_ACCESSDENIED;
    } else if (open != nullptr && open != &document) {
        error = Quoted(absolute) +
                ": another open document is stored there. Remove that document first.";
        return E_FAIL;
    }
    return WithinMemory(Quoted(absolute), error, [&] {
        const auto existing = replaceExisting ? system::Existing::Replace : system::Existing::Keep;
        if (!SaveDocument(document, absolute, error, existing)) return E_FAIL;
        Forget(document);
        document.SetPath(absolute);
        Remember(document);
        document.SetReadOnly(false);
        return S_OK;
    });
}

HRESULT DocumentSession::Remove(Document& document, bool force, std::string& error)
{
    const Removal removal = PlanRemoval(_documents, document);
    if (removal.user != nullptr && !force) {
        error = NameOf(document) + ": " + NameOf(*removal.user) +
                " links to it. Remove that document first, or force the removal.";
        return E_FAIL;
    }
    std::erase_if(_documents, [&](const Document* open) {
        return std::ranges::find(removal.going, open) != removal.going.end();
    });
    for (Document* const going : removal.going) {
        Forget(*going);
        going->Close();
        going->KeepByHost(false);
        going->Release();
    }
    return S_OK;
}

}  // namespace vex
