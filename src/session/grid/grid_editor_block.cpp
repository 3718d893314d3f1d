#include "core/field_registry.h"
#include "core/fields.h"
#include "entry/field_listing.h"
#include "session/grid/editor_texts.h"
#include "session/grid/grid_editor.h"

namespace quillmark {

namespace {

constexpr std::size_t kLargePaste = 10'000;

}  // namespace

void GridEditor::ShowBlock(std::string_view text) {
    state_.kind = EditorKind::Block;
    state_.ImageInField = text == kImageLiteral;
    state_.txtBlock = WithLineEnds(text, "\n");
    state_.blockCaret = state_.ImageInField ? 0 : state_.txtBlock.size();
    state_.blockSelection = state_.ImageInField ? state_.txtBlock.size() : 0;
    blockUntouched_ = true;
}

void GridEditor::SetBlockText(EditorText editor) {
    RequireEditor(EditorKind::Block);
    std::string text = WithLineEnds(editor.text, "\n");
    if (text != state_.txtBlock) {
        if (RefusesText(text)) return;
        const bool gaveWay =
            std::exchange(blockUntouched_, false) && (state_.ImageInField || IsPlaceholder(state_.txtBlock));
        const bool wasReplaced = state_.blockSelection == state_.txtBlock.size() &&
                                 text.find(state_.txtBlock) == std::string::npos;
        if (gaveWay && !wasReplaced) {
            text = WhatWasPutIn(state_.txtBlock, text);
            editor = {text, text.size(), 0};
        }
        state_.ImageInField = false;
        state_.blockPicture.clear();
        state_.blockWraps = true;
    }
    state_.txtBlock = std::move(text);
    state_.blockCaret = std::min(editor.caret, state_.txtBlock.size());
    state_.blockSelection = std::min(editor.selection, state_.txtBlock.size() - state_.blockCaret);
}

/// Enter is a new line in a text, and as Tab beside a picture or in an empty box.
void GridEditor::KeyInBlock(EditorKey key) {
    if (key != EditorKey::Enter && key != EditorKey::Tab) return;
    if (key == EditorKey::Tab || state_.ImageInField || state_.txtBlock.empty()) return CommitAndAdvance();
    PasteIntoBlock("\n");
}

bool GridEditor::CommitBlock() {
    const int n = state_.EditField;
    std::string& kept = screen_.job.FieldPictures[static_cast<std::size_t>(n)];
    std::string picture = state_.ImageInField ? kept : std::string();
    if (state_.ImageInField && !state_.blockPicture.empty()) picture = state_.blockPicture;
    const bool isOther = picture != kept;
    kept = std::move(picture);
    const bool changed =
        Store(state_.ImageInField ? std::string(kImageLiteral) : WithLineEnds(state_.txtBlock, "\r\n"));
    if (isOther && !changed) around_.fieldChanged(n);
    return changed || isOther;
}

void GridEditor::Paste(const Clipboard& clipboard) {
    Require(state_.IsOpen() && state_.EditRow >= 0, "no editor is open");
    const bool takesPicture = state_.EditField == field::SchedADescription;
    if (!clipboard.picture.empty() && !takesPicture)
        return Tell(" TEXT ONLY", "This field does not accept images.", DialogIcon::Warning);
    if (clipboard.text.empty()) {
        if (!clipboard.picture.empty()) ShowPicture(clipboard.picture);
        return;
    }
    if (RefusesText(clipboard.text)) return;
    const std::string guidance = screen_.picInfo;
    if (clipboard.text.size() >= kLargePaste) {
        screen_.picInfo = " Pasting ... Please Wait";
        around_.progress();
    }
    state_.BlockEdit ? PasteIntoBlock(clipboard.text) : PasteIntoLine(clipboard.text);
    screen_.picInfo = guidance;
}

void GridEditor::PasteIntoLine(std::string_view text) {
    if (state_.txtEdit.text.starts_with('[')) state_.txtEdit = {};
    state_.txtEdit = WithCharacter(state_.txtEdit, PastedLine(text));
}

void GridEditor::PasteIntoBlock(std::string_view text) {
    EditorText block{state_.txtBlock, state_.blockCaret, state_.blockSelection};
    if (block.text.starts_with('[') || state_.ImageInField) block = {};
    SetBlockText({});
    SetBlockText(WithCharacter(std::move(block), WithLineEnds(text, "\n")));
}

void GridEditor::ShowPicture(std::string picture) {
    state_.ImageInField = true;
    state_.txtBlock = kImageLiteral;
    state_.blockCaret = 0;
    state_.blockSelection = state_.txtBlock.size();
    state_.blockPicture = std::move(picture);
    state_.blockWraps = false;
    blockUntouched_ = true;
}

void GridEditor::ViewPicture() {
    RequireEditor(EditorKind::Block);
    Require(state_.ImageInField, "the field holds no picture");
    if (!state_.blockPicture.empty()) return;
    const std::string& picture = screen_.job.FieldPictures[static_cast<std::size_t>(state_.EditField)];
    Require(!picture.empty(), "the picture's file is missing");
    ShowPicture(picture);
}

void GridEditor::ClearValue() {
    Require(state_.IsOpen() && state_.EditRow >= 0, "no editor is open");
    state_.txtEdit = {};
    if (state_.BlockEdit) SetBlockText({});
    Commit();
}

void GridEditor::SelectAll() {
    Require(state_.IsOpen() && state_.EditRow >= 0, "no editor is open");
    state_.txtEdit.caret = state_.blockCaret = 0;
    state_.txtEdit.selection = state_.txtEdit.text.size();
    state_.blockSelection = state_.txtBlock.size();
}

}  // namespace quillmark
