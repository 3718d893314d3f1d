#pragma once

#include <cstdio>
#include <filesystem>

/// What copying needs of the system, for platform/medium.cpp alone.
namespace quillmark::medium {

/// Null, with errno set, where it fails. A new file must not be there yet.
std::FILE* OpenToRead(const std::filesystem::path& file);
std::FILE* OpenNew(const std::filesystem::path& file);

/// The written file's bytes are on their way to the medium, where FlushMedium does not see to it. False, with
/// errno set, on a failure.
bool Settle(std::FILE* written);
/// The next read comes from the medium.
void ForgetCached(std::FILE* file);

}  // namespace quillmark::medium
