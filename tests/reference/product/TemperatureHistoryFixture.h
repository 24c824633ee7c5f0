// SPDX-License-Identifier: Apache-2.0
// A history of temperatures, and jobs that it can be of.
#pragma once

#include "HLXJobs.h"
#include "reference/product/ConditionFixture.h"

namespace hlxtest {

/// One of the numbers of steps and increments.
struct HistoryCount
{
    const char* attribute;
    HRESULT (HLXITemperatureHistory::*set)(const int&);
    int (HLXITemperatureHistory::*get)() const;
};

inline constexpr HistoryCount historyCounts[] = {
    {"BeginStep", &HLXITemperatureHistory::SetBeginStep, &HLXITemperatureHistory::GetBeginStep},
    {"StartIncrement", &HLXITemperatureHistory::SetStartIncrement,
     &HLXITemperatureHistory::GetStartIncrement},
    {"EndStep", &HLXITemperatureHistory::SetEndStep, &HLXITemperatureHistory::GetEndStep},
    {"EndIncrement", &HLXITemperatureHistory::SetEndIncrement,
     &HLXITemperatureHistory::GetEndIncrement},
};

class TemperatureHistoryTest : public ConditionTest
{
protected:
    HLXITemperatureHistory_var New(const char* lateType = "HLXTemperatureHistoryLT")
    {
        return vex::FaceOf<HLXITemperatureHistory>(
            &Make(lateType, *vex::FirstChildOfType(*step, "HLXTemperatureContainerLT")));
    }

    /// A job of an analysis case.
    VEXISpecObject_var Job(const VEXISpecObject_var& of = {}, const char* lateType = "HLXJobLT")
    {
        const VEXISpecObject_var job = vex::FaceOf<VEXISpecObject>(
            &Make(lateType, *vex::FirstChildOfType(*analysisCase, "HLXJobContainerLT")));
        EXPECT_EQ(HLXIJob_var(job)->SetAnalysisCase(of), S_OK);
        return job;
    }

    VEXISpecObject_var Case() const { return vex::FaceOf<VEXISpecObject>(analysisCase); }

    static std::vector<int> Counts(const HLXITemperatureHistory_var& of)
    {
        std::vector<int> found;
        for (const HistoryCount& count : historyCounts) {
            found.push_back((of.Get()->*count.get)());
        }
        return found;
    }

    /// What the history gives for its job and its case; empty handles where it gives none.
    void ExpectJob(const HLXITemperatureHistory_var& of, const VEXISpecObject_var& job,
                   const VEXISpecObject_var& itsCase)
    {
        VEXISpecObject_var found = vex::FaceOf<VEXISpecObject>(step);
        EXPECT_EQ(of->GetJob(found), S_OK);
        EXPECT_EQ(found, job);
        found = vex::FaceOf<VEXISpecObject>(step);
        EXPECT_EQ(of->GetAnalysisCase(found), S_OK);
        EXPECT_EQ(found, itsCase);
    }

    static void Delete(const VEXISpecObject_var& object)
    {
        FeatureOf(object).Tree()->Delete(FeatureOf(object));
    }

    HLXITemperatureHistory_var history = New();
};

}  // namespace hlxtest
