#include "platform/clock.h"

#include <ctime>

namespace quillmark {

std::chrono::year_month_day Clock::Today() const {
    return std::chrono::year_month_day{std::chrono::floor<std::chrono::days>(Now())};
}

std::chrono::local_seconds SystemClock::Now() const {
    using namespace std::chrono;
    const std::time_t now = system_clock::to_time_t(system_clock::now());
    std::tm parts = {};
#ifdef _WIN32
    localtime_s(&parts, &now);
#else
    localtime_r(&now, &parts);
#endif
    const year_month_day date{year{parts.tm_year + 1900}, month{static_cast<unsigned>(parts.tm_mon + 1)},
                              day{static_cast<unsigned>(parts.tm_mday)}};
    return local_days{date} + hours{parts.tm_hour} + minutes{parts.tm_min} + seconds{parts.tm_sec};
}

std::chrono::local_seconds FixedClock::Now() const {
    return std::chrono::local_days{today_} + std::chrono::hours{12};
}

}  // namespace quillmark
