#pragma once

#include <QLineEdit>

#include "desktop/toolkit/desk.h"

namespace quillmark::desktop {

/// What the editors over the grid ask of what lies around them.
class EditorSignals : public QObject {
    Q_OBJECT

 public:
    using QObject::QObject;

 Q_SIGNALS:
    void MenuWanted(const QPoint& point);
    void PasteWanted();
    /// The calendar or the list that belongs to the editor is to have the keyboard.
    void ChoicesWanted();
    /// The note cell in that column of the editor's row is to be switched.
    void NoteWanted(int column);
};

/// Keys that mean the same in every editor; true if it was one of them and is done.
bool TakeEditorKey(Desk& desk, EditorSignals& around, const QKeyEvent& key);

/// `txtEdit`, over one value cell. Its text is the session's: each key is asked for.
class LineEditor final : public QLineEdit {
    Q_OBJECT

 public:
    LineEditor(Desk& desk, EditorSignals& around, QWidget* parent);

    void ShowText();
    /// Tells the session of text and caret as they are.
    void Report();

 protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

 private:
    bool TakeKey(const QKeyEvent& key);
    bool TypeIn(const QString& characters);

    Desk& desk_;
    EditorSignals& around_;
};

}  // namespace quillmark::desktop
