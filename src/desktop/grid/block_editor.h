#pragma once

#include <QStackedWidget>
#include <string>

#include "session/grid/grid_editor.h"

class QLabel;
class QPlainTextEdit;
class QScrollArea;

namespace quillmark::desktop {

/// `txtBlock`: several lines of text, or the picture that stands in their place. It shows the editor's state
/// and tells what the person does; what becomes of it is for the session to say, and is shown by the next
/// `ShowState`.
class BlockEditor final : public QStackedWidget {
    Q_OBJECT

 public:
    explicit BlockEditor(QWidget* parent = nullptr);

    void ShowState(const GridEditorState& state);
    /// The text and caret as they stand in the box.
    EditorText Text() const;
    bool ShowsPicture() const;
    /// The usual meaning of these for a text; a picture is copied whole, and cutting takes it out.
    void Cut();
    void Copy();

 Q_SIGNALS:
    /// The text, its caret or its selection is another one now.
    void Edited(const quillmark::EditorText& text);
    /// Enter, Tab or Escape, of which the box itself does nothing.
    void KeyPressed(quillmark::EditorKey key);
    /// A paste is asked for; the box puts nothing in by itself.
    void PasteWanted();
    /// The right button, or the menu key, at a place of the screen.
    void MenuWanted(const QPoint& place);

 protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

 private:
    class TextBox;

    bool TakeKey(const QKeyEvent& key);
    void TakePictureKey(const QKeyEvent& key);
    void TellEdited();
    void ShowText(const EditorText& text);
    void ShowPicture(const std::string& picture);

    TextBox* text_;
    QScrollArea* pane_;
    QLabel* picture_;
    std::string shownPicture_;
    EditorText known_;  ///< as last shown or told
};

}  // namespace quillmark::desktop
