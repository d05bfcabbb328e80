#pragma once

#include <array>
#include <string>
#include <vector>

#include "climate/plane_sums.h"
#include "climate/weather_year.h"

namespace verandis {

/// What a month was like: temperatures in C of its hours, radiation in kWh/m2 without glass.
struct MonthSummary {
    double mean = 0;
    double lowest = 0;
    double highest = 0;
    double meanDailyMinimum = 0;
    double meanDailyMaximum = 0;
    double horizontal = 0;
    double north = 0;
    double east = 0;
    double south = 0;
    double west = 0;
};

/// All that the climate files hold of a year.
struct ClimateYear {
    WeatherYear weather;
    std::vector<SolarPlane> planes;
    std::vector<PlaneSums> sums;  // one for each plane
    std::array<MonthSummary, 12> months;
};

/// Works out planes and months of a year of 8760 hours.
ClimateYear SummarizeYear(WeatherYear weather, const std::vector<SunHour>& sun, SkyModel model);

/// The months as a table to read, with a last line for the year.
std::vector<std::string> MonthTable(const std::array<MonthSummary, 12>& months);

}  // namespace verandis
