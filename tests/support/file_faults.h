#pragma once

#include <functional>

#include "platform/atomic_file.h"

/// What a bad day does to files: a kill or a failure at any of an action's file operations.
namespace quillmark::test {

/// For n = 1, 2, ... until the action gets through: `prepare`, then a process of its own that runs `action`
/// and is killed before its n-th file operation, then `check`. Gives the number of operations.
int KillBeforeEveryStep(const std::function<void()>& prepare, const std::function<void()>& action,
                        const std::function<void(int step)>& check);

enum class Failing { Once, FromThenOn };

/// The same in this process, where the n-th operation, or it and all after it, fails with this kind of
/// FileError. `check` hears whether the action threw.
int FailAtEveryStep(Failing failing, FileError::Kind kind, const std::function<void()>& prepare,
                    const std::function<void()>& action,
                    const std::function<void(int step, bool threw)>& check);

}  // namespace quillmark::test
