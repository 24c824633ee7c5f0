// SPDX-License-Identifier: Apache-2.0
// Runs work in a child process. What the child says is frames on a pipe: a kind (one byte), a
// length (8 bytes, the machine's own order), that many bytes. 'P' is a phase, 'W' a warning, 'R'
// the result, 'E' an error, 'M' the end of memory; one of these three is the last.
#include "host/topology/ChildProcess.h"

#include "host/system/Descriptor.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdint>
#include <cstring>
#include <exception>
#include <limits>
#include <new>
#include <system_error>
#include <utility>

namespace vex::topology {
namespace {

using Clock = std::chrono::steady_clock;

constexpr std::size_t kFrameHead = 1 + sizeof(std::uint64_t);

// ---- in the child ----

void WriteAll(int pipe, const void* data, std::size_t size)
{
    const char* next = static_cast<const char*>(data);
    while (size > 0) {
        const ssize_t written = ::write(pipe, next, size);
        if (written < 0 && errno == EINTR) continue;
        if (written <= 0) _exit(1);  // the parent is gone
        next += written;
        size -= static_cast<std::size_t>(written);
    }
}

void WriteFrame(int pipe, char kind, const void* data, std::size_t size)
{
    char head[kFrameHead];
    const std::uint64_t length = size;
    head[0] = kind;
    std::memcpy(head + 1, &length, sizeof length);
    WriteAll(pipe, head, sizeof head);
    WriteAll(pipe, data, size);
}

void DetachFromParent(pid_t parent)
{
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    if (::getppid() != parent) _exit(1);  // it ended before that
    // The parent's handlers are not for this process: what goes wrong here ends it.
    for (const int signal :
         {SIGSEGV, SIGBUS, SIGFPE, SIGILL, SIGABRT, SIGINT, SIGTERM, SIGPIPE, SIGXCPU}) {
        ::signal(signal, SIG_DFL);
    }
    const int nothing = ::open("/dev/null", O_RDWR | O_CLOEXEC);
    if (nothing >= 0) ::dup2(nothing, STDOUT_FILENO);
}

[[noreturn]] void BeChild(int pipe, pid_t parent, const ChildWork& work, const ChildLimits& limits)
{
    DetachFromParent(parent);
    try {
        Obey(limits);
        const auto say = [pipe](char kind) {
            return [pipe, kind](const std::string& text) {
                WriteFrame(pipe, kind, text.data(), text.size());
            };
        };
        const std::vector<std::byte> result = work({say('P'), say('W')});
        WriteFrame(pipe, 'R', result.data(), result.size());
    } catch (const std::bad_alloc&) {
        WriteFrame(pipe, 'M', nullptr, 0);
    } catch (const std::exception& failure) {
        WriteFrame(pipe, 'E', failure.what(), std::strlen(failure.what()));
    } catch (...) {
        _exit(1);
    }
    // Not exit(): the buffers and the handlers are the parent's.
    _exit(0);
}

// ---- in the parent ----

// Takes the complete frames off the front of `bytes`; true when the last frame of all was among
// them.
bool TakeFrames(std::vector<std::byte>& bytes, ChildOutcome& outcome)
{
    std::size_t at = 0;
    bool last = false;
    while (!last && bytes.size() - at >= kFrameHead) {
        std::uint64_t length = 0;
        std::memcpy(&length, bytes.data() + at + 1, sizeof length);
        if (bytes.size() - at - kFrameHead < length) break;
        const auto kind = static_cast<char>(bytes[at]);
        const std::byte* data = bytes.data() + at + kFrameHead;
        const std::string text(reinterpret_cast<const char*>(data), kind == 'R' ? 0 : length);
        if (kind == 'P') outcome.phase = text;
        if (kind == 'W') outcome.warnings.push_back(text);
        if (kind == 'E') {
            outcome.end = ChildOutcome::End::Failed;
            outcome.text = text;
        }
        if (kind == 'M') outcome.end = ChildOutcome::End::OutOfMemory;
        if (kind == 'R') {
            outcome.end = ChildOutcome::End::Done;
            outcome.result.assign(data, data + length);
        }
        last = kind == 'R' || kind == 'E' || kind == 'M';
        at += kFrameHead + length;
    }
    bytes.erase(bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(at));
    return last;
}

int MillisecondsUntil(Clock::time_point deadline)
{
    const auto left = std::chrono::ceil<std::chrono::milliseconds>(deadline - Clock::now()).count();
    return left > 0 ? static_cast<int>(left) : 0;
}

// Reads until the last frame, the end of the pipe or the deadline, or until the child has more
// memory than `mostBytes`.
void Listen(int pipe, pid_t child, Clock::time_point deadline, std::size_t mostBytes,
            ChildOutcome& outcome)
{
    constexpr int millisecondsBetweenLooks = 50;
    std::vector<std::byte> bytes;
    std::vector<std::byte> block(1 << 16);
    for (;;) {
        pollfd waiting{pipe, POLLIN, 0};
        const int left = MillisecondsUntil(deadline);
        const int ready = ::poll(&waiting, 1, std::min(left, millisecondsBetweenLooks));
        if (ready < 0 && errno == EINTR) continue;
        if (MemoryOf(child) > mostBytes) {
            outcome.end = ChildOutcome::End::OutOfMemory;
            return;
        }
        if (ready == 0 && left > millisecondsBetweenLooks) continue;
        if (ready == 0) {
            outcome.end = ChildOutcome::End::TimedOut;
            return;
        }
        const ssize_t size = ::read(pipe, block.data(), block.size());
        if (size < 0 && errno == EINTR) continue;
        if (size <= 0) return;
        bytes.insert(bytes.end(), block.begin(), block.begin() + size);
        if (TakeFrames(bytes, outcome)) return;
    }
}

// The end to read from and the one to write to. A standard stream that was closed is none of them:
// the child gives those to others.
std::pair<system::Descriptor, system::Descriptor> MakePipe()
{
    int ends[2];
    if (::pipe2(ends, O_CLOEXEC) != 0) {
        throw std::system_error(errno, std::generic_category(), "no pipe");
    }
    system::Descriptor reading(system::Descriptor::AboveStandardStreams(ends[0]));
    system::Descriptor writing(system::Descriptor::AboveStandardStreams(ends[1]));
    if (!reading.IsOpen() || !writing.IsOpen()) {
        throw std::system_error(errno, std::generic_category(), "no pipe");
    }
    return {std::move(reading), std::move(writing)};
}

std::string HowItEnded(int status)
{
    if (WIFSIGNALED(status)) {
        return "signal " + std::to_string(WTERMSIG(status));
    }
    return "status " + std::to_string(WEXITSTATUS(status));
}

// An end for which nothing was said.
void Explain(int status, ChildOutcome& outcome)
{
    if (WIFSIGNALED(status) && WTERMSIG(status) == SIGXCPU) {
        outcome.end = ChildOutcome::End::TimedOut;
    } else {
        outcome.text = HowItEnded(status);
    }
}

}  // namespace

ChildOutcome RunInChild(const ChildWork& work, const ChildLimits& limits)
{
    const Clock::time_point deadline = Clock::now() + std::chrono::seconds(limits.seconds);
    auto [listening, speaking] = MakePipe();
    const pid_t parent = ::getpid();
    const std::size_t mostBytes = limits.bytes == 0 ? std::numeric_limits<std::size_t>::max()
                                                    : MemoryOf(parent) + limits.bytes;
    const pid_t child = ::fork();
    if (child == 0) {
        listening.Close();
        BeChild(speaking.Number(), parent, work, limits);
    }
    const int failure = errno;
    speaking.Close();
    if (child < 0) {
        throw std::system_error(failure, std::generic_category(), "no child process");
    }
    ChildOutcome outcome;
    std::exception_ptr thrown;
    try {
        Listen(listening.Number(), child, deadline, mostBytes, outcome);
    } catch (...) {
        thrown = std::current_exception();  // memory ran out: the child is ended all the same
    }
    listening.Close();
    ::kill(child, SIGKILL);
    int status = 0;
    while (::waitpid(child, &status, 0) < 0 && errno == EINTR) {
    }
    if (thrown) std::rethrow_exception(thrown);
    if (outcome.end == ChildOutcome::End::Broken) Explain(status, outcome);
    return outcome;
}

}  // namespace vex::topology
