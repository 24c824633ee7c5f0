// SPDX-License-Identifier: Apache-2.0
// Reports on temperatures, which are written as they go.
#include "library/reports/ReportTemperatures.h"

namespace hlxtest::reports {
namespace {

std::string TemperatureText(const std::string& subroutine, const std::string& use,
                            const std::string& amplitude)
{
    return " TempBC Temperature is :0\n"
           " TempBC Use Sunroutine is :" +
           subroutine +
           "\n"
           " TempBC Use Amplitude is :" +
           use +
           "\n"
           " TempBC Amplitude Spec is :" +
           amplitude + "\n\n\n";
}

TEST_F(TemperatureReport, IsTheHeaderAloneWithoutATemperature)
{
    ExpectRows(kTemperatureReport, {{"HLXITemperature::GetMagnitude=E_FAIL", kRefused, ""},
                                    {"HLXITemperature::GetMagnitude=E_ACCESSDENIED", kRefused, ""},
                                    {"HLXITemperature::GetMagnitude=-1", kRefused, ""},
                                    {"HLXITemperature::GetMagnitude=E_FAIL,keep", kRefused, ""},
                                    {"HLXITemperature::GetMagnitude=S_FALSE,keep", kWritten,
                                     TemperatureText("FALSE", "FALSE", "Ramp")}});
}

TEST_F(TemperatureReport, AsksForNothingMoreWithoutATemperature)
{
    EXPECT_EQ(Getters(kTemperatureReport, WithAmplitude(kTemperatureReport),
                      "HLXITemperature::GetMagnitude=E_FAIL"),
              Lines{"HLXITemperature::GetMagnitude(&)"});
}

TEST_F(TemperatureReport, GoesOnWithoutFlagsAndAmplitude)
{
    ExpectRows(
        kTemperatureReport,
        {{"HLXITemperature::GetUserSubroutine=E_FAIL", kWritten,
          TemperatureText("TRUE ", "FALSE", "Ramp")},
         {"HLXITemperature::GetUserSubroutine=E_FAIL,keep", kWritten,
          TemperatureText("FALSE", "FALSE", "Ramp")},
         {"HLXICondition::GetUseAmplitude=E_FAIL", kWritten,
          TemperatureText("FALSE", "TRUE ", "Ramp")},
         {"HLXICondition::GetUseAmplitude=E_FAIL,keep", kWritten,
          TemperatureText("FALSE", "FALSE", "Ramp")},
         {"HLXICondition::GetAmplitude=E_FAIL", kWritten,
          TemperatureText("FALSE", "FALSE", "NULL")},
         {"HLXICondition::GetAmplitude=E_FAIL,keep", kWritten,
          TemperatureText("FALSE", "FALSE", "Ramp")},
         {"HLXICondition::GetAmplitude=null", kWritten, TemperatureText("FALSE", "FALSE", "NULL")},
         {"HLXITemperature::GetUserSubroutine=E_FAIL;HLXICondition::*=E_FAIL", kWritten,
          TemperatureText("TRUE ", "TRUE ", "NULL")}});
}

TEST_F(TemperatureReport, IsFollowedByTheNextAfterAFailure)
{
    const VEXISpecObject_var feature = Valued(kTemperatureReport);
    EXPECT_EQ(Write(kTemperatureReport, feature, "HLXITemperature::GetMagnitude=E_FAIL"), kRefused);
    EXPECT_EQ(Write(kTemperatureReport, feature), kWritten);
    EXPECT_EQ(Taken(), kHeader + kTemperatureReport.valued);
}

TEST_F(TemperatureReport, FailsTheSameWayInAFileThatCannotBeOpened)
{
    const VEXISpecObject_var feature = Valued(kTemperatureReport);
    EXPECT_EQ(RunWith("HLXITemperature::GetMagnitude=E_FAIL",
                      [&] { return HLXAnalysisTestUtils::DumpTempBCParams(feature, ""); }),
              kRefused);
    const VEXISpecObject_var history = Valued(kTemperatureHistoryReport);
    EXPECT_EQ(RunWith("HLXITemperatureHistory::GetUniformValue=E_FAIL",
                      [&] { return HLXAnalysisTestUtils::DumpTempHistParams(history, ""); }),
              kRefused);
}

TEST_F(TemperatureReport, OnOneThatIsGoneIsTheHeaderAlone)
{
    const VEXISpecObject_var feature = Valued(kTemperatureReport);
    ASSERT_EQ(VEXDocumentServices::Remove(*analysis.Release(), 1), S_OK);
    EXPECT_EQ(Write(kTemperatureReport, feature), kRefused);
    EXPECT_EQ(Taken(), kHeader);
}

}  // namespace
}  // namespace hlxtest::reports
