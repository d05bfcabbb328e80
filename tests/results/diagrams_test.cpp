#include "results/diagrams.h"

#include <cmath>

#include "app/session.h"
#include "results/diagram_cases.h"
#include "results/diagram_tabs.h"
#include "results/diagram_texts.h"
#include "support/session_test.h"

namespace verandis {
namespace {

using namespace testing_support;

class Diagrams : public SessionTest {
protected:
    Diagrams() { UseDiagramWords(); }
    ~Diagrams() override { UseDynamicSeries(nullptr); }
};

struct TitleRow {
    DiagramKind kind;
    int language;
    const char* title;
    const char* axis;
    const char* horizontal;
};

TEST_F(Diagrams, JoinTheirTitlesInBothLanguages) {
    const TitleRow rows[] = {
        {DiagramKind::MinimumTemperature, 1, "Lägst-ätrum", "Lägst-ätrum ºC", "Månad"},
        {DiagramKind::MinimumTemperature, 2, "Least-glazed space", "", "Month"},
        {DiagramKind::MeanTemperature, 2, "Mean-Glazed Space", "Mean-Glazed Space (ºC)", "Month"},
        {DiagramKind::MinimumSecond, 2, "Least Glazed Space", "", "Month Glazed Space"},
        {DiagramKind::MeanSecond, 1, "Medel Ätrum", "Medel Ätrum ºC", "Månad Ätrum"},
        {DiagramKind::OutdoorMean, 2, "Mean Outdoor", "Mean Outdoor ºC", "Month"},
        {DiagramKind::MinimumFunction, 2, "Least Glazed Space(ºC) = f( Mean Outdoor )",
         "Least Glazed Space(ºC)", "Least Outdoor(ºC)"},
        {DiagramKind::MeanFunction, 2, "Mean Glazed Space(ºC) = f( Mean Outdoor )",
         "Mean Glazed Space(ºC)", "Least Outdoor(ºC)"},
        {DiagramKind::PowerDemand, 2, "Power Glazed Space", "Power Glazed Space kW", "Month"},
        {DiagramKind::PowerDemandSecond, 1, "Effekt Ätrum", "Effekt Ätrum kW", "Månad"},
        {DiagramKind::TemperatureFrequency, 1, "Temperatur frekvens", "", "Timmar"},
        {DiagramKind::PowerFrequency, 2, "Power frequency", "Power frequency kW", "Hours"},
    };
    for (const TitleRow& row : rows) {
        session.Language = row.language;
        const Diagram diagram = SteadyDiagram(row.kind);
        EXPECT_EQ(diagram.title, row.title);
        EXPECT_EQ(diagram.horizontalTitle, row.horizontal) << row.title;
        if (*row.axis) {
            EXPECT_EQ(VerticalAxisTitle(diagram), row.axis);
        }
    }
}

TEST_F(Diagrams, TakeTheirFiguresFromTheRunPositionOfTheirSlot) {
    PutCase({kShapeO, 3}, 1, 100);
    PutCase({kShapeI, 1}, 2, 200);
    struct Row {
        DiagramKind kind;
        std::size_t series;
        double mayOfSecondCase;
    };
    // PutCase gives Tmin base + month, TempOut Tmin - 10, Ph 1000 times Tmin.
    const Row rows[] = {
        {DiagramKind::MinimumTemperature, 4, 205}, {DiagramKind::MinimumSecond, 4, 205},
        {DiagramKind::MeanTemperature, 4, 0},      {DiagramKind::OutdoorMinimum, 2, 195},
        {DiagramKind::OutdoorMean, 2, 195},        {DiagramKind::PowerDemand, 2, 205},
        {DiagramKind::PowerDemandSecond, 2, 205},  {DiagramKind::Energy, 0, 0},
    };
    for (const Row& row : rows) {
        const Diagram diagram = SteadyDiagram(row.kind);
        ASSERT_EQ(diagram.series.size(), row.series) << diagram.title;
        if (row.series == 0) continue;
        const DiagramSeries& series = diagram.series[row.series / 2];
        EXPECT_EQ(series.number, 2);
        EXPECT_EQ(series.slot, (Slot{kShapeI, 1}));
        ASSERT_EQ(series.points.size(), 12u);
        EXPECT_EQ(series.points[4].x, 5);
        EXPECT_EQ(series.points[4].y, row.mayOfSecondCase) << diagram.title;
    }
    const Diagram pair = SteadyDiagram(DiagramKind::MinimumTemperature);
    EXPECT_EQ(LegendText(pair.series[0]), "O-3 Glazed Space, Climate:TOWN");
    EXPECT_EQ(LegendText(pair.series[1]), "O-3 Outdoor, Climate:TOWN");
    EXPECT_EQ(pair.series[1].points[0].y, 91);
    EXPECT_EQ(SteadyDiagram(DiagramKind::MinimumSecond).series[2].label, "Case I-1");
    EXPECT_EQ(OutdoorText(), "January outdoors: O-3 91.0 ºC; I-1 191.0 ºC");
}

TEST_F(Diagrams, HoldNoMoreCasesThanTheTables) {
    for (const Slot& slot : AllSlots()) PutCase(slot, 1, 0);
    EXPECT_EQ(SteadyDiagram(DiagramKind::PowerDemand).series.size(), 4u);
}

struct LineRow {
    const char* fault;
    float glazed;
    float outdoor;
    float building;
    double at20;
    double atMinus21;
};

TEST_F(Diagrams, DrawTheFunctionThroughJanuary) {
    // Worked by hand: the slope is (Tb - Tg) / (Tb - To).
    const LineRow rows[] = {
        {"half as steep as outdoors", 10, 0, 20, 20, -0.5},
        {"building reached above 20", 8, -4, 24, 8 + 24.0 * 16 / 28, 8 - 17.0 * 16 / 28},
        {"as warm outdoors as in the building: flat", 7, 20, 20, 7, 7},
    };
    for (const LineRow& row : rows) {
        runResults = {};
        PutCase({kShapeV, 2}, 1, 0);
        runResults.MonthResults[1][1].Tmin = row.glazed;
        runResults.MonthResults[1][1].TempOut = row.outdoor;
        runResults.CaseResults[1].TempB = row.building;
        for (const auto kind : {DiagramKind::MinimumFunction, DiagramKind::MeanFunction}) {
            const auto points = SteadyDiagram(kind).series.at(0).points;
            ASSERT_EQ(points.size(), 2u);
            EXPECT_EQ(points[0].x, 20);
            EXPECT_EQ(points[1].x, -21);
            EXPECT_NEAR(points[0].y, row.at20, 1e-5) << row.fault;
            EXPECT_NEAR(points[1].y, row.atMinus21, 1e-5) << row.fault;
        }
    }
}

TEST(DiagramScale, HoldsItsValuesInRoundSteps) {
    struct Row {
        double least, most;
        bool fromZero;
        DiagramAxis axis;
    };
    const Row rows[] = {
        {-21, 20, false, {-25, 25, 5}},    {-3.2, 18.4, false, {-5, 20, 5}},
        {0, 0, false, {-1.5, 1.5, 0.5}},   {0, 0, true, {0, 1.2, 0.2}},
        {7, 7, false, {5.5, 8.5, 0.5}},    {1.3, 4.8, true, {0, 5, 1}},
        {-0.4, 3, true, {-0.5, 3.5, 0.5}}, {12000, 96000, true, {0, 100000, 20000}},
        {5, INFINITY, false, {0, 1, 0.2}},
    };
    for (const Row& row : rows) {
        const DiagramAxis axis = NiceAxis(row.least, row.most, row.fromZero);
        EXPECT_NEAR(axis.least, row.axis.least, 1e-9) << row.least << " " << row.most;
        EXPECT_NEAR(axis.most, row.axis.most, 1e-9) << row.least << " " << row.most;
        EXPECT_NEAR(axis.step, row.axis.step, 1e-9) << row.least << " " << row.most;
    }
    EXPECT_EQ(DecimalsOf({0, 1, 0.2}), 1);
    EXPECT_EQ(DecimalsOf({0, 100, 20}), 0);
    EXPECT_EQ(DecimalsOf({0, 1, 0.05}), 2);
}

TEST_F(Diagrams, TellFiguresWithTheSessionsSignAndDataWithAPoint) {
    PutCase({kShapeU, 1}, 1, 0.25f);
    runResults.SlotClimateLabels[kShapeU][1] = "Climate:A, \"B\"";
    session.Decimals = DecimalMode::Comma;
    const Diagram diagram = WithShown(SteadyDiagram(DiagramKind::MeanTemperature), false, true);
    ASSERT_EQ(diagram.series.size(), 1u);
    EXPECT_EQ(PointText(diagram, diagram.series[0], 11), "U-1 Outdoor, M12: 2,2 ºC");
    EXPECT_EQ(DiagramSummary(diagram), "Mean-Glazed Space. U-1 Outdoor: -8,8 – 2,2 ºC");
    const std::string csv = DiagramCsv(diagram);
    const std::string head =
        "Month,\"U-1 Outdoor, Climate:A, \"\"B\"\" (ºC)\"\nM1,-8.75\nM2,-7.75\n";
    EXPECT_EQ(csv.substr(0, head.size()), head);
    EXPECT_TRUE(csv.ends_with("M12,2.25\n"));
    const std::string line = DiagramCsv(SteadyDiagram(DiagramKind::MinimumFunction));
    EXPECT_NE(line.find("\n-21,"), std::string::npos) << line;
    EXPECT_EQ(DiagramSummary(SteadyDiagram(DiagramKind::Energy)), "Need Glazed Space. Nothing");
}

TEST_F(Diagrams, OfADynamicRunComeFromTheirSource) {
    EXPECT_TRUE(DynamicDiagram(DiagramKind::PowerFrequency).series.empty());
    UseDynamicSeries([](DiagramKind) {
        std::vector<DiagramSeries> series(2);
        for (DiagramSeries& each : series) {
            each.slot = {kShapeU, 1};
            each.number = 1;
            each.points = {{1, 4}, {8700, 40}};
        }
        series[1].second = true;
        return series;
    });
    const Diagram both = DynamicDiagram(DiagramKind::PowerFrequency);
    ASSERT_EQ(both.series.size(), 2u);
    EXPECT_EQ(both.series[1].quantity, "Cool");
    EXPECT_EQ(both.horizontal, (DiagramAxis{0, 9000, 1000}));
    EXPECT_EQ(DynamicDiagram(DiagramKind::Energy, true).series.size(), 1u);
}

}  // namespace
}  // namespace verandis
