// SPDX-License-Identifier: Apache-2.0
// The job of a history of temperatures, and the analysis case of that.
#include "reference/product/TemperatureHistoryFixture.h"

namespace {

using History = HLXITemperatureHistory;

constexpr int most = std::numeric_limits<int>::max();
constexpr int least = std::numeric_limits<int>::min();

using TemperatureHistoryJob = hlxtest::TemperatureHistoryTest;

TEST_F(TemperatureHistoryJob, HasAJobOfItsDocumentAndTheCaseOfThat)
{
    ExpectJob(history, {}, {});
    const VEXISpecObject_var job = Job(Case());
    const VEXISpecObject_var other = Job();
    const VEXISpecObject_var foreign = Job(Case(), "CndJob");
    const VEXISpecObject_var second =
        vex::FaceOf<VEXISpecObject>(&Make("HLXHacAnalysisCaseLT", *model));
    EXPECT_EQ(history->SetJob(job, 0), S_OK);
    ExpectJob(history, job, Case());
    EXPECT_EQ(history->SetJob(other, 0), S_OK);
    ExpectJob(history, other, {});
    EXPECT_EQ(HLXIJob_var(other)->SetAnalysisCase(second), S_OK);
    ExpectJob(history, other, second);
    EXPECT_EQ(history->SetJob(foreign, 0), S_OK);
    ExpectJob(history, foreign, Case());
    EXPECT_EQ(history->SetJob({}, 0), S_OK);
    ExpectJob(history, {}, {});
}

TEST_F(TemperatureHistoryJob, RefusesOtherObjectsAndOptions)
{
    const VEXISpecObject_var job = Job(Case());
    ASSERT_EQ(history->SetJob(job, 0), S_OK);
    hlxtest::AnalysisDocument elsewhere(1);
    const VEXISpecObject_var foreign =
        vex::FaceOf<VEXISpecObject>(&Make("HLXJobLT", *Inside(*elsewhere.Get()).SpecContainer()));
    const VEXISpecObject_var gone = Job();
    Delete(gone);
    for (const VEXISpecObject_var& wrong :
         {foreign, gone, Case(), VEXISpecObject_var(history), vex::FaceOf<VEXISpecObject>(step),
          vex::FaceOf<VEXISpecObject>(vex::FirstChildOfType(*analysisCase, "HLXJobContainerLT"))}) {
        EXPECT_EQ(history->SetJob(wrong, 0), E_INVALIDARG);
        ExpectJob(history, job, Case());
    }
    for (const int option : {1, -1, most, least}) {
        EXPECT_EQ(history->SetJob(Job(), option), E_INVALIDARG) << option;
        EXPECT_EQ(history->SetJob({}, option), E_INVALIDARG) << option;
    }
    ExpectJob(history, job, Case());
}

TEST_F(TemperatureHistoryJob, HasNoneOnceTheJobOrItsCaseIsDeleted)
{
    vex::Feature& second = Make("HLXHacAnalysisCaseLT", *model);
    const VEXISpecObject_var job = Job(vex::FaceOf<VEXISpecObject>(&second));
    ASSERT_EQ(history->SetJob(job, 0), S_OK);
    second.Tree()->Delete(second);
    ExpectJob(history, job, {});
    EXPECT_EQ(HLXIJob_var(job)->SetAnalysisCase(Case()), S_OK);
    ExpectJob(history, job, Case());
    Delete(job);
    ExpectJob(history, {}, {});
    const vex::FeatureId later = FeatureOf(Job(Case())).Id();
    ExpectJob(history, {}, {});
    // Nor does the next job get the reference once the document was stored.
    const vex::FeatureId ofStep = step->Id();
    const vex::Feature& opened = Reopened(FeatureOf(history).Id());
    step = opened.Tree()->Find(ofStep);
    ExpectJob(vex::FaceOf<History>(&opened), {}, {});
    EXPECT_NE(opened.Tree()->Find(later), nullptr);
}

TEST_F(TemperatureHistoryJob, HasNoneWhereSomethingElseIsStored)
{
    vex::Feature& feature = FeatureOf(history);
    vex::Feature* const container = vex::FirstChildOfType(*analysisCase, "HLXJobContainerLT");
    for (const vex::Feature* const wrong : {analysisCase, &feature, step, model, container}) {
        ASSERT_EQ(feature.Set("Job", vex::Reference{wrong->Id()}), S_OK);
        ExpectJob(history, {}, {});
    }
    const VEXISpecObject_var job = Job();
    ASSERT_EQ(history->SetJob(job, 0), S_OK);
    for (const vex::Feature* const wrong : {step, &feature, &FeatureOf(job)}) {
        ASSERT_EQ(FeatureOf(job).Set("AnalysisCase", vex::Reference{wrong->Id()}), S_OK);
        ExpectJob(history, job, {});
    }
}

TEST_F(TemperatureHistoryJob, HoldsNeitherJobNorCase)
{
    const VEXISpecObject_var job = Job(Case());
    const unsigned long ofJob = hlxtest::References(FeatureOf(job));
    const unsigned long ofCase = hlxtest::References(*analysisCase);
    ASSERT_EQ(history->SetJob(job, 0), S_OK);
    ExpectJob(history, job, Case());
    EXPECT_EQ(hlxtest::References(FeatureOf(job)), ofJob);
    EXPECT_EQ(hlxtest::References(*analysisCase), ofCase);
}

}  // namespace
