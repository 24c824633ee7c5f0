// SPDX-License-Identifier: Apache-2.0
// Product and part documents that the analysis is linked to, made here.
#pragma once

#include "reference/inputfile/InputFileFixture.h"

#include <string>
#include <utility>

namespace hlxtest {

inline const vex::DoubleList identity{1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0};

class StructureTest : public InputFileTest
{
protected:
    ~StructureTest() override
    {
        // The analysis goes first: it links to the others.
        VEXDocumentServices::Remove(*document.Release(), 1);
        auto& session = vex::DocumentSession::Instance();
        std::string error;
        while (!session.Documents().empty()) {
            session.Remove(*session.Documents().front(), true, error);
        }
    }

    vex::Document& New(const char* type)
    {
        vex::Document* made = nullptr;
        std::string error;
        EXPECT_EQ(vex::DocumentSession::Instance().New(type, made, error), S_OK) << error;
        return *made;
    }

    void Save(vex::Document& made, const std::string& name)
    {
        std::string error;
        EXPECT_EQ(vex::DocumentSession::Instance().SaveAs(made, folder.File(name), "", true, error),
                  S_OK)
            << error;
    }

    /// The one object of a new product or part document.
    static vex::Feature& Object(vex::Document& made)
    {
        return *made.SpecContainer()->Children().front();
    }

    /// A part document `name`.VEXPart; answers its path.
    std::string Part(const std::string& name, std::string_view alias)
    {
        vex::Document& made = New("VEXPart");
        EXPECT_EQ(Object(made).SetAlias(alias), S_OK);
        Save(made, name + ".VEXPart");
        return made.Path();
    }

    /// The root node of a new product document.
    vex::Feature& Product() { return Object(New("VEXProduct")); }

    static vex::Feature& Use(vex::Feature& parent, std::string_view alias, std::string partNumber,
                             const std::string& path, const vex::DoubleList& placement = identity)
    {
        vex::Feature& node = Make("VEXProductNode", parent, alias);
        node.Set("PartNumber", vex::Boxed<std::string>(std::move(partNumber)));
        node.Set("Placement", vex::Boxed<vex::DoubleList>(placement));
        if (!path.empty()) {
            node.Set("Document", vex::Boxed<vex::DocumentLink>({path}));
        }
        return node;
    }

    std::string SaveProduct(vex::Feature& root, const std::string& name)
    {
        vex::Document& made = root.Tree()->Owner();
        Save(made, name + ".VEXProduct");
        return made.Path();
    }

    /// Links the analysis to a document, whether or not it is there.
    void Link(const std::string& path)
    {
        Make("VEXSamDocumentLink", *Model().Parent())
            .Set("Document", vex::Boxed<vex::DocumentLink>({path}));
    }

    std::string TextOfStructure() { return Between(Text(), "** structure", "** model"); }

    /// What the writer says when it refuses; nothing was written then.
    std::string Refusal()
    {
        const std::string path = folder.File("refused.inp");
        EXPECT_EQ(Write(path, {Entry(1)}), E_FAIL);
        EXPECT_FALSE(FileExists(path));
        return said;
    }
};

}  // namespace hlxtest
