// SPDX-License-Identifier: Apache-2.0
// The boundary conditions of a step, a line of text each, so that a test compares what an operation
// left with what was typed:
//
//     HLXDisplacementBC: 1.5 0 3.5 0 -0.5 0, 101110 fixed subroutine amplitude used on face 1 of …
//
// The late type and, in quotes, the alias; the values of the six degrees of freedom, their
// switches; whether all are fixed, whether the values come from a subroutine; whether there is an
// amplitude, whether it is used; the supports. What is not there or not so is left out.
#pragma once

#include "HLXBoundaryConditions.h"
#include "library/LoadFixture.h"

#include <sstream>

namespace hlxtest::statics {

class BoundaryConditionStateTest : public LoadTest
{
protected:
    using LoadTest::LoadTest;

    /// The boundary conditions in a step, in order.
    static std::vector<VEXBaseUnknown_var> ConditionsIn(const VEXISamAnalysisSet_var& place)
    {
        VEXListValVEXBaseUnknown_var features;
        EXPECT_EQ(place->GetAnalysisFeatures("", features), S_OK);
        std::vector<VEXBaseUnknown_var> conditions;
        for (int i = 1; i <= features.Size(); ++i) {
            if (HLXIBoundaryCondition_var(features[i])) {
                conditions.push_back(features[i]);
            }
        }
        return conditions;
    }

    /// The last of the step; empty when there is none.
    VEXBaseUnknown_var Last()
    {
        const std::vector<VEXBaseUnknown_var> conditions = ConditionsIn(step);
        return conditions.empty() ? VEXBaseUnknown_var() : conditions.back();
    }

    /// Those of a step, a text each.
    std::vector<std::string> TextsIn(const VEXISamAnalysisSet_var& place)
    {
        std::vector<std::string> texts;
        for (const VEXBaseUnknown_var& made : ConditionsIn(place)) {
            texts.push_back(TextOf(made));
        }
        return texts;
    }

    std::string TextOf(const VEXBaseUnknown_var& made)
    {
        const VEXISpecObject_var feature = made;
        const HLXICondition_var common = made;
        unsigned char used = 77;
        VEXISpecObject_var amplitude;
        EXPECT_EQ(common->GetUseAmplitude(used), S_OK);
        EXPECT_EQ(common->GetAmplitude(amplitude), S_OK);
        const std::string alias = AliasOf(made);
        std::string text(feature->GetType().View());
        text += (alias.empty() ? "" : " \"" + alias + "\"") + ":" + FreedomsOf(made);
        text += amplitude ? " amplitude" : "";
        text += used != 0 ? " used" : "";
        for (const std::string& support : SupportsOf(made)) {
            text += " on " + support;
        }
        return text;
    }

    /// The value of a displacement, asked for in both ways.
    static double DisplacementOf(const VEXBaseUnknown_var& made, int degreeOfFreedom)
    {
        const VEXISamAnalysisEntity_var entity = made;
        VEXIVectorParameter_var parameter;
        EXPECT_EQ(entity->GetVectorParameter(
                      degreeOfFreedom <= 3 ? "DisplBCTrans" : "DisplBCRotation", parameter),
                  S_OK);
        double component = -77;
        double value = -78;
        EXPECT_EQ(parameter->GetComponent(component, (degreeOfFreedom - 1) % 3 + 1, 1), S_OK);
        EXPECT_EQ(HLXIDisplacementBC_var(made)->GetValue(degreeOfFreedom, value), S_OK);
        EXPECT_EQ(component, value) << degreeOfFreedom;
        return value;
    }

    static double VelocityOf(const VEXBaseUnknown_var& made, int degreeOfFreedom)
    {
        double value = -77;
        EXPECT_EQ(HLXIMotionBC_var(made)->GetValue(degreeOfFreedom, value), S_OK);
        return value;
    }

    /// A boolean attribute: 0 or 1.
    static int FlagOf(const VEXBaseUnknown_var& made, const char* name)
    {
        const VEXISpecAttrAccess_var access = made;
        const VEXISpecAttrKey_var key = access->GetAttrKey(name);
        EXPECT_TRUE(key) << name;
        unsigned char flag = 77;
        EXPECT_EQ(access->GetBoolean(key, flag, 0), S_OK) << name;
        return flag;
    }

private:
    static std::string FreedomsOf(const VEXBaseUnknown_var& made)
    {
        if (const HLXIDisplacementBC_var displacement = made) {
            return TextOfValues(made, DisplacementOf) + SwitchesOf(displacement) +
                   (FlagOf(made, "fixON") != 0 ? " fixed" : "") + SubroutineOf(displacement);
        }
        if (const HLXIMotionBC_var motion = made) {
            return TextOfValues(made, VelocityOf) + SwitchesOf(motion) + SubroutineOf(motion);
        }
        return "";
    }

    static std::string TextOfValues(const VEXBaseUnknown_var& made,
                                    double (*value)(const VEXBaseUnknown_var&, int))
    {
        std::ostringstream text;
        for (int i = 1; i <= 6; ++i) {
            text << ' ' << value(made, i);
        }
        return text.str();
    }

    template <class Condition>
    static std::string SwitchesOf(const Condition& condition)
    {
        std::string text = ", ";
        for (int i = 1; i <= 6; ++i) {
            unsigned char flag = 77;
            EXPECT_EQ(condition->GetSwitch(i, flag), S_OK) << i;
            text += std::to_string(flag);
        }
        return text;
    }

    template <class Condition>
    static std::string SubroutineOf(const Condition& condition)
    {
        unsigned char flag = 77;
        EXPECT_EQ(condition->GetUserSubroutine(flag), S_OK);
        return flag != 0 ? " subroutine" : "";
    }
};

}  // namespace hlxtest::statics
