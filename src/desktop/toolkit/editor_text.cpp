#include "desktop/toolkit/editor_text.h"

#include "desktop/toolkit/text.h"

namespace quillmark::desktop {

EditorText ToSession(const ShownText& shown) {
    EditorText editor;
    editor.text = Utf8(shown.text);
    editor.caret = static_cast<std::size_t>(shown.text.left(shown.caret).toUtf8().size());
    editor.selection = static_cast<std::size_t>(shown.text.mid(shown.caret, shown.selection).toUtf8().size());
    return editor;
}

ShownText FromSession(const EditorText& editor) {
    const std::string_view text = editor.text;
    const std::size_t caret = std::min(editor.caret, text.size());
    ShownText shown;
    shown.text = Shown(text);
    shown.caret = static_cast<int>(Shown(text.substr(0, caret)).size());
    shown.selection = static_cast<int>(Shown(text.substr(caret, editor.selection)).size());
    return shown;
}

}  // namespace quillmark::desktop
