// SPDX-License-Identifier: Apache-2.0
// A session's life: created and deleted by name, whatever becomes of the creation.
#include "HLXSession.h"

#include "support/ForeignNumbers.h"
#include "support/Outcome.h"
#include "support/PrivateMember.h"

#include <gmock/gmock.h>

#include <memory>
#include <new>
#include <optional>

namespace hlxtest {

struct SessionName : MemberName<char * HLXSession::*>
{
    friend Pointer Get(SessionName);
};
struct SessionRunning : MemberName<unsigned char HLXSession::*>
{
    friend Pointer Get(SessionRunning);
};

template struct Reveal<SessionName, &HLXSession::_SessionName>;
template struct Reveal<SessionRunning, &HLXSession::_Running>;

namespace {

using testing::ElementsAre;

/// A place for a session whose destructor runs only when the test says so.
class Unowned
{
public:
    template <class Argument>
    explicit Unowned(const Argument& argument) : _session(new (_place) HLXSession(argument))
    {}
    HLXSession& operator*() { return *_session; }
    HLXSession* operator->() { return _session; }
    void Destroy() { _session->~HLXSession(); }

private:
    alignas(HLXSession) std::byte _place[sizeof(HLXSession)];
    HLXSession* _session;
};

/// Whether a session of that name can be created, which is to say that none runs.
bool IsFree(const std::string& name)
{
    std::string text = name;
    VEXSession* session = nullptr;
    if (FAILED(Create_Session(text.data(), session))) {
        return false;
    }
    EXPECT_EQ(Delete_Session(text.data(), 0, 0), S_OK);
    return true;
}

TEST(HLXSession, RunsFromConstructionToDestruction)
{
    std::optional<HLXSession> session;
    EXPECT_EQ(OutcomeOf([&] { session.emplace("batch"); }), (Outcome{0, "", ""}));
    EXPECT_EQ(session->IsSessionRunning(), 1);
    EXPECT_FALSE(IsFree("batch"));
    EXPECT_EQ(OutcomeOf([&] { session.reset(); }), (Outcome{0, "", ""}));
    EXPECT_TRUE(IsFree("batch"));
}

TEST(HLXSession, IsCreatedAndDeletedByName)
{
    EXPECT_THAT(CallsOf([] { const HLXSession session("batch"); }),
                ElementsAre("Create_Session(\"batch\", &)", "Delete_Session(\"batch\", 0, 0)"));
}

TEST(HLXSession, KeepsACopyOfTheName)
{
    char name[] = "batch";
    EXPECT_THAT(CallsOf([&] {
                    const HLXSession session(name);
                    name[0] = 'X';
                    EXPECT_NE(session.*Get(SessionName()), name);
                    EXPECT_STREQ(session.*Get(SessionName()), "batch");
                }),
                ElementsAre("Create_Session(\"batch\", &)", "Delete_Session(\"batch\", 0, 0)"));
}

TEST(HLXSession, AnEmptyNameIsAName)
{
    EXPECT_THAT(CallsOf([] {
                    HLXSession session("");
                    EXPECT_EQ(session.IsSessionRunning(), 1);
                    EXPECT_STREQ(session.*Get(SessionName()), "");
                }),
                ElementsAre("Create_Session(\"\", &)", "Delete_Session(\"\", 0, 0)"));
}

TEST(HLXSession, NullStandsForTheEmptyName)
{
    EXPECT_THAT(CallsOf([] {
                    HLXSession session(nullptr);
                    EXPECT_EQ(session.IsSessionRunning(), 1);
                }),
                ElementsAre("Create_Session(\"\", &)", "Delete_Session(\"\", 0, 0)"));
}

TEST(HLXSession, HoldsItsNameAndThenWhetherItRuns)
{
    HLXSession session("batch");
    const void* const name = &(session.*Get(SessionName()));
    const void* const running = &(session.*Get(SessionRunning()));
    EXPECT_TRUE(std::less<>()(name, running));
    EXPECT_EQ(session.*Get(SessionRunning()), 1);
    session.*Get(SessionRunning()) = 7;
    EXPECT_EQ(session.IsSessionRunning(), 7);
}

struct CreationRow
{
    const char* name;
    const char* faults;
    const char* out;
    int running;
};

class SessionCreation : public testing::TestWithParam<CreationRow>
{};

TEST_P(SessionCreation, IsToldWhenItFailedAndTheSessionIsDeletedAnyway)
{
    std::vector<std::string> calls;
    EXPECT_EQ(OutcomeOf([&] {
                  Recording recording;
                  {
                      std::optional<Faults> faults(GetParam().faults);
                      HLXSession session("batch");
                      EXPECT_EQ(session.IsSessionRunning(), GetParam().running);
                      faults.reset();
                  }
                  calls = recording.StopNames();
              }),
              (Outcome{0, GetParam().out, ""}));
    EXPECT_THAT(calls, ElementsAre("Create_Session", "Delete_Session"));
    EXPECT_TRUE(IsFree("batch"));
}

INSTANTIATE_TEST_SUITE_P(
    Results, SessionCreation,
    testing::Values(CreationRow{"Fails", "Create_Session=E_FAIL",
                                "*** ERROR in creating session rc:-2147467259\n", 0},
                    CreationRow{"FailsWithMinusOne", "Create_Session=-1",
                                "*** ERROR in creating session rc:-1\n", 0},
                    CreationRow{"FailsAlthoughASessionCame", "Create_Session=E_NOINTERFACE,keep",
                                "*** ERROR in creating session rc:-2147467262\n", 0},
                    CreationRow{"GivesNothing", "Create_Session=null",
                                "*** ERROR in creating session rc:0\n", 0},
                    CreationRow{"GivesNothingWithOne", "Create_Session=1",
                                "*** ERROR in creating session rc:1\n", 0},
                    CreationRow{"SucceedsWithOne", "Create_Session=1,keep", "", 1}),
    [](const auto& row) { return row.param.name; });

TEST(HLXSession, OfANameThatRunsFailsAndItsDestructionEndsTheFirst)
{
    HLXSession first("batch");
    EXPECT_EQ(OutcomeOf([] {
                  HLXSession second("batch");
                  EXPECT_EQ(second.IsSessionRunning(), 0);
              }),
              (Outcome{0, "*** ERROR in creating session rc:-2147467259\n", ""}));
    EXPECT_EQ(first.IsSessionRunning(), 1);
    EXPECT_TRUE(IsFree("batch"));
}

TEST(HLXSession, AFailureToDeleteIsNotReported)
{
    EXPECT_EQ(OutcomeOf([] {
                  std::optional<HLXSession> session("batch");
                  const Faults faults("Delete_Session=E_FAIL,keep");
                  session.reset();
              }),
              (Outcome{0, "", ""}));
}

TEST(HLXSession, TheResultIsDecimalInAForeignLocale)
{
    const ForeignNumbers foreign;
    EXPECT_EQ(RunWith("Create_Session=E_FAIL", [] { const HLXSession session("batch"); }),
              (Outcome{0, "*** ERROR in creating session rc:-2147467259\n", ""}));
    EXPECT_EQ(RunWith("Create_Session=1234567", [] { const HLXSession session("batch"); }),
              (Outcome{0, "*** ERROR in creating session rc:1234567\n", ""}));
}

TEST(HLXSession, ACopySharesTheName)
{
    Unowned original("batch");
    std::vector<std::string> calls = CallsOf([&] {
        Unowned copy(*original);
        EXPECT_EQ((*copy).*Get(SessionName()), (*original).*Get(SessionName()));
        EXPECT_EQ(copy->IsSessionRunning(), 1);
        copy.Destroy();
    });
    EXPECT_THAT(calls, ElementsAre("Delete_Session(\"batch\", 0, 0)"));
    // The name went with the copy: the original is never destroyed.
}

TEST(HLXSession, AssignmentSharesTheName)
{
    Unowned original("batch");
    HLXSession* const other = &*original;
    std::vector<std::string> calls = CallsOf([&] {
        Unowned assigned("other");
        const std::unique_ptr<char[]> formerName((*assigned).*Get(SessionName()));
        (*assigned).*Get(SessionRunning()) = 0;
        HLXSession& answer = (*assigned = *other);
        EXPECT_EQ(&answer, &*assigned);
        EXPECT_EQ((*assigned).*Get(SessionName()), (*original).*Get(SessionName()));
        EXPECT_EQ(assigned->IsSessionRunning(), 1);
        assigned.Destroy();
        char former[] = "other";
        EXPECT_EQ(Delete_Session(former, 0, 0), S_OK);
    });
    EXPECT_THAT(calls,
                ElementsAre("Create_Session(\"other\", &)", "Delete_Session(\"batch\", 0, 0)",
                            "Delete_Session(\"other\", 0, 0)"));
}

TEST(HLXSession, ACopyOfASessionThatDoesNotRunDoesNotRun)
{
    Unowned original("batch");
    (*original).*Get(SessionRunning()) = 0;
    Unowned copy(*original);
    EXPECT_EQ(copy->IsSessionRunning(), 0);
    copy.Destroy();
}

}  // namespace

}  // namespace hlxtest
