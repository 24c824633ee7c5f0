// SPDX-License-Identifier: Apache-2.0
// Reports on parameters of features made in a step.
#include "sweep/Sweep.h"

#include "HLXAmplitudes.h"
#include "HLXAnalysisTestUtils.h"
#include "HLXBoundaryConditions.h"
#include "HLXILoadFact.h"
#include "HLXJobs.h"
#include "HLXLoads.h"
#include "HLXProductUtilities.h"
#include "HLXTemperatures.h"
#include "VEXComponents.h"

namespace hlxtest::sweep {

namespace {

using Utils = HLXAnalysisTestUtils;
using Report = HRESULT (*)(VEXISpecObject_var, VEXUnicodeString);

/// Empty when the platform does not give it.
template <class Factory>
VEXVar<Factory> FactoryOf(const char* name)
{
    void* object = nullptr;
    return SUCCEEDED(VEXInstantiateComponent(name, VEXInterfaceTraits<Factory>::Id, &object))
               ? VEXAdopt(static_cast<Factory*>(object))
               : VEXVar<Factory>();
}

/// A feature with an amplitude as far as the platform gives them, and the report on it.
template <class Factory, class Creation>
long MakeAndReport(World& w, const char* factoryName, Creation create, Report report)
{
    VEXISpecObject_var feature;
    VEXISamAnalysisSet_var step = w.step;
    if (const auto factory = FactoryOf<Factory>(factoryName)) {
        create(*factory.Get(), feature, w.test._Document, step);
    }
    VEXISpecObject_var amplitude;
    if (const auto factory = FactoryOf<HLXIAmplitudeFact>("HLXAmplitudeFact")) {
        factory->CreateTabularAmplitude(amplitude, w.test._Document);
    }
    if (const VEXIAlias_var alias = amplitude) {
        alias->SetAlias("Ramp");
    }
    if (const HLXICondition_var condition = feature) {
        condition->SetAmplitude(amplitude);
    }
    if (const HLXIFilmCondition_var film = feature) {
        film->SetFilmAmplitude(amplitude);
    }
    return report(feature, w.Output("report.txt"));
}

using LoadCreation = HRESULT (HLXILoadFact::*)(VEXISpecObject_var&, VEXDocument*,
                                               VEXISamAnalysisSet_var&);

long ReportLoad(World& w, LoadCreation create, Report report)
{
    return MakeAndReport<HLXILoadFact>(
        w, "HLXLoadFact",
        [&](HLXILoadFact& factory, VEXISpecObject_var& load, VEXDocument* document,
            VEXISamAnalysisSet_var& step) { (factory.*create)(load, document, step); },
        report);
}

long ReportHeatFlux(World& w)
{
    return MakeAndReport<HLXILoadFact>(
        w, "HLXLoadFact",
        [](HLXILoadFact& factory, VEXISpecObject_var& flux, VEXDocument* document,
           VEXISamAnalysisSet_var& step) {
            factory.CreateHeatFlux(flux, "HLXConcHeatFlux", document, step);
        },
        &Utils::DumpConcHeatFluxParams);
}

long ReportDisplacement(World& w)
{
    return MakeAndReport<HLXIBoundaryConditionsFact>(
        w, "HLXBoundaryConditionsFact",
        [](HLXIBoundaryConditionsFact& factory, VEXISpecObject_var& condition,
           VEXDocument* document,
           VEXISamAnalysisSet_var& step) { factory.CreateDisplacement(condition, document, step); },
        &Utils::DumpDispBCParams);
}

/// A job of the first analysis case; empty when the platform does not give it.
VEXISpecObject_var Job(World& w)
{
    VEXListValVEXBaseUnknown_var cases;
    HLXAnalysisDocUtils::GetAllAnalysisCases(cases, w.test._Document);
    VEXListValVEXBaseUnknown_var containers;
    if (const VEXISamAnalysisScan_var scan = cases[1]) {
        scan->GetChildren("HLXJobContainerLT", containers, 3);
    }
    HLXIJob_var job;
    if (const HLXIJobFactory_var factory = containers[1]) {
        factory->CreateJob(w.test._Document, job);
    }
    if (job) {
        job->SetAnalysisCase(cases[1]);
    }
    return job;
}

/// @param distribution  where a temperature comes from
long ReportTemperature(World& w, const char* lateType, int distribution, Report report)
{
    return MakeAndReport<HLXITemperatureFact>(
        w, "HLXTemperatureFact",
        [&](HLXITemperatureFact& factory, VEXISpecObject_var& made, VEXDocument* document,
            VEXISamAnalysisSet_var& step) {
            factory.CreateTemperature(made, lateType, document, step);
            if (const HLXITemperature_var temperature = made) {
                temperature->SetDistribution(distribution);
            }
            if (const HLXITemperatureHistory_var history = made) {
                history->SetJob(distribution == 1 ? Job(w) : VEXISpecObject_var(), 0);
            }
        },
        report);
}

long ReportHistory(World& w, int distribution)
{
    return ReportTemperature(w, "HLXTemperatureHistoryLT", distribution,
                             &Utils::DumpTempHistParams);
}

const Operation operations[] = {
    {"DumpPressureParams", 1, &World::FindStep,
     [](World& w) {
         return ReportLoad(w, &HLXILoadFact::CreatePressure, &Utils::DumpPressureParams);
     }},
    {"DumpGravityParams", 1, &World::FindStep,
     [](World& w) {
         return ReportLoad(w, &HLXILoadFact::CreateGravity, &Utils::DumpGravityParams);
     }},
    {"DumpRBFParams", 1, &World::FindStep,
     [](World& w) {
         return ReportLoad(w, &HLXILoadFact::CreateRotationalBodyForce, &Utils::DumpRBFParams);
     }},
    {"DumpConcForceParams", 1, &World::FindStep,
     [](World& w) {
         return ReportLoad(w, &HLXILoadFact::CreateConcentratedForce, &Utils::DumpConcForceParams);
     }},
    {"DumpConcHeatFluxParams", 1, &World::FindStep, ReportHeatFlux},
    {"DumpFilmConditionParams", 1, &World::FindStep,
     [](World& w) {
         return ReportLoad(w, &HLXILoadFact::CreateFilmCondition, &Utils::DumpFilmConditionParams);
     }},
    {"DumpDispBCParams", 1, &World::FindStep, ReportDisplacement},
    {"DumpTempBCParams", 1, &World::FindStep,
     [](World& w) {
         return ReportTemperature(w, "HLXTemperatureLT", 0, &Utils::DumpTempBCParams);
     }},
    {"DumpTempHistParamsOfAUniformOne", 1, &World::FindStep,
     [](World& w) { return ReportHistory(w, 0); }},
    {"DumpTempHistParamsOfAJob", 1, &World::FindStep, [](World& w) { return ReportHistory(w, 1); }},
    {"DumpTempHistParamsOfTheUsers", 1, &World::FindStep,
     [](World& w) { return ReportHistory(w, 2); }},
    {"DumpGravityParamsOfAPressure", 1, &World::FindStep,
     [](World& w) {
         return Refused(ReportLoad(w, &HLXILoadFact::CreatePressure, &Utils::DumpGravityParams));
     }},
};

INSTANTIATE_TEST_SUITE_P(Reports, Sweep, testing::ValuesIn(operations), NameOfRow);

}  // namespace

}  // namespace hlxtest::sweep
