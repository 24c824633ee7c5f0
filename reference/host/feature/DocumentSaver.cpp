// SPDX-License-Identifier: Apache-2.0
// Writes a document's features, links and geometry as rows of its file.
#include "host/feature/DocumentSession.h"
#include "host/feature/DocumentStorage.h"
#include "host/store/AttributePacker.h"
#include "host/store/DocumentCopy.h"
#include "host/store/DocumentWriter.h"
#include "host/store/LinkPath.h"
#include "host/system/MessageTexts.h"
#include "host/system/Path.h"

#include <fmt/format.h>

#include <map>
#include <unordered_map>
#include <utility>

namespace vex {

namespace {

class DocumentSaver
{
public:
    DocumentSaver(store::DocumentWriter& writer, const std::string& path)
        : _writer(writer), _path(path)
    {}

    bool AddFeature(const Feature& feature, int container);

    /// Why a feature cannot be stored; empty when the writer knows.
    const std::string& Fault() const { return _fault; }

    bool HasLinks() const { return !_links.empty(); }

private:
    /// A late type's name in the file, and those of its attributes as far as they were used.
    struct Kind
    {
        store::NameIndex type = 0;
        std::vector<std::optional<store::NameIndex>> attributes;
    };

    Kind* KindOf(const LateType& type);
    bool Pack(Kind& kind, const LateType& type, int index, const Value& value);
    std::optional<store::Id> LinkTo(const DocumentLink& link);

