// SPDX-License-Identifier: Apache-2.0
// A new analysis document and the ways through it, as a program goes them.
#pragma once

#include "HLXProductUtilities.h"
#include "host/analysis/AnalysisObjects.h"
#include "product/steps/StepBuilder.h"
#include "support/AnalysisDocuments.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace hlxtest {

inline std::string AliasOf(const VEXBaseUnknown_var& object)
{
    const VEXIAlias_var alias(object);
    return alias == nullptr ? "(none)" : std::string(alias->GetAlias().View());
}

inline std::vector<std::string> AliasesOf(const VEXListValVEXBaseUnknown_var& list)
{
    std::vector<std::string> aliases;
    for (int i = 1; i <= list.Size(); ++i) {
        aliases.push_back(AliasOf(list[i]));
    }
    return aliases;
}

inline std::string TypeOf(const VEXBaseUnknown_var& object)
{
    const VEXISpecObject_var feature(object);
    return feature == nullptr ? "(none)" : std::string(feature->GetType().View());
}

inline std::vector<std::string> TypesOf(const VEXListValVEXBaseUnknown_var& list)
{
    std::vector<std::string> types;
    for (int i = 1; i <= list.Size(); ++i) {
        types.push_back(TypeOf(list[i]));
    }
    return types;
}

class AnalysisTest : public testing::Test
{
protected:
    explicit AnalysisTest(int cases = 0) : document(cases) {}

    VEXISamAnalysisManager_var Manager()
    {
        VEXISamAnalysisManager_var manager;
        EXPECT_EQ(HLXAnalysisDocUtils::GetAnalysisManager(manager, document.Get()), S_OK);
        return manager;
    }

    VEXISamAnalysisModel_var Model()
    {
        VEXISamAnalysisModel* model = nullptr;
        EXPECT_EQ(Manager()->GetCurrentAnalysisModel(model), S_OK);
        return VEXAdopt(model);
    }

    VEXListValVEXBaseUnknown_var Cases()
    {
        VEXListValVEXBaseUnknown_var cases;
        EXPECT_EQ(Model()->GetAnalysisCases(cases), S_OK);
        return cases;
    }

    VEXISamAnalysisCase_var Case(int index) { return VEXISamAnalysisCase_var(Cases()[index]); }

    static vex::Feature& FeatureOf(const VEXBaseUnknown_var& object)
    {
        return *vex::FeatureBehind(object.Get());
    }

    vex::Feature& AddStep(int caseIndex, const char* lateType, const char* name)
    {
        std::string error;
        vex::Feature* const step = hlx::AddStep(FeatureOf(Case(caseIndex)), lateType, name, error);
        EXPECT_NE(step, nullptr) << error;
        return *step;
    }

    AnalysisDocument document;
};

}  // namespace hlxtest
