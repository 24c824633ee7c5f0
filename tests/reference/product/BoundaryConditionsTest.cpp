// SPDX-License-Identifier: Apache-2.0
// What boundary conditions have in common: an amplitude, and whether it is used.
#include "reference/product/ConditionFixture.h"

namespace {

class BoundaryConditions : public hlxtest::ConditionTest
{
protected:
    /// Every kind behind each of the interfaces that have the common operations.
    std::vector<HLXICondition*> AllFaces()
    {
        std::vector<HLXICondition*> faces;
        for (const char* const type : {"HLXBoundaryConditionLT", "HLXDisplacementBC", "HLXClamp",
                                       "HLXStringBC", "HLXVelocityBCLT", "HLXAccelerationBCLT",
                                       "HLXSubmodelBCLT", "CndDisplacement", "CndMotion"}) {
            const auto object = Condition<VEXISpecObject>(type);
            const HLXICondition_var common = object;
            const HLXIBoundaryCondition_var condition = object;
            EXPECT_TRUE(common && condition) << type;
            faces.insert(faces.end(), {common.Get(), condition.Get()});
            held.insert(held.end(), {common, condition});
            if (const HLXIDisplacementBC_var own = object) {
                faces.push_back(own.Get());
                held.emplace_back(own);
            }
            if (const HLXIMotionBC_var own = object) {
                faces.push_back(own.Get());
                held.emplace_back(own);
            }
        }
        EXPECT_EQ(faces.size(), 23U);
        return faces;
    }

    std::vector<VEXBaseUnknown_var> held;
};

TEST_F(BoundaryConditions, HaveAnAmplitudeOfTheirDocument)
{
    for (HLXICondition* const condition : AllFaces()) {
        ExpectAmplitudes(*condition);
    }
}

TEST_F(BoundaryConditions, BeginWithoutAmplitude)
{
    for (HLXICondition* const condition : AllFaces()) {
        VEXISpecObject_var amplitude = vex::FaceOf<VEXISpecObject>(step);
        unsigned char use = 7;
        EXPECT_EQ(condition->GetAmplitude(amplitude), S_OK);
        EXPECT_EQ(condition->GetUseAmplitude(use), S_OK);
        EXPECT_FALSE(amplitude);
        EXPECT_EQ(use, 0);
    }
}

TEST_F(BoundaryConditions, GiveNoAmplitudeWhereSomethingElseIsStored)
{
    for (HLXICondition* const condition : AllFaces()) {
        vex::Feature& feature = *vex::FeatureBehind(condition);
        for (const vex::Feature* const wrong : {step, &feature, model}) {
            ASSERT_EQ(feature.Set("Amplitude", vex::Reference{wrong->Id()}), S_OK);
            VEXISpecObject_var found = vex::FaceOf<VEXISpecObject>(step);
            EXPECT_EQ(condition->GetAmplitude(found), S_OK);
            EXPECT_FALSE(found);
        }
    }
}

TEST_F(BoundaryConditions, ThatAreGoneFail)
{
    const std::vector<HLXICondition*> faces = AllFaces();
    const VEXISpecObject_var amplitude = Object("HLXTabularAmplitudeLT");
    for (HLXICondition* const condition : faces) {
        ASSERT_EQ(condition->SetAmplitude(amplitude), S_OK);
        ASSERT_EQ(condition->SetUseAmplitude(1), S_OK);
    }
    RemoveAnalysis();
    for (HLXICondition* const condition : faces) {
        ExpectAmplitudesGone(*condition, amplitude);
    }
}

}  // namespace
