// SPDX-License-Identifier: Apache-2.0
#include "DamagedDocument.h"

#include "DocumentContents.h"
#include "VEXDocumentServices.h"
#include "host/feature/DocumentSession.h"
#include "support/AnalysisDocuments.h"
#include "support/ResealedDocument.h"

#include <gmock/gmock.h>

#include <cstdio>
#include <filesystem>
#include <iterator>

namespace damagetest {

namespace {

namespace fs = std::filesystem;

/// A value of the attribute's kind that is not the default.
vex::Value ValueFor(const vex::AttributeDefinition& attribute, const vex::Feature& target,
                    const std::string& folder)
{
    switch (attribute.kind) {
        case vex::ValueKind::Boolean:
            return !std::get<bool>(attribute.defaultValue);
        case vex::ValueKind::Integer:
            return std::get<std::int64_t>(attribute.defaultValue) - 7;
        case vex::ValueKind::Double:
            return std::get<double>(attribute.defaultValue) + 0.1;
        case vex::ValueKind::Text:
            return vex::Boxed<std::string>("Größe of " + attribute.name);
        case vex::ValueKind::Reference:
            return vex::Reference{target.Id()};
        case vex::ValueKind::DocumentLink:
            return vex::Boxed<vex::DocumentLink>(
                vex::DocumentLink{folder + "/parts/" + attribute.name + ".VEXPart"});
        case vex::ValueKind::List:
            return vex::Boxed<vex::DoubleList>(vex::DoubleList{1.0, -0.0, 1e300});
        case vex::ValueKind::Table:
            break;
    }
    return vex::Boxed<vex::DoubleTable>(vex::DoubleTable{2, {0.0, 0.5, 1.0, -2.5}});
}

void AddOneOfEachKind(vex::Document& document, const std::string& folder)
{
    vex::Feature& root = *document.SpecContainer();
    for (const vex::LateType* const type : vex::LateTypes::Instance().All()) {
        vex::Feature& feature = document.Tree().Create(*type, &root);
        EXPECT_EQ(feature.SetAlias("One " + type->name), S_OK);
        for (std::size_t i = 0; i < type->attributes.size(); ++i) {
            EXPECT_EQ(feature.Set(static_cast<int>(i), ValueFor(type->attributes[i], root, folder)),
                      S_OK)
                << type->attributes[i].name;
        }
    }
}

/// So many that most of the file's bytes are in use.
void AddMany(vex::Document& document)
{
    vex::Feature& root = *document.SpecContainer();
    const vex::LateType& type = vex::LateTypes::Instance().Require("HLXPressure");
    for (int i = 0; i < 1500; ++i) {
        vex::Feature& feature = document.Tree().Create(type, &root);
        EXPECT_EQ(feature.SetAlias("Pressure." + std::to_string(i)), S_OK);
        EXPECT_EQ(feature.Set("Pressure", i * 0.1), S_OK);
        EXPECT_EQ(feature.Set("Active", false), S_OK);
    }
}

std::ptrdiff_t OpenDescriptors()
{
    return std::distance(fs::directory_iterator("/proc/self/fd"), fs::directory_iterator());
}

const std::vector<vex::Document*>& OpenDocuments()
{
    return vex::DocumentSession::Instance().Documents();
}

vex::Document* OpenAt(const std::string& path)
{
    VEXDocument* document = nullptr;
    const HRESULT result = VEXDocumentServices::OpenDocument(VEXUnicodeString(path), document, 0);
    return FAILED(result) ? nullptr : vex::Document::From(document);
}

int Unclean(const char* what)
{
    std::fprintf(stderr, "unclean: %s\n", what);
    return kUnclean;
}

}  // namespace

DamagedDocument::DamagedDocument() : _path(_folder.File("damaged.VEXAnalysis"))
{
    {
        hlxtest::AnalysisDocument made(2);
        vex::Document& document = *vex::Document::From(made.Get());
        AddOneOfEachKind(document, _folder.Path());
        AddMany(document);
        document.AddGeometry(std::vector<std::byte>(20'000, std::byte{0x5A}));
        document.AddGeometry({});
        made.SaveAs(_path);
    }
    _bytes = hlxtest::ReadFile(_path);
    std::string error;
    vex::Document* const document = OpenAt(_path);
    EXPECT_TRUE(document != nullptr && ContentsOf(*document, _contents, error)) << error;
    EXPECT_THAT(_contents, testing::HasSubstr("VEXSamAnalysisManager"));
    EXPECT_EQ(VEXDocumentServices::Remove(*document->AsVEXDocument(), 1), S_OK);
}

int DamagedDocument::TryToOpen() const
{
    const std::ptrdiff_t descriptors = OpenDescriptors();
    VEXDocument* document = nullptr;
    const HRESULT result = VEXDocumentServices::OpenDocument(VEXUnicodeString(_path), document, 0);
    std::string contents;
    std::string error;
    if (SUCCEEDED(result)) {
        vex::Document& opened = *vex::Document::From(document);
        if (!ContentsOf(opened, contents, error)) {
            std::fprintf(stderr, "geometry: %s\n", error.c_str());
            return _contents.starts_with(contents) ? kGeometryRefused : kDifferent;
        }
        return contents == _contents ? kSame : kDifferent;
    }
    if (document != nullptr || !OpenDocuments().empty()) {
        return Unclean("a document is there");
    }
    if (OpenDescriptors() != descriptors) {
        return Unclean("a file stayed open");
    }
    fs::remove_all(_path);
    hlxtest::WriteFile(_path, _bytes);
    vex::Document* const mended = OpenAt(_path);
    if (mended == nullptr || !ContentsOf(*mended, contents, error) || contents != _contents) {
        return Unclean("the mended file is not what it was");
    }
    return kRefused;
}

ChildEnd DamagedDocument::Open(const std::function<void(const std::string& path)>& damage) const
{
    fs::remove_all(_path);
    hlxtest::WriteFile(_path, _bytes);
    damage(_path);
    return RunLimited([this] { return TryToOpen(); });
}

ChildEnd DamagedDocument::OpenBytes(const std::string& bytes) const
{
    fs::remove_all(_path);
    hlxtest::WriteFile(_path, bytes);
    return RunLimited([this] { return TryToOpen(); });
}

ChildEnd DamagedDocument::OpenResealed(const std::string& sql) const
{
    return Open([&](const std::string& path) {
        std::string error;
        EXPECT_TRUE(hlxtest::ChangeAndReseal(path, sql, error)) << sql << ": " << error;
    });
}

std::string ReasonOf(const ChildEnd& end, const std::string& path)
{
    const std::string start = "vex: '" + path + "': ";
    EXPECT_THAT(end.err, testing::StartsWith(start));
    EXPECT_THAT(end.err, testing::EndsWith(".\n"));
    EXPECT_EQ(end.err.find('\n'), end.err.size() - 1) << end.err;
    return end.err.size() > start.size()
               ? end.err.substr(start.size(), end.err.size() - start.size() - 1)
               : end.err;
}

}  // namespace damagetest
