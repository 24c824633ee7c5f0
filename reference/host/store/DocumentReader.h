// SPDX-License-Identifier: Apache-2.0
// Opens a document: every row is checked while it is read, and nothing counts until all of them
// are.
#pragma once

#include "VEXTypes.h"
#include "host/store/ContentCheck.h"
#include "host/store/DocumentFormat.h"
#include "host/store/Rows.h"
#include "host/system/Database.h"
#include "host/system/Descriptor.h"
#include "host/system/FileBytes.h"
#include "host/system/ReadBudget.h"

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace vex::store {

/// Reads one document in one pass:
///
///     DocumentReader reader;
///     if (!reader.Open(path, error)) ...
///     for (FeatureRow row; reader.Next(row);) ...      // build aside
///     if (!reader.Finish(error)) ...                   // discard what was built
///
/// Whatever was handed out must be discarded when Finish answers false: the digest over all content
/// is known only then. What is handed out is well-formed even before: texts are UTF-8, names and
/// parents exist, attributes unpack without a fault.
///
/// After Finish the reader keeps the file open for its geometry, also when another file takes its
/// place. A refused document leaves nothing open; `error` names the file, the place and a remedy.
class VEX_EXPORT DocumentReader
{
public:
    DocumentReader();
    ~DocumentReader();
    DocumentReader(const DocumentReader&) = delete;
    DocumentReader& operator=(const DocumentReader&) = delete;

    /// Opens `path` and reads all but the features; closes what was open before. Versions above
    /// `newestDataVersion` are refused.
    bool Open(std::string_view path, std::string& error, int newestDataVersion = kDataVersion);

    // From Open on, until the reader is opened anew or closed:
    DocumentKind Kind() const { return _kind; }
    int DataVersion() const { return _dataVersion; }
    const RowCounts& Counts() const { return _stated; }
    const std::vector<std::string>& LateTypes() const { return _lateTypes; }
    const std::vector<std::string>& AttributeNames() const { return _attributeNames; }
    /// The links; their paths live as long as this reader is open.
    std::span<const LinkRow> Links() const { return _links; }
    /// The ids of the geometry blobs, ascending.
    std::span<const Id> Geometries() const { return _geometryIds; }

    /// What a file must hold to be this one, for CopyDocumentFile. None for a document with
    /// geometry: that is not read before it is asked for.
    const std::optional<system::FileSummary>& Summary() const { return _summary; }

    /// The next feature, in the order of DocumentWriter; its texts and bytes live until the next
    /// call. False at the end and at a fault: Finish tells which.
    bool Next(FeatureRow& feature);

    /// Where the feature handed out last belongs: its ordinal and its parent's row (the how-manieth
    /// call of Next handed it out, from 0).
    const ContentCheck::Place& Place() const { return _place; }

    /// Reads what features are left and checks the whole. False with a message; the reader is then
    /// closed.
    bool Finish(std::string& error);

    /// Reads a geometry blob, after a successful Finish. False with a message, `bytes` empty, when
    /// there is none of that id or its bytes do not match their digest.
    bool ReadGeometry(Id id, std::vector<std::byte>& bytes, std::string& error);

    void Close();

private:
    bool ReadTables(std::string& reason);
    bool ReadDocument(std::string& reason);
    bool ReadNames(const char* sql, std::vector<std::string>& names,
                   bool (ContentCheck::*add)(std::string_view, std::string&), std::string& reason);
    bool ReadLinks(std::string& reason);
    bool ReadGeometries(std::string& reason);
    bool ReadFeature(FeatureRow& feature, std::string& reason);
    bool CheckWhole(std::string& reason);
    bool Ended(int result, std::string& reason);

    std::string _path;
    system::Descriptor _file;
    system::Database _database;
    system::Statement _features;
    ContentCheck _check;
    ContentCheck::Place _place;
    std::string _fault;  // found by Next
    std::optional<system::ReadBudget> _budget;
    std::optional<system::FileSummary> _summary;
    bool _atEnd = false;
    bool _finished = false;

    DocumentKind _kind = DocumentKind::Analysis;
    int _dataVersion = 0;
    RowCounts _stated;
    system::Digest _digest{};
    std::vector<std::string> _lateTypes;
    std::vector<std::string> _attributeNames;
    std::vector<std::string> _linkPaths;
    std::vector<LinkRow> _links;
    std::vector<Id> _geometryIds;
    std::vector<std::int64_t> _geometrySizes;
    std::vector<system::Digest> _geometryDigests;
};

}  // namespace vex::store
