#include "climate/radiation_split.h"

#include <algorithm>
#include <cmath>

namespace verandis {
namespace {

/// Transmittance of the clearest air at air mass 1 in the form of Meinel, A. B. and Meinel, M. P.:
/// Applied Solar Energy, 1976, whose own figure of 0.7 stands for ordinary clear days.
constexpr double kClearestAir = 0.78;

double LargestBeam(const SunHour& sun) {
    const double clearest = std::pow(kClearestAir, std::pow(AirMass(sun.sun.up), 0.678));
    return sun.extraterrestrial * sun.litShare * clearest;
}

}  // namespace

// Kasten, F. and Young, A. T.: Revised optical air mass tables. Applied Optics 28 (22), 1989.
double AirMass(double up) {
    const double altitude = std::asin(std::clamp(up, 0.0, 1.0)) / kRadiansPerDegree;
    return 1 / (up + 0.50572 * std::pow(altitude + 6.07995, -1.6364));
}

double ExtraterrestrialHorizontal(const SunHour& sun) {
    return sun.extraterrestrial * sun.litShare * std::max(0.0, sun.sun.up);
}

// Reindl, D. T., Beckman, W. A. and Duffie, J. A.: Diffuse fraction correlations. Solar Energy 45
// (1), 1990, the form with clearness and altitude. It rests on northern places among others.
double DiffuseShare(double clearness, double up) {
    if (clearness <= 0.3) return std::min(1.0, 1.020 - 0.254 * clearness + 0.0123 * up);
    if (clearness < 0.78) return std::clamp(1.400 - 1.749 * clearness + 0.177 * up, 0.1, 0.97);
    return std::clamp(0.486 * clearness - 0.182 * up, 0.1, 1.0);
}

SplitRadiation BeamFromDiffuse(double global, double diffuse, const SunHour& sun) {
    if (sun.litShare <= 0 || sun.sun.up <= 0) return {0, global};
    const double beam = std::max(0.0, global - diffuse) / sun.sun.up;
    const double directNormal = std::min(beam, LargestBeam(sun));
    return {directNormal, global - directNormal * sun.sun.up};
}

SplitRadiation SplitGlobal(double global, const SunHour& sun) {
    const double outside = ExtraterrestrialHorizontal(sun);
    if (outside <= 0) return {0, global};
    return BeamFromDiffuse(global, global * DiffuseShare(global / outside, sun.sun.up), sun);
}

}  // namespace verandis
