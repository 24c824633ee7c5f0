// SPDX-License-Identifier: Apache-2.0
// Analysis documents whose whole state is one text, the name of their manager, made, opened and
// stored as programs do it: through the platform's own services.
#pragma once

#include "VEXDocumentServices.h"

#include <string>

namespace durabilitytest {

/// A document that is open while the object lives.
class NamedDocument
{
public:
    /// A new one, stored nowhere.
    NamedDocument();
    /// Opens one for saving. IsOpen tells whether it was not refused.
    explicit NamedDocument(const std::string& path);
    ~NamedDocument();
    NamedDocument(const NamedDocument&) = delete;
    NamedDocument& operator=(const NamedDocument&) = delete;

    bool IsOpen() const { return _document != nullptr; }
    std::string Name() const;
    void SetName(const std::string& name);
    HRESULT Save() { return VEXDocumentServices::Save(*_document); }
    HRESULT SaveAs(const std::string& path, bool replaceExisting = true);

private:
    VEXDocument* _document = nullptr;
};

/// Stores a document of that name under `path`.
void StoreNamed(const std::string& path, const std::string& name);

/// The name that the document at `path` has when it is opened, with all that is checked then. The
/// test fails when it is refused, or open in this process: the file would not be read.
std::string StoredName(const std::string& path);

/// `name`, followed by as many bytes as a document of about `size` bytes takes.
inline std::string Sized(const std::string& name, std::size_t size)
{
    return name + std::string(size, '.');
}

}  // namespace durabilitytest
