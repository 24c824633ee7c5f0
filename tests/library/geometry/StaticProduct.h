// SPDX-License-Identifier: Apache-2.0
// The way from an analysis document to its product and model, what it prints, and where it should
// lead.
#pragma once

#include "library/StaticNavigation.h"

namespace hlxtest::statics {

inline constexpr const char* noAccess = "**********ERROR in getting the FEM\n";
inline constexpr const char* noFeatures =
    "**********ERROR in getting the Sp"
    "ec Container\n";
inline constexpr const char* noContainer = "**********ERROR in getting the Analysis Container\n";
inline constexpr const char* noManager = "**********ERROR in getting the Analysis Manager\n";
inline constexpr const char* noModels = "***ERROR No analysis models found.\n";
inline constexpr const char* noLinks = "VEXAnalysis Document has no linked geometry!\n";
inline constexpr const char* noRoots = "Could not get Root documents\n";
inline constexpr const char* noProduct = "Could not find a Product inside the document\n";

class StaticProductTest : public StaticNavigation
{
protected:
    Outcome Find(std::string_view faults = "")
    {
        return RunWith(faults, [&] {
            return HLXAnalysisTestUtils::GetProductDocFromAnalysisDoc(analysis.Get(), product,
                                                                      model);
        });
    }

    /// As Find, with results that nobody keeps.
    void FindAndForget()
    {
        VEXIProduct_var forgottenProduct;
        VEXISamAnalysisModel_var forgottenModel;
        HLXAnalysisTestUtils::GetProductDocFromAnalysisDoc(analysis.Get(), forgottenProduct,
                                                           forgottenModel);
    }

    VEXBaseUnknown_var ModelAt(int index)
    {
        VEXListValVEXBaseUnknown_var models;
        EXPECT_EQ(Manager()->GetAllAnalysisModels(models), S_OK);
        return models[index];
    }

    void LetGoOfAll(VEXDocument* linked)
    {
        product.Reset();
        model.Reset();
        LetGo(RootOf(linked));
        LetGo(ModelAt(1));
        LetGo(Manager());
        const VEXISamAccess_var access = VEXShare<VEXBaseUnknown>(analysis.Get());
        VEXIContainer* container = nullptr;
        ASSERT_EQ(access->GetSpecContainer(container), S_OK);
        LetGo(VEXAdopt(container));
    }

    VEXIProduct_var product;
    VEXISamAnalysisModel_var model;
};

}  // namespace hlxtest::statics
