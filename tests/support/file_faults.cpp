#ifndef _WIN32

#include "support/file_faults.h"

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <exception>

#include "platform/file_step.h"

namespace quillmark::test {

namespace {

constexpr int kKilled = 77;
constexpr int kMostSteps = 500;

/// In the child: the exit status.
[[noreturn]] void RunUntil(int step, const std::function<void()>& action) {
    int steps = 0;
    WatchFileSteps([&](FileStep, const std::filesystem::path&) {
        if (++steps == step) _exit(kKilled);
    });
    try {
        action();
    } catch (const std::exception& failure) {
        fprintf(stderr, "%s\n", failure.what());
        _exit(1);
    }
    _exit(0);
}

}  // namespace

int KillBeforeEveryStep(const std::function<void()>& prepare, const std::function<void()>& action,
                        const std::function<void(int step)>& check) {
    for (int step = 1; step < kMostSteps; ++step) {
        prepare();
        const pid_t child = fork();
        if (child == 0) RunUntil(step, action);
        int status = 0;
        waitpid(child, &status, 0);
        check(step);
        if (WIFEXITED(status) && WEXITSTATUS(status) == kKilled) continue;
        EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0) << "step " << step;
        return step - 1;
    }
    ADD_FAILURE() << "the action does not end";
    return 0;
}

int FailAtEveryStep(Failing failing, FileError::Kind kind, const std::function<void()>& prepare,
                    const std::function<void()>& action,
                    const std::function<void(int step, bool threw)>& check) {
    for (int step = 1; step < kMostSteps; ++step) {
        prepare();
        int steps = 0;
        bool threw = false;
        WatchFileSteps([&](FileStep, const std::filesystem::path& file) {
            ++steps;
            if (steps == step || (failing == Failing::FromThenOn && steps > step))
                throw FileError(file, kind, "cannot be changed at this moment");
        });
        try {
            action();
        } catch (const FileError& failure) {
            threw = true;
            EXPECT_EQ(failure.kind, kind) << failure.what();
        }
        WatchFileSteps({});
        check(step, threw);
        if (steps < step) return step - 1;
    }
    ADD_FAILURE() << "the action does not end";
    return 0;
}

}  // namespace quillmark::test

#endif
