#pragma once

#include "climate/sun_position.h"

namespace verandis {

/// Beam and diffuse part of the sun of one hour, both means over the whole hour.
struct SplitRadiation {
    double directNormal = 0;  // W/m2 on a plane that faces the sun
    double diffuse = 0;       // W/m2 on the horizontal
};

/// Air mass relative to the zenith, for the sine of the sun's altitude (above 0).
double AirMass(double up);

/// Extraterrestrial radiation on the horizontal, W/m2, mean over the whole hour.
double ExtraterrestrialHorizontal(const SunHour& sun);

/// Diffuse share of the global radiation (0 to 1) from the hour's clearness and the sine of the
/// sun's altitude.
double DiffuseShare(double clearness, double up);

/// Splits global radiation on the horizontal (W/m2, mean over the hour). Nothing of it is lost:
/// what the beam of the clearest sky could not hold, and all of it while the sun is down, is
/// diffuse.
SplitRadiation SplitGlobal(double global, const SunHour& sun);

/// The beam that belongs to a known global and diffuse radiation; the same holds.
SplitRadiation BeamFromDiffuse(double global, double diffuse, const SunHour& sun);

}  // namespace verandis
