#pragma once

#include "climate/radiation_split.h"
#include "climate/sun_position.h"

namespace verandis {

enum class SkyModel { Perez, Isotropic };

inline constexpr double kGroundReflectance = 0.2;

/// The light of one hour in parts that no longer depend on the plane that receives them, W/m2.
struct SkyParts {
    double beam = 0;     // on a plane that faces the sun: direct and circumsolar light
    double dome = 0;     // of the evenly bright sky, on the horizontal
    double horizon = 0;  // of the bright band at the horizon, on a vertical plane; may be negative
    double ground = 0;   // reflected by the ground, as it leaves the ground
};

/// Spreads the light of an hour over the sky. The horizontal plane always receives beam and diffuse
/// light unchanged. While the sun is down all light is even and the direct light is dropped.
SkyParts PartsOfSky(SkyModel model, const SplitRadiation& light, const SunHour& sun);

/// Share of the even sky that a plane of this tilt (degrees) sees, and the share of the ground.
double SkyViewFactor(double tilt);
double GroundViewFactor(double tilt);

}  // namespace verandis
