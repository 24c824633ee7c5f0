// SPDX-License-Identifier: Apache-2.0
// A step with features to report on, and the file that the reports go to.
#pragma once

#include "library/AnalysisSetUp.h"
#include "library/reports/ReportLongKinds.h"

#include <filesystem>

namespace hlxtest::reports {

using statics::HeldAfter;
using statics::HeldCounts;
using statics::Lines;
using statics::QuietCallsOf;

inline const Outcome kWritten{S_OK, "", ""};
inline const Outcome kRefused{E_FAIL, "", ""};

/// Names that a careless writer of text changes.
inline const std::vector<std::string> kOddNames{
    "",
    " ",
    "  two blanks around  ",
    "NULL",
    "\xC3\xBC"
    "ber \xE6\x97\xA5\xE6\x9C\xAC \xF0\x9F\x99\x82",
    "100 %",
    "%s%n%d%%",
    "\"quoted\" 'twice' `thrice`",
    "back\\slash\\n",
    "two\nlines\n",
    "\r\n\t\v\f\x01\x7F",
    "\xEF\xBB\xBFmark",
    std::string(100'000, 'x'),
};

class ReportTest : public statics::AnalysisSetUp
{
protected:
    /// A feature of the kind, valued, with an amplitude of that name.
    VEXISpecObject_var Valued(const ReportKind& kind, const std::string& amplitude = "Ramp")
    {
        const VEXISpecObject_var feature = kind.create(place);
        kind.value(feature);
        SetAmplitude(feature, NamedAmplitude(place, amplitude));
        return feature;
    }

    HRESULT WriteUnseen(const ReportKind& kind, const VEXISpecObject_var& feature)
    {
        return kind.report(feature, VEXUnicodeString(path));
    }
    Outcome Write(const ReportKind& kind, const VEXISpecObject_var& feature,
                  std::string_view faults = "")
    {
        return RunWith(faults, [&] { return WriteUnseen(kind, feature); });
    }

    /// The calls of the product's interfaces that a report makes.
    Lines Getters(const ReportKind& kind, const VEXISpecObject_var& feature,
                  std::string_view faults = "")
    {
        return QuietCallsOf([&] { WriteUnseen(kind, feature); }, {"HLXI"}, faults);
    }

    /// What is in the file; the next report makes a new one.
    std::string Taken()
    {
        if (!FileExists(path)) {
            return "(no file)";
        }
        std::string text = ReadFile(path);
        std::filesystem::remove(path);
        return text;
    }

    Place place{analysis.Get(), AddStep(1, "HLXGeneralStaticStepLT", "Loading")};
    const std::string path = folder.File("report.txt");
};

/// Of one kind.
class ReportKindTest : public ReportTest, public testing::WithParamInterface<ReportKind>
{
protected:
    const ReportKind& kind = GetParam();
};

}  // namespace hlxtest::reports
