// SPDX-License-Identifier: Apache-2.0
// Histories of temperatures: steps and increments, and what they have of temperatures.
#include "reference/product/TemperatureHistoryFixture.h"

namespace {

using hlxtest::HistoryCount;
using hlxtest::historyCounts;
using hlxtest::infinity;
using History = HLXITemperatureHistory;

constexpr int most = std::numeric_limits<int>::max();
constexpr int least = std::numeric_limits<int>::min();

using TemperatureHistory = hlxtest::TemperatureHistoryTest;

TEST_F(TemperatureHistory, IsATemperatureOfTheSameMagnitude)
{
    for (const char* const type : {"HLXTemperatureHistoryLT", "CndHistory"}) {
        const HLXITemperatureHistory_var made = New(type);
        const HLXITemperature_var temperature = made;
        ASSERT_TRUE(temperature) << type;
        ExpectNumber([&](double value) { return made->SetUniformValue(value); },
                     [&](double& value) { return made->GetUniformValue(value); });
        double magnitude = 7;
        EXPECT_EQ(temperature->GetMagnitude(magnitude), S_OK);
        EXPECT_EQ(magnitude, -2.25);
        EXPECT_EQ(temperature->SetMagnitude(4.5), S_OK);
        EXPECT_EQ(made->GetUniformValue(magnitude), S_OK);
        EXPECT_EQ(magnitude, 4.5);
    }
    EXPECT_FALSE(HLXITemperatureHistory_var(Object("HLXTemperatureLT")));
    EXPECT_FALSE(HLXITemperatureHistory_var(Object("HLXInitialTemperatureLT")));
}

TEST_F(TemperatureHistory, HasTheFlagOfTheTemperature)
{
    const HLXITemperature_var temperature = history;
    ExpectFlag([&](unsigned char on) { return history->SetUserSubroutine(on); },
               [&](unsigned char& on) { return history->GetUserSubroutine(on); });
    unsigned char flag = 7;
    EXPECT_EQ(temperature->GetUserSubroutine(flag), S_OK);
    EXPECT_EQ(flag, 1);
    EXPECT_EQ(temperature->SetUserSubroutine(0), S_OK);
    EXPECT_EQ(history->GetUserSubroutine(flag), S_OK);
    EXPECT_EQ(flag, 0);
}

TEST_F(TemperatureHistory, CountsStepsAndIncrementsFromOne)
{
    EXPECT_EQ(Counts(history), (std::vector{1, 1, 1, 1}));
    std::vector<int> expected{1, 1, 1, 1};
    int place = 0;
    for (const HistoryCount& count : historyCounts) {
        SCOPED_TRACE(count.attribute);
        for (const int number : {most, 1, place + 3}) {
            EXPECT_EQ((history.Get()->*count.set)(number), S_OK);
            expected[static_cast<std::size_t>(place)] = number;
            EXPECT_EQ(Counts(history), expected);
        }
        for (const int number : {0, -1, least}) {
            EXPECT_EQ((history.Get()->*count.set)(number), E_INVALIDARG);
        }
        EXPECT_EQ(Counts(history), expected);
        ++place;
    }
    // They are not compared with each other nor with the steps of the job.
    EXPECT_EQ(history->SetBeginStep(99), S_OK);
    EXPECT_EQ(history->SetEndStep(2), S_OK);
    EXPECT_EQ(Counts(history), (std::vector{99, 4, 2, 6}));
}

TEST_F(TemperatureHistory, GivesStoredCountsAsTheyAre)
{
    constexpr std::int64_t wide = std::int64_t{1} << 40U;
    for (const HistoryCount& count : historyCounts) {
        SCOPED_TRACE(count.attribute);
        for (const std::int64_t stored : {std::int64_t{0}, std::int64_t{-7}, wide, -wide,
                                          std::numeric_limits<std::int64_t>::min()}) {
            ASSERT_EQ(FeatureOf(history).Set(count.attribute, stored), S_OK);
            const int found = (history.Get()->*count.get)();
            EXPECT_EQ(found > 0, stored > 0) << found;
            EXPECT_TRUE(found == stored || stored < -7 || stored == wide) << found;
            EXPECT_EQ((history.Get()->*count.set)(5), S_OK);
            EXPECT_EQ((history.Get()->*count.get)(), 5);
        }
    }
}

TEST_F(TemperatureHistory, ThatIsGoneFails)
{
    const VEXISpecObject_var job = Job(Case());
    const HLXITemperatureHistory_var deleted = New();
    for (const HLXITemperatureHistory_var& any : {history, deleted}) {
        ASSERT_EQ(any->SetJob(job, 0), S_OK);
        ASSERT_EQ(any->SetUniformValue(3), S_OK);
        ASSERT_EQ(any->SetUserSubroutine(1), S_OK);
        ASSERT_EQ(any->SetEndStep(3), S_OK);
    }
    Delete(deleted);
    const auto expectGone = [&](const HLXITemperatureHistory_var& gone) {
        double value = 7;
        unsigned char flag = 7;
        VEXISpecObject_var found = job;
        EXPECT_EQ(gone->SetUniformValue(1), E_FAIL);
        EXPECT_EQ(gone->SetUniformValue(infinity), E_FAIL);
        EXPECT_EQ(gone->GetUniformValue(value), E_FAIL);
        EXPECT_EQ(value, 0);
        EXPECT_EQ(gone->SetUserSubroutine(1), E_FAIL);
        EXPECT_EQ(gone->GetUserSubroutine(flag), E_FAIL);
        EXPECT_EQ(flag, 7) << "left as it is";
        for (const HistoryCount& count : historyCounts) {
            EXPECT_EQ((gone.Get()->*count.set)(1), E_FAIL);
            EXPECT_EQ((gone.Get()->*count.set)(0), E_FAIL);
        }
        EXPECT_EQ(Counts(gone), (std::vector{0, 0, 0, 0}));
        EXPECT_EQ(gone->SetJob(job, 0), E_FAIL);
        EXPECT_EQ(gone->SetJob({}, 1), E_FAIL);
        EXPECT_EQ(gone->GetJob(found), E_FAIL);
        EXPECT_FALSE(found);
        found = job;
        EXPECT_EQ(gone->GetAnalysisCase(found), E_FAIL);
        EXPECT_FALSE(found);
    };
    expectGone(deleted);
    RemoveAnalysis();
    expectGone(history);
    expectGone(deleted);
}

TEST_F(TemperatureHistory, IsStored)
{
    const VEXISpecObject_var job = Job(Case());
    ASSERT_EQ(history->SetJob(job, 0), S_OK);
    ASSERT_EQ(history->SetUniformValue(0.1), S_OK);
    ASSERT_EQ(history->SetUserSubroutine(1), S_OK);
    int number = 2;
    for (const HistoryCount& count : historyCounts) {
        ASSERT_EQ((history.Get()->*count.set)(number++), S_OK);
    }
    const vex::FeatureId ofJob = FeatureOf(job).Id();
    const vex::FeatureId ofCase = analysisCase->Id();
    const vex::FeatureId ofStep = step->Id();
    const vex::Feature& feature = Reopened(FeatureOf(history).Id());
    step = feature.Tree()->Find(ofStep);
    const auto opened = vex::FaceOf<History>(&feature);
    EXPECT_EQ(Counts(opened), (std::vector{2, 3, 4, 5}));
    ExpectJob(opened, vex::FaceOf<VEXISpecObject>(feature.Tree()->Find(ofJob)),
              vex::FaceOf<VEXISpecObject>(feature.Tree()->Find(ofCase)));
    double value = 7;
    unsigned char flag = 7;
    EXPECT_EQ(opened->GetUniformValue(value), S_OK);
    EXPECT_EQ(value, 0.1);
    EXPECT_EQ(opened->GetUserSubroutine(flag), S_OK);
    EXPECT_EQ(flag, 1);
}

}  // namespace
