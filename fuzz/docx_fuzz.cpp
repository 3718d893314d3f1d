// Opens hostile documents, and does with those that open what a run does with a form: replaces markers,
// copies the whole, pastes it twice and writes the result.
//
// An input that begins like a zip file is the file. Any other is a list of parts, each after a line of
// "=== " and its name, that take the place of those of a small document, so that changes reach the XML
// without the check sums of a zip file in their way.

#include <cstdint>
#include <cstdlib>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "word/docx/find/find_replace.h"
#include "word/docx/paste/paste.h"
#include "word/docx/read/document_reader.h"
#include "word/docx/write/document_writer.h"
#include "word/docx/zip/zip_reader.h"
#include "word/docx/zip/zip_writer.h"
#include "word/seam/automation.h"

namespace {

using namespace quillmark::word;
using namespace quillmark::word::docx;

using Parts = std::map<std::string, std::string, std::less<>>;

const Parts& BaseParts() {
    static const Parts parts = [] {
        zip::ZipReader zip(write::WriteDocx(Document()), "base");
        Parts base;
        for (const std::string& name : zip.Names()) base[name] = zip.Read(name);
        return base;
    }();
    return parts;
}

std::string Package(std::string_view input) {
    constexpr std::string_view kMark = "=== ";
    if (input.substr(0, 2) == "PK") return std::string(input);
    Parts parts = BaseParts();
    for (std::size_t at = input.find(kMark); at != std::string_view::npos;) {
        const std::size_t name = at + kMark.size();
        const std::size_t line = std::min(input.find('\n', name), input.size());
        at = input.find(kMark, line);
        const std::size_t end = std::min(at, input.size());
        parts[std::string(input.substr(name, line - name))] = input.substr(line, end - line);
    }
    std::vector<zip::ZipEntry> entries;
    for (const auto& [name, bytes] : parts) entries.push_back({name, bytes});
    return zip::WriteZip(entries);
}

void Replace(Document& document, std::string_view text, std::string_view with) {
    const find::ClipboardContent clipboard = std::string("one\rtwo");
    find::Find(document, document.body, {text, with, ReplaceAll, FindStop, &clipboard});
}

Place EndOf(Document& document) {
    const auto last = std::prev(document.body.end());
    return {&document.body, last, std::get<Paragraph>(*last).text.size()};
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string package = Package({reinterpret_cast<const char*>(data), size});
    std::unique_ptr<Document> document;
    try {
        document = read::OpenDocxBytes(package, "input");
    } catch (const AutomationError&) {
        return 0;
    }
    read::OpenDocxBytes(write::WriteDocx(*document), "written");
    Replace(*document, "e", "^c");
    Replace(*document, "^pa", "^&");
    Replace(*document, "^b", "^m");
    const paste::CopiedText copied = paste::CopyAll(*document);
    Document target;
    paste::PasteAt(target, EndOf(target), copied);
    paste::PasteAt(target, EndOf(target), copied, false);
    read::OpenDocxBytes(write::WriteDocx(target), "pasted");
    return 0;
}
