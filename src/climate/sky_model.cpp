#include "climate/sky_model.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace verandis {
namespace {

/// Perez, R., Ineichen, P., Seals, R., Michalsky, J. and Stewart, R.: Modeling daylight
/// availability and irradiance components from direct and global irradiance. Solar Energy 44 (5),
/// 1990. One row for each class of clearness of the sky: its upper end, then the coefficients of
/// the circumsolar and of the horizon brightness.
struct ClearnessClass {
    double upTo;
    std::array<double, 3> circumsolar;
    std::array<double, 3> horizon;
};
constexpr ClearnessClass kClearnessClasses[] = {
    {1.065, {-0.008, 0.588, -0.062}, {-0.060, 0.072, -0.022}},
    {1.230, {0.130, 0.683, -0.151}, {-0.019, 0.066, -0.029}},
    {1.500, {0.330, 0.487, -0.221}, {0.055, -0.064, -0.026}},
    {1.950, {0.568, 0.187, -0.295}, {0.109, -0.152, -0.014}},
    {2.800, {0.873, -0.392, -0.362}, {0.226, -0.462, 0.001}},
    {4.500, {1.132, -1.237, -0.412}, {0.288, -0.823, 0.056}},
    {6.200, {1.060, -1.600, -0.359}, {0.264, -1.127, 0.131}},
    {1e300, {0.678, -0.327, -0.250}, {0.156, -1.377, 0.251}},
};

constexpr double kLeastLitShare = 0.1;  // keeps the brightness of a short glimpse finite
constexpr double kSineOfFiveDegrees = 0.0871557427;  // the model's lower bound of the altitude

const ClearnessClass& ClassOf(double clearness) {
    const auto* found = std::begin(kClearnessClasses);
    while (clearness > found->upTo) ++found;
    return *found;
}

double Brightness(const std::array<double, 3>& c, double brightness, double zenith) {
    return c[0] + c[1] * brightness + c[2] * zenith;
}

SkyParts PerezParts(const SplitRadiation& light, const SunHour& sun) {
    const double up = sun.sun.up;
    const double zenith = std::acos(std::min(1.0, up));
    const double cube = 1.041 * zenith * zenith * zenith;
    const double clearness =
        ((light.diffuse + light.directNormal) / light.diffuse + cube) / (1 + cube);
    const double brightness = std::min(1.0, light.diffuse / std::max(kLeastLitShare, sun.litShare) *
                                                AirMass(up) / sun.extraterrestrial);
    const ClearnessClass& row = ClassOf(clearness);
    const double around = std::clamp(Brightness(row.circumsolar, brightness, zenith), 0.0, 1.0);
    const double lowest = std::max(up, kSineOfFiveDegrees);
    SkyParts parts;
    parts.beam = light.directNormal + light.diffuse * around / lowest;
    // Below five degrees the model gives the horizontal less than its diffuse light; here the rest
    // stays with the even sky.
    const double even = 1 - around * up / lowest;
    parts.dome = light.diffuse * even;
    // With this bound no plane from horizontal to vertical receives negative light.
    parts.horizon =
        light.diffuse * std::max(-even / 2, Brightness(row.horizon, brightness, zenith));
    return parts;
}

}  // namespace

SkyParts PartsOfSky(SkyModel model, const SplitRadiation& light, const SunHour& sun) {
    const bool lit = sun.litShare > 0 && sun.sun.up > 0;
    SkyParts parts;
    if (lit && model == SkyModel::Perez && light.diffuse > 0) {
        parts = PerezParts(light, sun);
    } else {
        // Liu, B. Y. H. and Jordan, R. C.: Daily insolation on surfaces tilted towards the equator.
        // ASHRAE Journal 3 (10), 1961: the same brightness from all of the sky.
        parts.beam = lit ? light.directNormal : 0;
        parts.dome = light.diffuse;
    }
    const double direct = lit ? light.directNormal * sun.sun.up : 0;
    parts.ground = kGroundReflectance * (direct + light.diffuse);
    return parts;
}

double SkyViewFactor(double tilt) {
    return (1 + std::cos(tilt * kRadiansPerDegree)) / 2;
}

double GroundViewFactor(double tilt) {
    return (1 - std::cos(tilt * kRadiansPerDegree)) / 2;
}

}  // namespace verandis
