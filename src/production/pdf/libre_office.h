#pragma once

#include <chrono>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace quillmark {

/// LibreOffice is not installed, or could not do what was asked of it. what() says why, with the file's name.
class OfficeError : public std::runtime_error {
 public:
    using std::runtime_error::runtime_error;
};

/// It cannot be started at all; no document is to blame.
class OfficeCannotStart : public OfficeError {
 public:
    using OfficeError::OfficeError;
};

enum class ProgramEnd;

/// LibreOffice as a converter of files. It runs without a window and with a profile of its own, so one that
/// the user has open is left alone.
class LibreOffice {
 public:
    /// Looks for `soffice` or `libreoffice` among the programs of the system (the PATH). Throws OfficeError
    /// if there is none; its text begins with `purpose`, "PDF output" say.
    explicit LibreOffice(std::string_view purpose);
    ~LibreOffice();
    LibreOffice(const LibreOffice&) = delete;
    LibreOffice& operator=(const LibreOffice&) = delete;

    static bool IsInstalled();

    /// Makes a file of another kind ("pdf", "docx") from a document, in a folder of this object, and gives
    /// its path. Throws OfficeError.
    std::filesystem::path Make(std::string_view kind, const std::filesystem::path& document,
                               std::chrono::seconds limit = std::chrono::seconds(180)) const;

    /// One start for many documents: each is made into a file of its name with the new extension below
    /// `Folder() / "output"`. `kind` may carry the options of the export. What became of each shows in that
    /// folder. Throws OfficeCannotStart.
    ProgramEnd Run(std::string_view kind, const std::vector<std::filesystem::path>& documents,
                   std::chrono::seconds limit) const;
    /// A folder of this object's own, gone with it.
    const std::filesystem::path& Folder() const { return folder_; }

 private:
    std::filesystem::path program_;
    std::filesystem::path folder_;  ///< profile and output, gone with the object
};

}  // namespace quillmark
