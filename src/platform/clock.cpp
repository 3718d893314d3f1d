#include "platform/clock.h"

#include <ctime>

namespace quillmark {

namespace {

std::chrono::local_seconds LocalTime(std::chrono::system_clock::time_point time) {
    using namespace std::chrono;
    const std::time_t instant = system_clock::to_time_t(time);
    std::tm parts = {};
#ifdef _WIN32
    localtime_s(&parts, &instant);
#else
    localtime_r(&instant, &parts);
#endif
    const year_month_day date{year{parts.tm_year + 1900}, month{static_cast<unsigned>(parts.tm_mon + 1)},
                              day{static_cast<unsigned>(parts.tm_mday)}};
    return local_days{date} + hours{parts.tm_hour} + minutes{parts.tm_min} + seconds{parts.tm_sec};
}

}  // namespace

std::chrono::year_month_day Clock::Today() const {
    return std::chrono::year_month_day{std::chrono::floor<std::chrono::days>(Now())};
}

std::chrono::local_seconds SystemClock::Now() const {
    return LocalTime(std::chrono::system_clock::now());
}

std::chrono::local_seconds LocalTimeOf(std::filesystem::file_time_type written) {
    using namespace std::chrono;
    return LocalTime(time_point_cast<system_clock::duration>(file_clock::to_sys(written)));
}

std::chrono::local_seconds FixedClock::Now() const {
    return std::chrono::local_days{today_} + std::chrono::hours{12};
}

}  // namespace quillmark
