#pragma once

#include <string>

namespace verandis {

/// Date and time as text. One instance serves the process.
class Clock {
public:
    virtual ~Clock() = default;
    virtual std::string Date() const = 0;  // short form, "2026-11-21"
    virtual std::string Time() const = 0;  // short form, "14:05"
};

/// Sets the instance; it must outlive its use. Until then the machine's clock is read.
void UseClock(const Clock& clock);

const Clock& CurrentClock();

}  // namespace verandis
