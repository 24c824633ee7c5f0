// SPDX-License-Identifier: Apache-2.0
// A part's shape that cannot be had: the message names the file, once.
#include "host/product/PartGeometry.h"

#include "TestDocument.h"
#include "host/product/ProductStructure.h"
#include "support/ResealedDocument.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace {

using namespace vex;

class PartGeometryTest : public testing::Test
{
protected:
    std::string Reason(Document& document)
    {
        PartGeometry geometry(document);
        std::string reason;
        EXPECT_EQ(geometry.Shape(reason), nullptr);
        return reason;
    }

    hlxtest::TemporaryFolder folder;
    featuretest::ClosesAll closesAll;
    const std::string path = folder.File("a.VEXPart");
    std::string error;
};

TEST_F(PartGeometryTest, MessagesNameTheFileOnce)
{
    DocumentSession& session = DocumentSession::Instance();
    Document& part = featuretest::StoreOpen(path);
    Feature* const root = RootObject(part);
    ASSERT_NE(root, nullptr);
    const auto number = static_cast<std::int64_t>(part.AddGeometry({std::byte{1}}));
    ASSERT_EQ(root->Set("Geometry", number + 1), S_OK);
    EXPECT_EQ(Reason(part), "'" + path +
                                "': the document has no geometry of number 2; import the part "
                                "again");
    ASSERT_EQ(root->Set("Geometry", number), S_OK);
    ASSERT_EQ(session.Save(part, error), S_OK) << error;
    ASSERT_EQ(session.Remove(part, true, error), S_OK);
    ASSERT_TRUE(hlxtest::ChangeAndReseal(path, "UPDATE geometry SET digest = zeroblob(16)", error))
        << error;
    EXPECT_EQ(Reason(featuretest::Open(path)),
              "'" + path +
                  "': the file is damaged: geometry 1: its bytes do not match their digest. "
                  "Restore it from a copy.");
}

}  // namespace
