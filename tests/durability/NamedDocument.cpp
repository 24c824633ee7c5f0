// SPDX-License-Identifier: Apache-2.0
#include "durability/NamedDocument.h"

#include "HLXProductUtilities.h"
#include "host/feature/DocumentSession.h"
#include "support/AnalysisDocuments.h"

#include <gtest/gtest.h>

namespace durabilitytest {

namespace {

VEXIAlias_var NameOf(VEXDocument* document)
{
    VEXISamAnalysisManager_var manager;
    EXPECT_EQ(HLXAnalysisDocUtils::GetAnalysisManager(manager, document), S_OK);
    VEXIAlias_var name = manager;
    EXPECT_TRUE(name);
    return name;
}

}  // namespace

NamedDocument::NamedDocument() : _document(hlxtest::AnalysisDocument(2).Release()) {}

NamedDocument::NamedDocument(const std::string& path)
{
    const HRESULT result = VEXDocumentServices::OpenDocument(VEXUnicodeString(path), _document, 0);
    EXPECT_EQ(result == S_OK, IsOpen());
}

NamedDocument::~NamedDocument()
{
    if (_document != nullptr) {
        EXPECT_EQ(VEXDocumentServices::Remove(*_document, 1), S_OK);
    }
}

std::string NamedDocument::Name() const
{
    return std::string(NameOf(_document)->GetAlias().View());
}

void NamedDocument::SetName(const std::string& name)
{
    EXPECT_EQ(NameOf(_document)->SetAlias(VEXUnicodeString(name)), S_OK);
}

HRESULT NamedDocument::SaveAs(const std::string& path, bool replaceExisting)
{
    return VEXDocumentServices::SaveAs(*_document, VEXUnicodeString(path), "",
                                       replaceExisting ? 1 : 0);
}

void StoreNamed(const std::string& path, const std::string& name)
{
    NamedDocument document;
    document.SetName(name);
    ASSERT_EQ(document.SaveAs(path), S_OK);
}

std::string StoredName(const std::string& path)
{
    if (vex::DocumentSession::Instance().Find(path) != nullptr) {
        ADD_FAILURE() << path << " is open";
        return "";
    }
    const NamedDocument document(path);
    if (!document.IsOpen()) {
        ADD_FAILURE() << path << " is refused";
        return "";
    }
    return document.Name();
}

}  // namespace durabilitytest
