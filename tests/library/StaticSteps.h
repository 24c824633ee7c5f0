// SPDX-License-Identifier: Apache-2.0
// Steps of analysis cases, and features below them.
#pragma once

#include "VEXAnalysisModel.h"
#include "host/feature/Feature.h"
#include "library/StaticNavigation.h"
#include "product/steps/StepBuilder.h"

namespace hlxtest::statics {

class StaticSteps : public StaticNavigation
{
protected:
    VEXISpecObject_var AddStep(int caseIndex, const char* lateType, const char* name)
    {
        VEXListValVEXBaseUnknown_var cases;
        EXPECT_EQ(HLXAnalysisDocUtils::GetAllAnalysisCases(cases, analysis.Get()), S_OK);
        std::string error;
        vex::Feature* const made = hlx::AddStep(
            dynamic_cast<vex::Feature&>(*cases[caseIndex]->GetImpl()), lateType, name, error);
        EXPECT_NE(made, nullptr) << error;
        return VEXShare<VEXBaseUnknown>(made);
    }

    /// Makes a feature at the end of `father`.
    VEXISpecObject_var Add(const VEXISpecObject_var& father, const char* lateType,
                           const char* name = "")
    {
        const VEXISamAccess_var access = VEXShare<VEXBaseUnknown>(analysis.Get());
        VEXIContainer* container = nullptr;
        EXPECT_EQ(access->GetSpecContainer(container), S_OK);
        const VEXISamAnalysisModelFactory_var factory = VEXAdopt(container);
        const auto made = VEXAdopt(factory->CreateFeature(lateType, name, father.Get()));
        EXPECT_TRUE(made) << lateType;
        return made;
    }

    static std::string AliasOf(const VEXBaseUnknown_var& feature)
    {
        const VEXIAlias_var alias = feature;
        return alias ? std::string(alias->GetAlias().View()) : "(none)";
    }

    /// The first model of the document.
    VEXISpecObject_var Model()
    {
        VEXListValVEXBaseUnknown_var models;
        EXPECT_EQ(Manager()->GetAllAnalysisModels(models), S_OK);
        return models[1];
    }

    /// The features of a late type at any depth below `object`.
    static VEXListValVEXBaseUnknown_var Below(const VEXISpecObject_var& object,
                                              const char* lateType)
    {
        VEXListValVEXBaseUnknown_var found;
        EXPECT_EQ(VEXISamAnalysisScan_var(object)->GetChildren(lateType, found, 1000), S_OK);
        return found;
    }
};

}  // namespace hlxtest::statics
