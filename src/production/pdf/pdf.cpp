#include "production/pdf/pdf.h"

#include <system_error>

#include "platform/atomic_file.h"
#include "platform/paths.h"
#include "production/pdf/pdf_program.h"

namespace quillmark {

namespace fs = std::filesystem;

namespace {

/// The export's options: structure for those who have the page read to them, the title in the window's
/// caption, and bookmarks of the headings.
constexpr std::string_view kFilter =
    R"(pdf:writer_pdf_Export:{"UseTaggedPDF":{"type":"boolean","value":"true"},)"
    R"("DisplayPDFDocumentTitle":{"type":"boolean","value":"true"},)"
    R"("ExportBookmarks":{"type":"boolean","value":"true"}})";

/// What each document may take beyond the time of the first.
constexpr std::chrono::seconds kForEach(10);

constexpr std::size_t kLargestPdf = std::size_t{1} << 30;

std::string ReasonOf(ProgramEnd end, std::chrono::seconds limit) {
    if (end == ProgramEnd::TimedOut)
        return ": LibreOffice made no PDF within " + std::to_string(limit.count()) + " seconds";
    return ": LibreOffice could not make a PDF";
}

void WriteCopy(const fs::path& document, const fs::path& copy) {
    constexpr std::size_t kLargestDocument = std::size_t{1} << 28;
    ReplaceFile(copy, ReadFile(document, kLargestDocument));
}

}  // namespace

PdfConverter::PdfConverter() : office_("PDF output") {}

/// A document under a name of its own in the converter's folder, since documents of several folders may have
/// the same one.
struct PdfConverter::Attempt {
    const PdfOrder& order;
    fs::path copy;
    fs::path made;
};

void PdfConverter::Convert(const fs::path& document, const fs::path& pdf, std::chrono::seconds limit) {
    const PdfOrder order = {document, pdf};
    ConvertAll(
        {&order, 1},
        [](const PdfOrder&, const std::exception_ptr& failure) {
            if (failure) std::rethrow_exception(failure);
        },
        limit);
}

ProgramEnd PdfConverter::Run(const std::vector<Attempt>& attempts, std::chrono::seconds limit) {
    std::vector<fs::path> copies;
    for (const Attempt& attempt : attempts) copies.push_back(attempt.copy);
    return office_.Run(kFilter, copies, limit + kForEach * (attempts.size() - 1));
}

void PdfConverter::ConvertAll(std::span<const PdfOrder> orders, const Done& done,
                              std::chrono::seconds limit) {
    std::vector<Attempt> open;
    fs::create_directories(office_.Folder() / "input");
    for (const PdfOrder& order : orders) {
        const std::string name = std::to_string(open.size() + 1);
        const fs::path copy = office_.Folder() / "input" / (name + TextOf(order.document.extension()));
        try {
            WriteCopy(order.document, copy);
            open.push_back({order, copy, office_.Folder() / "output" / (name + ".pdf")});
        } catch (const std::exception&) {
            done(order, std::current_exception());
        }
    }
    while (!open.empty()) {
        try {
            const ProgramEnd end = Run(open, limit);
            open = Deliver(open, end, done, limit);
        } catch (const OfficeCannotStart&) {
            for (const Attempt& attempt : open) done(attempt.order, std::current_exception());
            break;
        }
    }
    std::error_code ignored;
    fs::remove_all(office_.Folder() / "input", ignored);
}

/// Gives those that are still to be made: behind the first one missing when LibreOffice did not come to its
/// end.
std::vector<PdfConverter::Attempt> PdfConverter::Deliver(const std::vector<Attempt>& attempts, ProgramEnd end,
                                                         const Done& done, std::chrono::seconds limit) {
    std::vector<Attempt> open;
    bool hasCulprit = end == ProgramEnd::Done;
    for (const Attempt& attempt : attempts) {
        const bool isMade = fs::exists(attempt.made);
        if (!isMade && hasCulprit && end != ProgramEnd::Done) {
            open.push_back(attempt);
            continue;
        }
        hasCulprit = hasCulprit || !isMade;
        try {
            if (!isMade) throw PdfError(TextOf(attempt.order.document) + ReasonOf(end, limit));
            ReplaceFile(attempt.order.pdf, ReadFile(attempt.made, kLargestPdf));
            fs::remove(attempt.made);
            done(attempt.order, nullptr);
        } catch (const std::exception&) {
            done(attempt.order, std::current_exception());
        }
    }
    return open;
}

}  // namespace quillmark
