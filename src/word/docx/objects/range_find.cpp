#include "word/docx/objects/range_find.h"

#include <utility>

#include "word/docx/objects/engine_state.h"
#include "word/docx/objects/pictures.h"
#include "word/docx/objects/range.h"
#include "word/docx/objects/section_objects.h"
#include "word/docx/paste/paste.h"

namespace quillmark::word::docx::objects {
namespace {

/// Switches of `Execute` that make it look for something else than a plain text.
constexpr std::string_view kUnused[] = {"MatchCase", "MatchWholeWord", "MatchWildcards", "MatchSoundsLike",
                                        "MatchAllWordForms"};

void RefuseUnusedSwitches(const ArgumentReader& reader) {
    for (std::string_view name : kUnused)
        if (reader.Flag(name, false))
            throw AutomationError(error::kBadValue, "Only plain texts can be looked for");
    if (!reader.Flag("Forward", true) || reader.Flag("Format", false))
        throw AutomationError(error::kBadValue, "Only plain texts can be looked for");
}

/// What ^c puts in, a picture no wider than the text.
find::ClipboardContent FittedClipboard(OpenDocument& document) {
    find::ClipboardContent content = document.engine().clipboardContent();
    const SectionProperties& section = *document.editor().Sections().back();
    if (auto* picture = std::get_if<Picture>(&content))
        FitPicture(*picture, ColumnWidth(section), TextHeight(section));
    return content;
}

}  // namespace

// ---- Find ----

const MemberTable<FindObject>& FindObject::Members() {
    static const MemberTable<FindObject> members = {
        {"Execute", nullptr, nullptr,
         [](FindObject& find, Arguments arguments) { return Value(find.Execute(arguments)); }},
        {"Found", [](FindObject& find, Arguments) { return Value(find.found_); }},
    };
    return members;
}

void FindObject::CheckAlive() const {
    range_.CheckAlive();
}

bool FindObject::Execute(Arguments arguments) {
    const ArgumentReader reader(
        arguments, {"FindText", "MatchCase", "MatchWholeWord", "MatchWildcards", "MatchSoundsLike",
                    "MatchAllWordForms", "Forward", "Wrap", "Format", "ReplaceWith", "Replace"});
    RefuseUnusedSwitches(reader);
    find::FindRequest request{StringOf(reader["FindText"])};
    if (const Value* replacement = reader.Find("ReplaceWith")) request.replaceWith = StringOf(*replacement);
    if (const Value* replace = reader.Find("Replace"))
        request.replace = static_cast<FindReplace>(WholeWithin(*replace, ReplaceNone, ReplaceAll));
    if (const Value* wrap = reader.Find("Wrap"))
        request.wrap = static_cast<FindWrap>(WholeWithin(*wrap, FindStop, FindContinue));
    if (request.replace != ReplaceNone) range_.RequireEditable();

    OpenDocument& document = range_.document();
    const find::ClipboardContent clipboard = FittedClipboard(document);
    request.clipboard = &clipboard;
    const find::FindResult result = range_.FindIn(request);
    if (result.replaced > 0) {
        document.editor().Reattach();
        document.Changed();
    }
    if (result.match) range_.MoveTo(result.match->start, result.match->end);
    return found_ = result.found;
}

// ---- Fields ----

const MemberTable<FieldsObject>& FieldsObject::Members() {
    static const MemberTable<FieldsObject> members = {
        {"Add", nullptr, nullptr,
         [](FieldsObject& fields, Arguments arguments) {
             fields.Add(arguments);
             return Value();
         }},
    };
    return members;
}

void FieldsObject::Add(Arguments arguments) {
    const ArgumentReader reader(arguments, {"Range", "Type", "Text", "PreserveFormatting"});
    const auto range = ObjectOf<RangeObject>(reader["Range"]);
    if (reader.Whole("Type", -1) != FieldPage)
        throw AutomationError(error::kBadValue, "Only the page number can be added as a field");
    edit::Editor& editor = document_.editor();
    Place place = range->BeginInsertion();
    const FormatId format = range->InsertionFormat();
    place = editor.InsertObject(place, FieldBegin{}, format);
    place = editor.InsertObject(place, FieldInstruction{" PAGE  \\* MERGEFORMAT "}, format);
    place = editor.InsertObject(place, FieldSeparator{}, format);
    place = editor.InsertText(place, "1", format);
    editor.InsertObject(place, FieldEnd{}, format);
    document_.Changed();
}

// ---- Breaks ----

void InsertBreakAt(OpenDocument& document, const Place& place, int kind, FormatId format) {
    if (kind != PageBreak && kind != SectionBreakNextPage && kind != SectionBreakContinuous)
        throw AutomationError(error::kBadValue, "No such break");
    if (kind == PageBreak)
        document.editor().InsertText(place, std::string_view(&character::kPageBreak, 1), format);
    else
        document.editor().InsertSectionBreak(
            place, kind == SectionBreakNextPage ? SectionNewPage : SectionContinuous);
    if (kind == SectionBreakNextPage && document.pageBeforePaste())
        paste::TakeBackPage(document.model(), *std::exchange(document.pageBeforePaste(), std::nullopt));
    document.Changed();
}

}  // namespace quillmark::word::docx::objects
