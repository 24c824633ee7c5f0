// SPDX-License-Identifier: Apache-2.0
// Products across documents: children, descendants, who holds what.
#include "host/product/ProductStructure.h"

#include "TestDocument.h"
#include "VEXProductStructure.h"
#include "support/Capture.h"
#include "support/TemporaryFolder.h"

#include <gmock/gmock.h>

#include <memory>

namespace {

using namespace vex;
using featuretest::Open;
using testing::HasSubstr;

/// A product with two uses of a part and one of a sub-product, which uses the part too.
class ProductStructureTest : public testing::Test
{
protected:
    ProductStructureTest()
    {
        Store(DocumentType::Part, "bolt.VEXPart", [](Feature& part) { part.SetAlias("bolt"); });
        Store(DocumentType::Product, "sub.VEXProduct", [&](Feature& root) {
            root.SetAlias("sub");
            Use(root, "sub bolt", "bolt.VEXPart");
        });
        Store(DocumentType::Product, "top.VEXProduct", [&](Feature& root) {
            root.SetAlias("top");
            root.Set("PartNumber", Boxed<std::string>("T-1"));
            Use(root, "bolt 1", "bolt.VEXPart");
            Use(root, "bolt 2", "bolt.VEXPart");
            Use(root, "sub 1", "sub.VEXProduct");
        });
    }

    template <class Fill>
    void Store(DocumentType type, const char* name, Fill fill)
    {
        DocumentSession& session = DocumentSession::Instance();
        Document* document = nullptr;
        std::string error;
        ASSERT_EQ(session.New(Document::TypeName(type), document, error), S_OK) << error;
        fill(*RootObject(*document));
        ASSERT_EQ(session.SaveAs(*document, folder.File(name), "", true, error), S_OK) << error;
        ASSERT_EQ(session.Remove(*document, true, error), S_OK) << error;
    }

    void Use(Feature& parent, const char* alias, const char* name) const
    {
        Feature& node = parent.Tree()->Create(parent.Kind(), &parent);
        node.SetAlias(alias);
        node.Set("Document", Boxed<DocumentLink>(DocumentLink{folder.File(name)}));
    }

    VEXIProduct_var OpenTop()
    {
        const VEXIDocRoots_var roots =
            VEXShare(Open(folder.File("top.VEXProduct")).AsVEXDocument());
        const std::unique_ptr<VEXListValVEXBaseUnknown_var> list(roots->GetRoots());
        EXPECT_EQ(list->Size(), 1);
        return (*list)[1];
    }

    static std::string Aliases(const VEXListValVEXISpecObject_var& list)
    {
        std::string names;
        for (int i = 1; i <= list.Size(); ++i) {
            names += std::string(VEXIAlias_var(list[i])->GetAlias().View()) + ", ";
        }
        return names;
    }

    static std::size_t OpenCount() { return DocumentSession::Instance().Documents().size(); }

