#include "calc/solar_gain.h"

#include <algorithm>
#include <cmath>
#include <string>

#include "calc/climate_file.h"
#include "calc/division.h"
#include "calc/geometry.h"
#include "calc/heat_balance.h"
#include "calc/properties.h"
#include "case/property_file.h"
#include "libraries/simple_libraries.h"
#include "text/numbers.h"

namespace verandis {
namespace {

constexpr double kDefaultTilt = 30;          // degrees, when the case tells none
constexpr double kVertical = 90;             // degrees
constexpr double kDefaultAbsorptance = 0.5;  // 0 to 1
constexpr double kLeastAbsorptance = 0.1;

/// Name of the window that serves all glazed elements of the case.
std::string WindowOfCase(int shape) {
    const std::string_view first = SpaceElementsOf(shape).glazed.front().id;
    return SplitKind(PropertyText(first, "GLAZEDID")).name;
}

/// Direction of an element at rotation 0; a row that is missing is as far off as its text.
double OrientationOf(std::string_view id) {
    return ToNumber(PropertyText(id, "ORIENTATION"));
}

}  // namespace

double TurnedDirection(double direction) {
    if (direction < 0) return 360 - std::abs(direction);
    return direction >= 360 ? direction - 360 : direction;
}

void CalcSunPanelFactor(int shape) {
    const auto percent = PropertyNumber("ABSXS1", "ABSX1");
    const double absorptance = percent ? *percent / 100 : kDefaultAbsorptance;
    const double transmittance = WindowTransmittance(WindowOfCase(shape));
    ReadSunPanel();
    heatBalance.SunPanelFactor =
        SunPanelValue(shape, transmittance, std::max(absorptance, kLeastAbsorptance));
}

void CalcSolarGain(int shape, int month) {
    ReadSunPanel();
    ReadWindows();
    const double tilt = PropertyNumber("DIMENSION", "TILT").value_or(kDefaultTilt);
    const double angle = PropertyNumber("ROTATION", "ANGLE").value_or(0.0);
    heatBalance.SolarGainG = 0;
    const std::string window = WindowOfCase(shape);
    const double transmittance = WindowTransmittance(window);
    const int kind = WindowPanes(window);
    for (const GlazedElement& element : SpaceElementsOf(shape).glazed) {
        const double slope = element.vertical ? kVertical : tilt;
        const double direction = TurnedDirection(OrientationOf(element.id) + angle);
        const float area = GlazedElementArea(shape, element.id, static_cast<float>(tilt));
        const bool flatRoof = !element.vertical && slope == 0;
        const int directionIndex = flatRoof ? 0 : DirectionIndex(direction);
        const float radiation =
            SolarRadiation(kind, month, directionIndex, TiltIndex(slope), element.id);
        const double reference = ReferenceTransmittance(kind);
        heatBalance.SolarGainG +=
            static_cast<float>(Divide(double(area) * double(radiation) * transmittance, reference,
                                      "the transmittance of the reference window", element.id));
    }
}

}  // namespace verandis
