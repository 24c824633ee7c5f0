// SPDX-License-Identifier: Apache-2.0
// What the operating system is asked for when a document and a setting are stored, as strace sees
// it: only this order survives a loss of power.
#include "durability/NamedDocument.h"
#include "support/ChildProgram.h"
#include "support/TemporaryFolder.h"

#include <gmock/gmock.h>

#include <filesystem>
#include <sstream>

namespace durabilitytest {
namespace {

using testing::ElementsAre;

// A system call of the trace, as far as it concerns the file that is stored.
// "12 fsync(5</d/a.k3x9q2~>) = 0": with -y strace tells the path of each descriptor.
struct Step
{
    const char* call;  ///< how the line's call begins
    const char*
        holds;         ///< FILE~ is the new file's path, FILE the file's, FOLDER that of its folder
    const char* name;  ///< what the step is called
};

constexpr Step kSteps[] = {{"openat(", "\"FILE~\", O_RDWR|O_CREAT|O_EXCL", "make"},
                           {"flock(", "<FILE~>, LOCK_EX|LOCK_NB)", "lock"},
                           {"pwrite64(", "<FILE~>", "write"},
                           {"fsync(", "<FILE~>)", "synchronise"},
                           {"fdatasync(", "<FILE~>)", "synchronise"},
                           {"rename(", "\"FILE~\", \"FILE\")", "rename"},
                           {"fsync(", "<FOLDER>)", "synchronise the folder"},
                           {"unlink(", "\"FILE", "remove"},
                           {"ftruncate(", "<FILE", "cut"}};

class SystemCallOrder : public testing::Test
{
protected:
    SystemCallOrder()
    {
        StoreNamed(document, Sized("name", 50'000));
        std::filesystem::create_directory(folder.File("copies"));
        const hlxtest::Ended ended = hlxtest::RunProgram(
            {"/usr/bin/strace", "-f", "-y", "-s", "8", "-o", folder.File("trace"), "-e",
             "trace=openat,open,creat,flock,write,pwrite64,pwritev,writev,fsync,fdatasync,rename,"
             "renameat,renameat2,unlink,unlinkat,ftruncate,truncate,sync,syncfs,sync_file_range",
             HLX_BINARY_DIR "/tests/specimens/saving_program", document, copy},
            {{"VEX_SETTINGS=" + settings,
              "ASAN_OPTIONS=detect_leaks=0"}});  // leaks need ptrace too
        EXPECT_EQ(ended.code, 0)
            << "This test needs strace (Debian package strace, scripts/setup) and the right to "
               "trace one's own child process: kernel.yama.ptrace_scope below 3, and in a "
               "container a "
               "seccomp profile that allows ptrace (docker run --cap-add SYS_PTRACE). It said: "
            << ended.err;
        if (hlxtest::FileExists(folder.File("trace"))) {
            trace = hlxtest::ReadFile(folder.File("trace"));
        }
    }

    // The steps of storing `file`, repeated ones once, in their order.
    std::vector<std::string> StepsOf(const std::string& file) const
    {
        const std::string unfinished = PathOfUnfinished(file);
        std::vector<std::string> steps;
        std::istringstream lines(trace);
        for (std::string line; std::getline(lines, line);) {
            for (const Step& step : kSteps) {
                std::string holds = step.holds;
                Replace(holds, "FILE~", unfinished);
                Replace(holds, "FILE", file);
                Replace(holds, "FOLDER", file.substr(0, file.rfind('/')));
                const bool isIt = line.find(' ' + std::string(step.call)) != std::string::npos &&
                                  line.find(holds) != std::string::npos;
                if (isIt && line.find(" = -1 ") != std::string::npos) {
                    ADD_FAILURE() << line;
                } else if (isIt && (steps.empty() || steps.back() != step.name)) {
                    steps.emplace_back(step.name);
                }
            }
        }
        return steps;
    }

    std::size_t WritesOf(const std::string& file) const
    {
        const std::string unfinished = PathOfUnfinished(file);
        std::size_t writes = 0;
        std::istringstream lines(trace);
        for (std::string line; std::getline(lines, line);) {
            writes += line.find(" pwrite64(") != std::string::npos &&
                      line.find('<' + unfinished + '>') != std::string::npos;
        }
        return writes;
    }

    // The path of the new file, from the line that makes it.
    std::string PathOfUnfinished(const std::string& file) const
    {
        const std::size_t start = trace.find('"' + file + '.');
        EXPECT_NE(start, std::string::npos) << "no new file is made for " << file << ":\n" << trace;
        return start == std::string::npos
                   ? "none"
                   : trace.substr(start + 1, trace.find('"', start + 1) - start - 1);
    }

    static void Replace(std::string& text, std::string_view part, const std::string& by)
    {
        const std::size_t at = text.find(part);
        if (at != std::string::npos) text.replace(at, part.size(), by);
    }

    const hlxtest::TemporaryFolder folder;
    const std::string document = folder.File("documents.VEXAnalysis");
    const std::string copy = folder.File("copies/copy.VEXAnalysis");
    const std::string settings = folder.File("settings/HLX/s.VEXSettings");
    std::string trace;
};

TEST_F(SystemCallOrder, OfADocument)
{
    EXPECT_THAT(StepsOf(document), ElementsAre("make", "lock", "write", "synchronise", "rename",
                                               "synchronise the folder"))
        << trace;
}

TEST_F(SystemCallOrder, OfACopyOfADocumentThatIsAsItWasStored)
{
    EXPECT_THAT(StepsOf(copy), ElementsAre("make", "lock", "write", "synchronise", "rename",
                                           "synchronise the folder"))
        << trace;
    EXPECT_LT(WritesOf(copy), WritesOf(document)) << "its pages are written anew, not copied";
    EXPECT_EQ(hlxtest::ReadFile(copy), hlxtest::ReadFile(document));
}

TEST_F(SystemCallOrder, OfSettings)
{
    EXPECT_THAT(StepsOf(settings), ElementsAre("make", "lock", "write", "synchronise", "rename",
                                               "synchronise the folder"))
        << trace;
    // The folders that were made for it are put on the disk before.
    const std::size_t made = trace.find('"' + settings + '.');
    EXPECT_LT(trace.find("<" + folder.Path() + ">)"), made) << trace;
    EXPECT_LT(trace.find("<" + folder.File("settings") + ">)"), made) << trace;
}

}  // namespace
}  // namespace durabilitytest
