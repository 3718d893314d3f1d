#include "desktop/panels/settings_view.h"

#include <QAbstractTableModel>
#include <QHeaderView>
#include <QKeyEvent>

#include "desktop/toolkit/controls.h"
#include "desktop/toolkit/text.h"

namespace quillmark::desktop {

namespace {

enum Column : int { kWhat, kMark, kValue, kColumns };

constexpr std::size_t kMarkAt = 26;   ///< where a row has "*"
constexpr std::size_t kValueAt = 29;  ///< where its value begins

QString CellOf(const SettingsRow& row, int column) {
    const std::string_view text = row.text;
    const bool isDefault = row.field > 0;
    const auto part = [&](std::size_t from, std::size_t count = std::string_view::npos) {
        return Shown(from < text.size() ? text.substr(from, count) : std::string_view()).trimmed();
    };
    switch (column) {
        case kWhat:
            return part(0, isDefault ? kMarkAt : kValueAt);
        case kMark:
            return isDefault ? part(kMarkAt, 1) : QString();
        default:
            return part(kValueAt);
    }
}

}  // namespace

class SettingsView::Model final : public QAbstractTableModel {
 public:
    void Show(const std::vector<SettingsRow>& rows) {
        const bool sameSize = rows.size() == rows_.size();
        if (!sameSize) beginResetModel();
        rows_ = rows;
        if (!sameSize) return endResetModel();
        if (!rows_.empty()) Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, kColumns - 1));
    }

    int rowCount(const QModelIndex& parent = {}) const override {
        return parent.isValid() ? 0 : static_cast<int>(rows_.size());
    }
    int columnCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : kColumns; }

    Qt::ItemFlags flags(const QModelIndex& index) const override {
        return RowAt(index).text.empty() ? Qt::NoItemFlags : QAbstractTableModel::flags(index);
    }

    QVariant data(const QModelIndex& index, int role) const override {
        if (!index.isValid()) return {};
        const SettingsRow& row = RowAt(index);
        if (role == Qt::AccessibleTextRole) return Shown(row.text).simplified();
        if (role == Qt::DisplayRole || (role == Qt::ToolTipRole && index.column() == kValue))
            return CellOf(row, index.column());
        return {};
    }

 private:
    const SettingsRow& RowAt(const QModelIndex& index) const {
        return rows_.at(static_cast<std::size_t>(index.row()));
    }

    std::vector<SettingsRow> rows_;
};

SettingsView::SettingsView(QWidget* parent) : QTreeView(parent), model_(std::make_unique<Model>()) {
    setModel(model_.get());
    setItemDelegate(new RoomyRows(this));
    setRootIsDecorated(false);
    setItemsExpandable(false);
    setHeaderHidden(true);
    setUniformRowHeights(true);
    setAllColumnsShowFocus(true);
    setEditTriggers(NoEditTriggers);
    setTabKeyNavigation(false);
    header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    header()->setStretchLastSection(true);
    Describe(this, QStringLiteral("Firm defaults and settings"),
             QStringLiteral("Enter edits the selected row"));
    connect(this, &QTreeView::doubleClicked, this,
            [this](const QModelIndex& index) { Q_EMIT RowOpened(static_cast<std::size_t>(index.row())); });
}

SettingsView::~SettingsView() = default;

void SettingsView::ShowRows(const std::vector<SettingsRow>& rows) {
    model_->Show(rows);
}

void SettingsView::SelectRow(std::size_t row) {
    setCurrentIndex(model_->index(static_cast<int>(row), 0));
}

void SettingsView::keyPressEvent(QKeyEvent* event) {
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (!enter) return QTreeView::keyPressEvent(event);
    if (currentIndex().isValid()) Q_EMIT RowOpened(static_cast<std::size_t>(currentIndex().row()));
}

void SettingsView::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
    QTreeView::currentChanged(current, previous);
    if (current.isValid()) Q_EMIT RowSelected(static_cast<std::size_t>(current.row()));
}

}  // namespace quillmark::desktop
