// SPDX-License-Identifier: Apache-2.0
// Files that are no STEP file, or no whole one, or bring the kernel down: refused, and nothing else
// happens.
#include "reference/topology/KernelFixture.h"

#include "support/Capture.h"
#include "support/EnvironmentVariable.h"
#include "support/TemporaryFolder.h"

#include <gmock/gmock.h>
#include <sys/stat.h>
#include <unistd.h>

#include <random>

namespace hlxtest {
namespace {

using testing::AllOf;
using testing::HasSubstr;

class BrokenStep : public KernelTest
{
protected:
    std::string RefusalOf(const std::string& text)
    {
        WriteFile(folder.File("broken.step"), text);
        const std::string error = Refusal(folder.File("broken.step"));
        EXPECT_THAT(error, HasSubstr(folder.File("broken.step")));
        EXPECT_EQ(error.find('\n'), std::string::npos) << error;
        return error;
    }

    /// A file the kernel crashes on.
    std::string Crashing() const
    {
        return Replaced(block, "#219 = LINE('',#220,#221)", "#219 = LINE('',#220,#329)");
    }

    const std::string block = ReadFile(kStepData + "block.step");
    const std::string whole = ReadFile(kStepData + "nested.step");
    const TemporaryFolder folder;
};

TEST_F(BrokenStep, MissingFile)
{
    const std::string path = folder.File("none.step");
    EXPECT_THAT(Refusal(path),
                AllOf(HasSubstr(path), HasSubstr("no such file"), HasSubstr("check the path")));
}

TEST_F(BrokenStep, Folder)
{
    EXPECT_THAT(Refusal(folder.Path()), AllOf(HasSubstr(folder.Path()), HasSubstr("not a file")));
}

TEST_F(BrokenStep, PipeIsNotWaitedFor)
{
    ASSERT_EQ(mkfifo(folder.File("pipe.step").c_str(), 0600), 0);
    EXPECT_THAT(Refusal(folder.File("pipe.step")), HasSubstr("not a file"));
}

TEST_F(BrokenStep, NoName)
{
    EXPECT_THAT(Refusal(""), HasSubstr("no file name"));
    EXPECT_THAT(Refusal(kStepData + "block.step" + std::string(1, '\0') + "x"),
                HasSubstr("no file name"));
}

TEST_F(BrokenStep, EmptyFile)
{
    EXPECT_THAT(RefusalOf(""), HasSubstr("empty"));
}

TEST_F(BrokenStep, Text)
{
    EXPECT_THAT(RefusalOf("A bracket, two bolts and a plate.\n"),
                AllOf(HasSubstr("line 1"), HasSubstr("starts with")));
}

TEST_F(BrokenStep, Bytes)
{
    std::mt19937 random(1);
    std::string bytes(20000, '\0');
    for (char& byte : bytes)
        byte = static_cast<char>(random());
    EXPECT_THAT(RefusalOf(bytes), HasSubstr("starts with"));
}

TEST_F(BrokenStep, TruncatedAnywhere)
{
    // The last 30 bytes are the closing line; without a piece of it the file is not whole.
    for (std::size_t step = 1; step <= 40; ++step) {
        const std::size_t length = (whole.size() - 4) * step / 40;
        const std::string error = RefusalOf(whole.substr(0, length));
        EXPECT_THAT(error, HasSubstr("line ")) << "cut at " << length;
    }
}

TEST_F(BrokenStep, TruncationNamesTheLineItEndsAt)
{
    const std::string half = whole.substr(0, whole.find("#100 "));
    const auto lines = 1 + std::count(half.begin(), half.end(), '\n');
    EXPECT_THAT(RefusalOf(half),
                AllOf(HasSubstr("line " + std::to_string(lines) + ":"), HasSubstr("is missing")));
}

TEST_F(BrokenStep, SyntaxErrorNamesTheLine)
{
    // Where the header should begin, its first entry stands on line 4.
    EXPECT_THAT(RefusalOf(Replaced(whole, "HEADER;", "")),
                AllOf(HasSubstr("Line 4:"), HasSubstr("export it again")));
}

TEST_F(BrokenStep, UnreadableEntityIsNamed)
{
    // Its direction lost its closing bracket.
    const std::string text =
        Replaced(whole, "#47 = DIRECTION('',(0.,0.,1.));", "#47 = DIRECTION('',(0.,0.,1.);");
    EXPECT_THAT(RefusalOf(text), HasSubstr("#45 (Parameter"));
}

TEST_F(BrokenStep, NoShape)
{
    const std::size_t data = whole.find("DATA;") + 5;
    const std::string empty = whole.substr(0, data) + "\nENDSEC;\nEND-ISO-10303-21;\n";
    EXPECT_THAT(RefusalOf(empty), AllOf(HasSubstr("no shape"), HasSubstr("export it again")));
}

// A line whose direction is no vector brings the kernel down; it must not take the host along.
TEST_F(BrokenStep, KernelCrashIsAnError)
{
    EXPECT_THAT(RefusalOf(Crashing()),
                AllOf(HasSubstr("broke down"), HasSubstr("export it again")));
}

TEST_F(BrokenStep, ASubassemblyInItself)
{
    const std::string text = Replaced(whole, "'Pin.1','',#35,#62,$)", "'Pin.1','',#35,#5,$)");
    EXPECT_THAT(RefusalOf(text), HasSubstr("export it again"));
}

// Whatever single reference or byte is wrong: an answer comes, and what is handed out can be
// loaded.
TEST_F(BrokenStep, DamageNeverComesThrough)
{
    const EnvironmentVariable limit("VEX_STEP_SECONDS", "2");
    std::mt19937 random(7);
    const auto below = [&](std::size_t bound) { return random() % bound; };
    int read = 0, refused = 0;
    for (int round = 0; round < 60; ++round) {
        std::string damaged = whole;
        if (round % 2 == 0) {
            damaged[below(damaged.size())] = static_cast<char>(random());
        } else {
            const std::size_t at = damaged.find('#', below(damaged.size() - 1000));
            const std::size_t end = damaged.find_first_not_of("0123456789", at + 1);
            damaged.replace(at, end - at, "#" + std::to_string(1 + below(350)));
        }
        WriteFile(folder.File("damaged.step"), damaged);
        vex::ImportedAssembly assembly;
        std::string error;
        if (!kernel->ReadStep(folder.File("damaged.step"), assembly, error)) {
            EXPECT_THAT(error, HasSubstr("damaged.step"));
            ++refused;
            continue;
        }
        ++read;
        for (const vex::ImportedPart& part : assembly.parts) {
            EXPECT_NE(Load(part), nullptr);
        }
    }
    EXPECT_GT(read, 0);
    EXPECT_GT(refused, 0);
}

TEST_F(BrokenStep, NothingIsWrittenToStandardOutput)
{
    const Captured captured = Capture([&] {
        Import(kSample);
        RefusalOf(Replaced(whole, "\nDATA;", "\n)DATA;"));
        RefusalOf(Crashing());
        std::string error;
        EXPECT_EQ(kernel->LoadShape(std::as_bytes(std::span(whole)), error), nullptr);
        const std::string otherVersion = "\nOpen CASCADE Topology V1, (c)\n";
        EXPECT_EQ(kernel->LoadShape(std::as_bytes(std::span(otherVersion)), error), nullptr);
    });
    EXPECT_EQ(captured.out, "");
}

TEST_F(BrokenStep, ALeftOutEntityIsToldOfOnStandardError)
{
    const std::string face = "#17 = ADVANCED_FACE('',(#18),";
    WriteFile(folder.File("partial.step"), Replaced(block, face + "#32", face + "#33"));
    vex::ImportedAssembly assembly;
    const std::string said =
        StandardErrorOf([&] { assembly = Import(folder.File("partial.step")); });
    EXPECT_THAT(said, AllOf(HasSubstr("partial.step"), HasSubstr("#17")));
    ASSERT_EQ(assembly.parts.size(), 1u);
    EXPECT_EQ(Load(assembly.parts[0])->CellCount(2), 5u);
}

}  // namespace
}  // namespace hlxtest
