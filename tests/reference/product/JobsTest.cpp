// SPDX-License-Identifier: Apache-2.0
// Jobs: their factory, what they hold, and those of given cases.
#include "reference/analysis/EntityFixture.h"

#include "HLXJobs.h"
#include "HLXProductUtilities.h"

namespace {

using testing::ElementsAre;

class Jobs : public hlxtest::EntityTest
{
protected:
    Jobs() { container = vex::FirstChildOfType(*analysisCase, "HLXJobContainerLT"); }

    HLXIJob_var Make(const vex::Feature& in, const char* alias = "")
    {
        HLXIJob_var job;
        EXPECT_EQ(vex::FaceOf<HLXIJobFactory>(&in)->CreateJob(analysis.Get(), job), S_OK);
        EXPECT_EQ(FeatureOf(job).SetAlias(alias), S_OK);
        return job;
    }

    HLXIJob_var Make() { return Make(*container); }

    /// The second case of the model, and its container.
    vex::Feature& AddCase()
    {
        vex::Feature& added = EntityTest::Make("HLXHacAnalysisCaseLT", *model);
        EntityTest::Make("HLXJobContainerLT", added);
        return added;
    }

    static std::vector<std::string> Names(const VEXListValVEXBaseUnknown_var& jobs)
    {
        std::vector<std::string> names;
        for (int i = 1; i <= jobs.Size(); ++i) {
            names.emplace_back(FeatureOf(jobs[i]).Alias());
        }
        return names;
    }

    static VEXBaseUnknown_var Handle(vex::Feature& feature) { return vex::HandleOf(&feature); }

