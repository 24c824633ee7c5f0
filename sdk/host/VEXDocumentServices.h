// SPDX-License-Identifier: Apache-2.0
// Opening, making, storing and removing documents. A document pointer that comes out of these calls
// belongs to the session and is not counted; it is valid until the document is removed. Handles to
// its contents that outlive it answer failure or nothing.
#pragma once

#include "VEXDocument.h"

/// Names of ours: Save.
class VEX_EXPORT VEXDocumentServices
{
public:
    /// Opens a stored document, or answers the one already open under that path. Documents it links
    /// to are opened when first needed.
    /// @param path      path of the file; refused with the reason on standard error when it is
    /// damaged, foreign or newer
    /// @param document  receives the document; null on failure
    /// @param readOnly  0 to allow saving; otherwise Save is refused for it. A document that is
    /// open for saving already stays so
    /// @return S_OK; E_INVALIDARG for an impossible path; E_FAIL
    static HRESULT OpenDocument(const VEXUnicodeString& path, VEXDocument*& document,
                                unsigned char readOnly);

    /// Makes a new document with what each of its type has: its containers; a product or part, or
    /// an analysis manager with one model.
    /// @param type  a bare type ("VEXAnalysis") or any text that has it as its file ending
    /// @return S_OK; E_INVALIDARG when there is no such type; E_FAIL
    static HRESULT New(const VEXUnicodeString& type, VEXDocument*& document);

    /// Stores the document under the path it has. @return S_OK; E_ACCESSDENIED when opened
    /// read-only; E_FAIL
    static HRESULT Save(VEXDocument& document);

    /// Stores the document under a new path, which becomes its own. An existing file is replaced,
    /// whole or not at all. Links of other documents stay at the old path.
    /// @param type            type to store as; empty: the document keeps its own (another one is
    /// refused)
    /// @param replaceExisting 1 to replace an existing file; 0 refuses it
    /// @return S_OK; E_INVALIDARG for an impossible path or type; E_ACCESSDENIED for its own path
    /// when opened read-only; E_FAIL
    static HRESULT SaveAs(VEXDocument& document, const VEXUnicodeString& path,
                          const VEXUnicodeString& type, unsigned char replaceExisting);

    /// Removes the document from the session; its file is untouched and what was not saved is lost.
    /// Documents that were opened only because it links to them go with it; those that the program
    /// opened or made itself, and those that other documents need, stay.
    /// @param force  1: also when documents that stay link to it; 0 refuses that
    /// @return S_OK; E_INVALIDARG when the document is not one of the session; E_FAIL when refused
    static HRESULT Remove(VEXDocument& document, short force);
};
