// Hostile inputs, each refused in a process of its own: how long that takes and how much memory, which stay
// under two seconds and 300 MB.

#include <fmt/format.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "core/job_file.h"
#include "core/settings.h"
#include "entry/address_book_list.h"
#include "platform/record_file.h"
#include "selection/packages.h"
#include "word/docx/read/document_reader.h"
#include "word/docx/zip/zip_writer.h"
#include "word/seam/automation.h"

namespace {

using namespace quillmark;

constexpr std::string_view kMain = "http://schemas.openxmlformats.org/wordprocessingml/2006/main";
constexpr double kMostSeconds = 2;
constexpr long kMostKilobytes = 300 * 1024;

std::string Docx(const std::string& document, const std::string& styles = {}) {
    const std::string office = "http://schemas.openxmlformats.org/officeDocument/2006/relationships/";
    const std::string relations =
        "<Relationships xmlns=\"http://schemas.openxmlformats.org/package/2006/relationships\">";
    const auto link = [&](const char* type, const char* target) {
        return fmt::format("<Relationship Id=\"{0}\" Type=\"{1}{0}\" Target=\"{2}\"/>", type, office, target);
    };
    const std::pair<std::string, std::string> parts[] = {
        {"[Content_Types].xml",
         "<Types xmlns=\"http://schemas.openxmlformats.org/package/2006/content-types\"/>"},
        {"_rels/.rels", relations + link("officeDocument", "word/document.xml") + "</Relationships>"},
        {"word/_rels/document.xml.rels", relations + link("styles", "styles.xml") + "</Relationships>"},
        {"word/document.xml", document},
        {"word/styles.xml", styles.empty() ? fmt::format("<w:styles xmlns:w=\"{}\"/>", kMain) : styles}};
    std::vector<word::docx::zip::ZipEntry> entries;
    for (const auto& [name, bytes] : parts) entries.push_back({name, bytes});
    return word::docx::zip::WriteZip(entries);
}

std::string Repeated(std::size_t times, const std::function<std::string(std::size_t)>& piece) {
    std::string text;
    for (std::size_t i = 0; i < times; ++i) text += piece(i);
    return text;
}

std::string Paragraphs(std::string_view declarations, const std::string& paragraphs) {
    return fmt::format("<w:document xmlns:w=\"{}\"{}><w:body>{}<w:sectPr/></w:body></w:document>", kMain,
                       declarations, paragraphs);
}

std::string ManyNamespaces() {
    return Docx(Paragraphs(Repeated(150'000, [](auto i) { return fmt::format(" xmlns:n{0}=\"u{0}\"", i); }),
                           "<w:p/>"));
}

std::string NamespacesOneByOne() {
    return Docx(Paragraphs(
        "", Repeated(150'000, [](auto i) { return fmt::format("<n{0}:x xmlns:n{0}=\"u{0}\"/>", i); })));
}

std::string ManyStyles() {
    const std::string styles = Repeated(60'000, [](auto i) {
        return fmt::format(
            "<w:style w:type=\"paragraph\" w:styleId=\"S{0}\"><w:name w:val=\"S{0}\"/></w:style>", i);
    });
    return Docx(Paragraphs("", "<w:p/>"),
                fmt::format("<w:styles xmlns:w=\"{}\">{}</w:styles>", kMain, styles));
}

std::string LargeText() {
    return Docx(Paragraphs("", "<w:p><w:r><w:t>" + std::string(25 << 20, 'x') + "</w:t></w:r></w:p>"));
}

std::string DeepText() {
    return Docx(Paragraphs("", Repeated(100'000, [](auto) { return "<w:sdt>"; })));
}

std::string ManyAttributes() {
    return Docx(Paragraphs(
        "", "<w:p" + Repeated(150'000, [](auto i) { return fmt::format(" w:a{}=\"\"", i); }) + "/>"));
}

std::string ManyDocuments() {
    return Repeated(300'000, [](auto) { return "\"000\",\"Deed / Warranty\"\r\n"; });
}

std::string LongValue() {
    return "\"021\",\"" + std::string(8 << 20, 'x') + "\"\r\n";
}

/// Whether the input was refused with a message.
bool Refuses(const std::function<void()>& read) {
    try {
        read();
    } catch (const std::runtime_error&) {
        return true;
    }
    return false;
}

bool Measure(const char* name, const std::string& input,
             const std::function<void(const std::string&)>& read) {
    const auto start = std::chrono::steady_clock::now();
    const pid_t child = fork();
    if (child == 0) {
        const std::string copy = input;
        _exit(Refuses([&] { read(copy); }) ? 0 : 1);
    }
    int status = 0;
    rusage used = {};
    wait4(child, &status, 0, &used);
    const double seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    const bool refused = WIFEXITED(status) && WEXITSTATUS(status) == 0;
    const bool inBounds = refused && seconds < kMostSeconds && used.ru_maxrss < kMostKilobytes;
    fmt::print("{:<28} {:>7.1f} MB in {:>6.2f} s, {:>5} MB  {}\n", name,
               static_cast<double>(input.size()) / 1e6, seconds, used.ru_maxrss / 1024,
               inBounds  ? "refused"
               : refused ? "TOO DEAR"
                         : "NOT REFUSED");
    return inBounds;
}

}  // namespace

int main() {
    const auto docx = [](const std::string& bytes) { word::docx::read::OpenDocxBytes(bytes); };
    const auto job = [](const std::string& bytes) { JobFileContentsOf("job", bytes); };
    bool good = Measure("150,000 namespaces", ManyNamespaces(), docx);
    good &= Measure("150,000 namespaces by turns", NamespacesOneByOne(), docx);
    good &= Measure("60,000 styles", ManyStyles(), docx);
    good &= Measure("25 MB of text", LargeText(), docx);
    good &= Measure("100,000 levels", DeepText(), docx);
    good &= Measure("150,000 attributes", ManyAttributes(), docx);
    good &= Measure("300,000 documents", ManyDocuments(), job);
    good &= Measure("a value of 8 MB", LongValue(), job);
    return good ? 0 : 1;
}
