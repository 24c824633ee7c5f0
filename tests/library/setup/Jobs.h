// SPDX-License-Identifier: Apache-2.0
// Making one job.
#pragma once

#include "library/AnalysisSetUp.h"

namespace hlxtest::statics {

/// The calls of the platform that make a job, and how AnalysisSetUp::JobsOf tells of it.
namespace jobcalls {

inline constexpr const char* toScan = "cast:HLXHacAnalysisCaseLT->VEXISamAnalysisScan(&)";
inline constexpr const char* search =
    "VEXISamAnalysisScan::GetChildren(\"HLXJobContainerLT\", &, 3)";
inline constexpr const char* toFactory = "cast:HLXJobContainerLT->HLXIJobFactory(&)";
inline constexpr const char* creation = "HLXIJobFactory::CreateJob(VEXAnalysisDocument, &)";
inline constexpr const char* toFeature = "cast:HLXHacAnalysisCaseLT->VEXISpecObject(&)";
inline constexpr const char* setting = "HLXIJob::SetAnalysisCase(HLXHacAnalysisCaseLT)";

inline constexpr const char* jobOfTheCase = ", each part of Analysis Case.1";
inline constexpr const char* jobOfNoCase = ", each part of (none)";

}  // namespace jobcalls

class JobTest : public AnalysisSetUp
{
protected:
    HRESULT CreateUnseen() { return HLXAnalysisTestUtils::CreateJob(document, analysisCase, job); }
    Outcome Create(std::string_view faults = "")
    {
        return RunWith(faults, [&] { return CreateUnseen(); });
    }

    VEXDocument* document = analysis.Get();
    VEXISamAnalysisCase_var analysisCase = Case(1);
    HLXIJob_var job;
};

}  // namespace hlxtest::statics
