// SPDX-License-Identifier: Apache-2.0
// The analysis document and the way from it to manager, model and cases; the load factory.
#include "sweep/Sweep.h"

namespace hlxtest::sweep {

namespace {

long GetManager(World& w)
{
    VEXISamAnalysisManager_var manager;
    return w.test.GetAnalysisManager(manager);
}

long GetModel(World& w)
{
    VEXISamAnalysisModel_var model;
    return w.test.GetAnalysisModel(model);
}

template <bool isThere>
long FindCase(World& w)
{
    VEXUnicodeString name(isThere ? "Analysis Case.3" : "Analysis Case.4");
    VEXISamAnalysisCase_var found;
    const long result = w.test.GetSpecificAnalysisCase(name, found);
    return found ? result : S_OK;
}

template <unsigned char withElementBehavior>
long AddCase(World& w)
{
    return w.test.AddAnalysisCase(withElementBehavior, HLXIAnalysisCase::ThermalAnalysis);
}

long FindNavigateObject(World& w)
{
    VEXISamAnalysisManager_var manager;
    const long result = w.test.GetAnalysisManager(manager);
    return SUCCEEDED(result) ? w.test.InitializeNavigateObject(manager) : result;
}

const Operation operations[] = {
    {"OpenDocument", 1, &World::Nothing, [](World& w) { return w.test.OpenDocument(); }},
    {"NewDocument", 1, &World::Nothing, [](World& w) { return w.test.NewDocument(); }},
    {"SetCurrentDocument", 1, &World::Nothing,
     [](World& w) { return w.test.SetCurrentDocument(w.document.c_str()); }},
    {"GetAnalysisManager", 1, &World::Open, GetManager},
    {"GetAnalysisModel", 1, &World::Open, GetModel},
    {"InitializeAnalysisCaseFromDocument", 3, &World::Open,
     [](World& w) { return w.test.InitializeAnalysisCaseFromDocument(); }},
    {"InitializeAnalysisCaseFromDocumentWithoutCases", 0, &World::Open,
     [](World& w) { return Refused(w.test.InitializeAnalysisCaseFromDocument()); }},
    {"GetSpecificAnalysisCase", 3, &World::Open, FindCase<true>},
    {"GetSpecificAnalysisCaseThatIsNotThere", 3, &World::Open, FindCase<false>},
    {"AddAnalysisCase", 1, &World::Open, AddCase<0>},
    {"AddAnalysisCaseWithElementBehavior", 1, &World::Open, AddCase<1>},
    {"InitializeNavigateObject", 1, &World::Open, FindNavigateObject},
    {"GetChildren", 1, &World::MakeProduct,
     [](World& w) { return delete w.test.GetChildren(), 0L; }},
    {"InitializeLoadFactory", 0, &World::Nothing,
     [](World& w) { return w.test.InitializeLoadFactory(); }},
};

INSTANTIATE_TEST_SUITE_P(Model, Sweep, testing::ValuesIn(operations), NameOfRow);

}  // namespace

}  // namespace hlxtest::sweep
