#include "desktop/grid/line_editor.h"

#include <QContextMenuEvent>
#include <QInputMethodEvent>
#include <QKeyEvent>

#include "desktop/grid/grid_model.h"
#include "desktop/toolkit/editor_text.h"
#include "desktop/toolkit/text.h"

namespace quillmark::desktop {

namespace {

ShownText TextIn(const QLineEdit& edit) {
    const bool selects = edit.hasSelectedText();
    return {edit.text(), selects ? edit.selectionStart() : edit.cursorPosition(),
            selects ? static_cast<int>(edit.selectedText().size()) : 0};
}

std::optional<EditorKey> EditorKeyOf(const QKeyEvent& key) {
    if (key.modifiers() & (Qt::ControlModifier | Qt::AltModifier)) return std::nullopt;
    switch (key.key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
            return EditorKey::Enter;
        case Qt::Key_Tab:
            return EditorKey::Tab;
        case Qt::Key_Backtab:
            return EditorKey::Up;
        case Qt::Key_Escape:
            return EditorKey::Escape;
        default:
            return std::nullopt;
    }
}

bool WantsChoices(const QKeyEvent& key) {
    return key.key() == Qt::Key_F4 || (key.key() == Qt::Key_Down && (key.modifiers() & Qt::AltModifier));
}

}  // namespace

bool TakeEditorKey(Desk& desk, EditorSignals& around, const QKeyEvent& key) {
    if (const auto special = EditorKeyOf(key)) {
        desk.Do([&](MainScreen& screen) { screen.KeyInEditor(*special); });
    } else if (key.matches(QKeySequence::Paste)) {
        Q_EMIT around.PasteWanted();
    } else if (key.matches(QKeySequence::SelectAll)) {
        desk.Do([](MainScreen& screen) { screen.SelectAll(); });
    } else if (WantsChoices(key)) {
        Q_EMIT around.ChoicesWanted();
    } else if (key.key() == Qt::Key_F7 || key.key() == Qt::Key_F8) {
        Q_EMIT around.NoteWanted(key.key() == Qt::Key_F7 ? GridModel::kFirstNote : GridModel::kSecondNote);
    } else {
        return false;
    }
    return true;
}

LineEditor::LineEditor(Desk& desk, EditorSignals& around, QWidget* parent)
    : QLineEdit(parent), desk_(desk), around_(around) {
    setObjectName(QStringLiteral("txtEdit"));
    setFrame(true);
    hide();
}

void LineEditor::ShowText() {
    const ShownText wanted = FromSession(desk_.Editor().txtEdit);
    if (TextIn(*this) == wanted) return;
    if (text() != wanted.text) setText(wanted.text);
    if (wanted.selection > 0)
        setSelection(wanted.caret, wanted.selection);
    else
        setCursorPosition(wanted.caret);
}

void LineEditor::Report() {
    EditorText now = ToSession(TextIn(*this));
    if (!isVisible() || now == desk_.Editor().txtEdit) return;
    desk_.Do([&](MainScreen& screen) { screen.SetEditorText(std::move(now)); });
}

bool LineEditor::event(QEvent* event) {
    // The toolkit takes Tab for itself before it comes to keyPressEvent.
    if (event->type() == QEvent::KeyPress) {
        const auto& key = *static_cast<QKeyEvent*>(event);
        const bool isTab = key.key() == Qt::Key_Tab || key.key() == Qt::Key_Backtab;
        if (isTab && TakeEditorKey(desk_, around_, key)) return true;
    }
    return QLineEdit::event(event);
}

bool LineEditor::TakeKey(const QKeyEvent& key) {
    const auto modifiers = key.modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier);
    if (modifiers == Qt::NoModifier && (key.key() == Qt::Key_Up || key.key() == Qt::Key_Down)) {
        const EditorKey move = key.key() == Qt::Key_Up ? EditorKey::Up : EditorKey::Down;
        desk_.Do([move](MainScreen& screen) { screen.KeyInEditor(move); });
        return true;
    }
    if (TakeEditorKey(desk_, around_, key)) return true;
    if (modifiers == Qt::NoModifier && key.key() == Qt::Key_Backspace) {
        desk_.Do([](MainScreen& screen) { screen.KeyInEditor(kBackspace); });
        return true;
    }
    // Control with Alt is the third level of some keyboards; either alone is a shortcut.
    const bool isShortcut = modifiers.testFlag(Qt::ControlModifier) != modifiers.testFlag(Qt::AltModifier);
    return !isShortcut && TypeIn(key.text());
}

/// False if it holds no characters that can be typed.
bool LineEditor::TypeIn(const QString& characters) {
    if (characters.isEmpty() || !characters.front().isPrint()) return false;
    for (const char32_t point : characters.toUcs4()) {
        const std::string character = Utf8(QString::fromUcs4(&point, 1));
        desk_.Do([&](MainScreen& screen) { screen.KeyInEditor(std::string_view(character)); });
    }
    return true;
}

void LineEditor::keyPressEvent(QKeyEvent* event) {
    if (TakeKey(*event)) return event->accept();
    QLineEdit::keyPressEvent(event);
    Report();
}

void LineEditor::inputMethodEvent(QInputMethodEvent* event) {
    QLineEdit::inputMethodEvent(event);
    if (!event->commitString().isEmpty()) Report();
}

void LineEditor::mouseReleaseEvent(QMouseEvent* event) {
    QLineEdit::mouseReleaseEvent(event);
    Report();
}

void LineEditor::contextMenuEvent(QContextMenuEvent* event) {
    Q_EMIT around_.MenuWanted(event->globalPos());
}

}  // namespace quillmark::desktop
