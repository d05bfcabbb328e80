#pragma once

#include <array>
#include <optional>
#include <vector>

#include "climate/noise.h"
#include "climate/normals_table.h"
#include "climate/radiation_split.h"
#include "climate/sun_position.h"

namespace verandis {

/// The sun of a synthetic year.
struct SyntheticSun {
    std::vector<SplitRadiation> hours;  // kHoursOfYear
    std::vector<double> fairness;  // by day: 0 on the dullest day of a month, 1 on the clearest
    std::vector<double> cloud;     // by day: tenths of the sky
};

/// What making it gave: a fault when a month asks for more than the sun can give there.
struct SyntheticSunResult {
    SyntheticSun year;
    std::optional<ClimateFault> fault;
};

/// Makes hours whose monthly sums of beam and diffuse light on the horizontal equal the table's
/// global radiation. Hours in which the sun rises or sets hold diffuse light only, so that the beam
/// of every hour can be taken with the sun in the middle of the hour.
SyntheticSunResult MakeSyntheticSun(const NormalsTable& table, const std::vector<SunHour>& sun,
                                    Noise& noise);

/// Global radiation on the horizontal of each month in kWh/m2: the table's own, or worked out from
/// its hours of sunshine.
std::array<double, 12> GlobalOfMonths(const NormalsTable& table, const std::vector<SunHour>& sun);

}  // namespace verandis
