// SPDX-License-Identifier: Apache-2.0
// Reports whose values are all read first: what is not to be had ends them before anything is
// written.
#include "library/reports/ReportFixture.h"

#include <algorithm>

namespace hlxtest::reports {
namespace {

/// The getter of that place as the name in a fault: with the number of the call where there are
/// several of its name.
std::string FaultName(const Lines& getters, std::size_t place)
{
    const auto nameOf = [](const std::string& call) { return call.substr(0, call.find('(')); };
    const std::string name = nameOf(getters[place]);
    const auto isSame = [&](const std::string& call) { return nameOf(call) == name; };
    const auto end = getters.begin() + static_cast<std::ptrdiff_t>(place) + 1;
    return name + "#" + std::to_string(std::count_if(getters.begin(), end, isSame));
}

class GatheredReport : public ReportKindTest
{
protected:
    /// Whether each of the kind's getters with that outcome ends the report there.
    void ExpectRefusals(const char* outcome)
    {
        const VEXISpecObject_var feature = Valued(kind);
        for (std::size_t i = 0; i < kind.getters.size(); ++i) {
            const std::string fault = FaultName(kind.getters, i) + outcome;
            SCOPED_TRACE(fault);
            EXPECT_EQ(Write(kind, feature, fault), kRefused);
            EXPECT_EQ(folder.Names(), Lines{});

            const auto end = kind.getters.begin() + static_cast<std::ptrdiff_t>(i) + 1;
            EXPECT_EQ(Getters(kind, feature, fault), Lines(kind.getters.begin(), end));

            WriteFile(path, "before");
            EXPECT_EQ(Write(kind, feature, fault), kRefused);
            EXPECT_EQ(Taken(), "before");
        }
    }
};

TEST_P(GatheredReport, EndsWithTheFirstGetterThatFails)
{
    ExpectRefusals("=E_FAIL");
}

TEST_P(GatheredReport, EndsWithTheSameResultHoweverAGetterFails)
{
    ExpectRefusals("=E_ACCESSDENIED");
    ExpectRefusals("=-1");
}

TEST_P(GatheredReport, EndsWhenAGetterFailsThoughItGives)
{
    ExpectRefusals("=E_UNEXPECTED,keep");
}

TEST_P(GatheredReport, GoesOnAfterAnyResultThatIsNoFailure)
{
    const VEXISpecObject_var feature = Valued(kind);
    for (std::size_t i = 0; i < kind.getters.size(); ++i) {
        const std::string fault = FaultName(kind.getters, i) + "=S_FALSE,keep";
        EXPECT_EQ(Write(kind, feature, fault), kWritten) << fault;
        EXPECT_EQ(Taken(), kind.valued) << fault;
    }
}

TEST_P(GatheredReport, OnAFeatureThatIsGoneIsRefused)
{
    const VEXISpecObject_var feature = Valued(kind);
    ASSERT_EQ(VEXDocumentServices::Remove(*analysis.Release(), 1), S_OK);
    EXPECT_EQ(Write(kind, feature), kRefused);
    EXPECT_EQ(folder.Names(), Lines{});
}

INSTANTIATE_TEST_SUITE_P(Of, GatheredReport, testing::ValuesIn(kGatheringReports), NameOfReport);

}  // namespace
}  // namespace hlxtest::reports
