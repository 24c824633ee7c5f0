// SPDX-License-Identifier: Apache-2.0
// `hlx info` and `hlx tree` of products that share documents, link in a circle or lack one.
#include "host/feature/DocumentSession.h"
#include "host/product/ProductStructure.h"
#include "support/ChildProgram.h"
#include "support/TemporaryFolder.h"

#include <gmock/gmock.h>

#include <algorithm>

namespace hlxtest {

namespace {

using testing::EndsWith;
using testing::HasSubstr;

class HlxListingTest : public testing::Test
{
protected:
    /// Stores a product NAME.VEXProduct that uses other products, in order.
    void Store(const std::string& name, const std::vector<std::string>& uses)
    {
        vex::DocumentSession& session = vex::DocumentSession::Instance();
        vex::Document* document = nullptr;
        std::string error;
        ASSERT_EQ(session.New("VEXProduct", document, error), S_OK) << error;
        vex::Feature& root = *vex::RootObject(*document);
        root.Set("PartNumber", vex::Boxed<std::string>(name));
        for (const std::string& use : uses) {
            vex::Feature& node = root.Tree()->Create(root.Kind(), &root);
            node.SetAlias(use + ".1");
            node.Set("PartNumber", vex::Boxed<std::string>(use));
            node.Set("Document", vex::Boxed<vex::DocumentLink>(vex::DocumentLink{Path(use)}));
        }
        ASSERT_EQ(session.SaveAs(*document, Path(name), "", true, error), S_OK) << error;
        ASSERT_EQ(session.Remove(*document, true, error), S_OK) << error;
    }

    std::string Path(const std::string& name) const { return folder.File(name + ".VEXProduct"); }

    Ended Run(const char* command, const std::string& name) const
    {
        return RunProgram({Program("hlx"), command, Path(name)});
    }

    TemporaryFolder folder;
};

TEST_F(HlxListingTest, AUseOfADocumentAlreadyShownSaysSo)
{
    Store("leaf", {});
    Store("sub", {"leaf"});
    Store("top", {"sub", "leaf", "sub"});
    const Ended ended = Run("info", "top");
    EXPECT_EQ(ended.code, 0) << ended.err;
    EXPECT_THAT(ended.out, EndsWith("product \"top\"\n"
                                    "  product \"sub.1\" of \"sub\"\n"
                                    "    product \"leaf.1\" of \"leaf\"\n"
                                    "  product \"leaf.1\" of \"leaf\"\n"
                                    "  product \"sub.1\" of \"sub\", as above\n"));
}

TEST_F(HlxListingTest, ACircleOfDocumentsEnds)
{
    Store("a", {"b"});
    Store("b", {"a"});
    const Ended ended = Run("info", "a");
    EXPECT_EQ(ended.code, 0) << ended.err;
    EXPECT_THAT(ended.out, EndsWith("product \"a\"\n"
                                    "  product \"b.1\" of \"b\"\n"
                                    "    product \"a.1\" of \"a\", as above\n"));
    EXPECT_EQ(Run("tree", "a").code, 0);
}

TEST_F(HlxListingTest, SharedUseAtEveryLevelStaysShort)
{
    constexpr int last = 40;
    Store("p" + std::to_string(last), {});
    for (int i = last; i-- > 0;) {
        const std::string below = "p" + std::to_string(i + 1);
        Store("p" + std::to_string(i), {below, below});
    }
    const Ended ended = Run("info", "p0");
    EXPECT_EQ(ended.code, 0) << ended.err;
    // Three lines about the document, its root, and two uses a level.
    EXPECT_EQ(std::count(ended.out.begin(), ended.out.end(), '\n'), 3 + 1 + 2 * last);
}

TEST_F(HlxListingTest, AMissingDocumentFailsAfterTheRestWasShown)
{
    Store("leaf", {});
    Store("top", {"lost", "leaf"});
    const Ended ended = Run("info", "top");
    EXPECT_EQ(ended.code, 1);
    EXPECT_THAT(ended.out, EndsWith("product \"top\"\n"
                                    "  product \"lost.1\" of \"lost\"\n"
                                    "  product \"leaf.1\" of \"leaf\"\n"));
    EXPECT_THAT(ended.err, HasSubstr("'" + Path("lost") + "': there is no such file"));
}

}  // namespace

}  // namespace hlxtest
