#pragma once

#include <span>
#include <string_view>

namespace verandis {

/// How the area of an element follows from the case's dimensions.
enum class AreaRule {
    WidthHeight,  // W times H
    DepthHeight,  // D times H
    WidthDepth,   // W times D, a floor
    Gable,        // triangle over W
    GableSlope,   // half of a gable roof over W, along D
    WidthOffset,  // W times O, a floor
    LeanToSide,   // O times the height at the low side
    LeanToFront,  // W times the height at the low side
    LeanToGable,  // triangle over O
    LeanToSlope   // W times the slope over O
};

/// An element of the glazed space and the rule of its area.
struct SpaceElement {
    std::string_view id;
    AreaRule rule;
};

/// A glazed element; the sloping ones lie at the roof's tilt.
struct GlazedElement : SpaceElement {
    bool vertical;
};

/// What bounds the glazed space of a shape, in the order in which the balance adds it up.
struct SpaceElements {
    std::span<const GlazedElement> glazed;
    SpaceElement floor;
    std::span<const SpaceElement> partition;
};

/// Elements of shape 1 to 4. Throws RunError for another number.
const SpaceElements& SpaceElementsOf(int shape);

/// Area in m2 of a glazed element of the open case, with the roof tilt in degrees; 0 for an id that
/// the shape does not know. Negative dimensions give what the formulas give.
float GlazedElementArea(int shape, std::string_view id, float tilt);

/// Area in m2 by a rule, for any element of the shape.
float AreaByRule(int shape, AreaRule rule, float tilt);

/// Air volumes of the open case, m3.
struct Volumes {
    double building = 0;  // without the glazed space
    double glazed = 0;
};

/// Volumes of shape 1 to 4; both are 0 for another number.
Volumes CaseVolumes(int shape);

/// Width of the glazed space, m: that of the building in shape V.
double SpaceWidth(int shape);

/// Depth of the glazed space, m: that of the building in shape I, the offset in shape V.
double SpaceDepth(int shape);

}  // namespace verandis
