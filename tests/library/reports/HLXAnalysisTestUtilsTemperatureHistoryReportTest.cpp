// SPDX-License-Identifier: Apache-2.0
// Reports on temperature histories, which are written as they go.
#include "library/reports/ReportTemperatures.h"

#include "VEXDocumentServices.h"

namespace hlxtest::reports {
namespace {

std::string HistoryText(const std::string& lines, const std::string& subroutine,
                        const std::string& use, const std::string& amplitude)
{
    return lines + " TempHist Use Sunroutine is :" + subroutine +
           "\n"
           " TempHist Use Amplitude is :" +
           use +
           "\n"
           " TempHist Amplitude Spec is :" +
           amplitude + "\n\n\n";
}

const std::string kUniform = " TempHist Temperature Value is :0\n";

class HistoryReport : public TemperatureReport
{
protected:
    HLXITemperatureHistory_var History(int distribution)
    {
        const VEXISpecObject_var feature = WithAmplitude(kTemperatureHistoryReport);
        EXPECT_EQ(HLXITemperature_var(feature)->SetDistribution(distribution), S_OK);
        return feature;
    }

    /// A job of the first case, which has that name.
    VEXISpecObject_var Job(const std::string& nameOfCase)
    {
        Name(Case(1), nameOfCase);
        const HLXIJobFactory_var factory = Below(Case(1), "HLXJobContainerLT")[1];
        HLXIJob_var job;
        EXPECT_EQ(factory->CreateJob(analysis.Get(), job), S_OK);
        EXPECT_EQ(job->SetAnalysisCase(Case(1)), S_OK);
        return job;
    }

    /// A history from steps and increments of that job.
    HLXITemperatureHistory_var OfJob(const VEXISpecObject_var& job, int distribution = 1)
    {
        HLXITemperatureHistory_var history = History(distribution);
        EXPECT_EQ(history->SetBeginStep(2), S_OK);
        EXPECT_EQ(history->SetStartIncrement(1234567), S_OK);
        EXPECT_EQ(history->SetEndStep(30), S_OK);
        EXPECT_EQ(history->SetEndIncrement(2147483647), S_OK);
        EXPECT_EQ(history->SetJob(job, 0), S_OK);
        return history;
    }

    /// The text of such a history behind the header.
    static std::string OfJobText(const std::string& nameOfCase)
    {
        return HistoryText(
            " TempHist Begin Step is :2\n"
            " TempHist Start Increment is :1234567\n"
            " TempHist End Step is :30\n"
            " TempHist End Increment is :2147483647\n"
            " TempHist Analysis Case is :" +
                nameOfCase + "\n",
            "FALSE", "FALSE", "Ramp");
    }

