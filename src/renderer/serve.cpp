#include "renderer/serve.h"

#include <algorithm>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "platform/atomic_file.h"
#include "platform/paths.h"
#include "production/pdf/pdf.h"
#include "renderer/office_kit.h"
#include "word/start.h"
#include "word/word.h"

namespace quillmark {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view kRequest = "pdf ";
constexpr std::size_t kLargestPdf = std::size_t{256} << 20;

using Maker = std::function<void(const fs::path& document, const fs::path& pdf)>;

/// The first document takes twice the time of those after it; this one is nobody's.
void WarmUp(OfficeKit& kit, const fs::path& work) {
    const word::Application word(word::StartWordProcessor(word::WordProcessor::Embedded).application);
    const word::Document document = word.Documents.Add();
    word.Selection.TypeText("Ready");
    document.SaveAs(TextOf(work / "warm.docx"));
    kit.MakePdf(work / "warm.docx", work / "warm.pdf");
}

/// LibreOffice in this process, or a run of its program for each document where it cannot be loaded.
Maker FindMaker(const RendererFolders& folders) {
#ifndef _WIN32
    if (const auto programs = OfficeKit::Find()) {
        const auto kit = std::make_shared<OfficeKit>(*programs, folders.profile);
        WarmUp(*kit, folders.work);
        return [kit](const fs::path& document, const fs::path& pdf) { kit->MakePdf(document, pdf); };
    }
#endif
    const auto converter = std::make_shared<PdfConverter>();
    return [converter](const fs::path& document, const fs::path& pdf) { converter->Convert(document, pdf); };
}

std::string InOneLine(std::string text) {
    std::ranges::replace_if(
        text, [](char c) { return c == '\n' || c == '\r'; }, ' ');
    return text;
}

class Answers {
 public:
    explicit Answers(std::FILE* out) : out_(out) {}
    void Line(std::string_view word, const std::string& rest) {
        std::fprintf(out_, "%.*s %s\n", static_cast<int>(word.size()), word.data(), InOneLine(rest).c_str());
        std::fflush(out_);
    }
    void Bytes(const std::string& bytes) {
        std::fprintf(out_, "ok %zu\n", bytes.size());
        std::fwrite(bytes.data(), 1, bytes.size(), out_);
        std::fflush(out_);
    }

 private:
    std::FILE* out_;
};

}  // namespace

void ServeRequests(const RendererFolders& folders, std::istream& in, std::FILE* out) {
    Answers answers(out);
    Maker make;
    try {
        make = FindMaker(folders);
    } catch (const std::exception& failure) {
        return answers.Line("none", failure.what());
    }
    answers.Line("ready", "");
    const fs::path pdf = folders.work / "pages.pdf";
    for (std::string line; std::getline(in, line);) {
        try {
            if (!line.starts_with(kRequest)) throw PdfError("no such request: " + line);
            make(PathOf(line.substr(kRequest.size())), pdf);
            answers.Bytes(ReadFile(pdf, kLargestPdf));
        } catch (const std::exception& failure) {
            answers.Line("failed", failure.what());
        }
    }
}

}  // namespace quillmark
