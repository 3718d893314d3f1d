#include "desktop/toolkit/lines_model.h"

#include <QKeyEvent>
#include <algorithm>

#include "desktop/toolkit/controls.h"
#include "desktop/toolkit/text.h"

namespace quillmark::desktop {

int LinesModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(lines_.size());
}

QVariant LinesModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || index.row() >= rowCount()) return {};
    if (role != Qt::DisplayRole && role != Qt::ToolTipRole) return {};
    return Shown(lines_[static_cast<std::size_t>(index.row())]);
}

LinesView::LinesView(const std::vector<std::string>& lines, const QString& name, QWidget* parent)
    : QListView(parent), model_(lines) {
    setModel(&model_);
    setItemDelegate(new RoomyRows(this));
    setUniformItemSizes(true);
    setEditTriggers(NoEditTriggers);
    setTextElideMode(Qt::ElideRight);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setTabKeyNavigation(false);
    Describe(this, name);
    connect(this, &QListView::doubleClicked, this,
            [this](const QModelIndex& index) { Q_EMIT LineOpened(index.row()); });
}

int LinesView::Line() const {
    const QModelIndexList selected = selectionModel()->selectedIndexes();
    return selected.isEmpty() ? -1 : selected.first().row();
}

void LinesView::SelectLine(int line) {
    setCurrentIndex(model_.index(line));
}

void LinesView::KeepPlace(int row) {
    const int kept = std::min(row, model_.rowCount() - 1);
    if (kept >= 0) selectionModel()->setCurrentIndex(model_.index(kept), QItemSelectionModel::NoUpdate);
}

void LinesView::keyboardSearch(const QString& letter) {
    const int line = typeAhead_.Search(model_, currentIndex().row(), letter);
    if (line >= 0) SelectLine(line);
}

void LinesView::keyPressEvent(QKeyEvent* event) {
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (!enter) return QListView::keyPressEvent(event);
    typeAhead_.Forget();
    if (Line() >= 0) Q_EMIT LineOpened(Line());
}

void LinesView::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) {
    QListView::selectionChanged(selected, deselected);
    if (Line() >= 0) Q_EMIT LineSelected(Line());
}

}  // namespace quillmark::desktop
