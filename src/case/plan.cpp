#include "case/plan.h"

#include <algorithm>
#include <cmath>
#include <span>

#include "case/property_file.h"
#include "platform/files.h"
#include "platform/paths.h"
#include "text/characters.h"
#include "text/numbers.h"
#include "text/separators.h"

namespace verandis {
namespace {

using enum PlanMaterial;
using enum PlanLine;

constexpr double kRadiansPerDegree = 3.14159265358979 / 180;

struct KeyedDimension {
    std::string_view key;
    double PlanDimensions::*member;
};

constexpr KeyedDimension kKeys[] = {
    {"WIDTHB", &PlanDimensions::widthB},  {"DEPTHB", &PlanDimensions::depthB},
    {"HIGTHB", &PlanDimensions::heightB}, {"WIDTHG", &PlanDimensions::widthG},
    {"DEPTHG", &PlanDimensions::depthG},  {"OFFD", &PlanDimensions::offset},
    {"TILT", &PlanDimensions::tilt},
};

const KeyedDimension* Keyed(std::string_view key) {
    const auto* found = std::find_if(std::begin(kKeys), std::end(kKeys),
                                     [&](const KeyedDimension& each) { return each.key == key; });
    return found == std::end(kKeys) ? nullptr : found;
}

// All shapes lie on one grid: the outline of the building and that of the glazed space, which
// coincide where the space is open to the outside.
enum Column : unsigned char { West, SpaceWest, Middle, SpaceEast, East };
enum Row : unsigned char { South, SpaceSouth, SpaceNorth, North };
// In a section the rows are heights; a gable roof has its eaves at the building's height.
enum Height : unsigned char { Floor, Eaves, Top, Peak };

struct Corner {
    unsigned char column;
    unsigned char row;
};

struct PartRow {
    PlanMaterial material;
    std::array<Corner, 4> corners;
    PlanElements elements;
};

struct EdgeRow {
    PlanLine kind;
    Corner from;
    Corner to;
    PlanElements elements;
};

struct MeasureRow {
    char letter;
    std::string_view key;
    Corner from;
    Corner to;
    PlanPoint outward;
};

constexpr std::array<Corner, 4> Box(Corner low, Corner high) {
    return {{low, {high.column, low.row}, high, {low.column, high.row}}};
}

constexpr PlanPoint kToNorth = {0, 1};
constexpr PlanPoint kToSouth = {0, -1};
constexpr PlanPoint kToEast = {1, 0};
constexpr PlanPoint kToWest = {-1, 0};

struct DrawingTable {
    std::span<const PartRow> parts;
    std::span<const EdgeRow> edges;
    std::span<const MeasureRow> measures;
};

constexpr PartRow kPartsU[] = {
    {Building, Box({West, South}, {SpaceWest, North}), {"XU006-F", "XU009-R"}},
    {Building, Box({SpaceEast, South}, {East, North}), {"XU007-F", "XU010-R"}},
    {Building, Box({SpaceWest, SpaceNorth}, {SpaceEast, North}), {"XU008-F", "XU011-R"}},
    {Glass, Box({SpaceWest, South}, {Middle, SpaceNorth}), {"XU204-W", "XU104-F"}},
    {Glass, Box({Middle, South}, {SpaceEast, SpaceNorth}), {"XU205-E", "XU104-F"}},
};
constexpr EdgeRow kEdgesU[] = {
    {Wall, {West, South}, {West, North}, {"XU001-W"}},
    {Wall, {West, South}, {SpaceWest, South}, {"XU002-S"}},
    {Wall, {SpaceEast, South}, {East, South}, {"XU003-S"}},
    {Wall, {East, South}, {East, North}, {"XU004-E"}},
    {Wall, {West, North}, {East, North}, {"XU005-N"}},
    {Partition, {SpaceWest, South}, {SpaceWest, SpaceNorth}, {"XU101-W"}},
    {Partition, {SpaceEast, South}, {SpaceEast, SpaceNorth}, {"XU102-E"}},
    {Partition, {SpaceWest, SpaceNorth}, {SpaceEast, SpaceNorth}, {"XU103-N", "XU203-N"}},
    {Ridge, {Middle, South}, {Middle, SpaceNorth}, {}},
    {Glazing, {SpaceWest, South}, {SpaceEast, South}, {"XU201-S", "XU202-S"}},
};

constexpr PartRow kPartsO[] = {
    {Building, Box({West, South}, {SpaceWest, North}), {"XO005-F", "XO006-R"}},
    {Building, Box({SpaceWest, SpaceNorth}, {SpaceEast, North}), {"XO007-F", "XO008-R"}},
    {Building, Box({SpaceWest, South}, {SpaceEast, SpaceSouth}), {"XO009-F", "XO010-R"}},
    {Building, Box({SpaceEast, South}, {East, North}), {"XO011-F", "XO012-R"}},
    {Glass, Box({SpaceWest, SpaceSouth}, {Middle, SpaceNorth}), {"XO203-W", "XO105-F"}},
    {Glass, Box({Middle, SpaceSouth}, {SpaceEast, SpaceNorth}), {"XO204-E", "XO105-F"}},
};
constexpr EdgeRow kEdgesO[] = {
    {Wall, {West, South}, {East, South}, {"XO001-S"}},
    {Wall, {East, South}, {East, North}, {"XO002-E"}},
    {Wall, {West, North}, {East, North}, {"XO003-N"}},
    {Wall, {West, South}, {West, North}, {"XO004-W"}},
    {Partition, {SpaceWest, SpaceSouth}, {SpaceEast, SpaceSouth}, {"XO101-S", "XO201-S"}},
    {Partition, {SpaceWest, SpaceSouth}, {SpaceWest, SpaceNorth}, {"XO102-W"}},
    {Partition, {SpaceWest, SpaceNorth}, {SpaceEast, SpaceNorth}, {"XO103-N", "XO202-N"}},
    {Partition, {SpaceEast, SpaceSouth}, {SpaceEast, SpaceNorth}, {"XO104-E"}},
    {Ridge, {Middle, SpaceSouth}, {Middle, SpaceNorth}, {}},
};

constexpr PartRow kPartsV[] = {
    {Building, Box({West, SpaceNorth}, {East, North}), {"XV005-F", "XV004-R"}},
    {Glass, Box({West, South}, {East, SpaceNorth}), {"XV206-S", "XV102-F"}},
};
constexpr EdgeRow kEdgesV[] = {
    {Wall, {East, SpaceNorth}, {East, North}, {"XV001-E"}},
    {Wall, {West, North}, {East, North}, {"XV002-N"}},
    {Wall, {West, SpaceNorth}, {West, North}, {"XV003-W"}},
    {Partition, {West, SpaceNorth}, {East, SpaceNorth}, {"XV101-S"}},
    {Glazing, {West, South}, {West, SpaceNorth}, {"XV201-W", "XV204-W"}},
    {Glazing, {East, South}, {East, SpaceNorth}, {"XV202-E", "XV205-E"}},
    {Glazing, {West, South}, {East, South}, {"XV203-S"}},
};

constexpr PartRow kPartsI[] = {
    {Building, Box({West, South}, {SpaceWest, North}), {"XI004-F", "XI005-R"}},
    {Building, Box({SpaceEast, South}, {East, North}), {"XI009-F", "XI010-R"}},
    {Glass, Box({SpaceWest, South}, {Middle, North}), {"XI205-W", "XI103-F"}},
    {Glass, Box({Middle, South}, {SpaceEast, North}), {"XI206-E", "XI103-F"}},
};
constexpr EdgeRow kEdgesI[] = {
    {Wall, {West, South}, {SpaceWest, South}, {"XI001-S"}},
    {Wall, {West, North}, {SpaceWest, North}, {"XI002-N"}},
    {Wall, {West, South}, {West, North}, {"XI003-W"}},
    {Wall, {SpaceEast, South}, {East, South}, {"XI006-S"}},
    {Wall, {East, South}, {East, North}, {"XI007-E"}},
    {Wall, {SpaceEast, North}, {East, North}, {"XI008-N"}},
    {Partition, {SpaceWest, South}, {SpaceWest, North}, {"XI101-W"}},
    {Partition, {SpaceEast, South}, {SpaceEast, North}, {"XI102-E"}},
    {Ridge, {Middle, South}, {Middle, North}, {}},
    {Glazing, {SpaceWest, South}, {SpaceEast, South}, {"XI201-S", "XI203-S"}},
    {Glazing, {SpaceWest, North}, {SpaceEast, North}, {"XI202-N", "XI204-N"}},
};

constexpr MeasureRow kMeasuresUO[] = {
    {'a', "WIDTHB", {West, North}, {East, North}, kToNorth},
    {'b', "DEPTHB", {West, South}, {West, North}, kToWest},
    {'c', "WIDTHG", {SpaceWest, SpaceSouth}, {SpaceEast, SpaceSouth}, kToSouth},
    {'d', "DEPTHG", {SpaceEast, SpaceSouth}, {SpaceEast, SpaceNorth}, kToEast},
};
constexpr MeasureRow kMeasuresV[] = {
    {'a', "WIDTHB", {West, North}, {East, North}, kToNorth},
    {'b', "DEPTHB", {West, South}, {West, North}, kToWest},
    {'c', "OFFD", {East, South}, {East, SpaceNorth}, kToEast},
};
constexpr std::span<const MeasureRow> kMeasuresI = std::span(kMeasuresUO).first(3);

constexpr DrawingTable kPlans[kShapeCount] = {
    {kPartsU, kEdgesU, kMeasuresUO},
    {kPartsO, kEdgesO, kMeasuresUO},
    {kPartsV, kEdgesV, kMeasuresV},
    {kPartsI, kEdgesI, kMeasuresI},
};

/// What a section through two wings and a gable roof shows, from west to east: floors, walls and
/// roofs of the wings, partitions, slopes.
struct GableSectionIds {
    std::string_view floorWest, floorSpace, floorEast, wallWest, wallEast, roofWest, roofEast,
        partitionWest, partitionEast, slopeWest, slopeEast;
    PlanElements fronts, gables;  // seen behind the cut: below the eaves and above
};

constexpr GableSectionIds kGableIds[kShapeCount] = {
    {"XU006-F",
     "XU104-F",
     "XU007-F",
     "XU001-W",
     "XU004-E",
     "XU009-R",
     "XU010-R",
     "XU101-W",
     "XU102-E",
     "XU204-W",
     "XU205-E",
     {"XU201-S"},
     {"XU202-S", "XU203-N"}},
    {"XO005-F",
     "XO105-F",
     "XO011-F",
     "XO004-W",
     "XO002-E",
     "XO006-R",
     "XO012-R",
     "XO102-W",
     "XO104-E",
     "XO203-W",
     "XO204-E",
     {},
     {"XO201-S", "XO202-N"}},
    {},
    {"XI004-F",
     "XI103-F",
     "XI009-F",
     "XI003-W",
     "XI007-E",
     "XI005-R",
     "XI010-R",
     "XI101-W",
     "XI102-E",
     "XI205-W",
     "XI206-E",
     {"XI201-S", "XI202-N"},
     {"XI203-S", "XI204-N"}},
};

constexpr std::array<PartRow, 5> GableParts(const GableSectionIds& ids) {
    return {{
        {Building, Box({West, Floor}, {SpaceWest, Top}), {}},
        {Building, Box({SpaceEast, Floor}, {East, Top}), {}},
        {Glass, Box({SpaceWest, Floor}, {SpaceEast, Eaves}), ids.fronts},
        {Glass,
         {{{SpaceWest, Eaves}, {Middle, Eaves}, {Middle, Peak}, {SpaceWest, Eaves}}},
         ids.gables},
        {Glass,
         {{{Middle, Eaves}, {SpaceEast, Eaves}, {SpaceEast, Eaves}, {Middle, Peak}}},
         ids.gables},
    }};
}

constexpr std::array<EdgeRow, 11> GableEdges(const GableSectionIds& ids) {
    return {{
        {Wall, {West, Floor}, {West, Top}, {ids.wallWest}},
        {Wall, {West, Top}, {SpaceWest, Top}, {ids.roofWest}},
        {Wall, {SpaceEast, Top}, {East, Top}, {ids.roofEast}},
        {Wall, {East, Floor}, {East, Top}, {ids.wallEast}},
        {Wall, {West, Floor}, {SpaceWest, Floor}, {ids.floorWest}},
        {Wall, {SpaceWest, Floor}, {SpaceEast, Floor}, {ids.floorSpace}},
        {Wall, {SpaceEast, Floor}, {East, Floor}, {ids.floorEast}},
        {Partition, {SpaceWest, Floor}, {SpaceWest, Top}, {ids.partitionWest}},
        {Partition, {SpaceEast, Floor}, {SpaceEast, Top}, {ids.partitionEast}},
        {Glazing, {SpaceWest, Eaves}, {Middle, Peak}, {ids.slopeWest}},
        {Glazing, {Middle, Peak}, {SpaceEast, Eaves}, {ids.slopeEast}},
    }};
}

// From south to north: the glazed space reaches from the column West to SpaceEast.
constexpr PartRow kSectionPartsV[] = {
    {Building, Box({SpaceEast, Floor}, {East, Top}), {}},
    {Glass, Box({West, Floor}, {SpaceEast, Eaves}), {"XV201-W", "XV202-E"}},
    {Glass,
     {{{West, Eaves}, {SpaceEast, Eaves}, {SpaceEast, Top}, {West, Eaves}}},
     {"XV204-W", "XV205-E"}},
};
constexpr EdgeRow kSectionEdgesV[] = {
    {Wall, {SpaceEast, Top}, {East, Top}, {"XV004-R"}},
    {Wall, {East, Floor}, {East, Top}, {"XV002-N"}},
    {Wall, {West, Floor}, {SpaceEast, Floor}, {"XV102-F"}},
    {Wall, {SpaceEast, Floor}, {East, Floor}, {"XV005-F"}},
    {Partition, {SpaceEast, Floor}, {SpaceEast, Top}, {"XV101-S"}},
    {Glazing, {West, Floor}, {West, Eaves}, {"XV203-S"}},
    {Glazing, {West, Eaves}, {SpaceEast, Top}, {"XV206-S"}},
};

constexpr auto kSectionPartsU = GableParts(kGableIds[kShapeU - 1]);
constexpr auto kSectionPartsO = GableParts(kGableIds[kShapeO - 1]);
constexpr auto kSectionPartsI = GableParts(kGableIds[kShapeI - 1]);
constexpr auto kSectionEdgesU = GableEdges(kGableIds[kShapeU - 1]);
constexpr auto kSectionEdgesO = GableEdges(kGableIds[kShapeO - 1]);
constexpr auto kSectionEdgesI = GableEdges(kGableIds[kShapeI - 1]);

constexpr std::array<MeasureRow, 2> SectionMeasures(char height, char tilt, Corner roofEnd) {
    const Corner roofBegin = {roofEnd.column == Middle ? SpaceWest : West, Eaves};
    return {{{height, "HIGTHB", {East, Floor}, {East, Top}, kToEast},
             {tilt, "TILT", roofBegin, roofEnd, kToNorth}}};
}

constexpr auto kSectionMeasuresUO = SectionMeasures('e', 'f', {Middle, Peak});
constexpr auto kSectionMeasuresV = SectionMeasures('d', 'e', {SpaceEast, Top});
constexpr auto kSectionMeasuresI = SectionMeasures('d', 'e', {Middle, Peak});

constexpr DrawingTable kSections[kShapeCount] = {
    {kSectionPartsU, kSectionEdgesU, kSectionMeasuresUO},
    {kSectionPartsO, kSectionEdgesO, kSectionMeasuresUO},
    {kSectionPartsV, kSectionEdgesV, kSectionMeasuresV},
    {kSectionPartsI, kSectionEdgesI, kSectionMeasuresI},
};

struct Grid {
    std::array<double, 5> columns;
    std::array<double, 4> rows;

