#pragma once

#include <chrono>
#include <filesystem>

namespace quillmark {

/// The date and time where the program runs.
class Clock {
 public:
    virtual ~Clock() = default;
    virtual std::chrono::local_seconds Now() const = 0;
    std::chrono::year_month_day Today() const;
};

class SystemClock final : public Clock {
 public:
    std::chrono::local_seconds Now() const override;
};

/// When a file was last written, where the program runs.
std::chrono::local_seconds LocalTimeOf(std::filesystem::file_time_type written);

/// Noon of one date, for runs that must give the same documents on any day.
class FixedClock final : public Clock {
 public:
    explicit FixedClock(std::chrono::year_month_day today) : today_(today) {}
    std::chrono::local_seconds Now() const override;

 private:
    std::chrono::year_month_day today_;
};

}  // namespace quillmark
