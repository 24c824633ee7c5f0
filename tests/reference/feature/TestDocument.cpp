// SPDX-License-Identifier: Apache-2.0
// Late types and documents of the tests.
#include "TestDocument.h"

#include <gtest/gtest.h>

namespace featuretest {

using namespace vex;

const LateType& Type(std::string_view name)
{
    static const bool added = [] {
        std::vector<LateTypeDefinition> types(3);
        types[0] = {"TestContainer", "", {}};
        types[1] = {"TestThing", "", {}};
        for (const auto& [attribute, value] : std::initializer_list<std::pair<const char*, Value>>{
                 {"Flag", true},
                 {"Count", std::int64_t{7}},
                 {"Size", 0.5},
                 {"Label", Boxed<std::string>("none")},
                 {"Other", Reference{}},
                 {"File", Boxed<DocumentLink>()},
                 {"Samples", Boxed<DoubleList>(DoubleList{1, 2})},
                 {"Rows", Boxed<DoubleTable>()}}) {
            types[1].attributes.push_back({attribute, KindOf(value), value});
        }
        types[2] = {"TestDerived", "TestThing", {{"Extra", ValueKind::Double, 0.0}}};
        std::string error;
        EXPECT_TRUE(LateTypes::Instance().Add(std::move(types), error)) << error;
        return true;
    }();
    EXPECT_TRUE(added);
    return LateTypes::Instance().Require(name);
}

DocumentHolder MakeDocument(DocumentType type)
{
    DocumentHolder document(new Document(type));
    document->Tree().Create(Type("TestContainer"), nullptr);
    return document;
}

Feature& Add(Feature& parent, std::string_view type, std::string_view alias)
{
    Feature& feature = parent.Tree()->Create(Type(type), &parent);
    if (!alias.empty()) {
        EXPECT_EQ(feature.SetAlias(alias), S_OK);
    }
    return feature;
}

std::string Outline(const Feature& root)
{
    std::string text = root.Kind().name;
    if (root.HasAlias()) {
        text += " '" + std::string(root.Alias()) + "'";
    }
    if (!root.Children().empty()) {
        text += '(';
        for (const Feature* const child : root.Children()) {
            text += (child == root.Children().front() ? "" : ", ") + Outline(*child);
        }
        text += ')';
    }
    return text;
}

Document& StoreOpen(const std::string& path, DocumentType type)
{
    DocumentSession& session = DocumentSession::Instance();
    Document* document = nullptr;
    std::string error;
    EXPECT_EQ(session.New(Document::TypeName(type), document, error), S_OK) << error;
    document->Tree().Create(Type("TestContainer"), nullptr);
    EXPECT_EQ(session.SaveAs(*document, path, "", true, error), S_OK) << error;
    return *document;
}

ClosesAll::~ClosesAll()
{
    DocumentSession& session = DocumentSession::Instance();
    std::string error;
    while (!session.Documents().empty()) {
        session.Remove(*session.Documents().back(), true, error);
    }
}

Document& Open(const std::string& path, bool readOnly)
{
    Document* document = nullptr;
    std::string error;
    EXPECT_EQ(DocumentSession::Instance().Open(path, readOnly, document, error), S_OK) << error;
    return *document;
}

void Link(Document& from, const std::string& path)
{
    EXPECT_EQ(Add(*from.Tree().Roots().back()).Set("File", Boxed<DocumentLink>(DocumentLink{path})),
              S_OK);
}

}  // namespace featuretest
