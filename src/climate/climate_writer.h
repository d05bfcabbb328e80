#pragma once

#include <string>
#include <vector>

#include "climate/month_summary.h"
#include "climate/weather_year.h"

namespace verandis {

/// The lines of the monthly file, BASE + "S.dat": three header lines; a line a month with number,
/// mean temperature, mean daily minimum (C) and global radiation (kWh/m2); the blocks of radiation
/// in kWh/m2 a month by panes, tilt and direction; "End".
std::vector<std::string> MonthlyFileLines(const ClimateYear& year);

/// The lines of the hourly file, BASE + "D.cli": a header up to "Data:", then a row an hour.
std::vector<std::string> HourlyFileLines(const WeatherYear& year);

/// Writes the pair into a folder, which is made when missing. Gives the path that could not be
/// written, empty when both stand; a pair is never left half new.
std::string WriteClimatePair(const ClimateYear& year, const std::string& base,
                             const std::string& folder);

}  // namespace verandis
