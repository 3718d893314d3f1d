#include "session/grid/grid_steps.h"

#include <algorithm>

#include "core/field_registry.h"
#include "entry/proposals.h"
#include "platform/code_page.h"
#include "session/grid/editor_texts.h"
#include "session/state/ready.h"

namespace quillmark {

namespace {

/// The UTF-8 character that begins at a place.
std::string_view CharacterAt(std::string_view text, std::size_t at) {
    std::size_t end = at + 1;
    while (end < text.size() && (static_cast<unsigned char>(text[end]) & 0xC0) == 0x80) ++end;
    return text.substr(at, end - at);
}

/// Types the characters over what the editor holds; line breaks are no characters. Stops at a key that leads
/// elsewhere.
KeyEffect TypeOver(std::string_view text, GridEditor& editor) {
    editor.SetEditorText({});
    for (std::size_t at = 0; at < text.size();) {
        const std::string_view character = CharacterAt(text, at);
        at += character.size();
        if (character == "\r" || character == "\n") continue;
        if (const KeyEffect effect = editor.Type(character); effect != KeyEffect::None) return effect;
    }
    return KeyEffect::None;
}

std::optional<std::size_t> PlaceOf(std::string_view line, const std::vector<std::string>& lines) {
    const auto at = std::find(lines.begin(), lines.end(), line);
    if (at == lines.end()) return std::nullopt;
    return static_cast<std::size_t>(at - lines.begin());
}

template <class Matches>
int FindGridRow(const std::vector<GridRow>& grid, Matches matches) {
    const auto row = std::find_if(grid.begin(), grid.end(), matches);
    return row == grid.end() ? -1 : static_cast<int>(row - grid.begin());
}

}  // namespace

int GridSteps::RowOf(int n) const {
    RequireReady(screen_);
    const int row =
        FindGridRow(screen_.grid, [&](const GridRow& r) { return r.kind == RowKind::Field && r.n == n; });
    Require(row >= 0, "field " + std::to_string(n) + " has no row in the grid");
    return row;
}

int GridSteps::RowOf(std::string_view marker) const {
    RequireReady(screen_);
    const int row = FindGridRow(
        screen_.grid, [&](const GridRow& r) { return r.kind == RowKind::User && r.label == marker; });
    Require(row >= 0, "the grid has no row \"" + std::string(marker) + "\"");
    return row;
}

/// Clicks the row; throws NotAllowed where no editor opens.
void GridSteps::OpenRow(int row) {
    EscapeEditor();
    editor_.Click(row, 1);
    if (editor_.State().IsOpen()) return;
    if (screen_.grid[static_cast<std::size_t>(row)].locked) throw NotAllowed("the field is locked");
    throw NotAllowed(screen_.mode == ScreenMode::Presets ? "the template has no name yet"
                                                         : "the job has no name yet");
}

void GridSteps::VisitRow(int row) {
    OpenRow(row);
    EscapeEditor();
}

/// An editor that nobody has touched keeps its proposal to itself.
void GridSteps::EscapeEditor() {
    if (editor_.State().IsOpen()) editor_.KeyInEditor(EditorKey::Escape);
}

void GridSteps::CommitText(std::string_view text, EntryWay way) {
    if (editor_.State().BlockEdit) {
        editor_.SetBlockText({});
        way == EntryWay::Paste ? editor_.Paste({std::string(text), {}})
                               : editor_.SetBlockText({std::string(text)});
    } else if (way == EntryWay::Paste) {
        editor_.SetEditorText({});
        editor_.Paste({std::string(text), {}});
    } else if (TypeOver(text, editor_) == KeyEffect::MoveToSalePrice) {
        return editor_.MoveToSalePrice();
    }
    editor_.KeyInEditor(EditorKey::Tab);
}

std::string GridSteps::EnterField(int n, std::string_view text, EntryWay way) {
    const int row = RowOf(n);
    Require(!FirstUnencodable(text), "no data file can keep the text");
    if (way == EntryWay::Pick) {
        PickFrom(row, text);
    } else {
        Require(way != EntryWay::Type || text.empty() || !IsPickedOnly(n),
                "this field is picked from its list");
        OpenRow(row);
        CommitText(text, way);
    }
    EscapeEditor();
    return screen_.job.D(n);
}

/// Lists are looked up before anything opens, so that a line which is in none of them changes nothing.
void GridSteps::PickFrom(int row, std::string_view text) {
    const GridRow& target = screen_.grid[static_cast<std::size_t>(row)];
    const OpenedEditor offered = OpenEditor(target, screen_, firm_);
    std::vector<std::string> lines = offered.choices;
    if (offered.book) lines = FillDatabaseCombo(NameOf(*offered.book), target.n, books_()).lines;
    const auto line = PlaceOf(text, lines);
    Require(line.has_value(), "the field offers no line \"" + std::string(text) + "\"");
    OpenRow(row);
    offered.book ? editor_.PickRecord(*line) : editor_.PickChoice(*line);
}

std::string GridSteps::EnterUserField(std::string_view marker, std::string_view text, EntryWay way) {
    const int row = RowOf(marker);
    Require(!FirstUnencodable(text), "no data file can keep the text");
    OpenRow(row);
    CommitText(text, way);
    EscapeEditor();
    return screen_.grid[static_cast<std::size_t>(row)].value;
}

std::string GridSteps::TypeInEditor(int n, std::string_view text) {
    const int row = RowOf(n);
    Require(!FirstUnencodable(text), "no data file can keep the text");
    OpenRow(row);
    std::string shown;
    if (IsBlockField(n)) {
        editor_.SetBlockText({});
        editor_.SetBlockText({std::string(text)});
        shown = editor_.State().txtBlock;
    } else {
        if (TypeOver(text, editor_) == KeyEffect::MoveToSalePrice)
            dialogs_.Tell("", std::string(kNoSalePrice), DialogIcon::Warning);
        shown = editor_.State().txtEdit.text;
    }
    EscapeEditor();
    return shown;
}

void GridSteps::UnlockRow(int n) {
    const int row = RowOf(n);
    Require(screen_.grid[static_cast<std::size_t>(row)].locked, "the field is not locked");
    EscapeEditor();
    editor_.DoubleClick(row, 1);
    EscapeEditor();
}

std::string GridSteps::ClickNote(int n, int column) {
    Require(column == 2 || column == 3, "note cells stand in columns 2 and 3");
    editor_.ClickNote(RowOf(n), column);
    return screen_.job.D(n);
}

}  // namespace quillmark
