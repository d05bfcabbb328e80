#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "climate/climate_input.h"
#include "climate/weather_year.h"

namespace verandis {

/// The normals of one month: temperatures in C, radiation on the horizontal in kWh/m2 or, in a
/// table of sunshine, bright sunshine in hours.
struct MonthNormals {
    double mean = 0;
    double dailyMinimum = 0;
    double dailyMaximum = 0;
    double sun = 0;
    int line = 0;  // of the file, for messages
};

/// A table of monthly normals of one place.
struct NormalsTable {
    ClimateSite site;
    std::string base;
    std::string source;
    bool sunIsHours = false;
    double wind = 4;  // m/s, mean of the year
    std::array<MonthNormals, 12> months;
};

/// What reading gave; with a fault the table is not to be used.
struct NormalsReading {
    NormalsTable table;
    std::optional<ClimateFault> fault;
};

/// Reads the lines of a table. Lines that are empty or begin with "#" are skipped; a line with a
/// colon is "Key: value", every other one a month: its number, mean, mean daily minimum, mean daily
/// maximum, sun, with blanks or TABs between. Never throws, whatever the lines hold.
NormalsReading ReadNormals(const std::vector<std::string>& lines);

}  // namespace verandis
