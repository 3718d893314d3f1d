#include "desktop/grid/grid_editors.h"

#include "core/field_registry.h"
#include "desktop/toolkit/controls.h"
#include "desktop/toolkit/text.h"

namespace quillmark::desktop {

namespace {

constexpr int kBlockLines = 9;

}  // namespace

GridEditors::GridEditors(Desk& desk, GridView& grid, QWidget& ground)
    : QObject(&ground),
      desk_(desk),
      grid_(grid),
      ground_(ground),
      txtEdit_(new LineEditor(desk, around_, &grid)),
      txtBlock_(new BlockEditor(&grid)),
      MonthView1_(new MonthView(&ground)),
      Combo1_(new PopList(QStringLiteral("Combo1"), tr("Choices"), &ground)),
      Combo2_(new PopList(QStringLiteral("Combo2"), tr("Address book"), &ground)),
      menu_(new EditMenu(desk, *txtEdit_, *txtBlock_, &ground)) {
    MonthView1_->setObjectName(QStringLiteral("MonthView1"));
    txtBlock_->setObjectName(QStringLiteral("txtBlock"));
    MonthView1_->hide();
    txtBlock_->hide();
    ConnectCalendar();
    ConnectBlock();
    ConnectLists();
    connect(&around_, &EditorSignals::MenuWanted, menu_, &EditMenu::OpenOverEditor);
    connect(&around_, &EditorSignals::PasteWanted, menu_, &EditMenu::PasteIntoEditor);
    connect(&around_, &EditorSignals::ChoicesWanted, this, &GridEditors::FocusChoices);
    connect(&around_, &EditorSignals::NoteWanted, this, &GridEditors::ClickNote);
    connect(&grid_, &GridView::MenuWanted, menu_, &EditMenu::OpenOverEditor);
    connect(&grid_, &GridView::LockedMenuWanted, menu_, &EditMenu::OpenOverLocked);
    connect(&grid_, &GridView::Moved, this, &GridEditors::Place);
}

void GridEditors::ConnectCalendar() {
    connect(MonthView1_, &MonthView::DayClicked, this, [this](std::chrono::year_month_day day, bool twice) {
        desk_.Do([&](MainScreen& screen) { screen.ClickDay(day, twice); });
    });
    connect(MonthView1_, &MonthView::KeyPressed, this,
            [this](EditorKey key, std::chrono::year_month_day day) {
                desk_.Do([&](MainScreen& screen) { screen.KeyInCalendar(key, day); });
            });
}

void GridEditors::ConnectBlock() {
    connect(txtBlock_, &BlockEditor::Edited, this, [this](const EditorText& text) {
        desk_.Do([&](MainScreen& screen) { screen.SetBlockText(text); });
    });
    connect(txtBlock_, &BlockEditor::KeyPressed, this,
            [this](EditorKey key) { desk_.Do([&](MainScreen& screen) { screen.KeyInEditor(key); }); });
    connect(txtBlock_, &BlockEditor::PasteWanted, menu_, &EditMenu::PasteIntoEditor);
    connect(txtBlock_, &BlockEditor::MenuWanted, menu_, &EditMenu::OpenOverEditor);
}

void GridEditors::ConnectLists() {
    connect(Combo1_, &PopList::Picked, this, [this](int line) {
        desk_.Do([line](MainScreen& screen) { screen.PickChoice(static_cast<std::size_t>(line)); });
    });
    connect(Combo1_, &PopList::KeyPressed, this, [this](EditorKey key, const QString& line) {
        desk_.Do([&](MainScreen& screen) { screen.KeyInChoices(key, Utf8(line)); });
    });
    connect(Combo2_, &PopList::Picked, this, [this](int line) {
        desk_.Do([line](MainScreen& screen) { screen.PickRecord(static_cast<std::size_t>(line)); });
    });
    connect(Combo2_, &PopList::KeyPressed, this, [this](EditorKey key, const QString&) {
        const auto line = static_cast<std::size_t>(std::max(0, Combo2_->currentRow()));
        desk_.Do([&](MainScreen& screen) {
            if (key == EditorKey::Enter)
                screen.PickRecord(line);
            else
                screen.KeyInEditor(key);
        });
    });
}

QWidget* GridEditors::Editor() const {
    if (txtEdit_->isVisible()) return txtEdit_;
    return txtBlock_->isVisible() ? txtBlock_ : nullptr;
}

void GridEditors::Show() {
    const GridEditorState& editor = desk_.Editor();
    const QString name =
        editor.EditField > 0 ? Shown(FieldMarker(editor.EditField)) : tr("User-defined field");
    for (QWidget* widget : {static_cast<QWidget*>(txtEdit_), static_cast<QWidget*>(txtBlock_)})
        if (widget->accessibleName() != name) Describe(widget, name, Shown(desk_.State().picInfo));
    if (editor.kind == EditorKind::Line) txtEdit_->ShowText();
    if (editor.kind == EditorKind::Block) txtBlock_->ShowState(editor);
    Place();
}

/// While a question stands, the editor stays where it is.
void GridEditors::Place() {
    const GridEditorState& editor = desk_.Editor();
    const bool asks = editor.IsOpen() && editor.EditRow < 0;
    const QRect value = grid_.CellRect(editor.EditRow, GridModel::kValue, GridModel::kValue);
    const bool inView = asks || !value.isNull();
    if (!value.isNull()) {
        txtEdit_->setGeometry(value.adjusted(1, 0, -1, -1));
        QRect block = grid_.CellRect(editor.EditRow, GridModel::kValue, GridModel::kSecondNote);
        block.setHeight(
            std::min(grid_.fontMetrics().lineSpacing() * kBlockLines, grid_.viewport()->height()));
        block.moveBottom(std::min(block.bottom(), grid_.viewport()->geometry().bottom()));
        txtBlock_->setGeometry(block);
    }
    txtEdit_->setVisible(editor.kind == EditorKind::Line && inView);
    txtBlock_->setVisible(editor.kind == EditorKind::Block && inView);
    ShowLists();
    ShowCalendar();
}

/// Below the cell if there is room, else above it, and never beyond the window's edge.
void GridEditors::PlaceUnder(QWidget* widget, const QRect& cell, QSize size) const {
    size = size.boundedTo(ground_.size());
    const QPoint corner = grid_.mapTo(&ground_, cell.bottomLeft());
    const int above = corner.y() - cell.height() - size.height();
    const bool fitsBelow = corner.y() + 1 + size.height() <= ground_.height();
    const int x = std::clamp(corner.x(), 0, ground_.width() - size.width());
    widget->setGeometry(QRect(QPoint(x, std::max(0, fitsBelow ? corner.y() + 1 : above)), size));
    if (!widget->isVisible()) {
        widget->show();
        widget->raise();
    }
}

void GridEditors::ShowCalendar() {
    const GridEditorState& editor = desk_.Editor();
    const QRect cell = grid_.CellRect(editor.EditRow, GridModel::kFirstNote, GridModel::kSecondNote);
    if (!editor.MonthView1 || cell.isNull()) return MonthView1_->hide();
    if (MonthView1_->Day() != *editor.MonthView1) MonthView1_->SetDay(*editor.MonthView1);
    PlaceUnder(MonthView1_, cell, MonthView1_->sizeHint());
}

void GridEditors::ShowLists() {
    const GridEditorState& editor = desk_.Editor();
    const QRect cell = grid_.CellRect(editor.EditRow, GridModel::kValue, GridModel::kValue);
    const QRect wide = grid_.CellRect(editor.EditRow, GridModel::kValue, GridModel::kSecondNote);
    if (editor.Combo1.open && !cell.isNull()) {
        Combo1_->ShowLines(editor.Combo1.lines, editor.Combo1.current);
        PlaceUnder(Combo1_, cell, Combo1_->WantedSize().expandedTo({cell.width(), 0}));
    } else {
        Combo1_->hide();
    }
    if (editor.Combo2 && !cell.isNull()) {
        Combo2_->ShowLines(editor.Combo2->lines, 0);
        PlaceUnder(Combo2_, cell, Combo2_->WantedSize().expandedTo({wide.width(), 0}));
    } else {
        Combo2_->hide();
    }
}

void GridEditors::ClickNote(int column) {
    const int row = desk_.Editor().EditRow;
    desk_.Do([&](MainScreen& screen) { screen.ClickGrid(row, column); });
}

void GridEditors::FocusChoices() {
    for (QWidget* list : {static_cast<QWidget*>(Combo1_), static_cast<QWidget*>(Combo2_)})
        if (list->isVisible()) return list->setFocus();
    if (MonthView1_->isVisible()) MonthView1_->setFocus();
}

}  // namespace quillmark::desktop
