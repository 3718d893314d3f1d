#pragma once

#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QStyledItemDelegate>
#include <QWidget>

#include "desktop/toolkit/appearance.h"
#include "desktop/toolkit/desk.h"
#include "desktop/toolkit/type_ahead.h"

namespace quillmark::desktop {

/// A line of the job list: one that goes on legal paper has a badge that says so, one under the pointer shows
/// where it would be.
class JobLine final : public QStyledItemDelegate {
 public:
    static constexpr int kLegalRole = Qt::UserRole;

    JobLine(const Appearance& appearance, QObject* parent)
        : QStyledItemDelegate(parent), appearance_(appearance) {}

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;

 private:
    const Appearance& appearance_;
};

/// A list box whose lines are opened by a double click, Enter, or a key that stands for it.
class DocumentList : public QListWidget {
    Q_OBJECT

 public:
    DocumentList(const QString& name, QWidget* parent);

    /// Brings the lines to these; the current one stays near its place. With `follows` a line that has come
    /// at the end is brought into sight.
    void SetLines(const std::vector<std::string>& lines, bool follows);
    const std::vector<std::string>& Lines() const { return lines_; }
    /// Delete opens a line, too.
    void OpenByDelete() { openByDelete_ = true; }
    void keyboardSearch(const QString& letter) override;

 Q_SIGNALS:
    void Opened(const std::string& line);

 protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void OpenLine(int row);

 private:
    std::vector<std::string> lines_;
    TypeAhead typeAhead_;
    bool openByDelete_ = false;
};

/// The job list: lines change places by dragging and by keys; a click or Space puts a document on legal
/// paper, and a menu says so in words.
class JobList final : public DocumentList {
    Q_OBJECT

 public:
    using DocumentList::DocumentList;

 Q_SIGNALS:
    /// The person puts a line where another one stands.
    void Moved(int line, int to);
    /// Legal paper for this line, or no more.
    void LegalToggled(int line);

 protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

 private:
    int LineAt(const QPoint& point) const;
    int GapAt(const QPoint& point) const;
    void MoveBy(int step);
    void ScrollAtTheEdge(const QPoint& point);

    int pressed_ = -1;  ///< the line under the button
    QPoint from_;
    int gap_ = -1;  ///< where a dragged line would go; -1 while none is dragged
};

/// `List1`, what can be made, and `List2`, the job list.
class DocumentPanel final : public QWidget {
    Q_OBJECT

 public:
    DocumentPanel(Desk& desk, const Appearance& appearance, QWidget* parent);

    void Show();
    QListWidget* Catalogue() const { return List1_; }
    QListWidget* Documents() const { return List2_; }
    QLineEdit* Filter() const { return filter_; }

 protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

 private:
    void Connect();
    void ShowCatalogue();
    void ShowJobList();
    void ToggleLegal(int line);
    bool TakeFilterKey(const QKeyEvent& key);

    Desk& desk_;
    QLabel* label1_;
    QLabel* label2_;
    QLineEdit* filter_;
    DocumentList* List1_;
    JobList* List2_;
};

}  // namespace quillmark::desktop
