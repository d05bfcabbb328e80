#include "case/plan_text.h"

#include <cmath>

#include "app/program_text.h"
#include "text/characters.h"

namespace verandis {
namespace {

enum : int {
    kGlazedSpace = 203,
    kNotPositive = 721,
    kTooWide = 722,
    kTooDeep = 723,
    kTiltOutside = 724,
    kRoofBelowFloor = 725,
    kHeight = 729,
    kRoofTilt = 730,
    kTurned = 731
};

std::string Figure(double value) {
    return NumberOnScreen(std::round(value * 100) / 100);
}

std::string Size(double width, double depth) {
    return Figure(width) + " x " + Figure(depth) + " m";
}

}  // namespace

std::string MeasureText(const PlanMeasure& measure, bool withLetter) {
    const std::string value = Figure(measure.value) + (measure.degrees ? "º" : " m");
    return withLetter ? std::string(1, measure.letter) + " = " + value : value;
}

std::string PlanFaultText(PlanFault fault) {
    switch (fault) {
        case PlanFault::NotPositive: return Text(kNotPositive);
        case PlanFault::SpaceTooWide: return Text(kTooWide);
        case PlanFault::SpaceTooDeep: return Text(kTooDeep);
        case PlanFault::TiltOutside: return Text(kTiltOutside);
        case PlanFault::RoofBelowFloor: return Text(kRoofBelowFloor);
        case PlanFault::None:
        case PlanFault::UnknownShape: break;
    }
    return "";
}

std::string PlanDescription(int shape, const PlanDimensions& d) {
    if (!IsShape(shape)) return "";
    const double spaceWidth = shape == kShapeV ? d.widthB : d.widthG;
    const double fullDepth = shape == kShapeI ? d.depthB : d.depthG;
    const double spaceDepth = shape == kShapeV ? d.offset : fullDepth;
    return Text(WordsOf(shape).textNumber) + " " + Size(d.widthB, d.depthB) + ", " +
           LowerCase(Text(kGlazedSpace)) + " " + Size(spaceWidth, spaceDepth) + ", " +
           Text(kHeight) + " " + Figure(d.heightB) + " m, " + Text(kRoofTilt) + " " +
           Figure(d.tilt) + "º, " + Text(kTurned) + " " + Figure(d.rotation) + "º";
}

}  // namespace verandis
