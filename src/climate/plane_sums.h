#pragma once

#include <array>
#include <vector>

#include "climate/glass.h"
#include "climate/sky_model.h"
#include "climate/weather_year.h"

namespace verandis {

/// A plane: tilt from the horizontal in degrees; direction in degrees counted anti-clockwise seen
/// from above from south (S 0, E 90, N 180, W 270). The horizontal plane has the direction
/// `kHorizontalDirection`.
struct SolarPlane {
    int tilt = 0;
    int direction = 0;
};

inline constexpr int kHorizontalDirection = -10;

/// The planes of the climate file in its order: the horizontal plane, then for each tilt 0 to 90 by
/// 10 the directions 0 to 270 by 10.
std::vector<SolarPlane> TabulatedPlanes();

/// Radiation of one plane in kWh/m2 by kind and month (0 to 11).
using PlaneSums = std::array<std::array<double, 12>, kPlaneKinds>;

/// Sums of a year for each plane. `sun` are the 8760 hours of the year's own site.
std::vector<PlaneSums> SumPlanes(const WeatherYear& year, const std::vector<SunHour>& sun,
                                 SkyModel model, const std::vector<SolarPlane>& planes);

}  // namespace verandis
