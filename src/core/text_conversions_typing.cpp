#include "core/text_conversions.h"
#include "platform/code_page.h"

namespace quillmark {

namespace {

void ReplaceAll(std::string& text, std::string_view from, std::string_view to) {
    for (std::size_t at = text.find(from); at != std::string::npos; at = text.find(from, at + to.size()))
        text.replace(at, from.size(), to);
}

/// Takes a joining word that ends the text down, wherever it stands, and puts the caret at the end.
bool LowerJoiningWord(EditorText& editor) {
    for (const std::string_view word : {" And ", " Or "}) {
        if (!editor.text.ends_with(word)) continue;
        ReplaceAll(editor.text, word, Lowered(word));
        editor.caret = editor.text.size();
        editor.selection = 0;
        return true;
    }
    return false;
}

bool BeginsWord(const EditorText& editor) {
    return editor.caret == editor.text.size() && editor.text.ends_with(' ');
}

bool IsControl(std::string_view character) {
    return character.empty() || static_cast<unsigned char>(character.front()) < ' ';
}

}  // namespace

ProperCaseKey ProperCase(const EditorText& editor, std::string_view character, std::string_view marker,
                         bool properCase) {
    ProperCaseKey key{editor, std::string(character)};
    if (!properCase || IsControl(character)) return key;
    const bool raise = editor.caret == 0 ? marker.find(" email") == std::string_view::npos
                                         : LowerJoiningWord(key.editor) || BeginsWord(key.editor);
    if (raise) key.character = UpperCase(character);
    return key;
}

}  // namespace quillmark