    store::DocumentWriter& _writer;
    const std::string& _path;
    store::AttributePacker _packer;
    std::unordered_map<const LateType*, Kind> _kinds;
    std::map<std::pair<std::string, store::DocumentKind>, store::Id> _links;
    std::string _fault;
    bool _writerRefused = false;  ///< a name or a link: it tells why itself
};

DocumentSaver::Kind* DocumentSaver::KindOf(const LateType& type)
{
    const auto [entry, isNew] = _kinds.try_emplace(&type);
    if (isNew) {
        const std::optional<store::NameIndex> name = _writer.LateType(type.name);
        if (!name) {
            return nullptr;
        }
        entry->second.type = *name;
        entry->second.attributes.resize(type.attributes.size());
    }
    return &entry->second;
}

/// What kind of document a path leads to: that of the open document, or of its file ending.
store::DocumentKind KindOfTarget(const std::string& path)
{
    if (const Document* const open = DocumentSession::Instance().Find(path)) {
        return open->DocType();
    }
    return Document::TypeFromText(path).value_or(store::DocumentKind::Part);
}

std::optional<store::Id> DocumentSaver::LinkTo(const DocumentLink& link)
{
    const std::string& target = link.path;
    if (target.empty()) {
        return 0;
    }
    const store::DocumentKind kind = link.kind ? *link.kind : KindOfTarget(target);
    const auto [row, isNew] =
        _links.try_emplace({target, kind}, static_cast<store::Id>(_links.size()) + 1);
    if (isNew && !_writer.AddLink({row->second, kind, store::MakeRelative(_path, target)})) {
        return std::nullopt;
    }
    return row->second;
}

bool DocumentSaver::Pack(Kind& kind, const LateType& type, int index, const Value& value)
{
    const auto place = static_cast<std::size_t>(index);
    std::optional<store::NameIndex>& name = kind.attributes[place];
    if (!name) {
        name = _writer.AttributeName(type.attributes[place].name);
        if (!name) {
            _writerRefused = true;
            return false;
        }
    }
    switch (vex::KindOf(value)) {
        case ValueKind::Boolean:
            return _packer.AddBoolean(*name, std::get<bool>(value));
        case ValueKind::Integer:
            return _packer.AddInteger(*name, std::get<std::int64_t>(value));
        case ValueKind::Double:
            return _packer.AddDouble(*name, std::get<double>(value));
        case ValueKind::Text:
            return _packer.AddText(*name, *std::get<Boxed<std::string>>(value));
        case ValueKind::Reference:
            return _packer.AddReference(*name,
                                        static_cast<store::Id>(std::get<Reference>(value).id));
        case ValueKind::DocumentLink: {
            const std::optional<store::Id> link = LinkTo(*std::get<Boxed<DocumentLink>>(value));
            _writerRefused = _writerRefused || !link;
            return link && _packer.AddLink(*name, *link);
        }
        case ValueKind::List:
            return _packer.AddList(*name, *std::get<Boxed<DoubleList>>(value));
        case ValueKind::Table:
            break;
    }
    const DoubleTable& table = *std::get<Boxed<DoubleTable>>(value);
    const std::size_t rows = table.columns == 0 ? 0 : table.cells.size() / table.columns;
    return _packer.AddTable(*name, rows, table.columns, table.cells);
}

bool DocumentSaver::AddFeature(const Feature& feature, int container)
{
    Kind* const kind = KindOf(feature.Kind());
    if (kind == nullptr) {
        return false;
    }
    _packer.Clear();
    bool packed = true;
    feature.ForEachSet([&](int index, const Value& value) {
        packed = packed && Pack(*kind, feature.Kind(), index, value);
    });
    store::FeatureRow row;
    row.id = static_cast<store::Id>(feature.Id());
    row.parent = feature.Parent() == nullptr ? 0 : static_cast<store::Id>(feature.Parent()->Id());
    row.container = container;
    row.lateType = kind->type;
    if (feature.HasAlias()) {
        row.alias = feature.Alias();
    }
    row.attributes = _packer.Packed();
    if (!packed && !_writerRefused) {
        _fault = fmt::format(
            "{}: feature {}: its attributes are too large to be stored. Shorten its texts, lists "
            "and tables.",
            system::Quoted(_path), feature.Id());
    }
    return packed && _writer.AddFeature(row);
}

/// Stores a document that is still as it was stored, by its file. Onto that file itself it is
/// written anew: that also mends what became of the file.
store::CopyResult CopyDocument(Document& document, const std::string& path,
                               system::Existing existing, std::string& error)
{
    const Document::StoredForm* const stored = document.Stored();
    if (stored == nullptr || stored->path == path ||
        (stored->hasLinks && system::FolderOf(stored->path) != system::FolderOf(path))) {
        return store::CopyResult::OtherContent;
    }
    const auto result =
        store::CopyDocumentFile(stored->path, stored->summary, path, existing, error);
    if (result == store::CopyResult::Copied) {
        const Document::StoredForm original = *stored;
        document.SetStored(path, original.summary, original.hasLinks);
    }
    return result;
}

}  // namespace

bool SaveDocument(Document& document, const std::string& path, std::string& error,
                  system::Existing existing)
{
    const store::CopyResult copied = CopyDocument(document, path, existing, error);
    if (copied != store::CopyResult::OtherContent) {
        return copied == store::CopyResult::Copied;
    }
    store::DocumentWriter writer;
    bool sound =
        writer.Begin(path, document.DocType(), static_cast<int>(document.DataVersion()), existing);
    if (!sound) {
        return writer.Commit(error);  // tells why
    }
    for (const std::uint64_t number : document.Blobs().Numbers()) {
        std::span<const std::byte> bytes;
        if (!document.Geometry(number, bytes, error)) {
            return false;
        }
        sound = sound && writer.AddGeometry(static_cast<store::Id>(number), bytes);
    }
    DocumentSaver saver(writer, path);
    int container = 0;
    for (Feature* const root : document.Tree().Roots()) {
        FeatureTree::Walk(*root, [&](const Feature& feature, int) {
            sound = sound && saver.AddFeature(feature, container);
        });
        ++container;
    }
    if (!saver.Fault().empty()) {
        error = saver.Fault();
        return false;
    }
    // If a row was refused, Commit fails and tells why.
    const bool saved = writer.Commit(error);
    if (saved) {
        document.SetStored(path, writer.Summary(), saver.HasLinks());
    }
    return saved;
}

}  // namespace vex
