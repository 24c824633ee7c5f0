// SPDX-License-Identifier: Apache-2.0
// Saves a document: rows go in one after the other, and the file appears, complete and durable, or
// not at all.
#pragma once

#include "VEXTypes.h"
#include "host/store/ContentCheck.h"
#include "host/store/DocumentFormat.h"
#include "host/store/FeatureBatch.h"
#include "host/store/Rows.h"
#include "host/system/AtomicFile.h"
#include "host/system/Database.h"
#include "host/system/FileBytes.h"

#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace vex::store {

/// One save at a time: Begin, then names, links, geometry and features in any interleaving, then
/// Commit. Features come depth first: each before its children, a feature's descendants before its
/// next sibling, siblings in their order. Every row is checked as on opening.
///
/// The first failure ends the save: the operation answers false, as does each after it, and Commit
/// tells the message. Until Commit succeeds the file that was there before is untouched, with the
/// exception that AtomicFile::Commit names (see AtomicFile for permissions and links too); a writer
/// destroyed before leaves nothing behind.
class VEX_EXPORT DocumentWriter
{
public:
    DocumentWriter();
    ~DocumentWriter();
    DocumentWriter(const DocumentWriter&) = delete;
    DocumentWriter& operator=(const DocumentWriter&) = delete;

    /// Begins the save of a document of `kind` to `path`; its folder must exist. A save begun
    /// before is given up. `dataVersion` is at least 1 and at most kDataVersion: what
    /// is saved can be opened. With Existing::Keep the save fails when there is such a file.
    bool Begin(std::string_view path, DocumentKind kind, int dataVersion = kDataVersion,
               system::Existing existing = system::Existing::Replace);

    /// The index of a late type's name, the same one for the same name; none after a failure.
    std::optional<NameIndex> LateType(std::string_view name);

    /// The index of an attribute's name, for AttributePacker; as LateType otherwise.
    std::optional<NameIndex> AttributeName(std::string_view name);

    /// Ids ascend from row to row; they need not be dense. So with AddGeometry.
    bool AddLink(const LinkRow& link);

    /// Stores the bytes of a shape, less than 1,000,000,000 of them, with their digest.
    bool AddGeometry(Id id, Bytes bytes);

    /// Adds a feature. Its attributes' names and its late type are known by now; what its
    /// references and links lead to may come later.
    bool AddFeature(const FeatureRow& feature);

    /// Ends the save. False with the message of its first failure.
    bool Commit(std::string& error);

    /// What a file must hold to be the one saved, for CopyDocumentFile; after a successful Commit.
    /// None for a document with geometry: its file may be too large to be read a second time.
    const std::optional<system::FileSummary>& Summary() const { return _summary; }

private:
    using Names = std::map<std::string, NameIndex, std::less<>>;
    using AddName = bool (ContentCheck::*)(std::string_view, std::string&);
    std::optional<NameIndex> Intern(Names& names, AddName add, std::string_view name);
    bool Prepare(std::string& reason);
    bool WriteNames(const char* sql, const Names& names, std::string& reason);
    bool WriteDocument(std::string& reason);
    bool WriteRest(std::string& reason);
    bool Usable() const { return _error.empty() && _database.IsOpen(); }
    bool Refuse(std::string_view reason);  // what was to be saved is not sound
    bool FailWriting(std::string_view reason);
    bool End(std::string error);

    std::string _path;
    DocumentKind _kind = DocumentKind::Analysis;
    int _dataVersion = kDataVersion;
    std::string _error;  // of the first failure
    std::optional<system::FileSummary> _summary;
    system::AtomicFile _file;
    system::Database _database;
    system::Statement _insertLink;
    system::Statement _insertGeometry;
    FeatureBatch _features;
    ContentCheck _check;
    Names _lateTypes;
    Names _attributeNames;
};

}  // namespace vex::store
