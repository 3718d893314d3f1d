#pragma once

#include <QTreeView>
#include <memory>
#include <vector>

#include "session/main_screen.h"

namespace quillmark::desktop {

/// `List3`, the settings list that stands in the grid's place: what a row sets, "*" while the firm has not
/// set it, and its value. Blank rows cannot be reached.
class SettingsView final : public QTreeView {
    Q_OBJECT

 public:
    explicit SettingsView(QWidget* parent = nullptr);
    ~SettingsView() override;

    /// Shows these rows; the selected row stays the selected one.
    void ShowRows(const std::vector<SettingsRow>& rows);
    void SelectRow(std::size_t row);

 Q_SIGNALS:
    void RowSelected(std::size_t row);
    /// A double click on a row, or Enter.
    void RowOpened(std::size_t row);

 protected:
    void keyPressEvent(QKeyEvent* event) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;

 private:
    class Model;

    std::unique_ptr<Model> model_;
};

}  // namespace quillmark::desktop
