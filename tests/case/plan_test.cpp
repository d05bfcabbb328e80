#include "case/plan.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <set>

#include "app/data_root.h"
#include "app/program_text.h"
#include "calc/geometry.h"
#include "case/plan_text.h"
#include "support/session_test.h"

namespace verandis {
namespace {

using testing_support::SmallRootTest;

double AreaOf(const ShapeDrawing& drawing, PlanMaterial material) {
    double area = 0;
    for (const PlanPart& part : drawing.parts) {
        if (part.material != material) continue;
        for (std::size_t at = 0; at < part.corners.size(); ++at) {
            const PlanPoint& a = part.corners[at];
            const PlanPoint& b = part.corners[(at + 1) % part.corners.size()];
            area += (a.x * b.y - b.x * a.y) / 2;  // positive when anti-clockwise
        }
    }
    return area;
}

const PlanEdge& EdgeOf(const ShapeDrawing& drawing, std::string_view id) {
    const auto found = std::find_if(drawing.edges.begin(), drawing.edges.end(),
                                    [&](const auto& e) { return HoldsElement(e.elements, id); });
    if (found == drawing.edges.end()) throw std::runtime_error("no edge " + std::string(id));
    return *found;
}

constexpr PlanDimensions kFigures = {.widthB = 24,
                                     .depthB = 18,
                                     .heightB = 9,
                                     .widthG = 8,
                                     .depthG = 12,
                                     .offset = 4,
                                     .tilt = 45,
                                     .rotation = 0};

struct Expected {
    int shape;
    double building;          // m2 in plan: the outline less the space
    double glass;             // m2 in plan
    double section;           // m2 of glass in the section: the space's air over its length
    PlanPoint sectionExtent;  // m
};

// 24 x 18 = 432. U, O: 8 x 12 = 96. V: 24 x 4 = 96. I: 8 x 18 = 144. Section at 45 degrees: 8 x 9
// and a gable 8 x 4 / 2; V: 4 x 9 less the triangle 4 x 4 / 2.
constexpr Expected kExpected[] = {
    {kShapeU, 336, 96, 88, {24, 13}},
    {kShapeO, 336, 96, 88, {24, 13}},
    {kShapeV, 336, 96, 28, {18, 9}},
    {kShapeI, 288, 144, 88, {24, 13}},
};

TEST(Plan, CoversTheOutlineAndShowsEveryElementOnce) {
    for (const Expected& expected : kExpected) {
        const ShapeDrawing plan = PlanOf(expected.shape, kFigures);
        const ShapeDrawing section = SectionOf(expected.shape, kFigures);
        EXPECT_NEAR(AreaOf(plan, PlanMaterial::Building), expected.building, 1e-9);
        EXPECT_NEAR(AreaOf(plan, PlanMaterial::Glass), expected.glass, 1e-9);
        EXPECT_NEAR(AreaOf(section, PlanMaterial::Glass), expected.section, 1e-9);
        EXPECT_NEAR(section.extent.x, expected.sectionExtent.x, 1e-9);
        EXPECT_NEAR(section.extent.y, expected.sectionExtent.y, 1e-9);
        std::multiset<std::string_view> shown;
        for (const PlanPart& part : plan.parts) {
            for (const std::string_view id : part.elements) shown.insert(id);
        }
        for (const PlanEdge& edge : plan.edges) {
            for (const std::string_view id : edge.elements) shown.insert(id);
        }
        for (const Series series : {Series::Envelope, Series::Partition, Series::Glazing}) {
            for (const std::string_view id : ElementsOf(expected.shape, series)) {
                // The floor of a space under a gable roof lies below both slopes.
                const bool twice =
                    series == Series::Partition && id.ends_with("-F") && expected.shape != kShapeV;
                EXPECT_EQ(shown.count(id), twice ? 2u : 1u) << id;
            }
        }
    }
}

struct Placed {
    std::string_view id;
    PlanPoint from;
    PlanPoint to;
};

// West wing 8 m; O: 3 m of building south and north of the court.
constexpr Placed kPlaced[] = {
    {"XU201-S", {8, 0}, {16, 0}},   {"XU103-N", {8, 12}, {16, 12}}, {"XU203", {8, 12}, {16, 12}},
    {"XU101-W", {8, 0}, {8, 12}},   {"XO101-S", {8, 3}, {16, 3}},   {"XO104-E", {16, 3}, {16, 15}},
    {"XV101-S", {0, 4}, {24, 4}},   {"XV203-S", {0, 0}, {24, 0}},   {"XV205-E", {24, 0}, {24, 4}},
    {"XI202-N", {8, 18}, {16, 18}}, {"XI006-S", {16, 0}, {24, 0}},
};

TEST(Plan, PutsTheElementsWhereTheModelHasThem) {
    for (const Placed& placed : kPlaced) {
        const auto shape = static_cast<int>(std::string_view("UOVI").find(placed.id[1])) + 1;
        const PlanEdge edge = EdgeOf(PlanOf(shape, kFigures), placed.id);
        EXPECT_NEAR(std::hypot(edge.from.x - placed.from.x, edge.from.y - placed.from.y), 0, 1e-9)
            << placed.id;
        EXPECT_NEAR(std::hypot(edge.to.x - placed.to.x, edge.to.y - placed.to.y), 0, 1e-9)
            << placed.id;
    }
}

// The same areas as the calculation has them, from lengths that the drawings show.
TEST_F(SmallRootTest, SlopesAndWallsAgreeWithTheCalculation) {
    for (const int shape : {kShapeU, kShapeO, kShapeV, kShapeI}) {
        MakeSlot({shape, 1},
                 "DIMENSION_WIDTHB\t 24\nDIMENSION_DEPTHB\t 18\nDIMENSION_HIGTHB\t 9\n"
                 "DIMENSION_WIDTHG\t 8\nDIMENSION_DEPTHG\t 12\nDIMENSION_OFFD\t 4\n"
                 "DIMENSION_TILT\t 45\n");
        const ShapeDrawing section = SectionOf(shape, kFigures);
        const PlanDimensions read = ReadPlanDimensions({shape, 1});
        EXPECT_EQ(PlanOf(shape, read).edges.size(), PlanOf(shape, kFigures).edges.size());
        for (const PlanEdge& edge : section.edges) {
            const std::string_view id = edge.elements[0];
            if (edge.kind != PlanLine::Glazing || id == "XV203-S") continue;
            const double length = std::hypot(edge.to.x - edge.from.x, edge.to.y - edge.from.y);
            const double depth = shape == kShapeV ? 24 : shape == kShapeI ? 18 : 12;
            EXPECT_NEAR(GlazedElementArea(shape, id, 45), length * depth, 1e-4) << id;
        }
    }
}

TEST(Plan, LettersAreThoseOfTheDimensionDialogs) {
    const auto letters = [](int shape) {
        std::string text;
        for (const auto& drawing : {PlanOf(shape, kFigures), SectionOf(shape, kFigures)}) {
            for (const PlanMeasure& each : drawing.measures) {
                text += std::string(1, each.letter) + "=" + std::string(each.key) + " ";
                const double length = std::hypot(each.to.x - each.from.x, each.to.y - each.from.y);
                if (!each.degrees) {
                    EXPECT_NEAR(length, each.value, 1e-9) << shape << each.letter;
                }
            }
        }
        return text;
    };
    EXPECT_EQ(letters(kShapeU), "a=WIDTHB b=DEPTHB c=WIDTHG d=DEPTHG e=HIGTHB f=TILT ");
    EXPECT_EQ(letters(kShapeO), letters(kShapeU));
    EXPECT_EQ(letters(kShapeV), "a=WIDTHB b=DEPTHB c=OFFD d=HIGTHB e=TILT ");
    EXPECT_EQ(letters(kShapeI), "a=WIDTHB b=DEPTHB c=WIDTHG d=HIGTHB e=TILT ");
}

struct Fault {
    int shape;
    std::string_view key;
    double value;
    PlanFault plan;
    PlanFault section;
};

constexpr double kNoNumber = std::numeric_limits<double>::quiet_NaN();
constexpr Fault kFaults[] = {
    {kShapeU, "WIDTHG", 24, PlanFault::SpaceTooWide, PlanFault::SpaceTooWide},
    {kShapeU, "DEPTHG", 18.5, PlanFault::SpaceTooDeep, PlanFault::SpaceTooDeep},
    {kShapeI, "DEPTHG", 18.5, PlanFault::None, PlanFault::None},  // not read: as deep as the street
    {kShapeV, "WIDTHG", 0, PlanFault::None, PlanFault::None},
    {kShapeV, "OFFD", 18, PlanFault::SpaceTooDeep, PlanFault::SpaceTooDeep},
    {kShapeO, "HIGTHB", 0, PlanFault::NotPositive, PlanFault::NotPositive},
    {kShapeO, "WIDTHB", kNoNumber, PlanFault::NotPositive, PlanFault::NotPositive},
    {kShapeU, "TILT", 90, PlanFault::TiltOutside, PlanFault::TiltOutside},
    {kShapeV, "TILT", 70, PlanFault::None, PlanFault::RoofBelowFloor},  // 4 m x 2.75 > 9 m
    {5, "TILT", 30, PlanFault::UnknownShape, PlanFault::UnknownShape},
};

TEST(Plan, TellsWhyThereIsNone) {
    for (const Fault& fault : kFaults) {
        PlanDimensions figures = kFigures;
        SetDimension(figures, fault.key, fault.value);
        EXPECT_EQ(PlanOf(fault.shape, figures).fault, fault.plan) << fault.key << fault.value;
        EXPECT_EQ(SectionOf(fault.shape, figures).fault, fault.section) << fault.key;
    }
    PlanDimensions flat = kFigures;
    flat.tilt = 0;
    const auto ridges = [](const ShapeDrawing& plan) {
        return std::count_if(plan.edges.begin(), plan.edges.end(),
                             [](const auto& e) { return e.kind == PlanLine::Ridge; });
    };
    EXPECT_EQ(ridges(PlanOf(kShapeU, kFigures)), 1);
    EXPECT_EQ(ridges(PlanOf(kShapeU, flat)), 0);
}

TEST_F(SmallRootTest, FiguresAreReadWithoutAWordAndDefaultsFillTheGaps) {
    MakeSlot({kShapeV, 2},
             "CASE_NOTE\tx\nDIMENSION_OFFD\t3,5\nDIMENSION_TILT\t-999999\n"
             "ROTATION_ANGLE\t-45\n");
    const PlanDimensions read = ReadPlanDimensions({kShapeV, 2});
    EXPECT_DOUBLE_EQ(read.offset, 3.5);
    EXPECT_DOUBLE_EQ(read.tilt, 30);
    EXPECT_DOUBLE_EQ(read.heightB, 10);
    EXPECT_DOUBLE_EQ(read.rotation, -45);
    EXPECT_DOUBLE_EQ(ReadPlanDimensions({kShapeO, 4}).heightB, 9);
    EXPECT_TRUE(PlanOf(0, ReadPlanDimensions({0, 0})).parts.empty());
    EXPECT_TRUE(prompts.shown.empty());
}

TEST_F(SmallRootTest, WordsFollowLanguageAndDecimalSign) {
    session.SimulatorFolder = DeliveredFolder() + "/MWTHARM";
    LoadProgramText();
    session.Language = 2;
    EXPECT_EQ(PlanDescription(kShapeV, kFigures),
              "V-shape 24 x 18 m, glazed space 24 x 4 m, height 9 m, roof tilt 45º, turned 0º");
    session.Language = 1;
    session.Decimals = DecimalMode::Comma;
    PlanDimensions figures = kFigures;
    figures.widthG = 7.125;
    EXPECT_EQ(PlanDescription(kShapeI, figures),
              "I-form 24 x 18 m, glasrum 7,13 x 18 m, höjd 9 m, taklutning 45º, vriden 0º");
    EXPECT_EQ(MeasureText(PlanOf(kShapeU, figures).measures[2], true), "c = 7,13 m");
    EXPECT_EQ(PlanFaultText(PlanFault::SpaceTooWide), "Glasrummet ska vara smalare än byggnaden");
}

}  // namespace
}  // namespace verandis