    hlxtest::TemporaryFolder folder;
    featuretest::ClosesAll closesAll;
};

TEST_F(ProductStructureTest, ChildrenAreUsesAndLinkedDocumentsOpenWhenNeeded)
{
    const VEXIProduct_var top = OpenTop();
    EXPECT_EQ(top->GetPartNumber(), "T-1");
    const std::unique_ptr<VEXListValVEXBaseUnknown_var> children(top->GetChildren("VEXIProduct"));
    ASSERT_EQ(children->Size(), 3);
    EXPECT_EQ(OpenCount(), 1U);
    // Below a use stands what the used product holds, without that product's own root.
    const VEXIProduct_var sub = (*children)[3];
    const std::unique_ptr<VEXListValVEXBaseUnknown_var> below(sub->GetChildren("VEXIProduct"));
    ASSERT_EQ(below->Size(), 1);
    EXPECT_EQ(VEXIAlias_var((*below)[1])->GetAlias(), "sub bolt");
    EXPECT_EQ(OpenCount(), 2U);
    EXPECT_EQ(std::unique_ptr<VEXListValVEXBaseUnknown_var>(top->GetChildren(nullptr))->Size(), 0);
}

TEST_F(ProductStructureTest, DescendantsOfAUseLeadIntoThePart)
{
    const VEXIProduct_var top = OpenTop();
    const std::unique_ptr<VEXListValVEXBaseUnknown_var> children(top->GetChildren("VEXIProduct"));
    const VEXIDescendants_var use = (*children)[2];
    VEXListValVEXISpecObject_var list;
    ASSERT_EQ(use->GetAllChildren("VEXILinkableObject", list), S_OK);
    EXPECT_EQ(Aliases(list), "bolt, Main Body, ");
    const VEXILinkableObject_var part = list[1];
    EXPECT_EQ(part->GetDocument()->StorageName(), folder.File("bolt.VEXPart").c_str());
    const VEXILinkableObject_var node = use;
    EXPECT_EQ(node->GetDocument()->StorageName(), folder.File("top.VEXProduct").c_str());
}

TEST_F(ProductStructureTest, AllDescendantsEnterEachDocumentOnce)
{
    const VEXIDescendants_var top = OpenTop();
    VEXListValVEXISpecObject_var list;
    ASSERT_EQ(top->GetAllChildren("VEXISpecObject", list), S_OK);
    EXPECT_EQ(Aliases(list), "bolt 1, bolt, Main Body, bolt 2, sub 1, sub bolt, ");
}

TEST_F(ProductStructureTest, DocumentsThatUseEachOtherEnd)
{
    Store(DocumentType::Product, "sub.VEXProduct", [&](Feature& root) {
        Use(root, "sub top", "top.VEXProduct");
        Use(root, "sub sub", "sub.VEXProduct");
    });
    const VEXIDescendants_var top = OpenTop();
    VEXListValVEXISpecObject_var list;
    ASSERT_EQ(top->GetAllChildren("VEXISpecObject", list), S_OK);
    EXPECT_EQ(Aliases(list), "bolt 1, bolt, Main Body, bolt 2, sub 1, sub top, sub sub, ");
}

TEST_F(ProductStructureTest, RootsCanBeShownAsTrees)
{
    const VEXINavigateObject_var top = OpenTop();
    ASSERT_TRUE(top);
    const std::unique_ptr<VEXListValVEXBaseUnknown_var> below(top->GetChildren());
    ASSERT_EQ(below->Size(), 3);
    EXPECT_EQ(VEXIAlias_var((*below)[3])->GetAlias(), "sub 1");
    EXPECT_TRUE(VEXINavigateObject_var((*below)[3]));

    const VEXIDocRoots_var part = VEXShare(Open(folder.File("bolt.VEXPart")).AsVEXDocument());
    const std::unique_ptr<VEXListValVEXBaseUnknown_var> roots(part->GetRoots());
    ASSERT_EQ(roots->Size(), 1);
    const VEXINavigateObject_var bolt = (*roots)[1];
    ASSERT_TRUE(bolt);
    const std::unique_ptr<VEXListValVEXBaseUnknown_var> bodies(bolt->GetChildren());
    ASSERT_EQ(bodies->Size(), 1);
    EXPECT_EQ(VEXIAlias_var((*bodies)[1])->GetAlias(), "Main Body");
}

TEST_F(ProductStructureTest, AMissingDocumentIsAFailureWithAReason)
{
    Store(DocumentType::Product, "top.VEXProduct",
          [&](Feature& root) { Use(root, "gone", "gone.VEXPart"); });
    const VEXIProduct_var top = OpenTop();
    const std::unique_ptr<VEXListValVEXBaseUnknown_var> children(top->GetChildren("VEXIProduct"));
    ASSERT_EQ(children->Size(), 1);
    const auto captured = hlxtest::Capture([&] {
        VEXListValVEXISpecObject_var list;
        EXPECT_EQ(VEXIDescendants_var(top)->GetAllChildren("VEXISpecObject", list), E_FAIL);
        EXPECT_EQ(list.Size(), 0);
        EXPECT_EQ(VEXIProduct_var((*children)[1])->GetChildren("VEXISpecObject"), nullptr);
    });
    EXPECT_THAT(captured.err, HasSubstr("gone.VEXPart"));
    EXPECT_EQ(captured.out, "");
}

TEST_F(ProductStructureTest, ARemovedProductAnswersNothing)
{
    const VEXIProduct_var top = OpenTop();
    std::string error;
    DocumentSession& session = DocumentSession::Instance();
    ASSERT_EQ(session.Remove(*session.Documents().front(), false, error), S_OK) << error;
    EXPECT_EQ(top->GetChildren("VEXIProduct"), nullptr);
    EXPECT_TRUE(top->GetPartNumber().IsEmpty());
    EXPECT_EQ(VEXILinkableObject_var(top)->GetDocument(), nullptr);
    VEXListValVEXISpecObject_var list;
    EXPECT_EQ(VEXIDescendants_var(top)->GetAllChildren("VEXISpecObject", list), E_FAIL);
}

}  // namespace
