// SPDX-License-Identifier: Apache-2.0
// The search for the initial step of the current case, and what is to come of it.
#pragma once

#include "HLXProductUtilities.h"
#include "reference/product/ConditionFixture.h"

namespace hlxtest {

class ValidateStepTest : public ConditionTest
{
protected:
    /// The step that is found; the test fails when there is none, or no reference was added.
    vex::Feature* Found(const char* container, const char* name = "", unsigned char make = 0)
    {
        VEXISamAnalysisSet* found = nullptr;
        VEXUnicodeString given(name);
        EXPECT_EQ(OutcomeOf([&] {
                      return HLXAnalysisDocUtils::ValidateStep(found, container, given, make,
                                                               analysis.Get());
                  }),
                  (Outcome{S_OK, "", ""}));
        const VEXISamAnalysisSet_var held = VEXAdopt(found);
        if (held == nullptr) {
            ADD_FAILURE() << "no step";
            return model;
        }
        vex::Feature& feature = FeatureOf(held);
        EXPECT_EQ(hlxtest::References(feature), 1U);
        EXPECT_EQ(given.View(), feature.Alias());
        EXPECT_TRUE(feature.Kind().IsKindOf("HLXHacInitialStepLT"));
        EXPECT_TRUE(*container == '\0' || vex::FirstChildOfType(feature, container) != nullptr);
        return &feature;
    }

    /// None is found, and nothing made.
    void ExpectNone(HRESULT result, VEXDocument* document, const VEXUnicodeString& container,
                    const VEXUnicodeString& name, unsigned char make)
    {
        const std::size_t before = model->Tree()->Size();
        const auto former = Set(*step);
        VEXISamAnalysisSet* found = former.Get();
        VEXUnicodeString given = name;
        EXPECT_EQ(OutcomeOf([&] {
                      return HLXAnalysisDocUtils::ValidateStep(found, container, given, make,
                                                               document);
                  }),
                  (Outcome{result, "", ""}))
            << container.View() << ", " << name.View();
        EXPECT_EQ(found, nullptr);
        EXPECT_EQ(given, name) << "left as it is";
        EXPECT_EQ(model->Tree()->Size(), before);
    }

    void ExpectNone(const char* container, const char* name = "", unsigned char make = 0)
    {
        ExpectNone(E_FAIL, analysis.Get(), container, name, make);
    }

    /// The features of the document, before and after.
    std::size_t Size() const { return model->Tree()->Size(); }

    /// Another initial step, in front of a step or at the end.
    vex::Feature& AddInitial(const char* alias, vex::Feature* before = nullptr)
    {
        vex::Feature& added = vex::AddFeature(*step->Parent(), "HLXHacInitialStepLT", before);
        EXPECT_EQ(added.SetAlias(alias), S_OK);
        return added;
    }

    void Delete(vex::Feature& feature) { model->Tree()->Delete(feature); }

    vex::Feature& initial = InitialStep();
};

}  // namespace hlxtest
