#pragma once

#include <QDate>
#include <chrono>

namespace quillmark::desktop {

inline QDate Shown(std::chrono::year_month_day date) {
    return {static_cast<int>(date.year()), static_cast<int>(static_cast<unsigned>(date.month())),
            static_cast<int>(static_cast<unsigned>(date.day()))};
}

inline std::chrono::year_month_day DayOf(QDate date) {
    return std::chrono::year(date.year()) / date.month() / date.day();
}

}  // namespace quillmark::desktop
