// A hostile form on its way through import and merge: it is opened, searched for markers and checked as an
// import does, mended in its package, then filled, pasted into a run's document and written.

#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "tools/custom_forms/form_package.h"
#include "tools/custom_forms/marker_judge.h"
#include "word/docx/find/find_replace.h"
#include "word/docx/model/walk.h"
#include "word/docx/paste/paste.h"
#include "word/docx/read/document_reader.h"
#include "word/docx/write/document_writer.h"
#include "word/seam/automation.h"

namespace {

using namespace quillmark;
using namespace quillmark::word;
using namespace quillmark::word::docx;

const std::vector<MarkerRow>& Rows() {
    static const std::vector<MarkerRow> rows = MarkerRows({});
    return rows;
}

void MergeForm(Document& form) {
    const find::ClipboardContent clipboard = std::string(300, 'n') + "\rtwo";
    for (const MarkerRow& row : Rows()) {
        if (!find::FindEverywhere(form, {row.marker.marker, {}, ReplaceNone, FindContinue}).found) continue;
        find::FindEverywhere(form, {row.marker.marker, "^c", ReplaceAll, FindStop, &clipboard});
    }
    find::FindEverywhere(form, {"^b", "^m", ReplaceAll});
    Document target;
    paste::PasteAt(target, {&target.body, target.body.begin(), 0}, paste::CopyAll(form));
    read::OpenDocxBytes(write::WriteDocx(target), "merged");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string bytes(reinterpret_cast<const char*>(data), size);
    try {
        const auto form = read::OpenDocxBytes(bytes, "form");
        static const MarkerJudge judge(Rows());
        ForEachParagraph(std::as_const(form->body),
                         [&](const Paragraph& paragraph) { judge.Faults(paragraph.text); });
        int count = 0;
        Mended(AsDocument(bytes, "form"), "form", {"[seler 1 name]", "[seller 1 name]", '[', ']'}, count);
        MergeForm(*form);
    } catch (const AutomationError&) {
        return 0;
    }
    return 0;
}