    vex::Feature* container = nullptr;
};

TEST_F(Jobs, AreMadeAtTheEndOfTheirContainer)
{
    for (int count = 1; count <= 3; ++count) {
        HLXIJob_var job;
        ASSERT_EQ(vex::FaceOf<HLXIJobFactory>(container)->CreateJob(analysis.Get(), job), S_OK);
        const vex::Feature& feature = FeatureOf(job);
        EXPECT_STREQ(feature.IsA(), "HLXJobLT");
        EXPECT_EQ(feature.Parent(), container);
        EXPECT_EQ(feature.NextSibling(), nullptr);
        EXPECT_FALSE(feature.HasAlias());
        EXPECT_EQ(hlxtest::References(feature), 1U);
        VEXISpecObject_var analysisOfJob = vex::FaceOf<VEXISpecObject>(step);
        EXPECT_EQ(job->GetAnalysisCase(analysisOfJob), S_OK);
        EXPECT_FALSE(analysisOfJob);
    }
}

TEST_F(Jobs, AreNotMadeForAnotherDocument)
{
    const HLXIJob_var given = Make();
    HLXIJob_var job = given;
    const auto factory = vex::FaceOf<HLXIJobFactory>(container);
    hlxtest::AnalysisDocument other(1);
    EXPECT_EQ(factory->CreateJob(nullptr, job), E_INVALIDARG);
    EXPECT_EQ(factory->CreateJob(other.Get(), job), E_INVALIDARG);
    EXPECT_EQ(container->Children().size(), 1U);
    VEXDocument* const stale = analysis.Get();
    RemoveAnalysis();
    EXPECT_EQ(factory->CreateJob(stale, job), E_FAIL);
    EXPECT_EQ(job, given);
}

TEST_F(Jobs, HoldAFlag)
{
    const HLXIJob_var job = Make();
    unsigned char flag = 7;
    EXPECT_EQ(job->GetSinglePart(flag), S_OK);
    EXPECT_EQ(flag, 0);
    const unsigned char flags[] = {1, 0, 255, 2};
    for (const unsigned char given : flags) {
        EXPECT_EQ(job->SetSinglePart(given), S_OK);
        EXPECT_EQ(job->GetSinglePart(flag), S_OK);
        EXPECT_EQ(flag, given == 0 ? 0 : 1);
    }
}

TEST_F(Jobs, HoldACaseOfTheirDocument)
{
    const HLXIJob_var job = Make();
    VEXISpecObject_var found;
    const VEXISpecObject_var wanted = vex::FaceOf<VEXISpecObject>(&AddCase());
    EXPECT_EQ(job->SetAnalysisCase(wanted), S_OK);
    hlxtest::AnalysisDocument other(1);
    const vex::Feature* const foreign =
        vex::FirstChildOfType(*vex::AnalysisManagerOf(Inside(*other.Get()))->Target("CurrentModel"),
                              "HLXHacAnalysisCaseLT");
    for (const vex::Feature* const object : {foreign, static_cast<const vex::Feature*>(step)}) {
        EXPECT_EQ(job->SetAnalysisCase(vex::FaceOf<VEXISpecObject>(object)), E_INVALIDARG);
        EXPECT_EQ(job->GetAnalysisCase(found), S_OK);
        EXPECT_EQ(found, wanted);
    }
    EXPECT_EQ(job->SetAnalysisCase(nullptr), S_OK);
    EXPECT_EQ(job->GetAnalysisCase(found), S_OK);
    EXPECT_FALSE(found);
}

TEST_F(Jobs, HoldFolders)
{
    const HLXIJob_var job = Make();
    VEXUnicodeString results("x");
    VEXUnicodeString scratch("x");
    EXPECT_EQ(job->GetResultsDirectory(results), S_OK);
    EXPECT_TRUE(results.IsEmpty());
    EXPECT_EQ(job->SetResultsDirectory("/no such/größer\n"), S_OK);
    EXPECT_EQ(job->SetScratchDirectory("other"), S_OK);
    EXPECT_EQ(job->SetResultsDirectory("\xff"), E_INVALIDARG);
    EXPECT_EQ(job->SetScratchDirectory("\xed\xa0\x80"), E_INVALIDARG);
    EXPECT_EQ(job->GetResultsDirectory(results), S_OK);
    EXPECT_EQ(job->GetScratchDirectory(scratch), S_OK);
    EXPECT_EQ(results, "/no such/größer\n");
    EXPECT_EQ(scratch, "other");
}

TEST_F(Jobs, ThatAreGoneFail)
{
    const HLXIJob_var job = Make();
    ASSERT_EQ(job->SetSinglePart(1), S_OK);
    ASSERT_EQ(job->SetResultsDirectory("a"), S_OK);
    VEXISpecObject_var found = vex::FaceOf<VEXISpecObject>(step);
    RemoveAnalysis();
    unsigned char flag = 7;
    VEXUnicodeString text("x");
    EXPECT_EQ(job->SetSinglePart(0), E_FAIL);
    EXPECT_EQ(job->GetSinglePart(flag), E_FAIL);
    EXPECT_EQ(flag, 7) << "left as it is";
    EXPECT_EQ(job->SetAnalysisCase(nullptr), E_FAIL);
    EXPECT_EQ(job->GetAnalysisCase(found), E_FAIL);
    EXPECT_FALSE(found);
    EXPECT_EQ(job->SetResultsDirectory("\xff"), E_FAIL);
    EXPECT_EQ(job->SetScratchDirectory("a"), E_FAIL);
    EXPECT_EQ(job->GetResultsDirectory(text), E_FAIL);
    EXPECT_TRUE(text.IsEmpty());
    EXPECT_EQ(job->GetScratchDirectory(text), E_FAIL);
}

TEST_F(Jobs, AreFoundCaseByCase)
{
    vex::Feature& second = AddCase();
    Make(*container, "Job-1");
    Make(*container, "Job-2");
    Make(*vex::FirstChildOfType(second, "HLXJobContainerLT"), "Job-3");
    EntityTest::Make("HLXPressure", *container);
    VEXListValVEXBaseUnknown_var cases;
    VEXListValVEXBaseUnknown_var jobs;
    EXPECT_EQ(HLXAnalysisDocUtils::GetJobs(cases, jobs), S_OK);
    EXPECT_EQ(jobs.Size(), 0);
    cases.Append(Handle(second));
    cases.Append(Handle(*analysisCase));
    cases.Append(Handle(EntityTest::Make("HLXHacAnalysisCaseLT", *model)));
    EXPECT_EQ(HLXAnalysisDocUtils::GetJobs(cases, jobs), S_OK);
    EXPECT_THAT(Names(jobs), ElementsAre("Job-3", "Job-1", "Job-2"));
    EXPECT_EQ(HLXAnalysisDocUtils::GetJobs(cases, cases), S_OK);
    EXPECT_EQ(cases.Size(), 6);
}

TEST_F(Jobs, OfWhatIsNoCaseAreNotLookedFor)
{
    Make(*container, "Job-1");
    const VEXBaseUnknown_var gone = Handle(AddCase());
    FeatureOf(gone).Tree()->Delete(FeatureOf(gone));
    for (const VEXBaseUnknown_var& other : {VEXBaseUnknown_var(), Handle(*step), gone}) {
        VEXListValVEXBaseUnknown_var cases;
        VEXListValVEXBaseUnknown_var jobs;
        cases.Append(Handle(*analysisCase));
        cases.Append(other);
        EXPECT_EQ(HLXAnalysisDocUtils::GetJobs(cases, jobs), E_INVALIDARG);
        EXPECT_EQ(jobs.Size(), 0);
    }
}

}  // namespace
