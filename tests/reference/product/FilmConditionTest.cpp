// SPDX-License-Identifier: Apache-2.0
// Film conditions: temperature, table, amplitude of their own, file.
#include "reference/analysis/EntityFixture.h"

#include <cmath>
#include <limits>

namespace {

using Numbers = std::vector<double>;

class FilmCondition : public hlxtest::EntityTest
{
protected:
    static VEXRawColldouble List(const Numbers& numbers)
    {
        VEXRawColldouble list;
        for (const double number : numbers) {
            list.Append(number);
        }
        return list;
    }

    static Numbers Values(const VEXRawColldouble& list)
    {
        Numbers numbers;
        for (int i = 1; i <= list.Size(); ++i) {
            numbers.push_back(list[i]);
        }
        return numbers;
    }

    Numbers Coefficients() const
    {
        VEXRawColldouble list = List({7, 7, 7, 7});
        EXPECT_EQ(film->GetCoefficients(list), S_OK);
        return Values(list);
    }

    Numbers Temperatures() const
    {
        VEXRawColldouble list = List({7});
        EXPECT_EQ(film->GetTemperatures(list), S_OK);
        return Values(list);
    }

    const HLXIFilmCondition_var film = Load<HLXIFilmCondition>("HLXFilmCondition");
};

TEST_F(FilmCondition, HasATemperatureOfTheSurroundings)
{
    double found = 7;
    EXPECT_EQ(film->GetTemperature(found), S_OK);
    EXPECT_EQ(found, 0);
    EXPECT_EQ(film->SetTemperature(51), S_OK);
    EXPECT_EQ(film->SetTemperature(std::nan("")), E_INVALIDARG);
    EXPECT_EQ(film->GetTemperature(found), S_OK);
    EXPECT_EQ(found, 51);
    EXPECT_EQ(FeatureOf(film).GetAs<double>("ReferenceTemperature"), 51);
}

TEST_F(FilmCondition, HasATableOfTwoListsThatAreReplacedOneByOne)
{
    EXPECT_EQ(Coefficients(), Numbers{});
    EXPECT_EQ(film->SetCoefficients(List({1.2, 2.4, 3.5})), S_OK);
    EXPECT_EQ(Coefficients(), (Numbers{1.2, 2.4, 3.5}));
    EXPECT_EQ(Temperatures(), Numbers{});
    EXPECT_EQ(film->SetTemperatures(List({10, 20, 30})), S_OK);
    EXPECT_EQ(Temperatures(), (Numbers{10, 20, 30}));
    EXPECT_EQ(film->SetCoefficients(List({})), S_OK);
    EXPECT_EQ(Coefficients(), Numbers{});
    EXPECT_EQ(Temperatures(), (Numbers{10, 20, 30}));
}

TEST_F(FilmCondition, RefusesNumbersThatAreNotFinite)
{
    const double infinity = std::numeric_limits<double>::infinity();
    ASSERT_EQ(film->SetCoefficients(List({1})), S_OK);
    ASSERT_EQ(film->SetTemperatures(List({2})), S_OK);
    for (const Numbers& numbers :
         {Numbers{infinity}, Numbers{1, -infinity}, Numbers{1, 2, std::nan("")}}) {
        EXPECT_EQ(film->SetCoefficients(List(numbers)), E_INVALIDARG);
        EXPECT_EQ(film->SetTemperatures(List(numbers)), E_INVALIDARG);
    }
    EXPECT_EQ(Coefficients(), Numbers{1});
    EXPECT_EQ(Temperatures(), Numbers{2});
}

TEST_F(FilmCondition, HasAnAmplitudeOfItsOwn)
{
    const auto own = vex::FaceOf<VEXISpecObject>(&Make("HLXTabularAmplitudeLT", *model));
    const auto common = vex::FaceOf<VEXISpecObject>(&Make("HLXTabularAmplitudeLT", *model));
    EXPECT_EQ(film->SetAmplitude(common), S_OK);
    EXPECT_EQ(film->SetFilmAmplitude(own), S_OK);
    EXPECT_EQ(film->SetFilmAmplitude(vex::FaceOf<VEXISpecObject>(step)), E_INVALIDARG);
    VEXISpecObject_var found;
    EXPECT_EQ(film->GetFilmAmplitude(found), S_OK);
    EXPECT_EQ(found, own);
    EXPECT_EQ(film->GetAmplitude(found), S_OK);
    EXPECT_EQ(found, common);
    EXPECT_EQ(film->SetFilmAmplitude(nullptr), S_OK);
    EXPECT_EQ(film->GetFilmAmplitude(found), S_OK);
    EXPECT_FALSE(found);

    unsigned char flag = 7;
    EXPECT_EQ(film->GetUseFilmAmplitude(flag), S_OK);
    EXPECT_EQ(flag, 0);
    EXPECT_EQ(film->SetUseFilmAmplitude(4), S_OK);
    EXPECT_EQ(film->GetUseFilmAmplitude(flag), S_OK);
    EXPECT_EQ(flag, 1);
    EXPECT_EQ(film->GetUseAmplitude(flag), S_OK);
    EXPECT_EQ(flag, 0);
}

TEST_F(FilmCondition, SaysWhetherItsTableCountsAndWhereItCameFrom)
{
    unsigned char flag = 7;
    EXPECT_EQ(film->GetTemperatureDependent(flag), S_OK);
    EXPECT_EQ(flag, 0);
    EXPECT_EQ(film->SetTemperatureDependent(1), S_OK);
    EXPECT_EQ(film->GetTemperatureDependent(flag), S_OK);
    EXPECT_EQ(flag, 1);
    VEXUnicodeString name("x");
    EXPECT_EQ(film->GetFileName(name), S_OK);
    EXPECT_TRUE(name.IsEmpty());
    EXPECT_EQ(film->SetFileName("no such/file\n"), S_OK);
    EXPECT_EQ(film->SetFileName("\xc3"), E_INVALIDARG);
    EXPECT_EQ(film->GetFileName(name), S_OK);
    EXPECT_EQ(name, "no such/file\n");
}

TEST_F(FilmCondition, ThatIsGoneFails)
{
    ASSERT_EQ(film->SetTemperature(51), S_OK);
    const auto amplitude = vex::FaceOf<VEXISpecObject>(&Make("HLXTabularAmplitudeLT", *model));
    RemoveAnalysis();
    double number = 7;
    unsigned char flag = 7;
    VEXUnicodeString text("x");
    VEXISpecObject_var found = amplitude;
    VEXRawColldouble list = List({1, std::nan("")});
    EXPECT_EQ(film->SetTemperature(1), E_FAIL);
    EXPECT_EQ(film->GetTemperature(number), E_FAIL);
    EXPECT_EQ(number, 0);
    EXPECT_EQ(film->SetFilmAmplitude(nullptr), E_FAIL);
    EXPECT_EQ(film->GetFilmAmplitude(found), E_FAIL);
    EXPECT_FALSE(found);
    EXPECT_EQ(film->SetUseFilmAmplitude(1), E_FAIL);
    EXPECT_EQ(film->GetUseFilmAmplitude(flag), E_FAIL);
    EXPECT_EQ(flag, 7) << "left as it is";
    EXPECT_EQ(film->SetCoefficients(list), E_FAIL);
    EXPECT_EQ(film->SetTemperatures(list), E_FAIL);
    EXPECT_EQ(film->GetCoefficients(list), E_FAIL);
    EXPECT_EQ(list.Size(), 0);
    list = List({1});
    EXPECT_EQ(film->GetTemperatures(list), E_FAIL);
    EXPECT_EQ(list.Size(), 0);
    flag = 7;
    EXPECT_EQ(film->SetTemperatureDependent(1), E_FAIL);
    EXPECT_EQ(film->GetTemperatureDependent(flag), E_FAIL);
    EXPECT_EQ(flag, 7) << "left as it is";
    EXPECT_EQ(film->SetFileName("\xff"), E_FAIL);
    EXPECT_EQ(film->GetFileName(text), E_FAIL);
    EXPECT_TRUE(text.IsEmpty());
}

}  // namespace
