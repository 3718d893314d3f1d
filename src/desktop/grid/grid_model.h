#pragma once

#include <QAbstractTableModel>
#include <vector>

#include "desktop/toolkit/desk.h"

namespace quillmark::desktop {

/// The rows of the field grid as a table: label, value, two note cells.
class GridModel final : public QAbstractTableModel {
    Q_OBJECT

 public:
    enum Column { kLabel, kValue, kFirstNote, kSecondNote, kColumns };

    GridModel(const Desk& desk, QObject* parent);

    /// Tells the view what has changed since the last time.
    void Show();
    const GridRow& Row(int row) const { return rows_[static_cast<std::size_t>(row)]; }

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

 private:
    QString CellText(const GridRow& row, int column) const;
    QString Spoken(const GridRow& row, int column) const;
    void ShowChangedRows(const std::vector<GridRow>& grid);

    const Desk& desk_;
    std::vector<GridRow> rows_;
};

/// The label without the padding before its mark, and whether the mark of a field that must be filled
/// follows.
struct LabelParts {
    QString text;
    bool required = false;
};
LabelParts PartsOfLabel(const GridRow& row);

}  // namespace quillmark::desktop
