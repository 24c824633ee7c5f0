// SPDX-License-Identifier: Apache-2.0
// Makes a document of the rows of its file. The store has checked what can be known without the
// catalogues: digest, parents, encoding and counts; here rows meet the late types that this process
// knows.
#include "host/feature/DocumentStorage.h"
#include "host/store/AttributeUnpacker.h"
#include "host/store/DocumentReader.h"
#include "host/store/LinkPath.h"
#include "host/system/MessageTexts.h"

#include <fmt/format.h>

#include <algorithm>
#include <map>
#include <utility>

namespace vex {

namespace {

using store::AttributeKind;
using system::Quoted;
using system::QuotedStart;

class DocumentLoader
{
public:
    DocumentLoader(store::DocumentReader& reader, const std::string& path);

    /// Reads all features. False with the reason.
    bool Load(Document& document, std::string& error);

private:
    /// A late type of the file: this process's type of that name, and its index for the attribute
    /// names of the file as far as features of the type have them.
    struct Kind
    {
        static constexpr int unknown = -2;
        const LateType* type = nullptr;
        std::vector<int> attributes;
    };

    struct PendingReference
    {
        Feature* feature;
        int attribute;
        FeatureId target;
    };

    bool Refuse(const store::FeatureRow& row, std::string_view reason, std::string& error) const;
    Kind* KindOf(store::NameIndex index);
    int IndexOf(Kind& kind, store::NameIndex name) const;
    bool AddFeature(FeatureTree& tree, const store::FeatureRow& row, std::string& error);
    bool AddAttribute(Feature& feature, Kind& kind, const store::Attribute& attribute,
                      std::string& reason);
    Value ValueOf(const store::Attribute& attribute) const;

