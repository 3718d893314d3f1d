#pragma once

#include <chrono>
#include <filesystem>
#include <stdexcept>

namespace quillmark {

/// A document could not be made into a PDF. what() says why, with the file's name.
class PdfError : public std::runtime_error {
 public:
    using std::runtime_error::runtime_error;
};

/// Makes PDF files of documents by way of LibreOffice, which has to be installed. It runs without a window
/// and with a profile of its own, so one that the user has open is left alone.
class PdfConverter {
 public:
    /// Looks for `soffice` or `libreoffice` among the programs of the system (the PATH). Throws PdfError if
    /// there is none.
    PdfConverter();
    ~PdfConverter();
    PdfConverter(const PdfConverter&) = delete;
    PdfConverter& operator=(const PdfConverter&) = delete;

    /// Writes the PDF of a document, replacing the file `pdf`. Throws PdfError, and FileError where the file
    /// cannot be written; an old `pdf` is then as it was.
    void Convert(const std::filesystem::path& document, const std::filesystem::path& pdf,
                 std::chrono::seconds limit = std::chrono::seconds(180));

 private:
    std::filesystem::path program_;
    std::filesystem::path folder_;  ///< profile and output, gone with the object
};

}  // namespace quillmark
