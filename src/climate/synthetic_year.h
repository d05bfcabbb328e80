#pragma once

#include <optional>
#include <vector>

#include "climate/normals_table.h"
#include "climate/sun_position.h"
#include "climate/weather_year.h"

namespace verandis {

/// What making a synthetic year gave; with a fault the year is not to be used.
struct SyntheticYear {
    WeatherYear year;
    std::optional<ClimateFault> fault;
};

/// Makes 8760 hours from monthly normals. The same table gives the same hours each time. Monthly
/// temperatures and sums of radiation are the table's; humidity and wind are plausible company.
SyntheticYear MakeSyntheticYear(const NormalsTable& table, const std::vector<SunHour>& sun);

}  // namespace verandis
