// SPDX-License-Identifier: Apache-2.0
// Reports on film conditions: the second amplitude, the table, the name of its file. And numbers as
// they stand in any report.
#include "library/reports/ReportFixture.h"
#include "support/ForeignNumbers.h"

#include <limits>
#include <optional>

namespace hlxtest::reports {
namespace {

class FilmConditionReport : public ReportTest
{
protected:
    /// The report on the film condition, written with these faults.
    std::string Text(std::string_view faults = "")
    {
        EXPECT_EQ(Write(kFilmConditionReport, film, faults), kWritten);
        return Taken();
    }

    /// The report of a valued film condition with one line changed.
    static std::string With(const std::string& line, const std::string& other)
    {
        std::string text = kFilmConditionReport.valued;
        const std::size_t found = text.find(line + "\n");
        EXPECT_NE(found, text.npos);
        return text.replace(found, line.size(), other);
    }

    static std::string WithTable(const std::string& coefficient, const std::string& temperature)
    {
        return With(
            " FilmCondition Coeff is :1.2\n FilmCondition Temp is :-10.5",
            " FilmCondition Coeff is :" + coefficient + "\n FilmCondition Temp is :" + temperature);
    }

    static std::string WithFilmAmplitude(const std::string& name)
    {
        const std::string label = " FilmCondition Film Amplitude Spec is :";
        return With(label + "NULL", label + name);
    }

    void SetFilmAmplitude(const VEXISpecObject_var& amplitude)
    {
        EXPECT_EQ(HLXIFilmCondition_var(film)->SetFilmAmplitude(amplitude), S_OK);
    }

    void SetTable(const std::vector<double>& coefficients, const std::vector<double>& temperatures)
    {
        const HLXIFilmCondition_var typed = film;
        EXPECT_EQ(typed->SetCoefficients(ListOf(coefficients)), S_OK);
        EXPECT_EQ(typed->SetTemperatures(ListOf(temperatures)), S_OK);
    }