    PlanPoint At(const Corner& corner) const { return {columns[corner.column], rows[corner.row]}; }
};

/// West and east edge, and the middle, of a space of this width centred between 0 and `whole`.
std::array<double, 5> Centred(double whole, double width) {
    const double wing = (whole - width) / 2;
    return {0, wing, whole / 2, whole - wing, whole};
}

Grid PlanGrid(int shape, const PlanDimensions& d) {
    const double margin = (d.depthB - d.depthG) / 2;
    switch (shape) {
        case kShapeU: return {Centred(d.widthB, d.widthG), {0, 0, d.depthG, d.depthB}};
        case kShapeO:
            return {Centred(d.widthB, d.widthG), {0, margin, d.depthB - margin, d.depthB}};
        case kShapeV: return {Centred(d.widthB, d.widthB), {0, 0, d.offset, d.depthB}};
        default: return {Centred(d.widthB, d.widthG), {0, 0, d.depthB, d.depthB}};
    }
}

Grid SectionGrid(int shape, const PlanDimensions& d) {
    const double slope = std::tan(d.tilt * kRadiansPerDegree);
    if (shape == kShapeV) {
        return {{0, 0, d.offset / 2, d.offset, d.depthB},
                {0, d.heightB - d.offset * slope, d.heightB, d.heightB}};
    }
    return {Centred(d.widthB, d.widthG),
            {0, d.heightB, d.heightB, d.heightB + d.widthG / 2 * slope}};
}

PlanFault FaultOf(int shape, const PlanDimensions& d) {
    if (!IsShape(shape)) return PlanFault::UnknownShape;
    for (const std::string_view key : DimensionKeysOf(shape)) {
        const double value = d.*Keyed(key)->member;
        // Written so that a value that is no number fails too.
        if (key != "TILT" && !(value > 0 && std::isfinite(value))) return PlanFault::NotPositive;
    }
    const double spaceDepth = shape == kShapeV ? d.offset : d.depthG;
    if (shape != kShapeV && d.widthG >= d.widthB) return PlanFault::SpaceTooWide;
    if (shape != kShapeI && spaceDepth >= d.depthB) return PlanFault::SpaceTooDeep;
    if (!(d.tilt >= 0 && d.tilt < 90)) return PlanFault::TiltOutside;
    return PlanFault::None;
}

ShapeDrawing Draw(const DrawingTable& table, const Grid& grid, const PlanDimensions& dimensions) {
    ShapeDrawing drawing;
    drawing.extent = {grid.columns.back(), grid.rows.back()};
    for (const PartRow& row : table.parts) {
        PlanPart part = {row.material, {}, row.elements};
        std::transform(row.corners.begin(), row.corners.end(), part.corners.begin(),
                       [&](const Corner& corner) { return grid.At(corner); });
        drawing.parts.push_back(part);
    }
    for (const EdgeRow& row : table.edges) {
        if (row.kind == Ridge && dimensions.tilt <= 0) continue;
        drawing.edges.push_back({row.kind, grid.At(row.from), grid.At(row.to), row.elements});
    }
    for (const MeasureRow& row : table.measures) {
        drawing.measures.push_back({row.letter, row.key, dimensions.*Keyed(row.key)->member,
                                    row.key == "TILT", grid.At(row.from), grid.At(row.to),
                                    row.outward});
    }
    return drawing;
}

ShapeDrawing Faulty(PlanFault fault) {
    ShapeDrawing drawing;
    drawing.fault = fault;
    return drawing;
}

/// The value of the first line that holds both words, as the property file is read elsewhere;
/// nothing when it is not set.
std::optional<double> ValueIn(const std::vector<std::string>& lines, std::string_view section,
                              std::string_view key) {
    for (const std::string& line : lines) {
        const std::string upper = UpperCase(line);
        if (upper.find(section) == std::string::npos) continue;
        if (upper.find(key) == std::string::npos) continue;
        const std::string_view value = RightOfSeparator(line, "\t");
        if (TrimBlanks(value) == kNotSet) return std::nullopt;
        return ToNumber(value);
    }
    return std::nullopt;
}

}  // namespace

PlanDimensions DefaultDimensions(int shape) {
    PlanDimensions dimensions;
    if (shape == kShapeV || shape == kShapeI) dimensions.heightB = 10;
    return dimensions;
}

void SetDimension(PlanDimensions& dimensions, std::string_view key, double value) {
    if (const KeyedDimension* keyed = Keyed(key)) dimensions.*keyed->member = value;
}

PlanDimensions ReadPlanDimensions(int shape, const std::string& caseFolder) {
    PlanDimensions dimensions = DefaultDimensions(shape);
    const auto lines = ReadLines(JoinPath(caseFolder, kPropertyFileName));
    if (!lines) return dimensions;
    for (const std::string_view key : DimensionKeysOf(shape)) {
        if (const auto value = ValueIn(*lines, "DIMENSION", key)) {
            SetDimension(dimensions, key, *value);
        }
    }
    dimensions.rotation = ValueIn(*lines, "ROTATION", "ANGLE").value_or(0.0);
    return dimensions;
}

PlanDimensions ReadPlanDimensions(const Slot& slot) {
    if (!IsShape(slot.shape)) return {};
    return ReadPlanDimensions(slot.shape, JoinPath(session.ProjectFolder, SlotCaseName(slot)));
}

ShapeDrawing PlanOf(int shape, const PlanDimensions& dimensions) {
    const PlanFault fault = FaultOf(shape, dimensions);
    if (fault != PlanFault::None) return Faulty(fault);
    return Draw(kPlans[shape - 1], PlanGrid(shape, dimensions), dimensions);
}

ShapeDrawing SectionOf(int shape, const PlanDimensions& dimensions) {
    const PlanFault fault = FaultOf(shape, dimensions);
    if (fault != PlanFault::None) return Faulty(fault);
    const Grid grid = SectionGrid(shape, dimensions);
    if (grid.rows[Eaves] < 0) return Faulty(PlanFault::RoofBelowFloor);
    return Draw(kSections[shape - 1], grid, dimensions);
}

bool HoldsElement(const PlanElements& elements, std::string_view id) {
    if (id.empty()) return false;
    return std::any_of(elements.begin(), elements.end(), [&](std::string_view element) {
        return element == id || LeftOfSeparator(element, "-") == id;
    });
}

}  // namespace verandis
