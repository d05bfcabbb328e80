#pragma once

#include <array>
#include <string>
#include <vector>

namespace verandis {

inline constexpr int kHoursOfYear = 8760;
inline constexpr int kDaysOfYear = 365;
inline constexpr std::array<int, 12> kMonthDays = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};

/// Where the weather was taken. Degrees; longitude and time meridian are positive to the east.
struct ClimateSite {
    std::string place;
    double latitude = 0;
    double longitude = 0;
    double timeMeridian = 0;
};

/// One hour of local standard time; each value is the mean over the hour.
struct WeatherHour {
    double temperature = 0;     // C
    double directNormal = 0;    // W/m2 on a plane that faces the sun
    double diffuse = 0;         // W/m2 on the horizontal
    double humidity = 0;        // relative, %
    double wind = 0;            // m/s
    double skyTemperature = 0;  // C
};

/// A year of 365 days. Hour 0 is the first of 1 January, from 0 to 1 o'clock.
struct WeatherYear {
    ClimateSite site;
    std::string source;
    std::vector<WeatherHour> hours;  // kHoursOfYear
};

/// The hours of a month (0 to 11): the first one and the one behind the last.
struct MonthSpan {
    int first = 0;
    int end = 0;
};

constexpr MonthSpan HoursOfMonth(int month) {
    int day = 0;
    for (int earlier = 0; earlier < month; ++earlier) day += kMonthDays[std::size_t(earlier)];
    return {day * 24, (day + kMonthDays[std::size_t(month)]) * 24};
}

}  // namespace verandis
