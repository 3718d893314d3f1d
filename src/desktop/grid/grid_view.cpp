#include "desktop/grid/grid_view.h"

#include <QContextMenuEvent>
#include <QCoreApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>

#include "desktop/grid/grid_delegate.h"
#include "desktop/toolkit/controls.h"

namespace quillmark::desktop {

namespace {

// Widths of the label and note columns for every 11625 of the grid's; the value takes the rest.
constexpr int kWhole = 11625;
constexpr int kLabelPart = 3105;
constexpr int kNotePart = 1110;
// And their bounds in characters: names stay whole in a narrow grid, and values near to them in a wide one.
constexpr int kNarrowLabel = 26;
constexpr int kWideLabel = 34;
constexpr int kNarrowNote = 7;
constexpr int kWideNote = 12;

}  // namespace

GridView::GridView(Desk& desk, const Appearance& appearance, QWidget* parent)
    : QTableView(parent), desk_(desk), model_(desk, this) {
    setObjectName(QStringLiteral("grdField"));
    setModel(&model_);
    setItemDelegate(new GridDelegate(model_, desk, appearance, this));
    setSelectionMode(NoSelection);
    setEditTriggers(NoEditTriggers);
    setShowGrid(false);
    setWordWrap(false);
    setTabKeyNavigation(false);
    setVerticalScrollMode(ScrollPerItem);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    horizontalHeader()->hide();
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setMinimumSectionSize(1);
    Describe(
        this, tr("Fields"),
        tr("Enter opens the field, F2 unlocks it, F7 and F8 switch its notes, Control+Tab leaves the grid"));
    connect(verticalScrollBar(), &QScrollBar::valueChanged, this, &GridView::ScrolledTo);
    FitRows();
}

void GridView::Show() {
    showing_ = true;
    const int before = model_.rowCount();
    bool reset = false;
    const auto watch = connect(&model_, &QAbstractItemModel::modelReset, this, [&reset] { reset = true; });
    model_.Show();
    disconnect(watch);
    if (reset) SpanHeadings();
    if (reset || before != model_.rowCount()) FitColumns();
    const GridEditorState& editor = desk_.Editor();
    if (verticalScrollBar()->value() != editor.topRow) verticalScrollBar()->setValue(editor.topRow);
    const int cursor = editor.IsOpen() ? -1 : desk_.State().currentRow;
    if (marked_ != editor.markedRow || cursor_ != cursor) {
        marked_ = editor.markedRow;
        cursor_ = cursor;
        viewport()->update();
    }
    showing_ = false;
    Q_EMIT Moved();
}

void GridView::SpanHeadings() {
    clearSpans();
    for (int row = 0; row < model_.rowCount(); ++row)
        if (model_.Row(row).kind == RowKind::Heading) setSpan(row, 0, 1, GridModel::kColumns);
}

QRect GridView::CellRect(int row, int first, int last) const {
    if (row < 0 || row >= model_.rowCount()) return {};
    const QRect cells = visualRect(model_.index(row, first)) | visualRect(model_.index(row, last));
    const QRect place = cells.translated(viewport()->pos());
    return place.top() < viewport()->geometry().top() || place.top() > viewport()->geometry().bottom()
               ? QRect()
               : place;
}

void GridView::mousePressEvent(QMouseEvent* event) {
    const QModelIndex cell = indexAt(event->position().toPoint());
    if (event->button() != Qt::LeftButton || !cell.isValid()) return;
    desk_.Do([&](MainScreen& screen) { screen.ClickGrid(cell.row(), cell.column()); });
}

void GridView::mouseMoveEvent(QMouseEvent*) {}
void GridView::mouseReleaseEvent(QMouseEvent*) {}

void GridView::mouseDoubleClickEvent(QMouseEvent* event) {
    const QModelIndex cell = indexAt(event->position().toPoint());
    if (event->button() != Qt::LeftButton || !cell.isValid()) return;
    // Two clicks on a note cell are two clicks; only a locked row knows the double click.
    if (model_.Row(cell.row()).locked)
        desk_.Do([&](MainScreen& screen) { screen.DoubleClickGrid(cell.row(), cell.column()); });
    else
        mousePressEvent(event);
}

void GridView::contextMenuEvent(QContextMenuEvent* event) {
    const bool byMouse = event->reason() == QContextMenuEvent::Mouse;
    const int row = byMouse ? indexAt(event->pos()).row() : RowToStartFrom();
    if (row < 0 || model_.Row(row).kind == RowKind::Heading) return;
    if (desk_.Editor().EditRow != row &&
        !desk_.Do([row](MainScreen& screen) { screen.ClickGrid(row, GridModel::kValue); }))
        return;
    const QPoint point =
        byMouse ? event->globalPos() : viewport()->mapToGlobal(visualRect(model_.index(row, 0)).center());
    if (model_.Row(row).locked)
        Q_EMIT LockedMenuWanted(row, point);
    else
        Q_EMIT MenuWanted(point);
}

int GridView::RowToStartFrom() const {
    const int row = desk_.State().currentRow;
    return row >= 0 && row < model_.rowCount() ? row : -1;
}

void GridView::keyPressEvent(QKeyEvent* event) {
    const int row = RowToStartFrom();
    switch (event->key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
        case Qt::Key_Space:
            desk_.Do([](MainScreen& screen) { screen.KeyInGrid(EditorKey::Enter); });
            return;
        case Qt::Key_Up:
            desk_.Do([](MainScreen& screen) { screen.KeyInGrid(EditorKey::Up); });
            return;
        case Qt::Key_Down:
            desk_.Do([](MainScreen& screen) { screen.KeyInGrid(EditorKey::Down); });
            return;
        case Qt::Key_PageUp:
            return MoveCursorByPage(-1);
        case Qt::Key_PageDown:
            return MoveCursorByPage(1);
        case Qt::Key_Home:
            return MoveCursorTo(0);
        case Qt::Key_End:
            return MoveCursorTo(model_.rowCount() - 1);
        case Qt::Key_F2:
            if (row >= 0)
                desk_.Do([row](MainScreen& screen) { screen.DoubleClickGrid(row, GridModel::kValue); });
            return;
        case Qt::Key_F7:
            if (row >= 0)
                desk_.Do([row](MainScreen& screen) { screen.ClickGrid(row, GridModel::kFirstNote); });
            return;
        case Qt::Key_F8:
            if (row >= 0)
                desk_.Do([row](MainScreen& screen) { screen.ClickGrid(row, GridModel::kSecondNote); });
            return;
        default:
            TypeInRow(*event);
    }
}

void GridView::MoveCursorTo(int row) {
    if (model_.rowCount() > 0) desk_.Do([row](MainScreen& screen) { screen.MoveCursor(row); });
}

void GridView::MoveCursorByPage(int direction) {
    const int page = std::max(1, desk_.Editor().rowsOnScreen - 1);
    const int row = std::max(0, desk_.State().currentRow) + direction * page;
    MoveCursorTo(std::clamp(row, 0, std::max(0, model_.rowCount() - 1)));
}

/// A letter opens the row and is the first of its new value; on a locked row the guidance tells how to open
/// it.
void GridView::TypeInRow(QKeyEvent& key) {
    const int row = RowToStartFrom();
    const bool isShortcut = key.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
    if (row < 0 || isShortcut || key.text().isEmpty() || !key.text().front().isPrint()) return key.ignore();
    const bool locked = model_.Row(row).locked;
    const auto open = [&](MainScreen& screen) {
        locked ? screen.ClickGrid(row, GridModel::kValue) : screen.KeyInGrid(EditorKey::Enter);
    };
    if (!desk_.Do(open) || !desk_.Editor().IsOpen()) return;
    if (QWidget* editor = window()->focusWidget(); editor != this) QCoreApplication::sendEvent(editor, &key);
}

/// Tab goes down the rows, as in the editors; behind the last one, or with Control, it leaves the grid.
bool GridView::TakeTab(const QKeyEvent& key) {
    if (key.key() != Qt::Key_Tab || key.modifiers() != Qt::NoModifier) return false;
    const int row = RowToStartFrom();
    if (row < 0 || row + 1 >= model_.rowCount()) return false;
    return desk_.DoQuietly([](MainScreen& screen) { screen.KeyInGrid(EditorKey::Tab); });
}

bool GridView::event(QEvent* event) {
    if (event->type() == QEvent::KeyPress) {
        const auto& key = *static_cast<QKeyEvent*>(event);
        if (TakeTab(key)) return true;
        if ((key.key() == Qt::Key_Tab || key.key() == Qt::Key_Backtab) &&
            (key.modifiers() & Qt::ControlModifier))
            return focusNextPrevChild(key.key() == Qt::Key_Tab);
    }
    return QTableView::event(event);
}

void GridView::ScrolledTo(int topRow) {
    if (showing_) return;
    desk_.DoQuietly([topRow](MainScreen& screen) { screen.ScrollTo(topRow); });
}

void GridView::wheelEvent(QWheelEvent* event) {
    QTableView::wheelEvent(event);
    event->accept();
}

void GridView::FitRows() {
    const int height = fontMetrics().height() + 10;
    verticalHeader()->setDefaultSectionSize(height);
    const int rows = std::max(1, viewport()->height() / height);
    if (rows != desk_.Editor().rowsOnScreen)
        desk_.DoQuietly([rows](MainScreen& screen) { screen.SetRowsOnScreen(rows); });
}

void GridView::FitColumns() {
    const int whole = viewport()->width();
    const int column = fontMetrics().averageCharWidth();
    const int label = std::clamp(whole * kLabelPart / kWhole, kNarrowLabel * column, kWideLabel * column);
    const int note = std::clamp(whole * kNotePart / kWhole, kNarrowNote * column, kWideNote * column);
    setColumnWidth(GridModel::kLabel, label);
    setColumnWidth(GridModel::kFirstNote, note);
    setColumnWidth(GridModel::kSecondNote, note);
    setColumnWidth(GridModel::kValue, whole - label - 2 * note);
}

void GridView::resizeEvent(QResizeEvent* event) {
    QTableView::resizeEvent(event);
    FitColumns();
    FitRows();
    Q_EMIT Moved();
}

void GridView::changeEvent(QEvent* event) {
    QTableView::changeEvent(event);
    if (event->type() != QEvent::FontChange) return;
    FitRows();
    Q_EMIT Moved();
}

void GridView::paintEvent(QPaintEvent* event) {
    QTableView::paintEvent(event);
    if (!hasFocus() || desk_.Editor().IsOpen()) return;
    const QRect cells = CellRect(desk_.State().currentRow, GridModel::kLabel, GridModel::kSecondNote);
    if (cells.isNull()) return;
    QPainter painter(viewport());
    painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
    painter.drawRect(cells.translated(-viewport()->pos()).adjusted(1, 1, -1, -1));
}

}  // namespace quillmark::desktop
