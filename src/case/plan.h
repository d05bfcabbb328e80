#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "case/shapes.h"

// The plan and the cross section of a case as plain geometry in metres, for drawing and for the
// letters that the dimension dialogs speak of. Nothing here knows a screen.

namespace verandis {

/// What a plan is drawn from. A shape reads only the figures that it uses.
struct PlanDimensions {
    double widthB = 20;   // building, m
    double depthB = 21;   // m
    double heightB = 9;   // m
    double widthG = 10;   // glazed space, m
    double depthG = 10;   // m
    double offset = 5;    // depth of the glazed space in shape V, m
    double tilt = 30;     // glazed roof, degrees from the horizontal
    double rotation = 0;  // of the building, degrees anti-clockwise seen from above
};

/// The figures that a case starts from when its file holds none.
PlanDimensions DefaultDimensions(int shape);

/// Puts a value behind a key of the section DIMENSION; other keys are passed over.
void SetDimension(PlanDimensions& dimensions, std::string_view key, double value);

/// The figures in the property file of a case folder, without any message: a missing file or row
/// gives the default of the shape.
PlanDimensions ReadPlanDimensions(int shape, const std::string& caseFolder);

/// The same for a slot of the open project.
PlanDimensions ReadPlanDimensions(const Slot& slot);

/// A point in m. Plan: east and north of the building's south-west corner at rotation 0. Section:
/// along the cut and up.
struct PlanPoint {
    double x = 0;
    double y = 0;
};

/// Up to two elements that show as one line or face, such as a wall and the gable above it; empty
/// where there is none.
using PlanElements = std::array<std::string_view, 2>;

enum class PlanMaterial { Building, Glass };

/// A filled four-cornered face.
struct PlanPart {
    PlanMaterial material;
    std::array<PlanPoint, 4> corners;
    PlanElements elements;
};

enum class PlanLine { Wall, Partition, Glazing, Ridge };

struct PlanEdge {
    PlanLine kind;
    PlanPoint from;
    PlanPoint to;
    PlanElements elements;
};

/// A dimension of the dialogs with its letter, and where it is to be seen.
struct PlanMeasure {
    char letter;
    std::string_view key;
    double value;    // m or degrees
    bool degrees;    // a slope: told along the line, without a dimension line of its own
    PlanPoint from;  // ends of what is measured
    PlanPoint to;
    PlanPoint outward;  // unit vector towards the side where the dimension line stands
};

/// Why figures give no drawing.
enum class PlanFault {
    None,
    UnknownShape,
    NotPositive,    // a dimension that is not greater than 0
    SpaceTooWide,   // as wide as the building or wider
    SpaceTooDeep,   // as deep as the building or deeper
    TiltOutside,    // not within 0 to less than 90 degrees
    RoofBelowFloor  // the lean-to's roof falls by more than the building's height
};

struct ShapeDrawing {
    PlanFault fault = PlanFault::None;
    std::vector<PlanPart> parts;
    std::vector<PlanEdge> edges;
    std::vector<PlanMeasure> measures;
    PlanPoint extent;  // the drawing lies between (0, 0) and here

    bool valid() const { return fault == PlanFault::None; }
};

/// The plan at rotation 0. Without a valid plan only the fault is set.
ShapeDrawing PlanOf(int shape, const PlanDimensions& dimensions);

/// The section across the glazed space: from west to east, in shape V from south to north.
ShapeDrawing SectionOf(int shape, const PlanDimensions& dimensions);

/// True when one of the elements is meant by an identifier, whole ("XU204-W") or short ("XU204").
bool HoldsElement(const PlanElements& elements, std::string_view id);

}  // namespace verandis
