// SPDX-License-Identifier: Apache-2.0
// Vector parameters of entities: which there are, their components, and stored lists of other
// lengths than the catalogue's.
#include "reference/product/ConditionFixture.h"

namespace {

using hlxtest::infinity;
using hlxtest::Outcome;
using hlxtest::OutcomeOf;

using Numbers = std::vector<double>;

constexpr int most = std::numeric_limits<int>::max();
constexpr int least = std::numeric_limits<int>::min();

class VectorParameter : public hlxtest::ConditionTest
{
protected:
    static VEXISamAnalysisEntity_var Entity(const vex::Feature& feature)
    {
        return vex::FaceOf<VEXISamAnalysisEntity>(&feature);
    }

    /// A parameter that was there before is never left in the caller's handle.
    static VEXIVectorParameter_var Find(const vex::Feature& feature, const VEXUnicodeString& name,
                                        HRESULT result = S_OK)
    {
        VEXIVectorParameter_var parameter;
        const VEXISamAnalysisEntity_var entity = Entity(feature);
        EXPECT_EQ(OutcomeOf([&] { return entity->GetVectorParameter(name, parameter); }),
                  (Outcome{result, "", ""}))
            << name.View();
        EXPECT_EQ(static_cast<bool>(parameter), result == S_OK) << name.View();
        return parameter;
    }

    static Numbers Components(const VEXIVectorParameter_var& parameter)
    {
        Numbers components;
        double value = 7;
        for (int row = 1; parameter->GetComponent(value, row, 1) == S_OK; ++row) {
            components.push_back(value);
        }
        EXPECT_EQ(value, 0) << "behind the last";
        return components;
    }

    static void Store(vex::Feature& feature, const char* name, vex::DoubleList list)
    {
        EXPECT_EQ(feature.Set(name, vex::Boxed<vex::DoubleList>(std::move(list))), S_OK);
    }

