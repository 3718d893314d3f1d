#pragma once

#include <QMenu>

#include "desktop/grid/block_editor.h"
#include "desktop/grid/line_editor.h"

namespace quillmark::desktop {

/// The menu of the right mouse button over the grid. It offers what can be done where it opens, and nothing
/// else.
class EditMenu final : public QMenu {
    Q_OBJECT

 public:
    EditMenu(Desk& desk, LineEditor& line, BlockEditor& block, QWidget* ground);

    /// Over the open editor.
    void OpenOverEditor(const QPoint& point);
    /// Over a row that is locked.
    void OpenOverLocked(int row, const QPoint& point);
    void PasteIntoEditor();

 private:
    QAction* Add(const char* name, const QString& text, QKeySequence keys, std::function<void()> act);
    void Offer(bool locked);
    bool EditorHasSelection() const;
    void CutOrCopy(bool cut);

    Desk& desk_;
    LineEditor& line_;
    BlockEditor& block_;
    int lockedRow_ = -1;
    QAction *mnuCut_, *mnuCopy_, *mnuPaste_, *mnuSelectAll_, *mnuClear_, *mnuView_, *mnuUnlock_;
};

}  // namespace quillmark::desktop
