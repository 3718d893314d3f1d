#pragma once

#include <chrono>
#include <filesystem>

#include "production/pdf/libre_office.h"

namespace quillmark {

/// A document could not be made into a PDF.
using PdfError = OfficeError;

/// Makes PDF files of documents by way of LibreOffice, which has to be installed.
class PdfConverter {
 public:
    /// Throws PdfError if there is no LibreOffice.
    PdfConverter();

    /// Writes the PDF of a document, replacing the file `pdf`. Throws PdfError, and FileError where the file
    /// cannot be written; an old `pdf` is then as it was.
    void Convert(const std::filesystem::path& document, const std::filesystem::path& pdf,
                 std::chrono::seconds limit = std::chrono::seconds(180));

 private:
    LibreOffice office_;
};

}  // namespace quillmark
