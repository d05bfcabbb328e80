#include "climate/plane_sums.h"

#include <algorithm>
#include <cmath>

namespace verandis {
namespace {

/// A month in the parts that depend on the plane hour by hour, and the sums of those that do not.
struct MonthLight {
    struct Beam {
        SunVector sun;
        double power = 0;  // W/m2 facing the sun
    };
    std::vector<Beam> beams;
    double dome = 0;  // Wh/m2
    double horizon = 0;
    double ground = 0;
};

MonthLight LightOfMonth(int month, const WeatherYear& year, const std::vector<SunHour>& sun,
                        SkyModel model) {
    MonthLight light;
    const MonthSpan span = HoursOfMonth(month);
    for (auto hour = std::size_t(span.first); hour < std::size_t(span.end); ++hour) {
        const WeatherHour& weather = year.hours[hour];
        const SkyParts parts =
            PartsOfSky(model, {weather.directNormal, weather.diffuse}, sun[hour]);
        if (parts.beam > 0) light.beams.push_back({sun[hour].sun, parts.beam});
        light.dome += parts.dome;
        light.horizon += parts.horizon;
        light.ground += parts.ground;
    }
    return light;
}

/// What the rest of the light needs of a plane; worked out once for all months.
struct PlaneOptics {
    SunVector normal;
    double sine = 0;
    double skyView = 0;
    double groundView = 0;
    std::array<double, kPlaneKinds> sky{};
    std::array<double, kPlaneKinds> ground{};
};

PlaneOptics OpticsOf(const SolarPlane& plane) {
    const double tilt = plane.tilt * kRadiansPerDegree;
    const double direction = plane.direction * kRadiansPerDegree;
    PlaneOptics optics;
    optics.sine = std::sin(tilt);
    optics.normal = {optics.sine * std::cos(direction), optics.sine * std::sin(direction),
                     std::cos(tilt)};
    optics.skyView = SkyViewFactor(plane.tilt);
    optics.groundView = GroundViewFactor(plane.tilt);
    const double skyCosine = std::cos(EquivalentSkyAngle(plane.tilt) * kRadiansPerDegree);
    const double groundCosine = std::cos(EquivalentGroundAngle(plane.tilt) * kRadiansPerDegree);
    for (int kind = 0; kind < kPlaneKinds; ++kind) {
        optics.sky[std::size_t(kind)] = PaneTransmittance(kind, skyCosine);
        optics.ground[std::size_t(kind)] = PaneTransmittance(kind, groundCosine);
    }
    return optics;
}

std::array<double, kPlaneKinds> SumMonth(const MonthLight& light, const PlaneOptics& plane,
                                         const GlassTable& glass) {
    std::array<double, kPlaneKinds> sums{};
    for (const auto& beam : light.beams) {
        const double cosine = beam.sun.south * plane.normal.south +
                              beam.sun.east * plane.normal.east + beam.sun.up * plane.normal.up;
        if (cosine <= 0) continue;
        const double power = beam.power * cosine;
        const auto passed = glass.At(std::min(1.0, cosine));
        for (std::size_t kind = 0; kind < kPlaneKinds; ++kind) sums[kind] += power * passed[kind];
    }
    // The panes take the light of the horizon as they take that of the even sky.
    const double sky = light.dome * plane.skyView + light.horizon * plane.sine;
    const double ground = light.ground * plane.groundView;
    for (std::size_t kind = 0; kind < kPlaneKinds; ++kind) {
        sums[kind] += sky * plane.sky[kind] + ground * plane.ground[kind];
        sums[kind] /= 1000;
    }
    return sums;
}

}  // namespace

std::vector<SolarPlane> TabulatedPlanes() {
    std::vector<SolarPlane> planes{{0, kHorizontalDirection}};
    for (int tilt = 0; tilt <= 90; tilt += 10) {
        for (int direction = 0; direction <= 270; direction += 10) {
            planes.push_back({tilt, direction});
        }
    }
    return planes;
}

std::vector<PlaneSums> SumPlanes(const WeatherYear& year, const std::vector<SunHour>& sun,
                                 SkyModel model, const std::vector<SolarPlane>& planes) {
    static const GlassTable glass;
    std::vector<PlaneOptics> optics;
    for (const SolarPlane& plane : planes) optics.push_back(OpticsOf(plane));
    std::vector<PlaneSums> sums(planes.size());
    for (int month = 0; month < 12; ++month) {
        const MonthLight light = LightOfMonth(month, year, sun, model);
        for (std::size_t plane = 0; plane < planes.size(); ++plane) {
            const auto monthSums = SumMonth(light, optics[plane], glass);
            for (std::size_t kind = 0; kind < kPlaneKinds; ++kind) {
                sums[plane][kind][std::size_t(month)] = monthSums[kind];
            }
        }
    }
    return sums;
}

}  // namespace verandis