    const VEXISpecObject_var film = Valued(kFilmConditionReport);
};

TEST_F(FilmConditionReport, NamesBothAmplitudes)
{
    SetFilmAmplitude(NamedAmplitude(place, "Film ramp"));
    EXPECT_EQ(Text(), WithFilmAmplitude("Film ramp"));
    SetFilmAmplitude(Amplitude(place));
    EXPECT_EQ(Text(), WithFilmAmplitude(""));
    SetFilmAmplitude(VEXISpecObject_var());
    EXPECT_EQ(Text(), WithFilmAmplitude("NULL"));
}

TEST_F(FilmConditionReport, NamesTheSameAmplitudeTwice)
{
    const VEXISpecObject_var amplitude = NamedAmplitude(place, "Ramp");
    SetAmplitude(film, amplitude);
    SetFilmAmplitude(amplitude);
    EXPECT_EQ(Text(), WithFilmAmplitude("Ramp"));
}

TEST_F(FilmConditionReport, NamesTheFilmAmplitudeAlone)
{
    SetAmplitude(film, VEXISpecObject_var());
    SetFilmAmplitude(NamedAmplitude(place, "Film ramp"));
    std::string typed = WithFilmAmplitude("Film ramp");
    const std::string ramp = " FilmCondition Amplitude Spec is :Ramp";
    typed.replace(typed.find(ramp), ramp.size(), " FilmCondition Amplitude Spec is :NULL");
    EXPECT_EQ(Text(), typed);
}

TEST_F(FilmConditionReport, HasOddNamesOfFilmAmplitudesAsTheyStand)
{
    const VEXISpecObject_var amplitude = Amplitude(place);
    SetFilmAmplitude(amplitude);
    for (const std::string& name : kOddNames) {
        Name(amplitude, name);
        EXPECT_TRUE(Text() == WithFilmAmplitude(name)) << name.substr(0, 100);
    }
}

TEST_F(FilmConditionReport, SaysNullOfAFilmAmplitudeThatCannotHaveAName)
{
    SetFilmAmplitude(NamedAmplitude(place, "Film ramp"));
    EXPECT_EQ(Text("HLXIFilmCondition::GetFilmAmplitude=null"), WithFilmAmplitude("NULL"));
    SetAmplitude(film, VEXISpecObject_var());
    std::string typed = kFilmConditionReport.valued;
    const std::string ramp = " FilmCondition Amplitude Spec is :Ramp";
    typed.replace(typed.find(ramp), ramp.size(), " FilmCondition Amplitude Spec is :NULL");
    EXPECT_EQ(Text("cast:HLXTabularAmplitudeLT->VEXIAlias=null"), typed);
}

TEST_F(FilmConditionReport, LeavesNothingHeldOfTwoAmplitudes)
{
    SetFilmAmplitude(NamedAmplitude(place, "Film ramp"));
    for (const char* const faults :
         {"", "HLXICondition::GetAmplitude=E_FAIL,keep",
          "HLXIFilmCondition::GetFilmAmplitude=E_FAIL", "VEXIAlias::GetAlias=empty",
          "HLXIFilmCondition::GetFilmAmplitude=E_FAIL,keep"}) {
        EXPECT_EQ(HeldAfter(faults, [&] { return WriteUnseen(kFilmConditionReport, film); }),
                  HeldCounts{})
            << faults;
    }
}

TEST_F(FilmConditionReport, HasTheNameOfTheFileAsItStands)
{
    for (const std::string& name : kOddNames) {
        EXPECT_EQ(HLXIFilmCondition_var(film)->SetFileName(VEXUnicodeString(name)), S_OK);
        EXPECT_TRUE(Text() == With(" FilmCondition File Name is :film table.csv",
                                   " FilmCondition File Name is :" + name))
            << name.substr(0, 100);
    }
}

TEST_F(FilmConditionReport, TakesATextThatIsEmptiedForTheName)
{
    EXPECT_EQ(Text("HLXIFilmCondition::GetFileName=null"),
              With(" FilmCondition File Name is :film table.csv", " FilmCondition File Name is :"));
}

TEST_F(FilmConditionReport, HasTheFirstOfEachListOrNought)
{
    SetTable({1e-7, 8}, {});
    EXPECT_EQ(Text(), WithTable("1e-007", "0"));
    SetTable({}, {20, 30});
    EXPECT_EQ(Text(), WithTable("0", "20"));
    SetTable({}, {});
    EXPECT_EQ(Text(), WithTable("0", "0"));
    SetTable({4}, {5});
    EXPECT_EQ(Text(), WithTable("4", "5"));
    EXPECT_EQ(Text("HLXIFilmCondition::GetCoefficients=empty"), WithTable("0", "5"));
    EXPECT_EQ(Text("HLXIFilmCondition::GetTemperatures=empty"), WithTable("4", "0"));
}

// --- Numbers ------------------------------------------------------------------------------------

struct Number
{
    double value;
    const char* text;
};

const Number kNumbers[] = {
    {0, "0"},
    {-0.0, "-0"},
    {0.5, "0.5"},
    {-1, "-1"},
    {100000, "100000"},
    {999999.4, "999999"},
    {999999.5, "1e+006"},
    {1234567, "1.23457e+006"},
    {1e6, "1e+006"},
    {0.1 + 0.2, "0.3"},
    {12345.6789, "12345.7"},
    {0.0001, "0.0001"},
    {0.00001, "1e-005"},
    {1e-7, "1e-007"},
    {-1e-99, "-1e-099"},
    {1e-100, "1e-100"},
    {1e100, "1e+100"},
    {std::numeric_limits<double>::max(), "1.79769e+308"},
    {std::numeric_limits<double>::denorm_min(), "4.94066e-324"},
};

class NumberInAReport : public FilmConditionReport, public testing::WithParamInterface<bool>
{};

TEST_P(NumberInAReport, HasSixDigitsAndThreeInAnExponent)
{
    std::optional<ForeignNumbers> foreign;
    if (GetParam()) {
        foreign.emplace();
    }
    for (const Number& number : kNumbers) {
        SetTable({number.value}, {number.value});
        EXPECT_EQ(Text(), WithTable(number.text, number.text));
    }
}

INSTANTIATE_TEST_SUITE_P(InAForeignLocale, NumberInAReport, testing::Bool());

}  // namespace
}  // namespace hlxtest::reports