    std::string Text(const VEXISpecObject_var& history, std::string_view faults = "")
    {
        EXPECT_EQ(Write(kTemperatureHistoryReport, history, faults), kWritten) << faults;
        return Taken();
    }
};

TEST_F(HistoryReport, OfOneThatIsGoneHasWhatGettersLeave)
{
    const HLXITemperatureHistory_var history = History(0);
    ASSERT_EQ(VEXDocumentServices::Remove(*analysis.Release(), 1), S_OK);
    EXPECT_EQ(Text(history), kHeader + HistoryText("", "TRUE ", "TRUE ", "NULL"));
}

TEST_F(HistoryReport, IsTheHeaderAloneWithoutAUniformTemperature)
{
    const std::string getter = "HLXITemperatureHistory::GetUniformValue";
    ExpectRows(kTemperatureHistoryReport, {{getter + "=E_FAIL", kRefused, ""},
                                           {getter + "=E_ACCESSDENIED", kRefused, ""},
                                           {getter + "=-1", kRefused, ""},
                                           {getter + "=E_FAIL,keep", kRefused, ""},
                                           {getter + "=S_FALSE,keep", kWritten,
                                            HistoryText(kUniform, "FALSE", "FALSE", "Ramp")}});
    EXPECT_EQ(Getters(kTemperatureHistoryReport, History(0), getter + "=E_FAIL"),
              (Lines{"HLXITemperature::GetDistribution(&)", getter + "(&)"}));
}

TEST_F(HistoryReport, GoesOnWithoutFlagsAndAmplitude)
{
    const std::string subroutine = "HLXITemperatureHistory::GetUserSubroutine";
    ExpectRows(
        kTemperatureHistoryReport,
        {{subroutine + "=E_FAIL", kWritten, HistoryText(kUniform, "TRUE ", "FALSE", "Ramp")},
         {subroutine + "=E_FAIL,keep", kWritten, HistoryText(kUniform, "FALSE", "FALSE", "Ramp")},
         {"HLXICondition::GetUseAmplitude=E_FAIL", kWritten,
          HistoryText(kUniform, "FALSE", "TRUE ", "Ramp")},
         {"HLXICondition::GetUseAmplitude=E_FAIL,keep", kWritten,
          HistoryText(kUniform, "FALSE", "FALSE", "Ramp")},
         {"HLXICondition::GetAmplitude=E_FAIL", kWritten,
          HistoryText(kUniform, "FALSE", "FALSE", "NULL")},
         {"HLXICondition::GetAmplitude=E_FAIL,keep", kWritten,
          HistoryText(kUniform, "FALSE", "FALSE", "Ramp")},
         {"HLXICondition::GetAmplitude=null", kWritten,
          HistoryText(kUniform, "FALSE", "FALSE", "NULL")},
         {subroutine + "=E_FAIL;HLXICondition::*=E_FAIL", kWritten,
          HistoryText(kUniform, "TRUE ", "TRUE ", "NULL")}});
}

TEST_F(HistoryReport, HasNoLineOfAKindThatCannotBeAskedFor)
{
    const std::string text = HistoryText("", "FALSE", "FALSE", "Ramp");
    const std::string cast = "cast:HLXTemperatureHistoryLT->HLXITemperature";
    ExpectRows(kTemperatureHistoryReport,
               {{cast + "=E_NOINTERFACE", kWritten, text},
                {cast + "=E_FAIL", kWritten, text},
                {cast + "=null", kWritten, text},
                {"HLXITemperature::GetDistribution=E_FAIL", kWritten, text},
                {"HLXITemperature::GetDistribution=-1", kWritten, text},
                {"HLXITemperature::GetDistribution=E_FAIL,keep", kWritten,
                 HistoryText(kUniform, "FALSE", "FALSE", "Ramp")},
                {"HLXITemperature::GetDistribution=S_FALSE,keep", kWritten,
                 HistoryText(kUniform, "FALSE", "FALSE", "Ramp")}});
    EXPECT_EQ(Getters(kTemperatureHistoryReport, History(0), cast + "=null"),
              (Lines{"HLXITemperatureHistory::GetUserSubroutine(&)",
                     "HLXICondition::GetUseAmplitude(&)", "HLXICondition::GetAmplitude(&)"}));
}

TEST_F(HistoryReport, ThatTheUserDefinesHasNoLineOfItsKind)
{
    const VEXISpecObject_var history = History(2);
    EXPECT_EQ(Text(history), kHeader + HistoryText("", "FALSE", "FALSE", "Ramp"));
    EXPECT_EQ(Getters(kTemperatureHistoryReport, history),
              (Lines{"HLXITemperature::GetDistribution(&)",
                     "HLXITemperatureHistory::GetUserSubroutine(&)",
                     "HLXICondition::GetUseAmplitude(&)", "HLXICondition::GetAmplitude(&)"}));
}

TEST_F(HistoryReport, OfAJobHasStepsIncrementsAndCase)
{
    const VEXISpecObject_var job = Job("Heating up");
    for (const int distribution : {1, 3}) {
        EXPECT_EQ(Text(OfJob(job, distribution)), kHeader + OfJobText("Heating up"));
    }
}

TEST_F(HistoryReport, OfNoJobHasTheDefaultsAndNull)
{
    const std::string lines =
        " TempHist Begin Step is :1\n"
        " TempHist Start Increment is :1\n"
        " TempHist End Step is :1\n"
        " TempHist End Increment is :1\n"
        " TempHist Analysis Case is :NULL\n";
    for (const int distribution : {1, 3}) {
        EXPECT_EQ(Text(History(distribution)),
                  kHeader + HistoryText(lines, "FALSE", "FALSE", "Ramp"));
    }
}

TEST_F(HistoryReport, OfAJobIsAskedForInThisOrder)
{
    const VEXISpecObject_var history = OfJob(Job("Heating up"));
    EXPECT_EQ(
        Getters(kTemperatureHistoryReport, history),
        (Lines{"HLXITemperature::GetDistribution(&)", "HLXITemperatureHistory::GetBeginStep()",
               "HLXITemperatureHistory::GetStartIncrement()",
               "HLXITemperatureHistory::GetEndStep()", "HLXITemperatureHistory::GetEndIncrement()",
               "HLXITemperatureHistory::GetAnalysisCase(&)",
               "HLXITemperatureHistory::GetUserSubroutine(&)", "HLXICondition::GetUseAmplitude(&)",
               "HLXICondition::GetAmplitude(&)"}));
}

TEST_F(HistoryReport, OfAJobTakesWhateverNumbersItGets)
{
    const VEXISpecObject_var history = OfJob(Job("Heating up"));
    const auto expect = [&](const char* getter, const std::string& label,
                            const std::string& number) {
        for (const char* const wrong : {"0", "-1", "-2147483648"}) {
            std::string text = kHeader + OfJobText("Heating up");
            const std::string line = label + number + "\n";
            text.replace(text.find(line), line.size(), label + wrong + "\n");
            EXPECT_EQ(Text(history, std::string(getter) + "=" + wrong), text);
        }
    };
    expect("HLXITemperatureHistory::GetBeginStep", " TempHist Begin Step is :", "2");
    expect("HLXITemperatureHistory::GetStartIncrement",
           " TempHist Start Increment is :", "1234567");
    expect("HLXITemperatureHistory::GetEndStep", " TempHist End Step is :", "30");
    expect("HLXITemperatureHistory::GetEndIncrement", " TempHist End Increment is :", "2147483647");
}

TEST_F(HistoryReport, OfAJobHasTheNameOfTheCaseAsItStands)
{
    const VEXISpecObject_var job = Job("");
    const VEXISpecObject_var history = OfJob(job);
    for (const std::string& name : kOddNames) {
        Name(Case(1), name);
        EXPECT_TRUE(Text(history) == kHeader + OfJobText(name)) << name.substr(0, 100);
    }
    EXPECT_EQ(HLXIJob_var(job)->SetAnalysisCase(VEXISpecObject_var()), S_OK);
    EXPECT_EQ(Text(history), kHeader + OfJobText("NULL"));
}

TEST_F(HistoryReport, OfAJobSaysNullOfACaseThatIsNotToBeHad)
{
    const VEXISpecObject_var history = OfJob(Job("Heating up"));
    const std::string getter = "HLXITemperatureHistory::GetAnalysisCase";
    for (const std::string& faults :
         {getter + "=E_FAIL", getter + "=null",
          std::string("cast:HLXHacAnalysisCaseLT->VEXIAlias=E_NOINTERFACE"),
          std::string("cast:HLXHacAnalysisCaseLT->VEXIAlias=null")}) {
        EXPECT_EQ(Text(history, faults), kHeader + OfJobText("NULL")) << faults;
    }
    EXPECT_EQ(Text(history, getter + "=E_FAIL,keep"), kHeader + OfJobText("Heating up"));
    for (const std::string& faults : {std::string(), getter + "=E_FAIL,keep"}) {
        EXPECT_EQ(
            HeldAfter(faults, [&] { return WriteUnseen(kTemperatureHistoryReport, history); }),
            HeldCounts{});
    }
}

}  // namespace
}  // namespace hlxtest::reports
