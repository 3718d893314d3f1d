#include "production/pdf/pdf.h"

#include <system_error>

#include "platform/atomic_file.h"
#include "platform/paths.h"
#include "production/pdf/pdf_program.h"

namespace quillmark {

namespace fs = std::filesystem;

namespace {

constexpr std::size_t kLargestPdf = std::size_t{1} << 30;

fs::path FindOffice() {
    if (auto program = FindProgram({"soffice", "libreoffice"})) return *program;
    throw PdfError(
        "PDF output needs LibreOffice, which is not installed (neither soffice nor libreoffice is on the PATH)");
}

}  // namespace

PdfConverter::PdfConverter() : program_(FindOffice()), folder_(MakePrivateFolder()) {}

PdfConverter::~PdfConverter() {
    std::error_code ignored;
    fs::remove_all(folder_, ignored);
}

void PdfConverter::Convert(const fs::path& document, const fs::path& pdf, std::chrono::seconds limit) {
    const fs::path made = folder_ / "output" / document.filename().replace_extension(".pdf");
    const std::vector<std::string> arguments = {"-env:UserInstallation=" + FileAddress(folder_ / "profile"),
                                                "--headless",
                                                "--norestore",
                                                "--convert-to",
                                                "pdf",
                                                "--outdir",
                                                TextOf(folder_ / "output"),
                                                TextOf(fs::absolute(document))};
    const std::string name = TextOf(document);
    ProgramEnd end = ProgramEnd::Failed;
    try {
        end = RunProgram(program_, arguments, limit);
    } catch (const std::system_error& failure) {
        throw PdfError(name + ": LibreOffice cannot be started: " + failure.what());
    }
    if (end == ProgramEnd::TimedOut)
        throw PdfError(name + ": LibreOffice made no PDF within " + std::to_string(limit.count()) +
                       " seconds");
    if (end == ProgramEnd::Failed || !fs::exists(made))
        throw PdfError(name + ": LibreOffice could not make a PDF");
    ReplaceFile(pdf, ReadFile(made, kLargestPdf));
    std::error_code ignored;
    fs::remove(made, ignored);
}

}  // namespace quillmark
