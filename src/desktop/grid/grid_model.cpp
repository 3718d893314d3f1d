#include "desktop/grid/grid_model.h"

#include <algorithm>
#include <tuple>

#include "desktop/toolkit/text.h"

namespace quillmark::desktop {

namespace {

auto Shape(const GridRow& row) {
    return std::tuple(row.kind, row.n);
}

bool LooksAlike(const GridRow& a, const GridRow& b) {
    return std::tie(a.label, a.value, a.notes, a.lit, a.locked) ==
           std::tie(b.label, b.value, b.notes, b.lit, b.locked);
}

/// A value of several lines stands on one.
QString OneLine(std::string_view value) {
    return Shown(value).replace(QStringLiteral("\r\n"), QStringLiteral("  ")).simplified();
}

}  // namespace

LabelParts PartsOfLabel(const GridRow& row) {
    QString text = Shown(row.label);
    if (row.kind == RowKind::Heading) return {text.remove(QLatin1Char('~')).trimmed(), false};
    const bool required = row.kind == RowKind::Field && text.endsWith(QLatin1Char('*'));
    if (required) text.chop(1);
    return {text.trimmed(), required};
}

GridModel::GridModel(const Desk& desk, QObject* parent) : QAbstractTableModel(parent), desk_(desk) {}

void GridModel::Show() {
    const std::vector<GridRow>& grid = desk_.State().grid;
    const bool sameRows = std::equal(grid.begin(), grid.end(), rows_.begin(), rows_.end(),
                                     [](const GridRow& a, const GridRow& b) { return Shape(a) == Shape(b); });
    if (sameRows) return ShowChangedRows(grid);
    beginResetModel();
    rows_ = grid;
    endResetModel();
}

void GridModel::ShowChangedRows(const std::vector<GridRow>& grid) {
    for (std::size_t i = 0; i < grid.size(); ++i) {
        if (LooksAlike(grid[i], rows_[i])) continue;
        rows_[i] = grid[i];
        const int row = static_cast<int>(i);
        Q_EMIT dataChanged(index(row, 0), index(row, kColumns - 1));
    }
}

int GridModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

int GridModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : kColumns;
}

QString GridModel::CellText(const GridRow& row, int column) const {
    switch (column) {
        case kLabel:
            return PartsOfLabel(row).text;
        case kValue:
            return OneLine(row.value);
        default:
            return Shown(row.notes[static_cast<std::size_t>(column - kFirstNote)]);
    }
}

QString GridModel::Spoken(const GridRow& row, int column) const {
    const QString text = CellText(row, column);
    if (row.kind == RowKind::Heading) return column == kLabel ? tr("Group %1").arg(text) : QString();
    if (column == kLabel) {
        const QString needed = PartsOfLabel(row).required ? text + tr(", to be filled") : text;
        return row.locked ? needed + tr(", locked") : needed;
    }
    if (column == kValue) return text.isEmpty() ? tr("empty") : text;
    if (text.isEmpty()) return tr("no note");
    return row.lit[static_cast<std::size_t>(column - kFirstNote)] ? text + tr(", on") : text + tr(", off");
}

QVariant GridModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid()) return {};
    const GridRow& row = Row(index.row());
    if (role == Qt::DisplayRole) return CellText(row, index.column());
    if (role == Qt::AccessibleTextRole) return Spoken(row, index.column());
    if (role == Qt::ToolTipRole && index.column() == kValue) return CellText(row, kValue);
    return {};
}

QVariant GridModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (role != Qt::DisplayRole || orientation != Qt::Horizontal) return {};
    static const char* const kHeaders[] = {"Field", "Value", "Note 1", "Note 2"};
    return tr(kHeaders[section]);
}

Qt::ItemFlags GridModel::flags(const QModelIndex& index) const {
    if (!index.isValid()) return {};
    return Row(index.row()).kind == RowKind::Heading ? Qt::NoItemFlags : Qt::ItemIsEnabled;
}

}  // namespace quillmark::desktop
