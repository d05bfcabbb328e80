#pragma once

#include <optional>
#include <vector>

#include "climate/noise.h"
#include "climate/normals_table.h"

namespace verandis {

/// What making the temperatures gave: 8760 hours in C, or a month that cannot be met.
struct SyntheticTemperatures {
    std::vector<double> hours;
    std::optional<ClimateFault> fault;
};

/// Makes temperatures whose means, mean daily minima and mean daily maxima of the hours of each
/// month equal the table's within 0.001 degrees. The lowest comes near sunrise, the highest two to
/// three hours after solar noon; spells of warm and cold days last for some days; fair days swing
/// more, and are warmer in summer and colder in winter. `fairness` holds 0 to 1 for each day.
SyntheticTemperatures MakeSyntheticTemperatures(const NormalsTable& table,
                                                const std::vector<double>& fairness, Noise& noise);

}  // namespace verandis
