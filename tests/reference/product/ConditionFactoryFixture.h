// SPDX-License-Identifier: Apache-2.0
// What every operation of a factory of conditions does: where what it makes stands, and what it
// refuses.
#pragma once

#include "reference/product/ConditionFixture.h"

#include <functional>
#include <initializer_list>

namespace hlxtest {

class ConditionFactoryTest : public ConditionTest
{
protected:
    using Creation =
        std::function<HRESULT(VEXISpecObject_var&, VEXDocument*, VEXISamAnalysisSet_var&)>;

    /// Makes nothing but a condition at the end of `container`, which stands in the step `place`:
    /// without a name, held by the caller alone, with the interfaces that all conditions have.
    void ExpectMade(const Creation& create, const char* lateType, const vex::Feature& place,
                    const vex::Feature* container, VEXISpecObject_var& condition)
    {
        const std::size_t before = place.Tree()->Size();
        condition = vex::FaceOf<VEXISpecObject>(model);
        VEXISamAnalysisSet_var where = Set(place);
        ASSERT_EQ(OutcomeOf([&] { return create(condition, analysis.Get(), where); }),
                  (Outcome{S_OK, "", ""}));
        EXPECT_EQ(place.Tree()->Size(), before + 1);
        const vex::Feature& made = FeatureOf(condition);
        EXPECT_STREQ(made.IsA(), lateType);
        EXPECT_EQ(made.Parent(), container);
        EXPECT_EQ(made.NextSibling(), nullptr);
        EXPECT_FALSE(made.HasAlias());
        EXPECT_EQ(References(made), 1U);
        EXPECT_EQ(where, Set(place));
        EXPECT_TRUE(VEXIAlias_var(condition));
        EXPECT_TRUE(HLXICondition_var(condition));
        EXPECT_TRUE(VEXISamAnalysisEntity_var(condition));
        EXPECT_TRUE(VEXISamAnalysisSupport_var(condition));
        EXPECT_FALSE(HLXILoad_var(condition));
    }

    /// Makes nothing, and what the caller held stays.
    void ExpectNotMade(const Creation& create, VEXDocument* document,
                       const VEXISamAnalysisSet_var& where, HRESULT result)
    {
        const std::size_t before = model->Tree()->Size();
        VEXISamAnalysisSet_var given = where;
        VEXISpecObject_var condition = vex::FaceOf<VEXISpecObject>(model);
        EXPECT_EQ(OutcomeOf([&] { return create(condition, document, given); }),
                  (Outcome{result, "", ""}));
        EXPECT_EQ(&FeatureOf(condition), model);
        EXPECT_EQ(given, where);
        EXPECT_EQ(model->Tree()->Size(), before);
    }

    /// Checks a new step of each kind in the case.
    template <class Check>
    void InEachKindOfStep(Check check)
    {
        int steps = 0;
        for (const vex::LateType* const type : vex::LateTypes::Instance().All()) {
            std::string error;
            const vex::Feature* const added =
                type->IsKindOf("HLXStepLT") ? hlx::AddStep(*analysisCase, type->name, "", error)
                                            : nullptr;
            if (added != nullptr) {
                SCOPED_TRACE(type->name);
                check(*added);
                ++steps;
            }
        }
        EXPECT_GE(steps, 7);
    }

    /// Checks each of `places` with documents that it is not of, then the document with no step and
    /// with one that is gone: `step`, which is deleted.
    template <class Check>
    void WithOtherDocumentsAndSteps(std::initializer_list<vex::Feature*> places, Check check)
    {
        AnalysisDocument other(1);
        VEXDocument* const part = &Open("box");
        for (vex::Feature* const place : places) {
            check(nullptr, Set(*place));
            check(other.Get(), Set(*place));
            check(part, Set(*place));
        }
        check(analysis.Get(), VEXISamAnalysisSet_var());
        VEXDocument* const stale = other.Get();
        ASSERT_EQ(VEXDocumentServices::Remove(*other.Release(), 1), S_OK);
        check(stale, Set(*step));
        const VEXISamAnalysisSet_var gone = Set(*step);
        step->Tree()->Delete(*step);
        check(analysis.Get(), gone);
    }
};

}  // namespace hlxtest
