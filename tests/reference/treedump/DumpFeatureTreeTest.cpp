// SPDX-License-Identifier: Apache-2.0
// The tree dump through the SDK.
#include "HLXProductUtilities.h"
#include "VEXMetaClass.h"
#include "host/feature/Document.h"
#include "reference/treedump/DumpTypes.h"
#include "support/AnalysisDocuments.h"
#include "support/Platform.h"

#include <gtest/gtest.h>

namespace {

class DumpFeatureTreeOperation : public testing::Test
{
protected:
    VEXINavigateObject_var CurrentModel()
    {
        VEXISamAnalysisManager_var manager;
        EXPECT_EQ(HLXAnalysisDocUtils::GetAnalysisManager(manager, document.Get()), S_OK);
        VEXISamAnalysisModel* model = nullptr;
        EXPECT_EQ(manager->GetCurrentAnalysisModel(model), S_OK);
        return VEXAdopt(model);
    }

    hlxtest::AnalysisDocument document{1};
    HLXGenString text;
};

TEST_F(DumpFeatureTreeOperation, PutsTheTreeAtTheEndOfTheText)
{
    const VEXINavigateObject_var model = CurrentModel();
    auto* const feature = dynamic_cast<vex::Feature*>(model->GetImpl());
    ASSERT_NE(feature, nullptr);
    feature->Tree()->Create(hlxtest::Type("TstLoad"), feature).Set("X", 2.0);
    text.Append("Tree:\n");
    ASSERT_EQ(DumpFeatureTree(model.Get(), 1, text), S_OK);
    const std::string_view lines = text.c_str();
    EXPECT_TRUE(
        lines.starts_with("Tree:\n  VEXSamAnalysisModel \"Finite Element Model.1\"\n"
                          "    HLXHacAnalysisCaseLT \"Analysis Case.1\"\n"))
        << lines;
    EXPECT_TRUE(lines.ends_with("\n    TstLoad X=2\n")) << lines;
}

TEST_F(DumpFeatureTreeOperation, RefusesANullRoot)
{
    EXPECT_EQ(DumpFeatureTree(nullptr, 0, text), E_INVALIDARG);
    EXPECT_EQ(text.Length(), 0U);
}

TEST_F(DumpFeatureTreeOperation, RefusesARootThatIsNoFeature)
{
    class Stranger : public VEXINavigateObject
    {
        VEXListValVEXBaseUnknown_var* GetChildren() const override { return nullptr; }
        HRESULT GetSpecObject(VEXISpecObject*&) const override { return E_NOTIMPL; }
    };
    auto* const stranger = new Stranger;
    EXPECT_EQ(DumpFeatureTree(stranger, 0, text), E_INVALIDARG);
    stranger->Release();
}

TEST_F(DumpFeatureTreeOperation, FailsWhenTheDocumentIsGone)
{
    const VEXINavigateObject_var model = CurrentModel();
    ASSERT_EQ(VEXDocumentServices::Remove(*document.Release(), 1), S_OK);
    EXPECT_EQ(DumpFeatureTree(model.Get(), 0, text), E_FAIL);
    EXPECT_EQ(text.Length(), 0U);
}

TEST_F(DumpFeatureTreeOperation, IsSeenByTheTraceWithoutItsLines)
{
    const VEXINavigateObject_var model = CurrentModel();
    hlxtest::Recording recording;
    ASSERT_EQ(DumpFeatureTree(model.Get(), 0, text), S_OK);
    const std::vector<vex::probe::Call> calls = recording.Stop();
    ASSERT_EQ(calls.size(), 1U);
    EXPECT_EQ(calls[0].name, "DumpFeatureTree");
    EXPECT_EQ(calls[0].result, "S_OK [" + std::to_string(text.Length()) + " bytes]");
}

}  // namespace
