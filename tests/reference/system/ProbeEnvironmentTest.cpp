// SPDX-License-Identifier: Apache-2.0
// A compiled program under VEX_TRACE, VEX_COUNTS and VEX_FAULTS.
#include "support/TemporaryFolder.h"

#include <gmock/gmock.h>

#include <cstdlib>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

using hlxtest::ReadFile;
using testing::AllOf;
using testing::HasSubstr;
using testing::MatchesRegex;

class ProbeEnvironmentTest : public testing::Test
{
protected:
    /// Runs a command with an environment before it; what it wrote is in the files out and err.
    int Run(const std::string& environment,
            const std::string& program = HLX_BINARY_DIR "/tests/specimens/probed_program") const
    {
        const std::string command = "VEX_COMPONENT_PATH='" HLX_BINARY_DIR "/tests/specimens' " +
                                    environment + " " + program + " >'" + File("out") + "' 2>'" +
                                    File("err") + "'";
        const int status = std::system(command.c_str());
        return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    }

    std::string File(std::string_view name) const { return _folder.File(name); }
    std::string Out() const { return ReadFile(File("out")); }
    std::string Err() const { return ReadFile(File("err")); }

private:
    hlxtest::TemporaryFolder _folder;
};

TEST_F(ProbeEnvironmentTest, WithoutAnyTheProgramIsAsItIs)
{
    EXPECT_EQ(3, Run(""));
    EXPECT_EQ("VEXMakePath 0 'folder/na\"me'\nsession VEXSession\nalias found\n", Out());
}

TEST_F(ProbeEnvironmentTest, TraceIsALineACall)
{
    EXPECT_EQ(3, Run("VEX_TRACE='" + File("trace.txt") + "'"));
    EXPECT_EQ("VEXMakePath 0 'folder/na\"me'\nsession VEXSession\nalias found\n", Out());
    constexpr const char* time = R"(, [0-9]+\.[0-9][0-9][0-9] us)";
    std::string expected;
    for (
        const char* const call :
        {R"(VEXMakePath\("folder", "na\\"me", &\) -> S_OK "folder/na\\"me")",
         R"(Create_Session\("Session", &\) -> S_OK VEXSession)",
         R"(VEXCreateExternalObject\("SpecimenGoodObject", null, "SpecimenGood", null\) -> SpecimenGoodObject)",
         R"(cast:SpecimenGoodObject->VEXIAlias\(&\) -> S_OK pointer)",
         R"(VEXMakePath\("last", "call", &\) -> S_OK "last/call")"}) {
        expected += std::string(call) + time + "\n";
    }
    EXPECT_THAT(ReadFile(File("trace.txt")), MatchesRegex(expected));
}

TEST_F(ProbeEnvironmentTest, JsonTraceIsWholeThoughTheProgramEndsInTheMiddle)
{
    EXPECT_EQ(3, Run("VEX_TRACE='" + File("trace.json") + "'"));
    const std::string check =
        "python3 -c 'import json,sys; events=json.load(open(sys.argv[1]));"
        R"(print(len(events), events[0]["name"], events[0]["args"]["result"],)"
        R"( all(e["ph"]=="X" and e["dur"]>=0 for e in events))' ')" +
        File("trace.json") + "'";
    EXPECT_EQ(0, Run("", check));
    EXPECT_EQ("5 VEXMakePath S_OK \"folder/na\\\"me\" True\n", Out()) << Err();
}

TEST_F(ProbeEnvironmentTest, CountsTellCallsAndWhatIsHeld)
{
    EXPECT_EQ(3, Run("VEX_COUNTS='" + File("counts.txt") + "'"));
    EXPECT_EQ(
        "calls\n"
        "         1 Create_Session\n"
        "         1 VEXCreateExternalObject\n"
        "         2 VEXMakePath\n"
        "         1 cast:SpecimenGoodObject->VEXIAlias\n"
        "objects still held\n",
        ReadFile(File("counts.txt")));
}

