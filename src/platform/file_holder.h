#pragma once

#include <chrono>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>

#include "platform/clock.h"

/// Who has a shared file in hand, told to those who wait for it.
namespace quillmark {

struct FileHolder {
    std::string user;
    std::string computer;
    std::string since;  ///< "2026-03-05 10:16:04", by the holder's clock

    bool operator==(const FileHolder&) const = default;
};

/// "In use by jane at FRONTDESK since 2026-03-05 10:16:04"; "In use by another user" for nobody known.
std::string DescriptionOf(const std::optional<FileHolder>& holder);

/// This person at this computer, now. Nothing where the system does not tell who that is.
std::optional<FileHolder> ThisHolder(const Clock& clock);

/// A file is in another's hands.
struct FileInUse {
    std::filesystem::path file;
    std::optional<FileHolder> holder;  ///< as far as it is known
    std::chrono::milliseconds waited{0};
};

/// Called about twenty times a second while another holds a file; false gives up waiting.
using WaitForFile = std::function<bool(const FileInUse& use)>;

/// A small file in which the holder names itself; one that cannot be written or read does no harm.
void WriteHolder(const std::filesystem::path& note, const Clock& clock);
std::optional<FileHolder> ReadHolder(const std::filesystem::path& note);

}  // namespace quillmark