    vex::Feature& displacement = Make("HLXDisplacementBC", *step);
};

TEST_F(VectorParameter, IsAListWhoseDefaultTellsTheComponents)
{
    EXPECT_EQ(Components(Find(displacement, "DisplBCTrans")), Numbers(3, 0));
    EXPECT_EQ(Components(Find(displacement, "DisplBCRotation")), Numbers(3, 0));
    const vex::Feature& velocity = Make("HLXVelocityBCLT", *step);
    EXPECT_EQ(Components(Find(velocity, "Values")), Numbers(6, 0));
    EXPECT_EQ(Components(Find(velocity, "Switches")), Numbers(6, 0));
    EXPECT_EQ(Components(Find(Make("HLXSubmodelBCLT", *step), "DegreesOfFreedom")),
              (Numbers{1, 2, 3, 4, 5, 6}));
    const vex::Feature& foreign = Make("CndDisplacement", *step);
    EXPECT_EQ(Components(Find(foreign, "Tilt")), (Numbers{0.5, 0.25}));
    EXPECT_EQ(Components(Find(foreign, "DisplBCTrans")), Numbers(3, 0));
}

TEST_F(VectorParameter, OfEachEntityIsFoundByKindOnly)
{
    int entities = 0;
    for (const vex::LateType* const type : vex::LateTypes::Instance().All()) {
        SCOPED_TRACE(type->name);
        const vex::Feature& feature = Make(type->name.c_str(), *step);
        if (!vex::Offers<VEXISamAnalysisEntity>(feature)) {
            continue;
        }
        ++entities;
        for (const vex::AttributeDefinition& attribute : type->attributes) {
            const auto* const list =
                std::get_if<vex::Boxed<vex::DoubleList>>(&attribute.defaultValue);
            const bool isVector = list != nullptr && !(*list)->empty();
            const VEXIVectorParameter_var parameter =
                Find(feature, VEXUnicodeString(attribute.name), isVector ? S_OK : E_FAIL);
            if (isVector) {
                EXPECT_EQ(Components(parameter), **list);
            }
        }
    }
    EXPECT_GE(entities, 20);
}

TEST_F(VectorParameter, OfAnotherNameIsNotFound)
{
    VEXIVectorParameter_var parameter = Find(displacement, "DisplBCTrans");
    for (const char* const name : {"", "displBCTrans", "DisplBCTrans ", "DisplBC", "u1ON",
                                   "Amplitude", "Values", "Missing", "\xff"}) {
        Find(displacement, name, E_FAIL);
        VEXIVectorParameter_var given = parameter;
        EXPECT_EQ(Entity(displacement)->GetVectorParameter(name, given), E_FAIL);
        EXPECT_FALSE(given) << "empty on failure";
    }
    Find(displacement, VEXUnicodeString(std::string("DisplBCTrans\0", 13)), E_FAIL);
    Find(Make("HLXClamp", *step), "DisplBCTrans", E_FAIL);
}

TEST_F(VectorParameter, SetsOneComponent)
{
    const VEXIVectorParameter_var parameter = Find(displacement, "DisplBCTrans");
    const VEXIVectorParameter_var other = Find(displacement, "DisplBCTrans");
    EXPECT_EQ(parameter->SetComponent(1.5, "", 2, 1, 0), S_OK);
    EXPECT_EQ(Components(other), (Numbers{0, 1.5, 0}));
    EXPECT_EQ(other->SetComponent(std::numeric_limits<double>::max(), "", 1, 1, 0), S_OK);
    EXPECT_EQ(other->SetComponent(5e-324, "", 3, 1, 0), S_OK);
    EXPECT_EQ(other->SetComponent(-2.25, "", 2, 1, 0), S_OK);
    EXPECT_EQ(Components(parameter), (Numbers{std::numeric_limits<double>::max(), -2.25, 5e-324}));
    EXPECT_EQ(displacement.GetAs<vex::DoubleList>("DisplBCTrans"), Components(parameter));
    EXPECT_EQ(Components(Find(displacement, "DisplBCRotation")), Numbers(3, 0));
}

TEST_F(VectorParameter, RefusesWhatItDoesNotHave)
{
    const VEXIVectorParameter_var parameter = Find(displacement, "DisplBCTrans");
    for (int row = 1; row <= 3; ++row) {
        ASSERT_EQ(parameter->SetComponent(row, "", row, 1, 0), S_OK);
    }
    for (const double value : {infinity, -infinity, std::nan("")}) {
        EXPECT_EQ(parameter->SetComponent(value, "", 1, 1, 0), E_INVALIDARG);
    }
    for (const char* const unit : {"mm", " ", "\xff", "1"}) {
        EXPECT_EQ(parameter->SetComponent(9, unit, 1, 1, 0), E_INVALIDARG) << unit;
    }
    EXPECT_EQ(parameter->SetComponent(9, VEXUnicodeString(std::string(1, '\0')), 1, 1, 0),
              E_INVALIDARG);
    for (const int row : {0, 4, -1, most, least}) {
        double value = 7;
        EXPECT_EQ(parameter->SetComponent(9, "", row, 1, 0), E_INVALIDARG) << row;
        EXPECT_EQ(parameter->GetComponent(value, row, 1), E_INVALIDARG) << row;
        EXPECT_EQ(value, 0) << row;
    }
    for (const int column : {0, 2, -1, most, least}) {
        double value = 7;
        EXPECT_EQ(parameter->SetComponent(9, "", 1, column, 0), E_INVALIDARG) << column;
        EXPECT_EQ(parameter->GetComponent(value, 1, column), E_INVALIDARG) << column;
        EXPECT_EQ(value, 0) << column;
    }
    for (const int option : {1, -1, most, least}) {
        EXPECT_EQ(parameter->SetComponent(9, "", 1, 1, option), E_INVALIDARG) << option;
    }
    EXPECT_EQ(Components(parameter), (Numbers{1, 2, 3}));
}

TEST_F(VectorParameter, OfAShorterStoredListHasTheDefaultsBehindIt)
{
    vex::Feature& foreign = Make("CndDisplacement", *step);
    const VEXIVectorParameter_var parameter = Find(foreign, "Tilt");
    Store(foreign, "Tilt", {});
    EXPECT_EQ(Components(parameter), (Numbers{0.5, 0.25}));
    Store(foreign, "Tilt", {3});
    EXPECT_EQ(Components(parameter), (Numbers{3, 0.25}));
    EXPECT_EQ(parameter->SetComponent(4, "", 2, 1, 0), S_OK);
    EXPECT_EQ(Components(parameter), (Numbers{3, 4}));
    Store(foreign, "Tilt", {3});
    EXPECT_EQ(parameter->SetComponent(infinity, "", 2, 1, 0), E_INVALIDARG);
    EXPECT_EQ(parameter->SetComponent(5, "", 1, 1, 0), S_OK);
    EXPECT_EQ(Components(parameter), (Numbers{5, 0.25}));
}

TEST_F(VectorParameter, OfALongerStoredListHasNoMoreComponents)
{
    const VEXIVectorParameter_var parameter = Find(displacement, "DisplBCTrans");
    Store(displacement, "DisplBCTrans", {1, 2, 3, 4, 5});
    EXPECT_EQ(Components(parameter), (Numbers{1, 2, 3}));
    double value = 7;
    EXPECT_EQ(parameter->GetComponent(value, 4, 1), E_INVALIDARG);
    EXPECT_EQ(value, 0);
    EXPECT_EQ(parameter->SetComponent(9, "", 4, 1, 0), E_INVALIDARG);
    EXPECT_EQ(parameter->SetComponent(9, "", 3, 1, 0), S_OK);
    EXPECT_EQ(Components(parameter), (Numbers{1, 2, 9}));
    Store(displacement, "DisplBCTrans", vex::DoubleList(100000, std::nan("")));
    EXPECT_EQ(parameter->SetComponent(9, "", 3, 1, 0), S_OK);
    EXPECT_EQ(parameter->GetComponent(value, 3, 1), S_OK);
    EXPECT_EQ(value, 9);
}

TEST_F(VectorParameter, OfAnEntityThatIsGoneFails)
{
    const VEXISamAnalysisEntity_var entity = Entity(displacement);
    const VEXIVectorParameter_var parameter = Find(displacement, "DisplBCTrans");
    vex::Feature& deleted = Make("HLXVelocityBCLT", *step);
    const VEXIVectorParameter_var ofDeleted = Find(deleted, "Values");
    ASSERT_EQ(ofDeleted->SetComponent(3, "", 6, 1, 0), S_OK);
    deleted.Tree()->Delete(deleted);
    RemoveAnalysis();
    for (const VEXIVectorParameter_var& gone : {parameter, ofDeleted}) {
        for (const int row : {1, 6, 0, most}) {
            double value = 7;
            EXPECT_EQ(gone->GetComponent(value, row, 1), E_FAIL);
            EXPECT_EQ(value, 0);
            value = 7;
            EXPECT_EQ(gone->GetComponent(value, row, 2), E_FAIL);
            EXPECT_EQ(value, 0);
            EXPECT_EQ(gone->SetComponent(infinity, "mm", row, 2, 1), E_FAIL);
            EXPECT_EQ(gone->SetComponent(1, "", row, 1, 0), E_FAIL);
        }
        EXPECT_EQ(gone->IsNull(), 1);
        VEXIVectorParameter_var given = gone;
        EXPECT_EQ(entity->GetVectorParameter("DisplBCTrans", given), E_FAIL);
        EXPECT_FALSE(given);
    }
}

TEST_F(VectorParameter, HoldsItsEntityAndNothingElse)
{
    const unsigned long before = hlxtest::References(displacement);
    VEXIVectorParameter_var parameter = Find(displacement, "DisplBCTrans");
    EXPECT_EQ(hlxtest::References(*parameter.Get()), 1U);
    EXPECT_EQ(hlxtest::References(displacement), before + 1);
    parameter.Reset();
    EXPECT_EQ(hlxtest::References(displacement), before);
}

TEST_F(VectorParameter, IsStored)
{
    const VEXIVectorParameter_var parameter = Find(displacement, "DisplBCRotation");
    ASSERT_EQ(parameter->SetComponent(0.1, "", 3, 1, 0), S_OK);
    ASSERT_EQ(parameter->SetComponent(-0.0, "", 1, 1, 0), S_OK);
    const vex::Feature& opened = Reopened(displacement.Id());
    EXPECT_EQ(Components(Find(opened, "DisplBCRotation")), (Numbers{0, 0, 0.1}));
    EXPECT_EQ(Components(Find(opened, "DisplBCTrans")), Numbers(3, 0));
}

TEST_F(VectorParameter, IsNoKindOfFeature)
{
    std::string error;
    ASSERT_TRUE(vex::LateTypes::Instance().Add({{"VEXSamVectorParameter", "", {}}}, error))
        << error;
    const vex::Feature& feature = Make("VEXSamVectorParameter", *model);
    EXPECT_FALSE(vex::FaceOf<VEXIVectorParameter>(&feature));
    EXPECT_TRUE(vex::FaceOf<VEXISpecObject>(&feature));
}

}  // namespace
