// SPDX-License-Identifier: Apache-2.0
#include "sweep/RunNote.h"

#include <unistd.h>
#include <csignal>

#include <cstdlib>
#include <cstring>

// A sanitizer that finds a fault ends the process without a signal; it calls this back before.
extern "C" void __sanitizer_set_death_callback(void (*callback)()) __attribute__((weak));

namespace hlxtest::sweep {

namespace {

constexpr unsigned int kSeconds = 60;
constexpr int kSignals[] = {SIGSEGV, SIGBUS, SIGFPE, SIGILL, SIGABRT};

char note[512] = "";
int realStandardError = -1;
struct sigaction formerActions[std::size(kSignals)];

void Write(const char* text)
{
    [[maybe_unused]] const ssize_t ignored = write(realStandardError, text, std::strlen(text));
}

void TellRun()
{
    if (*note != '\0') {
        Write("\nDuring this run: ");
        Write(note);
        Write("\n");
        *note = '\0';
    }
}

/// Tells, then lets the signal do what it did before: a fault happens again on return, and abort
/// raises its signal again.
void OnCrash(int signal)
{
    TellRun();
    for (std::size_t i = 0; i < std::size(kSignals); ++i) {
        if (kSignals[i] == signal) {
            sigaction(signal, &formerActions[i], nullptr);
        }
    }
}

void OnAlarm(int)
{
    Write("\nThe run does not end.");
    std::abort();
}

void OnExit()
{
    if (*note != '\0') {
        Write("\nThe run ended the process.");
        TellRun();
        std::_Exit(1);
    }
}

void Install()
{
    realStandardError = dup(STDERR_FILENO);
    for (std::size_t i = 0; i < std::size(kSignals); ++i) {
        struct sigaction action = {};
        action.sa_handler = OnCrash;
        sigaction(kSignals[i], &action, &formerActions[i]);
    }
    signal(SIGALRM, OnAlarm);
    std::atexit(OnExit);
    if (__sanitizer_set_death_callback != nullptr) {
        __sanitizer_set_death_callback(TellRun);
    }
}

}  // namespace

RunNote::RunNote(const std::string& text)
{
    [[maybe_unused]] static const bool installed = (Install(), true);
    std::strncpy(note, text.c_str(), sizeof note - 1);
    alarm(kSeconds);
}

RunNote::~RunNote()
{
    alarm(0);
    *note = '\0';
}

}  // namespace hlxtest::sweep
