#include "desktop/grid/block_editor.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QScrollArea>
#include <QSignalBlocker>
#include <optional>

#include "desktop/grid/pictures.h"
#include "desktop/toolkit/controls.h"
#include "desktop/toolkit/editor_text.h"
#include "desktop/toolkit/text.h"

namespace quillmark::desktop {

namespace {

std::optional<EditorKey> KeyOf(const QKeyEvent& key) {
    if (key.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) return std::nullopt;
    switch (key.key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
            return EditorKey::Enter;
        case Qt::Key_Tab:
            return EditorKey::Tab;
        case Qt::Key_Escape:
            return EditorKey::Escape;
        default:
            return std::nullopt;
    }
}

}  // namespace

/// A paste is the session's, and nothing is dropped in past it.
class BlockEditor::TextBox final : public QPlainTextEdit {
 public:
    explicit TextBox(BlockEditor& editor) : QPlainTextEdit(&editor), editor_(editor) {
        setAcceptDrops(false);
        viewport()->setAcceptDrops(false);
    }
    void LeaveBackwards() { QWidget::focusNextPrevChild(false); }

 protected:
    bool canInsertFromMimeData(const QMimeData* source) const override {
        return source->hasImage() || QPlainTextEdit::canInsertFromMimeData(source);
    }
    void insertFromMimeData(const QMimeData*) override { Q_EMIT editor_.PasteWanted(); }
    void contextMenuEvent(QContextMenuEvent* event) override {
        Q_EMIT editor_.MenuWanted(event->globalPos());
    }

 private:
    BlockEditor& editor_;
};

BlockEditor::BlockEditor(QWidget* parent)
    : QStackedWidget(parent),
      text_(new TextBox(*this)),
      pane_(new QScrollArea(this)),
      picture_(new QLabel(pane_)) {
    pane_->setWidget(picture_);
    pane_->setAlignment(Qt::AlignCenter);
    pane_->setFocusPolicy(Qt::StrongFocus);
    addWidget(text_);
    addWidget(pane_);
    setFocusProxy(text_);
    Describe(this, QStringLiteral("Text of the field"));
    Describe(text_, QStringLiteral("Text of the field"),
             QStringLiteral("Tab commits it, Escape leaves it as it was"));
    Describe(pane_, QStringLiteral("Picture of the field"), QStringLiteral("Delete takes the picture out"));
    text_->installEventFilter(this);
    pane_->installEventFilter(this);
    connect(text_, &QPlainTextEdit::textChanged, this, &BlockEditor::TellEdited);
    connect(text_, &QPlainTextEdit::cursorPositionChanged, this, &BlockEditor::TellEdited);
    connect(text_, &QPlainTextEdit::selectionChanged, this, &BlockEditor::TellEdited);
}

void BlockEditor::ShowState(const GridEditorState& state) {
    text_->setLineWrapMode(state.blockWraps ? QPlainTextEdit::WidgetWidth : QPlainTextEdit::NoWrap);
    ShowText({state.txtBlock, state.blockCaret, state.blockSelection});
    ShowPicture(state.blockPicture);
}

void BlockEditor::ShowText(const EditorText& text) {
    known_ = text;
    if (Text() == text) return;
    const ShownText shown = FromSession(text);
    const QSignalBlocker quiet(text_);
    QTextCursor cursor = text_->textCursor();
    if (text_->toPlainText() != shown.text) {
        cursor.select(QTextCursor::Document);
        cursor.insertText(shown.text);
    }
    cursor.setPosition(shown.caret);
    cursor.setPosition(shown.caret + shown.selection, QTextCursor::KeepAnchor);
    text_->setTextCursor(cursor);
}

void BlockEditor::ShowPicture(const std::string& picture) {
    if (shownPicture_ != picture) {
        shownPicture_ = picture;
        picture_->setPixmap(QPixmap::fromImage(PictureOf(picture)));
        picture_->adjustSize();
    }
    QWidget* page = picture.empty() ? static_cast<QWidget*>(text_) : pane_;
    if (currentWidget() == page) return;
    const bool hadFocus = isAncestorOf(QApplication::focusWidget());
    setFocusProxy(page);
    setCurrentWidget(page);
    if (hadFocus) page->setFocus();
}

bool BlockEditor::ShowsPicture() const {
    return currentWidget() == pane_;
}

EditorText BlockEditor::Text() const {
    const QTextCursor cursor = text_->textCursor();
    return ToSession(
        {text_->toPlainText(), cursor.selectionStart(), cursor.selectionEnd() - cursor.selectionStart()});
}

void BlockEditor::TellEdited() {
    EditorText text = Text();
    if (text == known_) return;
    known_ = text;
    Q_EMIT Edited(text);
}

void BlockEditor::Cut() {
    if (!ShowsPicture()) return text_->cut();
    Copy();
    Q_EMIT Edited({});
}

void BlockEditor::Copy() {
    if (!ShowsPicture()) return text_->copy();
    QGuiApplication::clipboard()->setImage(PictureOf(shownPicture_));
}

bool BlockEditor::eventFilter(QObject* watched, QEvent* event) {
    if (watched == pane_ && event->type() == QEvent::ContextMenu) {
        Q_EMIT MenuWanted(static_cast<QContextMenuEvent*>(event)->globalPos());
        return true;
    }
    if (event->type() == QEvent::KeyPress && TakeKey(*static_cast<QKeyEvent*>(event))) return true;
    if (watched != pane_ || event->type() != QEvent::KeyPress)
        return QStackedWidget::eventFilter(watched, event);
    TakePictureKey(*static_cast<QKeyEvent*>(event));
    return QStackedWidget::eventFilter(watched, event);
}

bool BlockEditor::TakeKey(const QKeyEvent& key) {
    if (key.key() == Qt::Key_Backtab) {
        text_->LeaveBackwards();
        return true;
    }
    const std::optional<EditorKey> taken = KeyOf(key);
    if (taken) Q_EMIT KeyPressed(*taken);
    return taken.has_value();
}

/// What is typed over a picture takes its place.
void BlockEditor::TakePictureKey(const QKeyEvent& key) {
    if (key.matches(QKeySequence::Paste)) return Q_EMIT PasteWanted();
    if (key.matches(QKeySequence::Copy)) return Copy();
    if (key.matches(QKeySequence::Cut)) return Cut();
    if (key.key() == Qt::Key_Delete || key.key() == Qt::Key_Backspace) return Q_EMIT Edited({});
    const bool printed = !key.text().isEmpty() && key.text().front().isPrint();
    if (!printed || key.modifiers() & (Qt::ControlModifier | Qt::AltModifier)) return;
    Q_EMIT Edited({Utf8(key.text()), static_cast<std::size_t>(key.text().toUtf8().size()), 0});
}

}  // namespace quillmark::desktop
