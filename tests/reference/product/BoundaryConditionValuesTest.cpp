// SPDX-License-Identifier: Apache-2.0
// The values and switches of displacements, and of velocities and accelerations.
#include "reference/product/ConditionFixture.h"

namespace {

using hlxtest::infinity;
using Numbers = std::vector<double>;

constexpr int most = std::numeric_limits<int>::max();
constexpr int least = std::numeric_limits<int>::min();
constexpr int noFreedoms[] = {0, 7, -1, 4096, most, least};
constexpr const char* switches[] = {"u1ON", "u2ON", "u3ON", "ur1ON", "ur2ON", "ur3ON"};

class BoundaryConditionValues : public hlxtest::ConditionTest
{
protected:
    /// Sets an attribute by its key.
    static void Switch(const VEXBaseUnknown_var& condition, const char* name, unsigned char on)
    {
        const VEXISpecAttrAccess_var access = condition;
        EXPECT_EQ(access->SetBoolean(access->GetAttrKey(name), on, 0), S_OK) << name;
    }

    static void SetComponent(const VEXBaseUnknown_var& condition, const char* vector, int row,
                             double value)
    {
        const VEXISamAnalysisEntity_var entity = condition;
        VEXIVectorParameter_var parameter;
        ASSERT_EQ(entity->GetVectorParameter(vector, parameter), S_OK);
        EXPECT_EQ(parameter->SetComponent(value, "", row, 1, 0), S_OK);
    }

    template <class Interface>
    static std::vector<double> Values(const VEXVar<Interface>& condition)
    {
        std::vector<double> values;
        for (int freedom = 1; freedom <= 6; ++freedom) {
            values.push_back(7);
            EXPECT_EQ(condition->GetValue(freedom, values.back()), S_OK) << freedom;
        }
        return values;
    }

    /// The degrees of freedom that are prescribed: "135".
    template <class Interface>
    static std::string Switches(const VEXVar<Interface>& condition)
    {
        std::string on;
        for (int freedom = 1; freedom <= 6; ++freedom) {
            unsigned char flag = 7;
            EXPECT_EQ(condition->GetSwitch(freedom, flag), S_OK) << freedom;
            EXPECT_LE(flag, 1) << freedom;
            on += flag != 0 ? std::to_string(freedom) : "";
        }
        return on;
    }

    /// What is given of a condition that is gone.
    template <class Interface>
    static void ExpectGone(const VEXVar<Interface>& condition)
    {
        for (const int freedom : {1, 4, 6, 0, most}) {
            double value = 7;
            unsigned char flag = 7;
            EXPECT_EQ(condition->GetValue(freedom, value), E_FAIL);
            EXPECT_EQ(condition->GetSwitch(freedom, flag), E_FAIL);
            EXPECT_EQ(value, 0);
            EXPECT_EQ(flag, 7) << "left as it is";
        }
        unsigned char flag = 7;
        EXPECT_EQ(condition->GetUserSubroutine(flag), E_FAIL);
        EXPECT_EQ(flag, 7) << "left as it is";
    }

