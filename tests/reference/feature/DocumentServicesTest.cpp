// SPDX-License-Identifier: Apache-2.0
// VEXDocumentServices as a program calls them.
#include "TestDocument.h"
#include "VEXDocumentServices.h"
#include "support/Capture.h"
#include "support/TemporaryFolder.h"

#include <gmock/gmock.h>

namespace {

using featuretest::ClosesAll;
using hlxtest::Capture;
using testing::HasSubstr;

class DocumentServicesTest : public testing::Test
{
protected:
    hlxtest::TemporaryFolder folder;
    ClosesAll closesAll;
    VEXUnicodeString path{folder.File("a.VEXPart")};
    VEXDocument* document = nullptr;
};

TEST_F(DocumentServicesTest, ADocumentIsMadeStoredRemovedAndOpenedAgain)
{
    ASSERT_EQ(VEXDocumentServices::New("VEXPart", document), S_OK);
    ASSERT_NE(document, nullptr);
    EXPECT_EQ(document->GetType(), "VEXPart");
    EXPECT_TRUE(document->StorageName().IsEmpty());
    EXPECT_EQ(VEXDocumentServices::SaveAs(*document, path, "", 0), S_OK);
    EXPECT_EQ(document->StorageName(), path);
    EXPECT_EQ(VEXDocumentServices::Save(*document), S_OK);
    EXPECT_EQ(VEXDocumentServices::Remove(*document, 0), S_OK);
    VEXDocument* opened = nullptr;
    ASSERT_EQ(VEXDocumentServices::OpenDocument(path, opened, 0), S_OK);
    EXPECT_EQ(opened->StorageName(), path);
    VEXDocument* again = nullptr;
    EXPECT_EQ(VEXDocumentServices::OpenDocument(path, again, 0), S_OK);
    EXPECT_EQ(again, opened);
}

TEST_F(DocumentServicesTest, ReasonsOfRefusalsGoToStandardErrorOnly)
{
    const auto captured = Capture([&] {
        document = reinterpret_cast<VEXDocument*>(this);
        EXPECT_EQ(
            VEXDocumentServices::OpenDocument(folder.File("none.VEXPart").c_str(), document, 0),
            E_FAIL);
        EXPECT_EQ(document, nullptr);
        EXPECT_EQ(VEXDocumentServices::OpenDocument("", document, 0), E_INVALIDARG);
        EXPECT_EQ(VEXDocumentServices::New("VEXNothing", document), E_INVALIDARG);
        EXPECT_EQ(document, nullptr);
    });
    EXPECT_EQ(captured.out, "");
    EXPECT_THAT(captured.err, HasSubstr("none.VEXPart"));
    EXPECT_THAT(captured.err, HasSubstr("the path is empty"));
    EXPECT_THAT(captured.err, HasSubstr("'VEXNothing': no document type"));
}

TEST_F(DocumentServicesTest, AStaleDocumentPointerIsNotFollowed)
{
    ASSERT_EQ(VEXDocumentServices::New("VEXPart", document), S_OK);
    ASSERT_EQ(VEXDocumentServices::Remove(*document, 0), S_OK);
    const auto captured = Capture([&] {
        EXPECT_EQ(VEXDocumentServices::Save(*document), E_INVALIDARG);
        EXPECT_EQ(VEXDocumentServices::SaveAs(*document, path, "", 1), E_INVALIDARG);
        EXPECT_EQ(VEXDocumentServices::Remove(*document, 1), E_INVALIDARG);
    });
    EXPECT_THAT(captured.err, HasSubstr("none of the session's"));
}

}  // namespace