TEST_F(ProbeEnvironmentTest, FaultsBreakTheProgramsCalls)
{
    EXPECT_EQ(3, Run("VEX_TRACE='" + File("trace.txt") +
                     "' VEX_FAULTS='VEXMakePath#1=E_FAIL;Create_Session=null;"
                     "cast:SpecimenGoodObject->VEXIAlias=E_NOINTERFACE'"));
    // The component's library was not loaded yet when the faults were first looked at.
    EXPECT_EQ(2, Run("VEX_FAULTS='cast:NoSuchObject->VEXIAlias=E_NOINTERFACE'"));
    EXPECT_THAT(Err(), AllOf(HasSubstr("VEX_FAULTS: fault 1 (character 1)"),
                             HasSubstr("no component or late type is named \"NoSuchObject\"")));
}

TEST_F(ProbeEnvironmentTest, FaultsOfCastsByOpenName)
{
    EXPECT_EQ(3, Run("VEX_FAULTS='cast:Specimen*=E_NOINTERFACE;VEXMakePath#1=E_FAIL;"
                     "Create_Session=null'"));
    EXPECT_EQ("VEXMakePath -2147467259 ''\nsession none\nalias none\n", Out());
}

TEST_F(ProbeEnvironmentTest, AWrongSettingEndsTheProgramBeforeItBegins)
{
    EXPECT_EQ(2, Run("VEX_FAULTS='VEXMakePath=null'"));
    EXPECT_THAT(Err(),
                HasSubstr("VEX_FAULTS: fault 1 (character 1) \"VEXMakePath=null\": the outcome "
                          "does not fit VEXMakePath"));
    EXPECT_EQ("", Out());
    EXPECT_EQ(2, Run("VEX_TRACE=/nowhere/trace.txt"));
    EXPECT_THAT(Err(), HasSubstr("VEX_TRACE: '/nowhere/trace.txt': the trace cannot be written: No "
                                 "such file or directory"));
    EXPECT_EQ(2, Run("VEX_COUNTS=/nowhere/counts.txt"));
    EXPECT_THAT(Err(),
                HasSubstr("VEX_COUNTS: '/nowhere/counts.txt': the counts cannot be written"));
}

TEST_F(ProbeEnvironmentTest, APipeThatNobodyReadsIsNotWaitedFor)
{
    ASSERT_EQ(mkfifo(File("pipe").c_str(), 0600), 0);
    for (const std::string variable : {"VEX_TRACE", "VEX_COUNTS"}) {
        EXPECT_EQ(2, Run(variable + "='" + File("pipe") + "'"));
        EXPECT_THAT(Err(), testing::StartsWith(variable + ": '" + File("pipe") + "': "));
        EXPECT_THAT(Err(), HasSubstr("cannot be written: No such device or address"));
    }
}

TEST_F(ProbeEnvironmentTest, APipeThatIsReadGetsTheTrace)
{
    ASSERT_EQ(mkfifo(File("pipe").c_str(), 0600), 0);
    const int reader = open(File("pipe").c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    ASSERT_GE(reader, 0);
    EXPECT_EQ(3, Run("VEX_TRACE='" + File("pipe") + "'"));
    std::string trace(4096, '\0');
    const ssize_t size = read(reader, trace.data(), trace.size());
    close(reader);
    EXPECT_GT(size, 0);
    EXPECT_THAT(trace, HasSubstr("VEXMakePath(\"last\", \"call\", &) -> S_OK"));
}

TEST_F(ProbeEnvironmentTest, AFullDiskEndsTheTraceNotTheProgram)
{
    EXPECT_EQ(3, Run("VEX_TRACE=/dev/full"));
    EXPECT_THAT(Err(),
                HasSubstr("VEX_TRACE: '/dev/full': No space left on device. The trace ends"));
    EXPECT_EQ("VEXMakePath 0 'folder/na\"me'\nsession VEXSession\nalias found\n", Out());
}

}  // namespace
