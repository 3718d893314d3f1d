#pragma once

#include <chrono>

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

/// Noon of one date, for runs that must give the same documents on any day.
class FixedClock final : public Clock {
 public:
    explicit FixedClock(std::chrono::year_month_day today) : today_(today) {}
    std::chrono::local_seconds Now() const override;

 private:
    std::chrono::year_month_day today_;
};

}  // namespace quillmark
