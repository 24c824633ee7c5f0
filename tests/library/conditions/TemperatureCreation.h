// SPDX-License-Identifier: Apache-2.0
// What the creation of a temperature that is put on the body does, whatever its kind.
#pragma once

#include "library/conditions/TemperatureKinds.h"

namespace hlxtest::statics {

class TemperatureCreationTest : public TemperatureKindTest
{
protected:
    /// Another one has a feature of its own, held by the caller alone.
    void ExpectSecondLeavesFirstAlone(const TemperatureKind& kind)
    {
        TemperatureArguments arguments = Arguments();
        arguments.name = "First";
        ASSERT_EQ(Create(kind, arguments), (Outcome{S_OK, "", ""}));
        arguments.name = "Second";
        ASSERT_EQ(Create(kind, arguments), (Outcome{S_OK, "", ""}));
        EXPECT_EQ(TemperatureTexts(), (std::vector{kind.Whole("First"), kind.Whole("Second")}));
        EXPECT_TRUE(kind.Given(arguments) == Temperatures()[2]);
        EXPECT_EQ(References(*kind.Given(arguments).Get()), 2U);  // and the one asked here
    }

    void ExpectFormerLeftAlone(const TemperatureKind& kind)
    {
        TemperatureArguments arguments = Arguments(former);
        ASSERT_TRUE(kind.Given(arguments));
        const unsigned long before = References(*former.Get());
        ASSERT_EQ(Create(kind, arguments), (Outcome{S_OK, "", ""}));
        EXPECT_EQ(AliasOf(former), "Former");
        EXPECT_EQ(SupportsOf(former), std::vector<std::string>{});
        EXPECT_EQ(References(*former.Get()), before - 1);
    }

    void ExpectNamesTakenAsTheyAre(const TemperatureKind& kind)
    {
        TemperatureArguments arguments = Arguments();
        for (const char* const name :
             {"", " blanks around ", "\xC3\xA4\xE2\x82\xAC", "100% \"of\"\n"}) {
            arguments.name = name;
            EXPECT_EQ(Create(kind, arguments), (Outcome{S_OK, "", ""}));
            EXPECT_EQ(AliasOf(kind.Given(arguments)), name);
            EXPECT_EQ(arguments.name, name);
        }
    }

    void ExpectRefusedNameToBeNoFailure(const TemperatureKind& kind)
    {
        TemperatureArguments arguments = Arguments();
        arguments.name = "\xFF";
        EXPECT_EQ(Create(kind, arguments), (Outcome{S_OK, "", ""}));
        EXPECT_EQ(AliasOf(kind.Given(arguments)), "");
    }

    /// Calls that a temperature on the body is made with: `calls`, its name, the body, the support.
    static std::vector<std::string> WithNameAndBody(std::vector<std::string> calls)
    {
        calls.insert(calls.end(), {"VEXIAlias::SetAlias(\"Name\")",
                                   "VEXISamDocumentManager::GetLinkedDocuments(&)",
                                   "VEXIPrtContainer::GetMechanicalPart()",
                                   "VEXIPartRequest::GetMainBody(\"MfDefault3DView\", &)",
                                   "VEXISamAnalysisSupport::AddSupport(VEXMechanicalTool, VEXPart, "
                                   "\"GeometrySmartConnector\")"});
        return calls;
    }
};

}  // namespace hlxtest::statics
