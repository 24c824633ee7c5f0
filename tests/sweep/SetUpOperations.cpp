// SPDX-License-Identifier: Apache-2.0
// Setting an analysis case up: steps, amplitudes, jobs.
#include "sweep/Sweep.h"

#include "HLXAnalysisTestUtils.h"

namespace hlxtest::sweep {

namespace {

using Utils = HLXAnalysisTestUtils;

/// What a caller of CreateSteps owns, given back.
class Steps
{
public:
    ~Steps()
    {
        for (int i = 1; i <= list.Size(); ++i) {
            list[i]->Release();
        }
    }
    Steps() = default;
    Steps(const Steps&) = delete;
    Steps& operator=(const Steps&) = delete;

    VEXListPtrVEXBaseUnknown list;
};

long AddSteps(World& w)
{
    VEXListValVEXUnicodeString codes;
    for (const char* const code : {"GSS", "SPS", "none", "RS", "HTS", "EDS"}) {
        codes.Append(code);
    }
    Steps steps;
    return Utils::CreateSteps(codes, w.Case(1).Get(), steps.list);
}

long AddStep(World& w)
{
    VEXISamAnalysisSet* step = nullptr;
    const long result = w.test.CreateStep("HLXRiksStepLT", "Step", step);
    if (step != nullptr) {
        step->Release();
    }
    return result;
}

template <auto create, unsigned char option>
long AddAmplitude(World& w)
{
    VEXISpecObject_var amplitude;
    return create(w.test._Document, option, amplitude);
}

long AddOwnAmplitude(World& w)
{
    HLXITabularAmplitude* amplitude = nullptr;
    const long result = w.test.CreateTabularAmplitude(amplitude);
    if (SUCCEEDED(result) && amplitude != nullptr) {
        amplitude->Release();
    }
    return result;
}

long AddJob(World& w)
{
    VEXISamAnalysisCase_var analysisCase = w.Case(1);
    HLXIJob_var job;
    return Utils::CreateJob(w.test._Document, analysisCase, job);
}

const Operation operations[] = {
    {"CreateSteps", 1, &World::ListCases, AddSteps},
    {"CreateStep", 1, &World::ListCases, AddStep},
    {"CreateStepWithoutCases", 1, &World::Open, [](World& w) { return Refused(AddStep(w)); }},
    {"CreateTabularAmplitude", 1, &World::Open, AddAmplitude<&Utils::CreateTabularAmplitude, 0>},
    {"CreateTabularAmplitudeWithTheOption", 1, &World::Open,
     AddAmplitude<&Utils::CreateTabularAmplitude, 1>},
    {"CreateSmoothStepAmplitude", 1, &World::Open,
     AddAmplitude<&Utils::CreateSmoothStepAmplitude, 0>},
    {"CreateSmoothStepAmplitudeWithTheOption", 1, &World::Open,
     AddAmplitude<&Utils::CreateSmoothStepAmplitude, 1>},
    {"CreateAmplitudeOfTheTestCase", 1, &World::Open, AddOwnAmplitude},
    {"CreateJob", 1, &World::ListCases, AddJob},
    {"AddJobsForWritingInputFiles", 1, &World::ListCases,
     [](World& w) -> long {
         return Utils::AddJobsForWritingInputFiles(w.test._Document, w.Case(1), "Job-1");
     }},
};

INSTANTIATE_TEST_SUITE_P(SetUp, Sweep, testing::ValuesIn(operations), NameOfRow);

}  // namespace

}  // namespace hlxtest::sweep
