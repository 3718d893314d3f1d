#include "desktop/grid/edit_menu.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>

#include "desktop/grid/grid_model.h"
#include "desktop/grid/pictures.h"

namespace quillmark::desktop {

namespace {

bool ClipboardHolds(const std::initializer_list<bool (QMimeData::*)() const>& kinds) {
    const QMimeData* data = QGuiApplication::clipboard()->mimeData();
    return data && std::ranges::any_of(kinds, [&](auto kind) { return (data->*kind)(); });
}

}  // namespace

EditMenu::EditMenu(Desk& desk, LineEditor& line, BlockEditor& block, QWidget* ground)
    : QMenu(ground), desk_(desk), line_(line), block_(block) {
    setAttribute(Qt::WA_WindowPropagation);
    setObjectName(QStringLiteral("mnuEdit"));
    const auto command = [this](void (MainScreen::*act)()) {
        return [this, act] { desk_.Do([act](MainScreen& screen) { (screen.*act)(); }); };
    };
    mnuUnlock_ = Add("mnuUnlock", tr("&Unlock for edit ..."), Qt::Key_F2, [this] {
        desk_.Do([row = lockedRow_](MainScreen& screen) { screen.DoubleClickGrid(row, GridModel::kValue); });
    });
    mnuCut_ = Add("mnuCut", tr("Cu&t"), QKeySequence::Cut, [this] { CutOrCopy(true); });
    mnuCopy_ = Add("mnuCopy", tr("&Copy"), QKeySequence::Copy, [this] { CutOrCopy(false); });
    mnuPaste_ = Add("mnuPaste", tr("&Paste"), QKeySequence::Paste, [this] { PasteIntoEditor(); });
    mnuSelectAll_ =
        Add("mnuSelectAll", tr("Select &All"), QKeySequence::SelectAll, command(&MainScreen::SelectAll));
    mnuClear_ = Add("mnuClear", tr("C&lear"), {}, command(&MainScreen::ClearValue));
    mnuView_ = Add("mnuView", tr("&View picture"), {}, command(&MainScreen::ViewPicture));
}

/// The keys are the editors' own; here they are told.
QAction* EditMenu::Add(const char* name, const QString& text, QKeySequence keys, std::function<void()> act) {
    QAction* action = addAction(text, this, std::move(act));
    action->setObjectName(QLatin1String(name));
    action->setShortcut(keys);
    action->setShortcutContext(Qt::WidgetShortcut);
    return action;
}

void EditMenu::OpenOverEditor(const QPoint& point) {
    if (!desk_.Editor().IsOpen()) return;
    Offer(false);
    popup(point);
}

void EditMenu::OpenOverLocked(int row, const QPoint& point) {
    lockedRow_ = row;
    Offer(true);
    popup(point);
}

void EditMenu::Offer(bool locked) {
    for (QAction* action : actions()) action->setVisible((action == mnuUnlock_) == locked);
    if (locked) return;
    const GridEditorState& editor = desk_.Editor();
    const bool block = editor.kind == EditorKind::Block;
    const bool holdsText = !(block ? editor.txtBlock : editor.txtEdit.text).empty();
    const bool selects = EditorHasSelection();
    mnuCut_->setEnabled(selects);
    mnuCopy_->setEnabled(selects);
    mnuPaste_->setEnabled(ClipboardHolds({&QMimeData::hasText, &QMimeData::hasImage}));
    mnuSelectAll_->setEnabled(holdsText);
    mnuClear_->setEnabled(holdsText || block_.ShowsPicture());
    mnuView_->setVisible(editor.ImageInField);
}

bool EditMenu::EditorHasSelection() const {
    if (line_.isVisible()) return line_.hasSelectedText();
    return block_.isVisible() && (block_.ShowsPicture() || block_.Text().selection > 0);
}

void EditMenu::PasteIntoEditor() {
    desk_.Do([clipboard = ReadClipboard()](MainScreen& screen) { screen.Paste(clipboard); });
}

void EditMenu::CutOrCopy(bool cut) {
    if (line_.isVisible()) {
        cut ? line_.cut() : line_.copy();
        line_.Report();
    } else if (block_.isVisible()) {
        cut ? block_.Cut() : block_.Copy();
    }
}

}  // namespace quillmark::desktop
