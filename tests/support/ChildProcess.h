// SPDX-License-Identifier: Apache-2.0
// Parts of a test that run in a process of their own: to be killed, to have less rights, or to see
// a disk that others do not.
#pragma once

#include <gtest/gtest.h>

#include <cstdio>
#include <functional>

#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

namespace hlxtest {

/// Starts `body` in a child. It ends with code 0, or with 1 when an expectation failed in it.
inline pid_t StartChild(const std::function<void()>& body)
{
    std::fflush(nullptr);
    const pid_t child = ::fork();
    EXPECT_GE(child, 0);
    if (child == 0) {
        body();
        std::fflush(nullptr);
        ::_exit(testing::Test::HasFailure() ? 1 : 0);
    }
    return child;
}

/// Waits for a child. Answers its code, or the negative number of the signal that ended it.
inline int EndOf(pid_t child)
{
    int status = 0;
    EXPECT_EQ(::waitpid(child, &status, 0), child);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
}

inline int InChild(const std::function<void()>& body)
{
    return EndOf(StartChild(body));
}

/// A value that this process and its children see and change together.
template <class Value>
class Shared
{
public:
    Shared()
    {
        void* const place = ::mmap(nullptr, sizeof(Value), PROT_READ | PROT_WRITE,
                                   MAP_SHARED | MAP_ANONYMOUS, -1, 0);
        if (place == MAP_FAILED) {
            std::perror("mmap");
            std::abort();
        }
        _value = new (place) Value{};
    }
    ~Shared() { ::munmap(_value, sizeof(Value)); }
    Shared(const Shared&) = delete;
    Shared& operator=(const Shared&) = delete;

    Value& operator*() const { return *_value; }
    Value* operator->() const { return _value; }

private:
    Value* _value;
};

}  // namespace hlxtest
