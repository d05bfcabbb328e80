#include <algorithm>
#include <cmath>

#include "climate/epw_year.h"
#include "fuzzing.h"
#include "text/separators.h"

// An input is the begin of a weather file. Its last row, with the dates that follow, stands for all
// hours that are missing, so that a small input reaches what lies behind a whole year.

namespace verandis::fuzzing {
namespace {

constexpr std::size_t kHeaderLines = 8;

/// The row behind its five fields of date and time.
std::string ValuesOf(std::string_view row) {
    for (int field = 0; field < 5; ++field) TakeUpTo(row, ',');
    return std::string(row);
}

void FillYear(std::vector<std::string>& lines) {
    const std::string values = ValuesOf(lines.back());
    const auto done = static_cast<int>(lines.size() - kHeaderLines);
    for (int month = 0; month < 12; ++month) {
        const MonthSpan span = HoursOfMonth(month);
        for (int hour = std::max(span.first, done); hour < span.end; ++hour) {
            const int within = hour - span.first;
            lines.push_back("2001," + std::to_string(month + 1) + "," +
                            std::to_string(within / 24 + 1) + "," +
                            std::to_string(within % 24 + 1) + ",0," + values);
        }
    }
}

void CheckYear(const EpwReading& reading) {
    Require(reading.rows.size() == kHoursOfYear, "the year is whole");
    const EpwYear made = MakeEpwYear(reading, SunOfYear(reading.site));
    if (made.fault) return Require(!made.fault->reason.empty(), "a refusal has a reason");
    for (const WeatherHour& hour : made.year.hours) {
        const double sum = hour.temperature + hour.directNormal + hour.diffuse + hour.humidity +
                           hour.wind + hour.skyTemperature;
        Require(std::isfinite(sum), "an hour holds numbers");
        Require(hour.directNormal >= 0 && hour.diffuse >= 0, "light is not negative");
        Require(hour.humidity >= 0 && hour.humidity <= 100, "humidity lies within 0 to 100 %");
    }
}

}  // namespace
}  // namespace verandis::fuzzing

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace verandis::fuzzing;
    std::vector<std::string> lines = LinesOf(TextOf(data, size));
    auto reading = verandis::ReadEpw(lines);
    const bool goodSoFar =
        !reading.rows.empty() && reading.rows.size() + kHeaderLines == lines.size();
    if (reading.fault && goodSoFar) {
        FillYear(lines);
        reading = verandis::ReadEpw(lines);
    }
    if (!reading.fault) {
        CheckYear(reading);
        return 0;
    }
    Require(!reading.fault->reason.empty(), "a refusal has a reason");
    verandis::FaultText("file.epw", *reading.fault);
    return 0;
}
