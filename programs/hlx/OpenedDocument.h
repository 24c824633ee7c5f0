// SPDX-License-Identifier: Apache-2.0
// A stored document opened for looking at it, removed from the session again at the end.
#pragma once

#include "Messages.h"
#include "VEXDocumentServices.h"
#include "host/feature/Document.h"
#include "host/system/MessageTexts.h"

#include <string>

namespace hlx {

class OpenedDocument
{
public:
    /// On failure Get() and Inside() are null and the reason is on standard error.
    explicit OpenedDocument(const std::string& path)
    {
        VEXDocumentServices::OpenDocument(VEXUnicodeString(path), _document, 1);
        if (Inside() == nullptr) {
            Report(vex::system::Quoted(path) + " cannot be shown");
        }
    }
    ~OpenedDocument()
    {
        if (_document != nullptr) {
            VEXDocumentServices::Remove(*_document, 1);
        }
    }
    OpenedDocument(const OpenedDocument&) = delete;
    OpenedDocument& operator=(const OpenedDocument&) = delete;

    VEXDocument* Get() const { return _document; }
    /// The same as the host has it.
    vex::Document* Inside() const { return vex::Document::From(_document); }

private:
    VEXDocument* _document = nullptr;
};

}  // namespace hlx
