#pragma once

#include <QTreeWidget>
#include <string>
#include <vector>

#include "session/recent_jobs.h"

namespace quillmark::desktop {

/// When a file was written, for the eye: "today, 10:42", "yesterday", a day of the week, a date.
QString WhenSaved(std::chrono::sys_seconds time, const QDateTime& now);

/// The jobs last worked on with their dates. Enter, a click or a double click opens one.
class RecentList final : public QTreeWidget {
    Q_OBJECT

 public:
    RecentList(const QString& name, QWidget* parent);

    /// The newest of them, so many at most; without any the list takes no room.
    void Fill(const std::vector<RecentJob>& jobs, std::size_t most);
    bool IsEmpty() const { return names_.empty(); }

 Q_SIGNALS:
    void Opened(const std::string& job);

 protected:
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;

 private:
    void Open(QTreeWidgetItem* item);

    std::vector<std::string> names_;
};

}  // namespace quillmark::desktop
