// SPDX-License-Identifier: Apache-2.0
// Makes and handles documents.
#include "HostDocument.h"

#include "Comparison.h"
#include "host/feature/Document.h"

#include <cstdlib>
#include <filesystem>
#include <unordered_map>

namespace bench {

namespace {

vex::Feature& Model(VEXDocument& document)
{
    vex::Document* const opened = vex::Document::From(&document);
    vex::Feature* const container = opened == nullptr ? nullptr : opened->SpecContainer();
    Require(container != nullptr, "the document is not of the session, or has no features");
    return *container->Children().front()->Children().front();
}

vex::Value ValueOf(const PlainAttribute& attribute)
{
    if (const auto* const text = std::get_if<std::string>(&attribute.value)) {
        return vex::Boxed<std::string>(*text);
    }
    if (const auto* const number = std::get_if<double>(&attribute.value)) {
        return *number;
    }
    return std::get<std::int64_t>(attribute.value);
}

}  // namespace

Folder::Folder(Place place)
    : _path((place == Place::Disk ? std::filesystem::temp_directory_path() : "/dev/shm") /
            "hlx-bench-XXXXXX")
{
    Require(mkdtemp(_path.data()) != nullptr, "no folder can be made in TMPDIR or /dev/shm");
}

Folder::~Folder()
{
    std::error_code ignored;
    std::filesystem::remove_all(_path, ignored);
}

VEXDocument& MakeDocument(const std::vector<PlainFeature>& features)
{
    VEXDocument* document = nullptr;
    Require(VEXDocumentServices::New("VEXAnalysis", document) == S_OK, "no new document");
    vex::Feature& model = Model(*document);
    vex::FeatureTree& tree = *model.Tree();
    const vex::LateType& type = vex::LateTypes::Instance().Require(lateType);
    std::unordered_map<std::int64_t, vex::Feature*> made = {{0, &model}};
    for (const PlainFeature& feature : features) {
        vex::Feature& here = tree.Create(type, made.at(feature.parent));
        made.emplace(feature.id, &here);
        Require(here.SetAlias(feature.alias) == S_OK, "an alias was refused");
        for (const PlainAttribute& attribute : feature.attributes) {
            Require(here.Set(attribute.name, ValueOf(attribute)) == S_OK, "a value was refused");
        }
    }
    return *document;
}

VEXDocument& OpenDocument(const std::string& path)
{
    VEXDocument* document = nullptr;
    Require(VEXDocumentServices::OpenDocument(VEXUnicodeString(path), document, 0) == S_OK,
            "a document cannot be opened");
    return *document;
}

void SaveDocument(VEXDocument& document)
{
    Require(VEXDocumentServices::Save(document) == S_OK, "a document cannot be saved");
}

void SaveDocumentAs(VEXDocument& document, const std::string& path)
{
    Require(VEXDocumentServices::SaveAs(document, VEXUnicodeString(path), "", 1) == S_OK,
            "a document cannot be stored under another path");
}

void RemoveDocument(VEXDocument& document)
{
    Require(VEXDocumentServices::Remove(document, 1) == S_OK, "a document cannot be removed");
}

void Touch(VEXDocument& document)
{
    vex::Feature& model = Model(document);
    const std::string alias(model.Alias());
    Require(model.SetAlias("") == S_OK && model.SetAlias(alias) == S_OK, "an alias was refused");
}

void RequireSame(VEXDocument& document, const std::vector<PlainFeature>& features)
{
    auto expected = features.begin();
    vex::FeatureTree::Walk(Model(document), [&](const vex::Feature& feature, int depth) {
        if (depth == 0) {
            return;
        }
        Require(expected != features.end() && feature.Alias() == expected->alias,
                "the document holds other features");
        for (const PlainAttribute& attribute : expected->attributes) {
            Require(feature.Get(attribute.name) == ValueOf(attribute),
                    "the document holds other values");
        }
        ++expected;
    });
    Require(expected == features.end(), "the document holds fewer features");
}

VEXINavigateObject_var ModelOf(VEXDocument& document)
{
    return vex::FaceOf<VEXINavigateObject>(&Model(document));
}

}  // namespace bench
