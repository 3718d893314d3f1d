#pragma once

#include <chrono>
#include <exception>
#include <filesystem>
#include <functional>
#include <span>
#include <vector>

#include "production/pdf/libre_office.h"

namespace quillmark {

enum class ProgramEnd;

/// A document could not be made into a PDF.
using PdfError = OfficeError;

/// A document and the PDF file that is to be made of it.
struct PdfOrder {
    std::filesystem::path document;
    std::filesystem::path pdf;
};

/// Makes PDF files of documents by way of LibreOffice, which has to be installed. The files are tagged for
/// those who have them read aloud, show their title, and have a bookmark for each heading.
class PdfConverter {
 public:
    /// Throws PdfError if there is no LibreOffice.
    PdfConverter();

    /// Writes the PDF of a document, replacing the file `pdf`. Throws PdfError, and FileError where the
    /// document cannot be read or the file not written; an old `pdf` is then as it was.
    void Convert(const std::filesystem::path& document, const std::filesystem::path& pdf,
                 std::chrono::seconds limit = std::chrono::seconds(180));

    /// Tells of one document: its PDF stands, or why not (PdfError or FileError).
    using Done = std::function<void(const PdfOrder& order, std::exception_ptr failure)>;
    /// The same for many documents with one start of LibreOffice. A document that cannot be made leaves the
    /// others alone; only one that takes LibreOffice down, or lasts longer than `limit`, costs another start.
    void ConvertAll(std::span<const PdfOrder> orders, const Done& done,
                    std::chrono::seconds limit = std::chrono::seconds(180));

 private:
    struct Attempt;
    ProgramEnd Run(const std::vector<Attempt>& attempts, std::chrono::seconds limit);
    static std::vector<Attempt> Deliver(const std::vector<Attempt>& attempts, ProgramEnd end,
                                        const Done& done, std::chrono::seconds limit);

    LibreOffice office_;
};

}  // namespace quillmark
