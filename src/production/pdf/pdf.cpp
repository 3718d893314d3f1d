#include "production/pdf/pdf.h"

#include <system_error>

#include "platform/atomic_file.h"

namespace quillmark {

namespace fs = std::filesystem;

namespace {

constexpr std::size_t kLargestPdf = std::size_t{1} << 30;

}  // namespace

PdfConverter::PdfConverter() : office_("PDF output") {}

void PdfConverter::Convert(const fs::path& document, const fs::path& pdf, std::chrono::seconds limit) {
    const fs::path made = office_.Make("pdf", document, limit);
    ReplaceFile(pdf, ReadFile(made, kLargestPdf));
    std::error_code ignored;
    fs::remove(made, ignored);
}

}  // namespace quillmark
