#pragma once

#include <optional>
#include <vector>

#include "climate/epw_file.h"
#include "climate/sun_position.h"
#include "climate/weather_year.h"

namespace verandis {

/// What an EPW file gave. With a fault (a value is missing in too many hours) the year is not to be
/// used. `doubts` holds those of the reading and those found here, in the order of lines.
struct EpwYear {
    WeatherYear year;
    std::vector<ClimateDoubt> doubts;
    std::optional<ClimateFault> fault;
};

/// Completes the rows of a reading without a fault: temperature, humidity and wind between the
/// neighbours in time, beam and diffuse light from what the row still holds or from the clearness
/// of the hours around, the sky from its thermal radiation or from dew point and clouds. Rows whose
/// values contradict each other or the sun are kept and listed.
EpwYear MakeEpwYear(const EpwReading& reading, const std::vector<SunHour>& sun);

}  // namespace verandis
