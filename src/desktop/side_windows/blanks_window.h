#pragma once

#include <QLabel>
#include <QTreeWidget>

#include "desktop/toolkit/side_window.h"
#include "session/blanks.h"

namespace quillmark::desktop {

/// What is still open in the job: each marker that would stand in a document, and in which; documents with
/// holes; questions that CREATE will ask. It stays beside the grid while one works it off: Enter or a double
/// click leads to the row.
class BlanksWindow final : public SideWindow {
    Q_OBJECT

 public:
    explicit BlanksWindow(QWidget* parent);

    /// The list as it is now; the current line stays near its place.
    void Show(const OpenList& open, const Job& job);

 Q_SIGNALS:
    /// The person wants this one's row, which it has.
    void RowWanted(const Blank& blank);

 protected:
    void keyPressEvent(QKeyEvent* event) override;

 private:
    QTreeWidgetItem* AddSection(const QString& head, std::size_t count);
    void AddBlank(QTreeWidgetItem* section, std::size_t index, const Job& job);
    void AddLine(QTreeWidgetItem* section, const std::string& what, const std::string& where);
    void Choose(QTreeWidgetItem* item);

    OpenList open_;
    QLabel* head_;
    QTreeWidget* list_;
};

}  // namespace quillmark::desktop
