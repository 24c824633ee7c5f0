// SPDX-License-Identifier: Apache-2.0
// A stored document opened for looking at it, removed from the session again at the end.
#pragma once

#include "VEXDocumentServices.h"

#include <string>

namespace hlx {

class OpenedDocument
{
public:
    /// On failure Get() is null and the host has said why on standard error.
    explicit OpenedDocument(const std::string& path)
    {
        VEXDocumentServices::OpenDocument(VEXUnicodeString(path), _document, 1);
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

private:
    VEXDocument* _document = nullptr;
};

}  // namespace hlx
