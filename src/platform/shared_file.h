#pragma once

#include <cstddef>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>

#include "platform/file_holder.h"

namespace quillmark {

/// Gives a small file that several users keep together (a list of packages, of clients, of settings) a new
/// content under a lock of its own, the file ".NAME.lok" beside it: so that of two who change their records
/// at once neither loses the other's.
///
/// `change` gets the present content, nothing where there is no file, and gives the new one; nothing leaves
/// the file as it is. It may be called again only by another call. What it throws ends the change. Waits for
/// others as SharedLock does. Throws FileError; above `limit` bytes, read or to be written, of the kind
/// TooLarge.
void ChangeSharedFile(
    const std::filesystem::path& file, std::size_t limit,
    const std::function<std::optional<std::string>(const std::optional<std::string>&)>& change,
    const WaitForFile& wait = {});

/// "changed by jane at FRONTDESK, 2026-03-05 10:16:04", of the last change that went this way;
/// "changed by another user" where none is known.
std::string LastChangeOf(const std::filesystem::path& file);

}  // namespace quillmark
