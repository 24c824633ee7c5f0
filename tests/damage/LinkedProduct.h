// SPDX-License-Identifier: Apache-2.0
// A product document that uses a part document, both stored, for tests of what becomes of the link.
#pragma once

#include "VEXDocumentServices.h"
#include "VEXProductStructure.h"
#include "host/feature/DocumentSession.h"
#include "host/product/ProductStructure.h"
#include "support/Capture.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>

namespace damagetest {

inline VEXDocument* Open(const std::string& path)
{
    VEXDocument* document = nullptr;
    EXPECT_EQ(VEXDocumentServices::OpenDocument(VEXUnicodeString(path), document, 0), S_OK);
    return document;
}

/// A product that uses one part.
class LinkedProduct : public testing::Test
{
protected:
    LinkedProduct()
    {
        Store("VEXPart", part, [](vex::Feature& root) { root.SetAlias("the plate"); });
        Store("VEXProduct", top, [&](vex::Feature& root) { Use(root, part); });
        sound = hlxtest::ReadFile(part);
    }
    ~LinkedProduct() override
    {
        while (!Session().Documents().empty()) {
            std::string error;
            Session().Remove(*Session().Documents().front(), true, error);
        }
    }

    static vex::DocumentSession& Session() { return vex::DocumentSession::Instance(); }

    static void Store(const char* type, const std::string& path,
                      const std::function<void(vex::Feature& root)>& fill)
    {
        VEXDocument* document = nullptr;
        ASSERT_EQ(VEXDocumentServices::New(type, document), S_OK);
        fill(*vex::RootObject(*vex::Document::From(document)));
        ASSERT_EQ(VEXDocumentServices::SaveAs(*document, VEXUnicodeString(path), "", 1), S_OK);
        ASSERT_EQ(VEXDocumentServices::Remove(*document, 1), S_OK);
    }

    static void Use(vex::Feature& root, const std::string& path)
    {
        vex::Feature& node = root.Tree()->Create(root.Kind(), &root);
        ASSERT_EQ(node.SetAlias("use"), S_OK);
        ASSERT_EQ(node.Set("Document", vex::Boxed<vex::DocumentLink>(vex::DocumentLink{path})),
                  S_OK);
    }

    /// All that stands below the root of the open product; what it writes goes to `err`.
    static HRESULT Walk(VEXDocument* product, int& size, std::string& err)
    {
        const VEXIDescendants_var root =
            VEXShare<VEXBaseUnknown>(vex::RootObject(*vex::Document::From(product)));
        VEXListValVEXISpecObject_var below;
        HRESULT result = S_OK;
        err = hlxtest::Capture([&] { result = root->GetAllChildren("VEXISpecObject", below); }).err;
        size = below.Size();
        return result;
    }

    hlxtest::TemporaryFolder folder;
    std::string part = folder.File("plate.VEXPart");
    std::string top = folder.File("top.VEXProduct");
    std::string sound;
};

}  // namespace damagetest
