#include "climate/glass.h"

#include <algorithm>
#include <cmath>

#include "climate/sun_position.h"

namespace verandis {
namespace {

/// Ordinary float glass of 4 mm with an extinction of 25 1/m, as the delivered reference windows:
/// at normal incidence one, two and three panes pass 0.83, 0.69 and 0.58 of the sun.
constexpr double kRefractiveIndex = 1.526;
constexpr double kExtinctionTimesThickness = 0.1;
constexpr double kGrazingCosine = 1e-6;  // below it every surface reflects all light

/// What a layer does with light of one polarization; the same from both sides.
struct Layer {
    double transmitted = 1;
    double reflected = 0;
};

/// Fresnel's reflectance of one surface and Bouguer's absorption on the way through, with all
/// reflections inside the pane.
Layer PaneOf(double surface, double passing) {
    const double inside = 1 - surface * surface * passing * passing;
    Layer pane;
    pane.transmitted = passing * (1 - surface) * (1 - surface) / inside;
    pane.reflected = surface * (1 + passing * pane.transmitted);
    return pane;
}

/// Two layers with all reflections between them; the result reflects as seen from the outer side.
Layer Stack(const Layer& outer, const Layer& inner) {
    const double between = 1 - outer.reflected * inner.reflected;
    Layer both;
    both.transmitted = outer.transmitted * inner.transmitted / between;
    both.reflected =
        outer.reflected + outer.transmitted * outer.transmitted * inner.reflected / between;
    return both;
}

double StackTransmittance(int panes, double surface, double passing) {
    const Layer pane = PaneOf(surface, passing);
    Layer stack;
    for (int each = 0; each < panes; ++each) stack = Stack(pane, stack);
    return stack.transmitted;
}

}  // namespace

// Fresnel's equations, Snell's and Bouguer's laws; the stack of panes after Duffie, J. A. and
// Beckman, W. A.: Solar Engineering of Thermal Processes, chapter 5.
double PaneTransmittance(int panes, double cosIncidence) {
    if (panes <= 0) return 1;
    if (cosIncidence < kGrazingCosine) return 0;
    const double cosine = std::min(cosIncidence, 1.0);
    const double sineInside = std::sqrt(1 - cosine * cosine) / kRefractiveIndex;
    const double cosineInside = std::sqrt(1 - sineInside * sineInside);
    const double across =
        (cosine - kRefractiveIndex * cosineInside) / (cosine + kRefractiveIndex * cosineInside);
    const double along =
        (kRefractiveIndex * cosine - cosineInside) / (kRefractiveIndex * cosine + cosineInside);
    const double passing = std::exp(-kExtinctionTimesThickness / cosineInside);
    return (StackTransmittance(panes, across * across, passing) +
            StackTransmittance(panes, along * along, passing)) /
           2;
}

// Brandemuehl, M. J. and Beckman, W. A.: Transmission of diffuse radiation through CPC and flat
// plate collector glazings. Solar Energy 24 (5), 1980.
double EquivalentSkyAngle(double tilt) {
    return 59.7 - 0.1388 * tilt + 0.001497 * tilt * tilt;
}

double EquivalentGroundAngle(double tilt) {
    return 90 - 0.5788 * tilt + 0.002693 * tilt * tilt;
}

GlassTable::GlassTable() : rows_(kSteps + 2) {
    for (int step = 0; step < kSteps + 2; ++step) {
        for (int panes = 0; panes < kPlaneKinds; ++panes) {
            rows_[std::size_t(step)][std::size_t(panes)] =
                PaneTransmittance(panes, static_cast<double>(step) / kSteps);
        }
    }
}

}  // namespace verandis