    store::DocumentReader& _reader;
    const std::string& _path;
    std::vector<Kind> _kinds;
    std::map<store::Id, DocumentLink> _links;
    std::vector<Feature*> _features;  ///< by row
    std::vector<PendingReference> _references;
};

DocumentLoader::DocumentLoader(store::DocumentReader& reader, const std::string& path)
    : _reader(reader), _path(path), _kinds(reader.LateTypes().size())
{
    for (const store::LinkRow& link : reader.Links()) {
        _links.emplace(link.id, DocumentLink{store::ResolveRelative(path, link.path), link.kind});
    }
}

bool DocumentLoader::Refuse(const store::FeatureRow& row, std::string_view reason,
                            std::string& error) const
{
    const std::string alias = row.alias ? " " + QuotedStart(*row.alias) : "";
    error = fmt::format("{}: feature {}{}: {}", Quoted(_path), row.id, alias, reason);
    return false;
}

/// Null when no catalogue has the type.
DocumentLoader::Kind* DocumentLoader::KindOf(store::NameIndex index)
{
    Kind& kind = _kinds[index];
    if (kind.type == nullptr) {
        kind.type = LateTypes::Instance().Find(_reader.LateTypes()[index]);
    }
    return kind.type == nullptr ? nullptr : &kind;
}

/// -1 when the type has no attribute of that name.
int DocumentLoader::IndexOf(Kind& kind, store::NameIndex name) const
{
    if (name >= kind.attributes.size()) {
        kind.attributes.resize(std::size_t{name} + 1, Kind::unknown);
    }
    int& index = kind.attributes[name];
    if (index == Kind::unknown) {
        index = kind.type->IndexOf(_reader.AttributeNames()[name]);
    }
    return index;
}

Value DocumentLoader::ValueOf(const store::Attribute& attribute) const
{
    const auto doubles = [&] {
        DoubleList list(attribute.doubles.Size());
        for (std::size_t i = 0; i < list.size(); ++i) {
            list[i] = attribute.doubles[i];
        }
        return list;
    };
    switch (attribute.kind) {
        case AttributeKind::Boolean:
            return attribute.boolean;
        case AttributeKind::Integer:
            return attribute.integer;
        case AttributeKind::Double:
            return attribute.number;
        case AttributeKind::Text:
            return Boxed<std::string>(std::string(attribute.text));
        case AttributeKind::Reference:
            return Reference{static_cast<FeatureId>(attribute.integer)};
        case AttributeKind::Link: {
            const auto link = _links.find(attribute.integer);
            return Boxed<DocumentLink>(link == _links.end() ? DocumentLink() : link->second);
        }
        case AttributeKind::List:
            return Boxed<DoubleList>(doubles());
        case AttributeKind::Table:
            return Boxed<DoubleTable>(DoubleTable{attribute.columns, doubles()});
    }
    return false;
}

bool DocumentLoader::AddAttribute(Feature& feature, Kind& kind, const store::Attribute& attribute,
                                  std::string& reason)
{
    const int index = IndexOf(kind, attribute.name);
    if (index < 0) {
        reason = fmt::format("the late type {} has no attribute {}", Quoted(kind.type->name),
                             QuotedStart(_reader.AttributeNames()[attribute.name]));
        return false;
    }
    const AttributeDefinition& definition = kind.type->attributes[static_cast<std::size_t>(index)];
    if (attribute.kind == AttributeKind::Reference && definition.kind == ValueKind::Reference) {
        // Its target may stand further down in the file.
        _references.push_back({&feature, index, static_cast<FeatureId>(attribute.integer)});
        return true;
    }
    if (attribute.kind == AttributeKind::Reference ||
        feature.Set(index, ValueOf(attribute)) != S_OK) {
        reason =
            fmt::format("the value of attribute {} is not of the kind that the late type {} has",
                        Quoted(definition.name), Quoted(kind.type->name));
        return false;
    }
    return true;
}

bool DocumentLoader::AddFeature(FeatureTree& tree, const store::FeatureRow& row, std::string& error)
{
    Kind* const kind = KindOf(row.lateType);
    if (kind == nullptr) {
        return Refuse(
            row,
            fmt::format("no catalogue defines its late type {}. Install the library that does.",
                        QuotedStart(_reader.LateTypes()[row.lateType])),
            error);
    }
    const std::int64_t parentRow = _reader.Place().parentRow;
    Feature* const parent =
        parentRow < 0 ? nullptr : _features[static_cast<std::size_t>(parentRow)];
    Feature* const feature = tree.Restore(*kind->type, parent, static_cast<FeatureId>(row.id));
    if (feature == nullptr || (row.alias && feature->SetAlias(*row.alias) != S_OK)) {
        return Refuse(row, "its id or its name cannot be. Take the document from a backup.", error);
    }
    if (std::cmp_not_equal(row.container + 1, tree.Roots().size())) {
        return Refuse(row, "it is not in the container it says. Take the document from a backup.",
                      error);
    }
    _features.push_back(feature);
    store::AttributeUnpacker unpacker(row.attributes);
    feature->Reserve(unpacker.Left());
    std::string reason;
    for (store::Attribute attribute; unpacker.Next(attribute);) {
        if (!AddAttribute(*feature, *kind, attribute, reason)) {
            return Refuse(row, reason + ". Use the catalogue that the document was made with.",
                          error);
        }
    }
    return true;
}

bool DocumentLoader::Load(Document& document, std::string& error)
{
    // What the file says of its size is not known to be true yet.
    constexpr std::int64_t likely = 1 << 20;
    _features.reserve(
        static_cast<std::size_t>(std::clamp<std::int64_t>(_reader.Counts().features, 0, likely)));
    for (store::FeatureRow row; _reader.Next(row);) {
        if (!AddFeature(document.Tree(), row, error)) {
            // What does not fit this process may have been changed by damage: that is the reason
            // then.
            std::string damage;
            error = _reader.Finish(damage) ? error : damage;
            return false;
        }
    }
    if (!_reader.Finish(error)) return false;
    for (const PendingReference& reference : _references) {
        if (reference.feature->Set(reference.attribute, Reference{reference.target}) != S_OK) {
            error = fmt::format(
                "{}: feature {}: it refers to feature {}, which is not there. Take the document "
                "from a backup.",
                Quoted(_path), reference.feature->Id(), reference.target);
            return false;
        }
    }
    return true;
}

}  // namespace

DocumentHolder LoadDocument(const std::string& path, std::string& error)
{
    const auto reader = std::make_shared<store::DocumentReader>();
    if (!reader->Open(path, error)) {
        return nullptr;
    }
    DocumentHolder document(new Document(reader->Kind()));
    if (!DocumentLoader(*reader, path).Load(*document, error)) {
        return nullptr;
    }
    document->SetPath(path);
    document->SetDataVersion(static_cast<unsigned>(reader->DataVersion()));
    document->SetStored(path, reader->Summary(), !reader->Links().empty());
    if (const auto stored = reader->Geometries(); !stored.empty()) {
        document->Blobs().Restore(
            {stored.begin(), stored.end()},
            [reader](std::uint64_t number, std::vector<std::byte>& bytes, std::string& reason) {
                return reader->ReadGeometry(static_cast<store::Id>(number), bytes, reason);
            });
    }
    return document;
}

}  // namespace vex