    template <class Interface>
    static void ExpectNoOtherFreedoms(const VEXVar<Interface>& condition)
    {
        for (const int freedom : noFreedoms) {
            double value = 7;
            unsigned char flag = 7;
            EXPECT_EQ(condition->GetValue(freedom, value), E_INVALIDARG) << freedom;
            EXPECT_EQ(condition->GetSwitch(freedom, flag), E_INVALIDARG) << freedom;
        }
    }
};

TEST_F(BoundaryConditionValues, OfADisplacementAreItsVectors)
{
    for (const char* const type : {"HLXDisplacementBC", "CndDisplacement"}) {
        const auto condition = Condition<HLXIDisplacementBC>(type);
        EXPECT_EQ(Values(condition), Numbers(6, 0));
        for (int row = 1; row <= 3; ++row) {
            SetComponent(condition, "DisplBCTrans", row, row);
            SetComponent(condition, "DisplBCRotation", row, -row - 0.5);
        }
        EXPECT_EQ(Values(condition), (Numbers{1, 2, 3, -1.5, -2.5, -3.5}));
        EXPECT_EQ(Switches(condition), "") << "values are given where they are switched off";
        ExpectNoOtherFreedoms(condition);
    }
}

TEST_F(BoundaryConditionValues, OfADisplacementAreSwitchedByItsAttributes)
{
    for (const char* const type : {"HLXDisplacementBC", "CndDisplacement"}) {
        const auto condition = Condition<HLXIDisplacementBC>(type);
        for (int freedom = 1; freedom <= 6; ++freedom) {
            Switch(condition, switches[freedom - 1], 255);
            EXPECT_EQ(Switches(condition), std::to_string(freedom));
            Switch(condition, switches[freedom - 1], 0);
        }
        Switch(condition, "ur2ON", 1);
        Switch(condition, "fixON", 1);
        EXPECT_EQ(Switches(condition), "5") << "a switch is given as it is";
        unsigned char flag = 7;
        EXPECT_EQ(condition->GetUserSubroutine(flag), S_OK);
        EXPECT_EQ(flag, 0);
        Switch(condition, "userSub", 1);
        EXPECT_EQ(condition->GetUserSubroutine(flag), S_OK);
        EXPECT_EQ(flag, 1);
        EXPECT_EQ(Values(condition), Numbers(6, 0));
    }
}

TEST_F(BoundaryConditionValues, OfADisplacementWithStoredListsOfOtherLengths)
{
    const auto condition = Condition<HLXIDisplacementBC>("HLXDisplacementBC");
    vex::Feature& feature = FeatureOf(condition);
    feature.Set("DisplBCTrans", vex::Boxed<vex::DoubleList>(vex::DoubleList{1}));
    feature.Set("DisplBCRotation", vex::Boxed<vex::DoubleList>(vex::DoubleList{4, 5, 6, 7, 8}));
    EXPECT_EQ(Values(condition), (Numbers{1, 0, 0, 4, 5, 6}));
    ExpectNoOtherFreedoms(condition);
    feature.Set("DisplBCTrans", vex::Boxed<vex::DoubleList>());
    EXPECT_EQ(Values(condition), (Numbers{0, 0, 0, 4, 5, 6}));
}

TEST_F(BoundaryConditionValues, OfVelocitiesAndAccelerationsAreSix)
{
    for (const char* const type : {"HLXVelocityBCLT", "HLXAccelerationBCLT", "CndMotion"}) {
        SCOPED_TRACE(type);
        const auto condition = Condition<HLXIMotionBC>(type);
        EXPECT_EQ(Values(condition), Numbers(6, 0));
        for (int freedom = 1; freedom <= 6; ++freedom) {
            ExpectNumber([&](double value) { return condition->SetValue(freedom, value); },
                         [&](double& value) { return condition->GetValue(freedom, value); });
            EXPECT_EQ(condition->SetValue(freedom, freedom), S_OK);
        }
        for (const int freedom : noFreedoms) {
            EXPECT_EQ(condition->SetValue(freedom, 9), E_INVALIDARG) << freedom;
        }
        ExpectNoOtherFreedoms(condition);
        EXPECT_EQ(Values(condition), (Numbers{1, 2, 3, 4, 5, 6}));
        EXPECT_EQ(Switches(condition), "");
    }
}

TEST_F(BoundaryConditionValues, OfVelocitiesAndAccelerationsHaveASwitchEach)
{
    for (const char* const type : {"HLXVelocityBCLT", "HLXAccelerationBCLT", "CndMotion"}) {
        SCOPED_TRACE(type);
        const auto condition = Condition<HLXIMotionBC>(type);
        ASSERT_EQ(condition->SetValue(3, 2.5), S_OK);
        for (int freedom = 1; freedom <= 6; ++freedom) {
            ExpectFlag([&](unsigned char on) { return condition->SetSwitch(freedom, on); },
                       [&](unsigned char& on) { return condition->GetSwitch(freedom, on); });
            EXPECT_EQ(Switches(condition), std::to_string(freedom));
            EXPECT_EQ(condition->SetSwitch(freedom, 0), S_OK);
        }
        for (const int freedom : noFreedoms) {
            EXPECT_EQ(condition->SetSwitch(freedom, 1), E_INVALIDARG) << freedom;
        }
        EXPECT_EQ(Switches(condition), "");
        EXPECT_EQ(Values(condition), (Numbers{0, 0, 2.5, 0, 0, 0})) << "it is kept";
        ExpectFlag([&](unsigned char on) { return condition->SetUserSubroutine(on); },
                   [&](unsigned char& on) { return condition->GetUserSubroutine(on); });
        EXPECT_EQ(Switches(condition), "");
    }
}

TEST_F(BoundaryConditionValues, OfAVelocityWithStoredListsOfOtherLengths)
{
    const auto condition = Condition<HLXIMotionBC>("HLXVelocityBCLT");
    vex::Feature& feature = FeatureOf(condition);
    feature.Set("Values", vex::Boxed<vex::DoubleList>(vex::DoubleList{1, 2}));
    feature.Set("Switches",
                vex::Boxed<vex::DoubleList>(vex::DoubleList{0, -3, infinity, 0.5, 0, 0, 1, 1}));
    EXPECT_EQ(Values(condition), (Numbers{1, 2, 0, 0, 0, 0}));
    EXPECT_EQ(Switches(condition), "234");
    ExpectNoOtherFreedoms(condition);
    EXPECT_EQ(condition->SetValue(6, 6), S_OK);
    EXPECT_EQ(condition->SetSwitch(6, 1), S_OK);
    EXPECT_EQ(Values(condition), (Numbers{1, 2, 0, 0, 0, 6}));
    EXPECT_EQ(Switches(condition), "2346");
    feature.Set("Switches", vex::Boxed<vex::DoubleList>());
    EXPECT_EQ(Switches(condition), "");
}

TEST_F(BoundaryConditionValues, OfConditionsThatAreGoneFail)
{
    const auto displacement = Condition<HLXIDisplacementBC>("HLXDisplacementBC");
    const auto velocity = Condition<HLXIMotionBC>("HLXVelocityBCLT");
    Switch(displacement, "u1ON", 1);
    Switch(displacement, "userSub", 1);
    SetComponent(displacement, "DisplBCTrans", 1, 3);
    ASSERT_EQ(velocity->SetValue(1, 3), S_OK);
    ASSERT_EQ(velocity->SetSwitch(1, 1), S_OK);
    ASSERT_EQ(velocity->SetUserSubroutine(1), S_OK);
    FeatureOf(displacement).Tree()->Delete(FeatureOf(displacement));
    ExpectGone(displacement);
    RemoveAnalysis();
    ExpectGone(velocity);
    for (const int freedom : {1, 0}) {
        EXPECT_EQ(velocity->SetValue(freedom, 1), E_FAIL);
        EXPECT_EQ(velocity->SetValue(freedom, infinity), E_FAIL);
        EXPECT_EQ(velocity->SetSwitch(freedom, 1), E_FAIL);
    }
    EXPECT_EQ(velocity->SetUserSubroutine(1), E_FAIL);
}

TEST_F(BoundaryConditionValues, AreStored)
{
    const auto amplitude = Object("HLXTabularAmplitudeLT");
    const auto displacement = Condition<HLXIDisplacementBC>("HLXDisplacementBC");
    Switch(displacement, "ur3ON", 1);
    Switch(displacement, "userSub", 1);
    SetComponent(displacement, "DisplBCRotation", 3, 0.1);
    ASSERT_EQ(displacement->SetAmplitude(amplitude), S_OK);
    const auto acceleration = Condition<HLXIMotionBC>("HLXAccelerationBCLT");
    ASSERT_EQ(acceleration->SetValue(2, -5e-324), S_OK);
    ASSERT_EQ(acceleration->SetSwitch(6, 1), S_OK);
    ASSERT_EQ(acceleration->SetUserSubroutine(1), S_OK);
    ASSERT_EQ(acceleration->SetUseAmplitude(1), S_OK);
    const vex::FeatureId second = FeatureOf(acceleration).Id();
    const vex::FeatureId ofAmplitude = FeatureOf(amplitude).Id();

    const vex::Feature& first = Reopened(FeatureOf(displacement).Id());
    const auto opened = vex::FaceOf<HLXIDisplacementBC>(&first);
    unsigned char flag = 7;
    VEXISpecObject_var found;
    EXPECT_EQ(Values(opened), (Numbers{0, 0, 0, 0, 0, 0.1}));
    EXPECT_EQ(Switches(opened), "6");
    EXPECT_EQ(opened->GetUserSubroutine(flag), S_OK);
    EXPECT_EQ(flag, 1);
    EXPECT_EQ(opened->GetUseAmplitude(flag), S_OK);
    EXPECT_EQ(flag, 0);
    EXPECT_EQ(opened->GetAmplitude(found), S_OK);
    ASSERT_TRUE(found);
    EXPECT_EQ(FeatureOf(found).Id(), ofAmplitude);

    const auto motion = vex::FaceOf<HLXIMotionBC>(first.Tree()->Find(second));
    EXPECT_EQ(Values(motion), (Numbers{0, -5e-324, 0, 0, 0, 0}));
    EXPECT_EQ(Switches(motion), "6");
    EXPECT_EQ(motion->GetUserSubroutine(flag), S_OK);
    EXPECT_EQ(flag, 1);
    flag = 7;
    EXPECT_EQ(motion->GetUseAmplitude(flag), S_OK);
    EXPECT_EQ(flag, 1);
    EXPECT_EQ(motion->GetAmplitude(found), S_OK);
    EXPECT_FALSE(found);
}

}  // namespace
