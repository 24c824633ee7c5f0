// SPDX-License-Identifier: Apache-2.0
// The kinds of temperature, where their creation differs, and what an exit of it leaves.
#pragma once

#include "library/CreationChecks.h"
#include "library/conditions/TemperatureState.h"

namespace hlxtest::statics {

struct TemperatureKind
{
    const char* type;
    TemperatureCreation create;
    bool isHistory;     ///< made in a handle of its own, and given as an entity
    const char* place;  ///< alias of the step
    const char* notCreated;
    const char* notSupported;
    const char* ready;    ///< its values when the part is looked for
    const char* support;  ///< with '*' for the part
    int amplitudes;

    /// The text of a temperature of this kind.
    std::string Text(const std::string& aliasAndValues) const
    {
        return std::string(type) + " in " + place + ", " + aliasAndValues;
    }

    /// Without a support.
    std::string Ready(const std::string& alias = "Name") const
    {
        return Text(alias + ": " + ready);
    }

    std::string Whole(const std::string& alias = "Name", const std::string& part = "box") const
    {
        std::string text = Ready(alias) + " on " + support;
        return text.replace(text.find('*'), 1, part + ".VEXPart");
    }

    VEXBaseUnknown_var Given(const TemperatureArguments& arguments) const
    {
        return isHistory ? VEXBaseUnknown_var(arguments.history)
                         : VEXBaseUnknown_var(arguments.temperature);
    }
};

inline constexpr const char* noLinkToTheFace = "Could not get VEXILinkable for face!\n";

inline constexpr TemperatureKind kTemperatureBC{
    .type = "HLXTemperatureLT",
    .create =
        [](TemperatureArguments& a) {
            return HLXAnalysisTestUtils::CreateTemperatureBC(a.document, a.name, a.temperature,
                                                             a.step);
        },
    .isHistory = false,
    .place = "Loading",
    .notCreated = "Could not create temperature BC in the current step\n",
    .notSupported = "Could not add support to Temperature BC\n",
    .ready = "25.89 subroutine amplitude 1 used",
    .support = "face 1 of *, GeometrySmartConnector",
    .amplitudes = 1,
};

inline constexpr TemperatureKind kInitialTemperature{
    .type = "HLXInitialTemperatureLT",
    .create =
        [](TemperatureArguments& a) {
            return HLXAnalysisTestUtils::CreateInitialTemperature(a.document, a.name,
                                                                  a.temperature);
        },
    .isHistory = false,
    .place = "Initial",
    .notCreated = "Could not create initial temperature in the current step\n",
    .notSupported = "Could not add support to Initial Temperature\n",
    .ready = "0",
    .support = "body of *, GeometrySmartConnector",
    .amplitudes = 0,
};

inline constexpr TemperatureKind kTemperatureHistory{
    .type = "HLXTemperatureHistoryLT",
    .create =
        [](TemperatureArguments& a) {
            return HLXAnalysisTestUtils::CreateTemperatureHistory(a.document, a.name, a.history,
                                                                  a.step);
        },
    .isHistory = true,
    .place = "Loading",
    .notCreated = "Could not create temperature history in the current step\n",
    .notSupported = "Could not add support to Film Condition\n",
    .ready = "0",
    .support = "body of *, GeometrySmartConnector",
    .amplitudes = 0,
};

/// What the caller's handle holds after a creation.
enum class TemperatureHandle { Former, New, Empty };

/// A creation with something broken, what it answers and prints, the temperature and the amplitudes
/// that are then in the document, what the handle holds. No text: no temperature.
struct TemperatureExit
{
    std::string name;
    std::string faults;
    long result;
    std::string out;
    std::string text;
    int amplitudes;
    TemperatureHandle handle = TemperatureHandle::New;

    friend void PrintTo(const TemperatureExit& row, std::ostream* stream) { *stream << row.faults; }
};

using TemperatureExits = std::vector<TemperatureExit>;

inline std::string NameOfTemperatureExit(const testing::TestParamInfo<TemperatureExit>& row)
{
    return row.param.name;
}

class TemperatureKindTest : public TemperatureStateTest
{
protected:
    using TemperatureStateTest::TemperatureStateTest;

    static Outcome Create(const TemperatureKind& kind, TemperatureArguments& arguments,
                          std::string_view faults = "")
    {
        return RunWith(faults, [&] { return kind.create(arguments); });
    }

    /// Takes a row through `kind`'s creation, with a handle that holds the clamp.
    void ExpectExit(const TemperatureKind& kind, const TemperatureExit& row)
    {
        HeldCounts held = HeldAfter([&] { ExpectLeft(kind, row); });
        // The factories live to the end of the process, whoever holds them.
        held.erase("HLXTemperatureFact");
        held.erase("HLXAmplitudeFact");
        EXPECT_EQ(held, HeldCounts{});
        ExpectFlushed(kind, row);
    }

    /// What is answered and printed, what is then in the document and in the handle.
    void ExpectLeft(const TemperatureKind& kind, const TemperatureExit& row)
    {
        TemperatureArguments arguments = Arguments(former);
        const VEXBaseUnknown_var before = kind.Given(arguments);
        EXPECT_EQ(Create(kind, arguments, row.faults), (Outcome{row.result, row.out, ""}));
        EXPECT_EQ(TemperatureTexts(), row.text.empty() ? std::vector<std::string>{}
                                                       : std::vector<std::string>{row.text});
        EXPECT_EQ(Amplitudes().Size(), row.amplitudes);
        const VEXBaseUnknown_var given = kind.Given(arguments);
        switch (row.handle) {
            case TemperatureHandle::Former:
                EXPECT_TRUE(given == before);
                break;
            case TemperatureHandle::New:
                EXPECT_TRUE(given && given == Temperatures()[1]);
                break;
            case TemperatureHandle::Empty:
                EXPECT_FALSE(given);
                break;
        }
        EXPECT_EQ(arguments.name, "Name");
        EXPECT_TRUE(arguments.step == step);
        EXPECT_EQ(AliasOf(former), "Former");
    }

    /// Its own messages are flushed, but for that of the face. Others are not looked at.
    void ExpectFlushed(const TemperatureKind& kind, const TemperatureExit& row)
    {
        const bool isFlushed = row.out == kind.notCreated || row.out == kind.notSupported;
        if (!isFlushed && row.out != noLinkToTheFace) {
            return;
        }
        TemperatureArguments arguments = Arguments();
        EXPECT_EQ(FlushedWith(row.faults, [&] { kind.create(arguments); }),
                  isFlushed ? row.out : "");
    }

    /// The calls by which a temperature is made, of the platform and of the other operations.
    std::vector<std::string> CallsOfCreation(const TemperatureKind& kind,
                                             std::string_view faults = "")
    {
        TemperatureArguments arguments = Arguments(former);
        std::vector<std::string> calls;
        RunWith(faults, [&] {
            calls = CallsOf([&] { kind.create(arguments); },
                            {"VEXInstantiateComponent", "HLXIT", "HLXICondition::",
                             "HLXAnalysisDocUtils::", "HLXIAmplitudeFact::", "VEXIAlias::",
                             "VEXISamDocumentManager::", "VEXIPrtContainer::", "VEXIPartRequest::",
                             "VEXIBodyRequest::", "VEXBRepDecode", "VEXISamAnalysisSupport::"});
        });
        return calls;
    }
};

}  // namespace hlxtest::statics
