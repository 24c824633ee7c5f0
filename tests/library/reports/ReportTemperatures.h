// SPDX-License-Identifier: Apache-2.0
// Reports that are written as they go: what is in the file when something cannot be read.
#pragma once

#include "library/reports/ReportFixture.h"

namespace hlxtest::reports {

inline const std::string kHeader = "\n**************Field Feature Properties************** \n";

struct TemperatureRow
{
    std::string faults;
    Outcome outcome;
    std::string text;  ///< behind the header

    friend void PrintTo(const TemperatureRow& row, std::ostream* stream) { *stream << row.faults; }
};

using TemperatureRows = std::vector<TemperatureRow>;

class TemperatureReport : public ReportTest
{
protected:
    /// A new feature, without a value but for an amplitude of the name "Ramp".
    VEXISpecObject_var WithAmplitude(const ReportKind& kind)
    {
        const VEXISpecObject_var feature = kind.create(place);
        SetAmplitude(feature, NamedAmplitude(place, "Ramp"));
        return feature;
    }

    /// Into a new file and into one that is there.
    void ExpectRows(const ReportKind& kind, const TemperatureRows& rows)
    {
        const VEXISpecObject_var feature = WithAmplitude(kind);
        for (const TemperatureRow& row : rows) {
            EXPECT_EQ(Write(kind, feature, row.faults), row.outcome) << row.faults;
            EXPECT_EQ(Taken(), kHeader + row.text) << row.faults;
            WriteFile(path, "before");
            EXPECT_EQ(Write(kind, feature, row.faults), row.outcome) << row.faults;
            EXPECT_EQ(Taken(), "before" + kHeader + row.text) << row.faults;
            EXPECT_EQ(HeldAfter(row.faults, [&] { return WriteUnseen(kind, feature); }),
                      HeldCounts{})
                << row.faults;
            std::filesystem::remove(path);
        }
    }
};

}  // namespace hlxtest::reports
