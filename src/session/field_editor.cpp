#include "session/field_editor.h"

namespace quillmark {

namespace {

/// Puts `lineEnd` in the place of every CR LF, CR or LF.
std::string WithLineEnds(std::string_view text, std::string_view lineEnd) {
    std::string lines;
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (text[at] != '\r' && text[at] != '\n') {
            lines += text[at];
            continue;
        }
        if (text[at] == '\r' && at + 1 < text.size() && text[at + 1] == '\n') ++at;
        lines += lineEnd;
    }
    return lines;
}

/// The UTF-8 character that begins at a place.
std::string_view CharacterAt(std::string_view text, std::size_t at) {
    std::size_t end = at + 1;
    while (end < text.size() && (static_cast<unsigned char>(text[end]) & 0xC0) == 0x80) ++end;
    return text.substr(at, end - at);
}

}  // namespace

bool IsBlockField(int n) {
    return n == 201 || n == 202;
}

TypedText TypeOver(std::string_view text, const KeyPlace& place, std::string_view marker, bool properCase) {
    EditorText editor;
    for (std::size_t at = 0; at < text.size();) {
        const std::string_view character = CharacterAt(text, at);
        at += character.size();
        if (character == "\r" || character == "\n") continue;
        TypedKey key = TypeKey(editor, character, place, marker, properCase);
        editor = std::move(key.editor);
        if (key.effect != KeyEffect::None) return {editor.text, key.effect};
    }
    return {editor.text};
}

std::string PastedLine(std::string_view text) {
    return WithLineEnds(text, ", ");
}

std::string WithFileLineEnds(std::string_view text) {
    return WithLineEnds(text, "\r\n");
}

}  // namespace quillmark
