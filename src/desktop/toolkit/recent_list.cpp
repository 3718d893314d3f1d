#include "desktop/toolkit/recent_list.h"

#include <QDateTime>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLocale>

#include "desktop/toolkit/controls.h"
#include "desktop/toolkit/text.h"

namespace quillmark::desktop {

QString WhenSaved(std::chrono::sys_seconds time, const QDateTime& now) {
    const QDateTime saved = QDateTime::fromSecsSinceEpoch(time.time_since_epoch().count());
    const qint64 days = saved.date().daysTo(now.date());
    if (days == 0)
        return QObject::tr("today, %1").arg(QLocale().toString(saved.time(), QLocale::ShortFormat));
    if (days == 1) return QObject::tr("yesterday");
    if (days > 1 && days < 7) return QLocale().toString(saved.date(), QStringLiteral("dddd"));
    return QLocale().toString(saved.date(), QStringLiteral("MMM d, yyyy"));
}

RecentList::RecentList(const QString& name, QWidget* parent) : QTreeWidget(parent) {
    setObjectName(QStringLiteral("recentJobs"));
    setColumnCount(2);
    setHeaderHidden(true);
    setRootIsDecorated(false);
    setUniformRowHeights(true);
    setAllColumnsShowFocus(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    header()->setStretchLastSection(false);
    header()->setSectionResizeMode(0, QHeaderView::Stretch);
    header()->setSectionResizeMode(1, QHeaderView::ResizeToContents);
    Describe(this, name, tr("Enter opens the job"));
    connect(this, &QTreeWidget::itemClicked, this, &RecentList::Open);
}

void RecentList::Fill(const std::vector<RecentJob>& jobs, std::size_t most) {
    names_.clear();
    clear();
    for (const RecentJob& job : jobs) {
        if (names_.size() == most) break;
        names_.push_back(job.name);
        auto* item =
            new QTreeWidgetItem(this, {Shown(job.name), WhenSaved(job.saved, QDateTime::currentDateTime())});
        item->setToolTip(0, item->text(0));
        item->setTextAlignment(1, Qt::AlignRight | Qt::AlignVCenter);
        item->setForeground(1, palette().brush(QPalette::Disabled, QPalette::Text));
    }
    const int rows = static_cast<int>(names_.size());
    if (rows > 0) setFixedHeight(rows * sizeHintForRow(0) + 2 * frameWidth() + 2);
    setVisible(rows > 0);
}

void RecentList::Open(QTreeWidgetItem* item) {
    const int row = indexOfTopLevelItem(item);
    if (row >= 0) Q_EMIT Opened(std::string(names_[static_cast<std::size_t>(row)]));
}

void RecentList::keyPressEvent(QKeyEvent* event) {
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isEnter && currentItem() && !(event->modifiers() & Qt::ControlModifier)) return Open(currentItem());
    QTreeWidget::keyPressEvent(event);
}

void RecentList::focusInEvent(QFocusEvent* event) {
    QTreeWidget::focusInEvent(event);
    if (!currentItem() && topLevelItemCount() > 0) setCurrentItem(topLevelItem(0));
}

}  // namespace quillmark::desktop
