#pragma once

#include <QLabel>
#include <QListWidget>
#include <QStyledItemDelegate>
#include <QWidget>

#include "desktop/toolkit/appearance.h"
#include "desktop/toolkit/desk.h"
#include "desktop/toolkit/type_ahead.h"

namespace quillmark::desktop {

/// A line of the job list: one that goes on legal paper has a badge that says so, and no line looks selected.
class JobLine final : public QStyledItemDelegate {
 public:
    JobLine(const Appearance& appearance, QObject* parent)
        : QStyledItemDelegate(parent), appearance_(appearance) {}

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;

 private:
    const Appearance& appearance_;
};

/// A list box whose lines are opened by a double click, Enter, or a key that stands for it.
class DocumentList final : public QListWidget {
    Q_OBJECT

 public:
    DocumentList(const QString& name, QWidget* parent);

    /// Brings the lines to these; the current one stays near its place.
    void SetLines(const std::vector<std::string>& lines);
    const std::vector<std::string>& Lines() const { return lines_; }
    /// Delete opens a line, too.
    void OpenByDelete() { openByDelete_ = true; }
    void keyboardSearch(const QString& letter) override;

 Q_SIGNALS:
    void Opened(const std::string& line);

 protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

 private:
    void OpenLine(int row);

    std::vector<std::string> lines_;
    TypeAhead typeAhead_;
    bool openByDelete_ = false;
};

/// `List1`, what can be made, and `List2`, the job list.
class DocumentPanel final : public QWidget {
    Q_OBJECT

 public:
    DocumentPanel(Desk& desk, const Appearance& appearance, QWidget* parent);

    void Show();
    QListWidget* Catalogue() const { return List1_; }
    QListWidget* JobList() const { return List2_; }

 private:
    void ShowJobList();
    void SelectLegal();

    Desk& desk_;
    QLabel* label2_;
    DocumentList* List1_;
    DocumentList* List2_;
    bool showing_ = false;
};

}  // namespace quillmark::desktop
