// SPDX-License-Identifier: Apache-2.0
// What probes see of a call and make of it, through the free functions of the platform.
#include "VEXError.h"
#include "VEXSession.h"
#include "VEXSystem.h"
#include "host/system/Probe.h"
#include "host/system/Probes.h"

#include <gmock/gmock.h>

#include <set>

namespace {

using namespace vex::probe;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class ProbeTest : public testing::Test
{
protected:
    ~ProbeTest() override
    {
        ClearFaults();
        StopRecording();
    }

    static void Break(std::string_view script)
    {
        std::string error;
        ASSERT_TRUE(SetFaults(script, error)) << error;
    }

    static std::string Joined(HRESULT expected = S_OK)
    {
        char path[VEXMaxPathSize] = "before";
        EXPECT_EQ(expected, VEXMakePath("a", "b", path));
        return path;
    }
};

TEST_F(ProbeTest, NothingIsObservedUnlessAskedFor)
{
    EXPECT_FALSE(active);
    StartRecording();
    EXPECT_TRUE(active);
    StopRecording();
    EXPECT_FALSE(active);
    Joined();
    StartRecording();
    EXPECT_THAT(StopRecording(), IsEmpty());
}

TEST_F(ProbeTest, RecordsArgumentsResultAndOutputs)
{
    StartRecording();
    char path[VEXMaxPathSize];
    VEXMakePath(nullptr, "a\"b\n", path);
    unsigned int descriptor = 0;
    VEXFOpen("/nowhere/at all", "w", descriptor);
    VEXError::GetReturn(1, nullptr, nullptr, "source", 12);
    const std::vector<Call> calls = StopRecording();
    ASSERT_EQ(3U, calls.size());
    EXPECT_EQ("VEXMakePath", calls[0].name);
    EXPECT_THAT(calls[0].arguments, ElementsAre("null", R"("a\"b\n")", "&"));
    EXPECT_EQ(R"(S_OK "a\"b\n")", calls[0].result);
    EXPECT_FALSE(calls[0].broken);
    EXPECT_GE(calls[0].nanoseconds, 0);
    EXPECT_EQ("E_FAIL 0", calls[1].result);
    EXPECT_THAT(calls[2].arguments, ElementsAre("1", "null", "null", R"("source")", "12"));
    EXPECT_EQ("S_OK", calls[2].result);
}

TEST_F(ProbeTest, OnlyTheOutermostCallIsObserved)
{
    StartRecording();
    vex::Probe<"VEXIAlias::GetAlias">([] {
        Joined();
        return VEXUnicodeString("x");
    });
    const std::vector<Call> calls = StopRecording();
    ASSERT_EQ(1U, calls.size());
    EXPECT_EQ("VEXIAlias::GetAlias", calls[0].name);
}

TEST_F(ProbeTest, FailureWithoutTheBody)
{
    Break("VEXMakePath=E_FAIL");
    EXPECT_EQ("", Joined(E_FAIL));
    ClearFaults();
    EXPECT_EQ("a/b", Joined());
}

TEST_F(ProbeTest, FailureAlthoughTheResultIsGiven)
{
    Break("VEXMakePath=0x80004005,keep");
    EXPECT_EQ("a/b", Joined(E_FAIL));
    Break(" VEXMakePath = -2147467259,keep ;");
    EXPECT_EQ("a/b", Joined(E_FAIL));
}

TEST_F(ProbeTest, NumbersAreResultsToo)
{
    Break("VEXMakePath=-7");
    EXPECT_EQ("", Joined(-7));
    Break("VEXMakePath=0x80040154");
    EXPECT_EQ("", Joined(static_cast<HRESULT>(0x80040154U)));
}

TEST_F(ProbeTest, SuccessWithoutAResult)
{
    Break("Create_Session=null");
    char name[] = "never made";
    VEXSession* session = nullptr;
    EXPECT_EQ(S_OK, Create_Session(name, session));
    EXPECT_EQ(nullptr, session);
    ClearFaults();
    EXPECT_EQ(E_FAIL, Delete_Session(name, 0, 0));
}

TEST_F(ProbeTest, KindsOfAnswers)
{
    const auto text = [] {
        return vex::Probe<"VEXIAlias::GetAlias">([] { return VEXUnicodeString("x"); });
    };
    const auto number = [] {
        return vex::Probe<"VEXIContainer::GetMemberCount">([] { return 3; });
    };
    VEXListValVEXBaseUnknown_var three;
    for (int i = 0; i < 3; ++i) {
        three.Append(VEXAdopt(new VEXBaseUnknown));
    }
    const auto list = [&] {
        return std::unique_ptr<VEXListValVEXBaseUnknown_var>(vex::Probe<"VEXIDocRoots::GetRoots">(
            [&] { return new VEXListValVEXBaseUnknown_var(three); }));
    };
    Break(
        "VEXIAlias::GetAlias=empty; VEXIContainer::GetMemberCount=-1; VEXIDocRoots::GetRoots=null");
    EXPECT_TRUE(text().IsEmpty());
    EXPECT_EQ(-1, number());
    EXPECT_EQ(nullptr, list());
    Break("VEXIDocRoots::GetRoots=empty");
    ASSERT_NE(nullptr, list());
    EXPECT_EQ(0, list()->Size());
    EXPECT_EQ(3, number());
    ClearFaults();
    EXPECT_EQ(3, list()->Size());
}

TEST_F(ProbeTest, AnEmptyListLeavesTheCallersListAlone)
{
    VEXListValVEXBaseUnknown_var list;
    list.Append(VEXAdopt(new VEXBaseUnknown));
    Break("VEXISamAnalysisModel::GetAnalysisCases=empty");
    const auto append = [&] {
        return vex::Probe<"VEXISamAnalysisModel::GetAnalysisCases">(
            [&] {
                list.Append(VEXAdopt(new VEXBaseUnknown));
                return S_OK;
            },
            vex::Out(list));
    };
    EXPECT_EQ(S_OK, append());
    EXPECT_EQ(1, list.Size());
}

TEST_F(ProbeTest, HandlesAndPointersAreEmptied)
{
    VEXBaseUnknown_var handle = VEXAdopt(new VEXBaseUnknown);
    auto* pointer = handle.Get();
    VEXUnicodeString text = "text";
    Break("VEXISamAccess::GetSpecContainer=E_FAIL");
    EXPECT_EQ(E_FAIL,
              (vex::Probe<"VEXISamAccess::GetSpecContainer">([] { return S_OK; }, vex::Out(handle),
                                                             vex::Out(pointer), vex::Out(text))));
    EXPECT_FALSE(handle);
    EXPECT_EQ(nullptr, pointer);
    EXPECT_TRUE(text.IsEmpty());
}

TEST_F(ProbeTest, TheCallOfANumberOnly)
{
    Break("VEXMakePath#2=E_FAIL");
    EXPECT_EQ("a/b", Joined());
    EXPECT_EQ("", Joined(E_FAIL));
    EXPECT_EQ("a/b", Joined());
}

TEST_F(ProbeTest, TheFirstFaultThatACallMeetsWins)
{
    Break("VEXMakePath#1=E_FAIL;VEX*#2=E_POINTER;VEXMakePath=E_NOTIMPL");
    StartRecording();
    Joined(E_FAIL);
    Joined(E_POINTER);
    Joined(E_NOTIMPL);
    for (const Call& call : StopRecording()) {
        EXPECT_TRUE(call.broken);
    }
}

TEST_F(ProbeTest, AnOpenNameLeavesAloneWhatItsOutcomeDoesNotFit)
{
    Break("*=null");
    EXPECT_EQ("a/b", Joined());
    EXPECT_EQ("x", vex::Probe<"VEXIAlias::GetAlias">([] { return VEXUnicodeString("x"); }));
    char name[] = "none";
    VEXSession* session = nullptr;
    EXPECT_EQ(S_OK, Create_Session(name, session));
    EXPECT_EQ(nullptr, session);
}

TEST_F(ProbeTest, BreaksByPosition)
{
    std::string error;
    ASSERT_TRUE(SetFaultAt(2, false, "E_FAIL", error));
    Joined();
    Joined(E_FAIL);
    Joined();
    ASSERT_TRUE(SetFaultAt(2, true, "E_FAIL", error));
    Joined();
    Joined(E_FAIL);
    Joined(E_FAIL);
    // What the outcome does not fit breaks in its plainest way.
    EXPECT_TRUE(vex::Probe<"VEXIAlias::GetAlias">([] { return VEXUnicodeString("x"); }).IsEmpty());
    VEXSystemInfo information{};
    VEXGetSystemInfo(&information);
    EXPECT_NE(0, information.ProcessorCount);
    EXPECT_FALSE(SetFaultAt(0, true, "E_FAIL", error));
    EXPECT_FALSE(SetFaultAt(1, true, "E_NONSENSE", error));
    EXPECT_THAT(error, HasSubstr("E_NONSENSE"));
    Joined(E_FAIL);
}

TEST_F(ProbeTest, EveryWayToBreakFitsAndTheRestIsKnown)
{
    std::set<std::string> seen;
    for (const std::string& name : AllNames()) {
        for (const std::string& way : WaysToBreak(name)) {
            std::string error;
            EXPECT_TRUE(SetFaults(name + "=" + way, error)) << error;
            seen.insert(way);
        }
    }
    EXPECT_THAT(seen, ElementsAre("-1", "0", "E_FAIL", "E_FAIL,keep", "empty", "null"));
    EXPECT_THAT(WaysToBreak("VEXGetSystemInfo"), IsEmpty());
    EXPECT_THAT(WaysToBreak("VEXFWrite"), ElementsAre("E_FAIL", "E_FAIL,keep"));
    EXPECT_THAT(WaysToBreak("VEXISamAccess::GetSpecContainer"),
                ElementsAre("E_FAIL", "E_FAIL,keep", "null"));
    EXPECT_THAT(WaysToBreak("VEXIDescendants::GetAllChildren"),
                ElementsAre("E_FAIL", "E_FAIL,keep", "empty"));
    EXPECT_THAT(WaysToBreak("VEXISpecObject::GetFather"), ElementsAre("null"));
    EXPECT_THAT(WaysToBreak("VEXIAlias::GetAlias"), ElementsAre("empty"));
    EXPECT_THAT(WaysToBreak("VEXIDocRoots::GetRoots"), ElementsAre("null", "empty"));
    EXPECT_THAT(WaysToBreak("VEXIContainer::GetMemberCount"), ElementsAre("0", "-1"));
    EXPECT_THAT(WaysToBreak("cast:VEXBaseUnknown->VEXIAlias"),
                ElementsAre("E_NOINTERFACE", "null"));
    EXPECT_THAT(WaysToBreak("no such name"), IsEmpty());
}

}  // namespace
