#pragma once

#include <cstddef>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <string_view>
#include <system_error>

// The Windows header makes a macro of this name.
#undef ReplaceFile

namespace quillmark {

/// A file could not be read or written. what() is "FILE: REASON" in the system's words.
class FileError : public std::runtime_error {
 public:
    enum class Kind {
        InUse,     ///< another program holds it; trying again later can succeed
        Denied,    ///< the user has no right to it, or the disk is read-only
        NotFound,  ///< the file or its folder does not exist
        DiskFull,  ///< no room, or over the user's quota
        TooLarge,  ///< larger than the reader's limit
        Other,
    };

    FileError(std::filesystem::path file, Kind kind, const std::string& reason);
    /// Takes kind and reason from a system error.
    FileError(std::filesystem::path file, std::error_code error);

    const std::filesystem::path file;
    const Kind kind;
};

/// Replaces the content of a file, or creates it, by way of a new file beside it that is flushed to disk and
/// renamed. After a failure or a crash the old file is there unchanged; a failure leaves no other file. The
/// new file keeps the old one's permissions; a link is followed. A file that the user may not write is not
/// replaced. What a program that died while it wrote has left in the folder goes in time. Throws FileError.
void ReplaceFile(const std::filesystem::path& file, std::string_view bytes);

/// The whole content of an ordinary file. Throws FileError, kind TooLarge above `limit` bytes.
std::string ReadFile(const std::filesystem::path& file, std::size_t limit);

/// Gives a file another name in one step. False, with nothing changed, if there is a file of that name, even
/// one that another computer has made at this moment. Throws FileError.
bool RenameUnlessTaken(const std::filesystem::path& file, const std::filesystem::path& newFile);

}  // namespace quillmark
