#include "word/docx/edit/stretch.h"

#include "word/docx/edit/editor.h"
#include "word/docx/model/spans.h"
#include "word/docx/model/style_look.h"

namespace quillmark::word::docx::edit {
namespace {

constexpr std::string_view kEmptyFieldResult = "\u2002\u2002\u2002\u2002\u2002";

std::string_view ShownText(const InlineObject& object) {
    const auto* field = std::get_if<FormFieldData>(&object);
    if (!field || field->isCheckBox) return {};
    return field->result.empty() ? kEmptyFieldResult : std::string_view(field->result);
}

}  // namespace

void Overlay(CharFormat& format, const CharFormat& patch) {
    if (!patch.font.empty()) format.font = patch.font;
    if (patch.bold) format.bold = patch.bold;
    if (patch.italic) format.italic = patch.italic;
    if (patch.halfPoints) format.halfPoints = patch.halfPoints;
    if (patch.underline) format.underline = patch.underline;
    if (patch.superscript) format.superscript = patch.superscript;
}

void ForEachStretch(const Place& start, const Place& end, bool withLastMark,
                    const std::function<void(const Stretch&)>& function) {
    for (auto block = start.block; block != start.blocks->end(); ++block) {
        const bool isLast = block == end.block;
        if (auto* paragraph = std::get_if<Paragraph>(&*block))
            function({*paragraph, block == start.block ? start.offset : 0,
                      isLast ? end.offset : paragraph->text.size(), !isLast || withLastMark});
        else if (const auto* table = std::get_if<std::unique_ptr<Table>>(&*block))
            for (TableRow& row : (*table)->rows)
                for (TableCell& cell : row.cells)
                    ForEachStretch(Editor::StartOf(cell.blocks), Editor::EndOf(cell.blocks), true, function);
        if (isLast) return;
    }
}

void ChangeFontOf(Document& document, const Stretch& stretch, const CharFormat& patch) {
    const auto change = [&](FormatId id) {
        CharFormat format = document.charFormats[id];
        Overlay(format, patch);
        return document.charFormats.Intern(format);
    };
    Paragraph& paragraph = stretch.paragraph;
    if (stretch.to > stretch.from) ChangeSpans(paragraph.spans, stretch.from, stretch.to, change);
    if (stretch.withMark || paragraph.text.empty()) paragraph.markFormat = change(paragraph.markFormat);
}

void LookAtFontsOf(const Document& document, const Stretch& stretch,
                   const std::function<void(const CharFormat&)>& look) {
    const ParaFormat& paragraph = document.paraFormats[stretch.paragraph.format];
    if (stretch.paragraph.text.empty())
        look(EffectiveFont(document, paragraph, document.charFormats[stretch.paragraph.markFormat]));
    std::size_t begin = 0;
    for (const Span& span : stretch.paragraph.spans) {
        if (begin < stretch.to && begin + span.length > stretch.from)
            look(EffectiveFont(document, paragraph, document.charFormats[span.format]));
        begin += span.length;
    }
}

std::string PlainText(const Stretch& stretch) {
    const Paragraph& paragraph = stretch.paragraph;
    std::string text;
    std::size_t object = ObjectsBefore(paragraph.text, stretch.from);
    for (std::size_t i = stretch.from; i < stretch.to; ++i) {
        if (paragraph.text[i] == character::kObject)
            text += ShownText(paragraph.objects[object++]);
        else
            text += paragraph.text[i];
    }
    if (stretch.withMark) text += '\r';
    return text;
}

}  // namespace quillmark::word::docx::edit
