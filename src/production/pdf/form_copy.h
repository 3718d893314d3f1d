#pragma once

#include <filesystem>
#include <memory>

#include "production/pdf/libre_office.h"

namespace quillmark {

/// Whether the embedded word processor opens a file of this kind only after LibreOffice has made a .docx of
/// it: .doc, .rtf and the like. A file that is a .docx under such a name is none.
bool NeedsConversion(const std::filesystem::path& form);

/// What a user is told where such a form is met and LibreOffice is not installed. The text names the file.
std::string HowToConvert(const std::filesystem::path& form);

/// A form in a kind that the word processor at work can open: the file itself, or a copy in the newer format
/// that is gone with the object.
class ReadableForm {
 public:
    /// Throws OfficeError where the file has to be converted and cannot be.
    ReadableForm(const std::filesystem::path& form, bool forEmbedded);

    const std::filesystem::path& path() const { return path_; }

 private:
    std::unique_ptr<LibreOffice> office_;
    std::filesystem::path path_;
};

}  // namespace quillmark
