// SPDX-License-Identifier: Apache-2.0
// Making the two jobs of tests that write input files.
#pragma once

#include "VEXError.h"
#include "library/AnalysisSetUp.h"

namespace hlxtest::statics {

inline constexpr const char* errorSource = "HLXTestUtilities.m/src/HLXAnalysisTestUtils";

inline const Lines bothJobs = {"Job-1, each part of Analysis Case.1",
                               "Job-1_SinglePart, one part of Analysis Case.1"};

/// What was told to the error service, as "status, source, line".
inline Lines Told()
{
    Lines lines;
    for (const vex::probe::ErrorRecord& record : vex::probe::ErrorRecords()) {
        lines.push_back(std::to_string(record.status) + ", " + record.source + ", " +
                        std::to_string(record.line));
    }
    return lines;
}

/// What is told of an exit at that line.
inline Lines ToldOfExit(int status, int line)
{
    const std::string from = std::string(", ") + errorSource + ", ";
    return {"1" + from + "3725", std::to_string(status) + from + std::to_string(line)};
}

class JobPairTest : public AnalysisSetUp
{
protected:
    JobPairTest() { vex::probe::ClearErrorRecords(); }
    ~JobPairTest() override { VEXError::GetReturn(0, nullptr, nullptr, nullptr, 0); }

    HRESULT CreateUnseen(const char* name = "Job-1")
    {
        return HLXAnalysisTestUtils::AddJobsForWritingInputFiles(document, analysisCase, name);
    }
    Outcome Create(const char* name = "Job-1", std::string_view faults = "")
    {
        vex::probe::ClearErrorRecords();
        return RunWith(faults, [&] { return CreateUnseen(name); });
    }

    VEXDocument* document = analysis.Get();
    VEXISamAnalysisCase_var analysisCase = Case(1);
};

}  // namespace hlxtest::statics
