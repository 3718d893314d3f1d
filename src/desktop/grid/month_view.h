#pragma once

#include <QCalendarWidget>
#include <chrono>

#include "session/grid/grid_editor.h"

class QAbstractItemView;

namespace quillmark::desktop {

/// `MonthView1`: a month to pick a day from. Left and Right go by days, Control with Up and Down by weeks,
/// Page Up and Page Down by months; the other keys are handed on.
class MonthView final : public QCalendarWidget {
    Q_OBJECT

 public:
    explicit MonthView(QWidget* parent = nullptr);

    std::chrono::year_month_day Day() const;
    /// Shows that day's month; no signal follows.
    void SetDay(std::chrono::year_month_day day);

 Q_SIGNALS:
    void DayClicked(std::chrono::year_month_day day, bool twice);
    /// Enter, Tab, Up, Down or Escape.
    void KeyPressed(quillmark::EditorKey key, std::chrono::year_month_day day);

 protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

 private:
    void NameControls();
    bool TakeKey(const QKeyEvent& key);

    QAbstractItemView* days_;
};

}  // namespace quillmark::desktop
