#include "calc/geometry.h"

#include <cmath>

#include "app/run_stop.h"
#include "calc/properties.h"
#include "case/shapes.h"

namespace verandis {
namespace {

using enum AreaRule;

constexpr double kRadiansPerDegree = 3.14159265358979 / 180;

constexpr GlazedElement kGlazedU[] = {{{"XU201-S", WidthHeight}, true},
                                      {{"XU202-S", Gable}, true},
                                      {{"XU203-N", Gable}, true},
                                      {{"XU204-W", GableSlope}, false},
                                      {{"XU205-E", GableSlope}, false}};
constexpr GlazedElement kGlazedO[] = {{{"XO201-S", Gable}, true},
                                      {{"XO202-N", Gable}, true},
                                      {{"XO203-W", GableSlope}, false},
                                      {{"XO204-E", GableSlope}, false}};
constexpr GlazedElement kGlazedV[] = {
    {{"XV201-W", LeanToSide}, true},  {{"XV202-E", LeanToSide}, true},
    {{"XV203-S", LeanToFront}, true}, {{"XV204-W", LeanToGable}, true},
    {{"XV205-E", LeanToGable}, true}, {{"XV206-S", LeanToSlope}, false}};
constexpr GlazedElement kGlazedI[] = {
    {{"XI201-S", WidthHeight}, true}, {{"XI202-N", WidthHeight}, true},
    {{"XI203-S", Gable}, true},       {{"XI204-N", Gable}, true},
    {{"XI205-W", GableSlope}, false}, {{"XI206-E", GableSlope}, false}};

constexpr SpaceElement kPartitionU[] = {
    {"XU101-W", DepthHeight}, {"XU102-E", DepthHeight}, {"XU103-N", WidthHeight}};
constexpr SpaceElement kPartitionO[] = {{"XO101-S", WidthHeight},
                                        {"XO103-N", WidthHeight},
                                        {"XO102-W", DepthHeight},
                                        {"XO104-E", DepthHeight}};
constexpr SpaceElement kPartitionV[] = {{"XV101-S", LeanToFront}};
constexpr SpaceElement kPartitionI[] = {{"XI101-W", DepthHeight}, {"XI102-E", DepthHeight}};

constexpr SpaceElements kSpaceElements[kShapeCount] = {
    {kGlazedU, {"XU104-F", WidthDepth}, kPartitionU},
    {kGlazedO, {"XO105-F", WidthDepth}, kPartitionO},
    {kGlazedV, {"XV102-F", WidthOffset}, kPartitionV},
    {kGlazedI, {"XI103-F", WidthDepth}, kPartitionI},
};

double Height() {
    return Dimension("HIGTHB");
}

double Offset() {
    return Dimension("OFFD");
}

double AreaOf(int shape, AreaRule rule, double tilt) {
    const double t = std::tan(tilt * kRadiansPerDegree);
    const double c = std::cos(tilt * kRadiansPerDegree);
    const double offset = rule >= WidthOffset ? Offset() : 0.0;
    const bool needsWidth = rule != DepthHeight && rule != LeanToSide && rule != LeanToGable;
    const double width = needsWidth ? SpaceWidth(shape) : 0.0;
    switch (rule) {
        case WidthHeight: return width * Height();
        case DepthHeight: return SpaceDepth(shape) * Height();
        case WidthDepth: return width * SpaceDepth(shape);
        case Gable: return 0.5 * width * (width / 2 * t);
        case GableSlope: return SpaceDepth(shape) * (0.5 * width / c);
        case WidthOffset: return width * offset;
        case LeanToSide: return offset * (Height() - offset * t);
        case LeanToFront: return width * (Height() - offset * t);
        case LeanToGable: return 0.5 * offset * (offset * t);
        case LeanToSlope: return width * (offset / c);
    }
    return 0;
}

Volumes LeanToVolumes() {
    const double height = Height();
    const double offset = Offset();
    const double width = SpaceWidth(kShapeV);
    const double rise = offset * std::tan(Dimension("TILT") * kRadiansPerDegree);
    return {Dimension("WIDTHB") * (Dimension("DEPTHB") - offset) * height,
            width * offset * (height - rise) + 0.5 * width * offset * rise};
}

}  // namespace

const SpaceElements& SpaceElementsOf(int shape) {
    if (!IsShape(shape)) StopRun("there is no shape number " + std::to_string(shape));
    return kSpaceElements[shape - 1];
}

double SpaceWidth(int shape) {
    return Dimension(shape == kShapeV ? "WIDTHB" : "WIDTHG");
}

double SpaceDepth(int shape) {
    if (shape == kShapeV) return Offset();
    return Dimension(shape == kShapeI ? "DEPTHB" : "DEPTHG");
}

float AreaByRule(int shape, AreaRule rule, float tilt) {
    return static_cast<float>(AreaOf(shape, rule, tilt));
}

float GlazedElementArea(int shape, std::string_view id, float tilt) {
    if (!IsShape(shape)) return 0;
    for (const GlazedElement& element : SpaceElementsOf(shape).glazed) {
        if (element.id == id) return AreaByRule(shape, element.rule, tilt);
    }
    return 0;
}

Volumes CaseVolumes(int shape) {
    if (!IsShape(shape)) return {};
    if (shape == kShapeV) return LeanToVolumes();
    const double width = SpaceWidth(shape);
    const double depth = SpaceDepth(shape);
    const double height = Height();
    const double block = Dimension("WIDTHB") * Dimension("DEPTHB") * height;
    const double belowEaves = width * depth * height;
    const double rise = 0.5 * width * std::tan(Dimension("TILT") * kRadiansPerDegree);
    // Only the part below the eaves stands inside the building's outline.
    return {block - belowEaves, belowEaves + 0.5 * width * depth * rise};
}

}  // namespace verandis
