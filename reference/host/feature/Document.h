// SPDX-License-Identifier: Apache-2.0
// A document of the session: its features, its geometry blobs, where it is stored. The session
// holds one reference; its VEXDocument face lives as long as the document.
#pragma once

#include "VEXDocument.h"
#include "host/feature/FeatureTree.h"
#include "host/feature/GeometryBlobs.h"
#include "host/store/DocumentFormat.h"
#include "host/store/DocumentKind.h"
#include "host/system/FileBytes.h"

#include <memory>
#include <optional>
#include <string>

namespace vex {

using DocumentType = store::DocumentKind;

class VEX_EXPORT Document final : public Component
{
public:
    /// An empty document, in no session, with a count of 1; see DocumentSession::Make for one with
    /// its structure.
    explicit Document(DocumentType type);

    DocumentType DocType() const noexcept { return _type; }
    /// "VEXAnalysis", "VEXProduct" or "VEXPart".
    static const char* TypeName(DocumentType type) { return store::NameOf(type).data(); }
    /// The type that a bare type name, or any text with it as its file ending, means.
    static std::optional<DocumentType> TypeFromText(std::string_view text)
    {
        return store::KindFromType(text);
    }
    /// The row of the component table: "VEXAnalysisDocument", "VEXProductDocument" or
    /// "VEXPartDocument".
    static const char* ComponentName(DocumentType type);

    FeatureTree& Tree() noexcept { return _tree; }
    const FeatureTree& Tree() const noexcept { return _tree; }
    /// The root feature of the container of features, and of B-rep accesses (a VEXBRepContainer);
    /// null when there is none.
    Feature* SpecContainer() const;
    Feature* BRepContainer() const;

    /// Absolute; empty for a document that was never stored.
    const std::string& Path() const noexcept { return _path; }
    void SetPath(std::string absolutePath);
    /// DocumentPathIdentity of the path, as it was when the path was set.
    const std::string& PathIdentity() const noexcept { return _pathIdentity; }
    bool IsReadOnly() const noexcept { return _readOnly; }
    void SetReadOnly(bool readOnly) { _readOnly = readOnly; }
    /// Whether the program opened or made it itself; else it is open only because another document
    /// links to it.
    bool IsOfProgram() const noexcept { return _ofProgram; }
    void SetOfProgram(bool ofProgram) { _ofProgram = ofProgram; }
    /// Version of the data: as it was stored, or today's for a new document. An upgrade raises it;
    /// saving keeps it.
    unsigned DataVersion() const noexcept { return _dataVersion; }
    void SetDataVersion(unsigned version) { _dataVersion = version; }

    /// The file that holds what the document held when its tree had seen so many changes.
    struct StoredForm
    {
        std::string path;
        system::FileSummary summary;
        bool hasLinks = false;  ///< which are relative to its folder
        unsigned dataVersion = 0;
        std::uint64_t changes = 0;
    };
    /// Notes the file that holds what the document holds now. `summary`: none when it is not known.
    void SetStored(const std::string& path, const std::optional<system::FileSummary>& summary,
                   bool hasLinks);
    /// Null when nothing is known, or the document was changed since.
    const StoredForm* Stored() const;

    GeometryBlobs& Blobs() noexcept { return _blobs; }
    /// The blob of that number (the kernel's binary form); read from the file when first asked for,
    /// and checked. It lives as long as the document. False with the reason in `error`.
    bool Geometry(std::uint64_t number, std::span<const std::byte>& bytes, std::string& error);
    /// Adds a blob; answers its number, from 1.
    std::uint64_t AddGeometry(std::vector<std::byte> bytes) { return _blobs.Add(std::move(bytes)); }

    /// False once it was removed from the session.
    bool IsOpen() const noexcept { return _open; }
    int IsNull() const override { return _open ? 0 : 1; }
    /// Ends the document: its features are detached and what is still held of it answers failure or
    /// nothing.
    void Close();

    /// The VEXDocument of this document, not counted.
    VEXDocument* AsVEXDocument() const { return Face<VEXDocument>(); }
    /// The document behind a VEXDocument: null when it is none of the session's. The pointer is not
    /// followed.
    static Document* From(const VEXDocument* document);
    /// The document that holds the feature behind an interface, or is the document behind it; null
    /// when there is none.
    static Document* OwnerOf(const VEXBaseUnknown* featureInterface);

private:
    DocumentType _type;
    FeatureTree _tree;
    std::string _path;
    std::string _pathIdentity;
    bool _readOnly = false;
    bool _ofProgram = false;
    bool _open = true;
    unsigned _dataVersion = store::kDataVersion;
    std::optional<StoredForm> _stored;
    GeometryBlobs _blobs;
};

/// Holds one counted reference of a document.
struct ReleaseDocument
{
    void operator()(const Document* document) const { document->Release(); }
};
using DocumentHolder = std::unique_ptr<Document, ReleaseDocument>;

}  // namespace vex
