#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <functional>

#include "platform/atomic_file.h"

namespace quillmark::test {

/// Of which kind the FileError is that `action` must throw.
inline FileError::Kind KindOf(const std::function<void()>& action) {
    try {
        action();
    } catch (const FileError& error) {
        return error.kind;
    }
    ADD_FAILURE() << "no FileError";
    return FileError::Kind::Other;
}

inline std::size_t FilesIn(const std::filesystem::path& folder) {
    using Iterator = std::filesystem::directory_iterator;
    return static_cast<std::size_t>(std::distance(Iterator(folder), Iterator()));
}

}  // namespace quillmark::test
