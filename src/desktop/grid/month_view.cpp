#include "desktop/grid/month_view.h"

#include <QAbstractItemView>
#include <QKeyEvent>
#include <QPainter>
#include <QSignalBlocker>
#include <QTextCharFormat>
#include <optional>

#include "desktop/toolkit/controls.h"
#include "desktop/toolkit/dates.h"
#include "desktop/toolkit/text.h"

namespace quillmark::desktop {

namespace {

std::optional<EditorKey> KeyOf(int key) {
    switch (key) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
            return EditorKey::Enter;
        case Qt::Key_Tab:
            return EditorKey::Tab;
        case Qt::Key_Up:
            return EditorKey::Up;
        case Qt::Key_Down:
            return EditorKey::Down;
        case Qt::Key_Escape:
            return EditorKey::Escape;
        default:
            return std::nullopt;
    }
}

}  // namespace

MonthView::MonthView(QWidget* parent) : QCalendarWidget(parent), days_(findChild<QAbstractItemView*>()) {
    setGridVisible(false);
    setVerticalHeaderFormat(NoVerticalHeader);
    setHorizontalHeaderFormat(ShortDayNames);
    setFirstDayOfWeek(Qt::Sunday);
    setAutoFillBackground(true);
    for (const Qt::DayOfWeek day : {Qt::Saturday, Qt::Sunday}) setWeekdayTextFormat(day, {});
    setFocusProxy(days_);
    setContentsMargins(1, 1, 1, 1);
    const QString name = QStringLiteral("Calendar");
    const QString purpose = QStringLiteral("A click or Enter takes the day, Escape leaves the calendar");
    Describe(this, name, purpose);
    Describe(days_, name, purpose);
    NameControls();
    days_->installEventFilter(this);
    connect(this, &QCalendarWidget::clicked, this,
            [this](QDate day) { Q_EMIT DayClicked(DayOf(day), false); });
    connect(this, &QCalendarWidget::activated, this,
            [this](QDate day) { Q_EMIT DayClicked(DayOf(day), true); });
}

/// The buttons above the days have no names of their own.
void MonthView::NameControls() {
    const std::pair<const char*, const char*> names[] = {{"qt_calendar_prevmonth", "Previous month"},
                                                         {"qt_calendar_nextmonth", "Next month"},
                                                         {"qt_calendar_monthbutton", "Month"},
                                                         {"qt_calendar_yearbutton", "Year"},
                                                         {"qt_calendar_yearedit", "Year"}};
    for (const auto& [object, name] : names)
        if (auto* control = findChild<QWidget*>(QLatin1String(object)))
            Describe(control, QLatin1String(name));
}

std::chrono::year_month_day MonthView::Day() const {
    return DayOf(selectedDate());
}

void MonthView::SetDay(std::chrono::year_month_day day) {
    const QSignalBlocker quiet(this);
    setSelectedDate(Shown(day));
}

/// It lies over the grid and the page, whose ground it shares.
void MonthView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::Dark));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

bool MonthView::eventFilter(QObject* watched, QEvent* event) {
    if (watched == days_ && event->type() == QEvent::KeyPress && TakeKey(*static_cast<QKeyEvent*>(event)))
        return true;
    return QCalendarWidget::eventFilter(watched, event);
}

bool MonthView::TakeKey(const QKeyEvent& key) {
    const bool byWeek = key.modifiers() == Qt::ControlModifier;
    if (byWeek && (key.key() == Qt::Key_Up || key.key() == Qt::Key_Down)) {
        setSelectedDate(selectedDate().addDays(key.key() == Qt::Key_Up ? -7 : 7));
        return true;
    }
    const std::optional<EditorKey> taken = KeyOf(key.key());
    if (taken) Q_EMIT KeyPressed(*taken, Day());
    return taken.has_value();
}

}  // namespace quillmark::desktop
