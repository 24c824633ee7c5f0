// SPDX-License-Identifier: Apache-2.0
// Late types for tests of texts.
#include "reference/treedump/DumpTypes.h"

#include <gtest/gtest.h>

namespace hlxtest {

using vex::ValueKind;

void AddDumpTypes()
{
    static const bool added = [] {
        const vex::LateTypeDefinition plain{"TstPlain", "", {}};
        const vex::LateTypeDefinition load{"TstLoad",
                                           "",
                                           {{"X", ValueKind::Double, 0.0},
                                            {"Y", ValueKind::Double, 0.0},
                                            {"Target", ValueKind::Reference, vex::Reference{}}}};
        const vex::LateTypeDefinition all{
            "TstAll",
            "",
            {{"Flag", ValueKind::Boolean, true},
             {"Count", ValueKind::Integer, std::int64_t{3}},
             {"Size", ValueKind::Double, 1.5},
             {"Label", ValueKind::Text, vex::Boxed<std::string>(std::string("none"))},
             {"Target", ValueKind::Reference, vex::Reference{}},
             {"Model", ValueKind::DocumentLink, vex::Boxed<vex::DocumentLink>()},
             {"Points", ValueKind::List, vex::Boxed<vex::DoubleList>(vex::DoubleList{1, 2})},
             {"Data", ValueKind::Table, vex::Boxed<vex::DoubleTable>()},
             {"Digest", ValueKind::Integer, std::int64_t{0}, false}}};
        std::string error;
        EXPECT_TRUE(vex::LateTypes::Instance().Add({plain, load, all}, error)) << error;
        return true;
    }();
    EXPECT_TRUE(added);
}

}  // namespace hlxtest
