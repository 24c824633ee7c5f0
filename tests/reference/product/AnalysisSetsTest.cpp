// SPDX-License-Identifier: Apache-2.0
// The sets of all cases of a document.
#include "VEXDocumentServices.h"
#include "reference/analysis/AnalysisFixture.h"

namespace {

using hlxtest::AliasesOf;
using Names = std::vector<std::string>;

class AnalysisSets : public hlxtest::AnalysisTest
{
protected:
    AnalysisSets() : AnalysisTest(2)
    {
        AddStep(1, "HLXGeneralStaticStepLT", "static");
        AddStep(2, "HLXFrequencyStepLT", "modes");
        AddStep(2, "HLXHeatTransferStepLT", "heat");
    }

    Names Sets(const char* lateType)
    {
        VEXListValVEXBaseUnknown_var sets;
        EXPECT_EQ(HLXAnalysisDocUtils::GetAnalysisSets(sets, document.Get(), lateType), S_OK);
        return AliasesOf(sets);
    }
};

TEST_F(AnalysisSets, AreThoseOfAllCasesInOrder)
{
    EXPECT_EQ(Sets(""), (Names{"Initial", "static", "Initial", "modes", "heat"}));
}

TEST_F(AnalysisSets, AreOfTheTypeOrExtendIt)
{
    EXPECT_EQ(Sets("HLXStepLT"), Sets(""));
    EXPECT_EQ(Sets("HLXIncrementedStepLT"), (Names{"static", "heat"}));
    EXPECT_EQ(Sets("HLXFrequencyStepLT"), Names{"modes"});
    EXPECT_EQ(Sets("HLXRiksStepLT"), Names{});
    EXPECT_EQ(Sets("NoSuchLT"), Names{});
}

TEST_F(AnalysisSets, AreAppended)
{
    VEXListValVEXBaseUnknown_var sets;
    for (int times = 1; times <= 2; ++times) {
        ASSERT_EQ(HLXAnalysisDocUtils::GetAnalysisSets(sets, document.Get(), "HLXFrequencyStepLT"),
                  S_OK);
        EXPECT_EQ(sets.Size(), times);
    }
}

TEST_F(AnalysisSets, OfNoAnalysisDocumentAreRefused)
{
    VEXListValVEXBaseUnknown_var sets;
    VEXDocument* part = nullptr;
    ASSERT_EQ(VEXDocumentServices::New("VEXPart", part), S_OK);
    EXPECT_EQ(HLXAnalysisDocUtils::GetAnalysisSets(sets, part, ""), E_INVALIDARG);
    EXPECT_EQ(HLXAnalysisDocUtils::GetAnalysisSets(sets, nullptr, ""), E_INVALIDARG);
    ASSERT_EQ(VEXDocumentServices::Remove(*part, 1), S_OK);
    EXPECT_EQ(HLXAnalysisDocUtils::GetAnalysisSets(sets, part, ""), E_INVALIDARG);
    EXPECT_EQ(sets.Size(), 0);
}

}  // namespace
