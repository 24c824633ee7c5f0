// SPDX-License-Identifier: Apache-2.0
// The documents that are open in this process. Owns them; whoever needs a document beyond a call
// holds a reference. No operation writes to standard error: the reason of a refusal is in `error`,
// fit to be shown, and names file and remedy.
#pragma once

#include "host/feature/Document.h"

#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace vex {

class VEX_EXPORT DocumentSession
{
public:
    static DocumentSession& Instance();

    /// Makes the containers and what else a new document of a type has. Set by the library that
    /// defines the type's contents.
    using StructureMaker = void (*)(Document&);
    static void SetStructure(DocumentType type, StructureMaker maker);

    /// A new document with its structure that is in no session.
    static DocumentHolder Make(DocumentType type);

    /// The open document stored under `path`, opened when it is not open yet; it is the program's
    /// from then on. A document opened read-only may be saved once it was asked for again without
    /// that.
    /// @return S_OK; E_INVALIDARG for an impossible path; E_FAIL
    HRESULT Open(std::string_view path, bool readOnly, Document*& document, std::string& error);

    /// As Open, for the target of a link: a document that is open stays read-only if it was, and
    /// one that is not is opened for the link's sake only. Null with the reason in `error`: it
    /// cannot be opened, or is not of the kind that the link says.
    Document* OpenLinked(const DocumentLink& link, std::string& error);

    /// @param type  as Document::TypeFromText  @return S_OK; E_INVALIDARG when there is no such
    /// type
    HRESULT New(std::string_view type, Document*& document, std::string& error);

    /// @return S_OK; E_ACCESSDENIED when opened read-only; E_FAIL
    HRESULT Save(Document& document, std::string& error);

    /// Stores the document under a new path, which becomes its own; it may be saved from then on.
    /// @param type empty or its own
    /// @return S_OK; E_INVALIDARG for an impossible path or type; E_ACCESSDENIED for its own path
    /// when opened read-only; E_FAIL
    HRESULT SaveAs(Document& document, std::string_view path, std::string_view type,
                   bool replaceExisting, std::string& error);

    /// Closes the document and those that are open only because it links to them.
    /// @return S_OK; E_FAIL when a document that stays links to it and it is not forced
    HRESULT Remove(Document& document, bool force, std::string& error);

    /// The open document stored under that path, whatever way the path is written; null when there
    /// is none.
    Document* Find(std::string_view path) const;

    /// In the order in which they were opened.
    const std::vector<Document*>& Documents() const noexcept { return _documents; }
    bool IsOpen(const Document* document) const noexcept;

private:
    DocumentSession() = default;

    /// @param link  what leads there; it need not say anything
    HRESULT Load(const std::string& absolutePath, bool readOnly, const DocumentLink& link,
                 Document*& document, std::string& error);
    /// Takes a document into the session, or throws and leaves the session as it was.
    Document* Keep(DocumentHolder document);
    Document* FindKnown(const std::string& name) const;
    void Remember(Document& document);
    void Forget(const Document& document);

    std::vector<Document*> _documents;
    /// The open, stored documents by their paths and by the identities of those.
    std::unordered_map<std::string, Document*> _byPath;
};

}  // namespace vex
