#include <gtest/gtest.h>

#include <cmath>

#include "calc/climate_file.h"
#include "calc/geometry.h"
#include "calc/heat_balance.h"
#include "calc/solar_gain.h"
#include "case/property_file.h"
#include "platform/errors.h"
#include "support/session_test.h"

// The balance against figures worked by hand. All cases stand on one set of dimensions; its roof of
// 45 degrees has the tangent 1, so that a gable over W = 10 rises by 5.

namespace verandis {
namespace {

using Texts = std::vector<std::string>;
const double kRoot2 = std::sqrt(2.0);
const double kRoot3 = std::sqrt(3.0);

class Balance : public testing_support::SmallRootTest {
protected:
    /// A case whose first lines win over those that fill it up: glazing of Clear2, walls of WallA1
    /// with a fifth of LowE-3, a floor of FloorC, everything to the south.
    void MakeCase(int shape, const std::string& firstLines) {
        std::string text = firstLines +
                           "DIMENSION_WIDTHB\t 20\nDIMENSION_DEPTHB\t 21\nDIMENSION_HIGTHB\t 9\n"
                           "DIMENSION_WIDTHG\t 10\nDIMENSION_DEPTHG\t 12\nDIMENSION_OFFD\t 4\n"
                           "DIMENSION_TILT\t 45\nHVACG_INF\t1,5\nHVACB_HEATING\t20\n"
                           "HVACB_COOLING\t26\nHVACG_HEATING\t5\nTDG_TDGMEAN\t8\nHVAC_FVI\t2\n"
                           "HVAC_FVV\t100\n";
        for (const auto element : ElementsOf(shape, Series::Glazing)) {
            const std::string id(element);
            text += id + "_GLAZEDID\tClear2\n" + id + "_ORIENTATION\t 0\n";
        }
        for (const auto element : ElementsOf(shape, Series::Partition)) {
            const std::string id(element);
            text += id + "_WALLTYPE\t" + (id.ends_with("F") ? "FloorC\n" : "WallA1\n") + id +
                    "_PCNTW\t 20\n" + id + "_GLAZEDID\tLowE-3\n";
        }
        MakeSlot({shape, 1}, text);
        heatBalance = {};
        climateTables = {};
        prompts.shown.clear();
    }

    void RunMonth(int shape, int month, double tempOut) {
        climateTables.ClimateMonths[std::size_t(month)][1] = float(tempOut);
        CalcMonthBalance(shape, month);
        CalcGlazedSpaceTemperature();
        CalcDemands();
    }
};

// The lean-to of V is as wide as the building and 4 deep, its low side 9 - 4 = 5 high; the street
// of I is as deep as the building, whatever DEPTHG says.
TEST_F(Balance, EveryElementHasItsArea) {
    const double slope = 60 * kRoot2;
    const std::vector<double> walls[] = {
        {108, 108, 90, 120}, {90, 108, 90, 108, 120}, {100, 80}, {189, 189, 210}};
    const std::vector<double> glazing[] = {{90, 25, 25, slope, slope},
                                           {25, 25, slope, slope},
                                           {20, 20, 100, 8, 8, 80 * kRoot2},
                                           {90, 90, 25, 25, 105 * kRoot2, 105 * kRoot2}};
    for (int shape = 1; shape <= kShapeCount; ++shape) {
        MakeCase(shape, "");
        for (const auto series : {Series::Partition, Series::Glazing}) {
            const auto& areas = (series == Series::Glazing ? glazing : walls)[shape - 1];
            const auto ids = ElementsOf(shape, series);
            ASSERT_EQ(ids.size(), areas.size());
            for (std::size_t at = 0; at < ids.size(); ++at) {
                ElementRecord record;
                ElementData(shape, ids[at], record);
                EXPECT_NEAR(record.area, areas[at], 1e-4) << ids[at];
                const double glazed = series == Series::Glazing ? areas[at] : 0;
                EXPECT_NEAR(GlazedElementArea(shape, ids[at], 45), glazed, 1e-4) << ids[at];
            }
        }
    }
    EXPECT_EQ(GlazedElementArea(kShapeI, "XI201", 45) + GlazedElementArea(kShapeI, "xi201-s", 45),
              0);
}

TEST_F(Balance, SpacesHaveTheirVolumesAndGround) {
    // Building, glazed space, ground: 0.7 for the edge band of 1 m and 2.2 for the core by their
    // parts.
    const std::tuple<int, const char*, double, double, double> rows[] = {
        {1, "", 3780 - 1080, 1080 + 300, (0.7 * 10 + 2.2 * 110) / 120},
        {1, "DIMENSION_TILT\t0\n", 2700, 1080, 2.075},
        {1, "DIMENSION_DEPTHG\t10\nDIMENSION_TILT\t30\n", 2880, 900 + 250 / kRoot3, 0.07 + 1.98},
        {2, "", 2700, 1380, 2.2},
        {3, "", 20 * 17 * 9, 400 + 160, (0.7 * 26 + 2.2 * 54) / 80},
        {3, "DIMENSION_OFFD\t12\n", 1620, -720 + 1440, (0.7 * 42 + 2.2 * 198) / 240},
        {4, "", 1890, 1890 + 525, (0.7 * 20 + 2.2 * 190) / 210}};
    for (const auto& [shape, lines, building, glazed, ground] : rows) {
        MakeCase(shape, lines);
        CalcVolumes(shape);
        PrepareShapeConstants(shape);
        EXPECT_NEAR(heatBalance.VolumeB, building, 1e-9) << shape << lines;
        EXPECT_NEAR(heatBalance.VolumeG, glazed, 1e-9) << shape << lines;
        EXPECT_NEAR(heatBalance.GroundResistance, ground, 1e-6) << shape << lines;
    }
}

struct Loss {
    int shape;
    const char* lines;
    double uaGlazing;
    double uaWalls;
    double volumeG;
};
const Loss kLosses[] = {
    {1,
     "XU201-S_GLAZEDID\tClear1\nXU205-E_GLAZEDID\tLowE-3, 1\nXU102-E_WALLTYPE\tWallB2\n"
     "XU102-E_PCNTW\t-999999\nXU103-N_PCNTW\t50\nXU103-N_GLAZEDID\tWallB2, 2\n",
     90 * 5.8 + 50 * 2.8 + 60 * kRoot2*(2.8 + 1.1) + 120 / (1 / 0.4 + 2.075),
     108 * (0.8 * 0.5 + 0.2 * 1.1) + 108 * 0.25 + 90 * (0.5 * 0.5 + 0.5 * 0.25), 1380},
    {2, "XO204-E_GLAZEDID\tLowE-3\nXO104-E_WALLTYPE\tWallB2\n",
     50 * 2.8 + 60 * kRoot2*(2.8 + 1.1) + 120 / (1 / 0.4 + 2.2),
     288 * (0.8 * 0.5 + 0.2 * 1.1) + 108 * (0.8 * 0.25 + 0.2 * 1.1), 1380},
    {3, "XV206-S_GLAZEDID\tWallB2, 2\nXV204-W_GLAZEDID\tClear1\n",
     140 * 2.8 + 8 * (5.8 + 2.8) + 80 * kRoot2 * 0.25 + 80 / (1 / 0.4 + 1.7125), 100 * 0.62, 560},
    {4, "XI206-E_GLAZEDID\tLowE-3\n",
     230 * 2.8 + 105 * kRoot2*(2.8 + 1.1) + 210 / (1 / 0.4 + 432.0 / 210), 378 * 0.62, 2415},
};

// Ventilation of 100 l/s out of the building is 360 m3/h; the air carries 0.33 Wh/m3K.
TEST_F(Balance, LossesSettleTemperatureAndPower) {
    for (const Loss& row : kLosses) {
        SCOPED_TRACE(row.shape);
        MakeCase(row.shape, row.lines);
        ReadHvacData();
        PrepareShapeConstants(row.shape);
        const double outwards = row.uaGlazing + 0.33 * 1.5 * row.volumeG;
        const double inwards = row.uaWalls + 0.33 * 360;
        for (int month = 1; month <= 12; ++month) {
            const double tempOut = -15 + 3 * month;
            RunMonth(row.shape, month, tempOut);
            const double balanced = (outwards * tempOut + inwards * 23) / (outwards + inwards);
            EXPECT_NEAR(heatBalance.TempGFree, balanced, 1e-4);
            const double power = outwards * (5 - tempOut) - inwards * (23 - 5);
            EXPECT_NEAR(heatBalance.HeatDemandG, std::max(power, 0.0), 0.02);
        }
        EXPECT_NEAR(heatBalance.UAGlazing, row.uaGlazing, 1e-3);
        EXPECT_NEAR(heatBalance.UAWalls, row.uaWalls, 1e-4);
        EXPECT_EQ(heatBalance.HeatDemandG, 0) << "a warm month asks for cooling";
        EXPECT_TRUE(prompts.shown.empty());
    }
}

TEST_F(Balance, KindDecidesWhereANameIsLookedUp) {
    const std::tuple<const char*, float, const char*> rows[] = {
        {"Clear2", 2.8f, ""},
        {"Clear2, 1", 2.8f, ""},
        {"WallB2, 2", 0.25f, ""},
        {"WallB2, 5", 0.25f, ""},
        {"-999999", 5.8f, ""},
        {"-999999, 2", 0.5f, ""},
        {"WallB2", 5.8f, " Glazing not found,default used WallB2"},
        {"Clear2, 2", 0.5f, " Wall type not found,default used Clear2"}};
    MakeCase(kShapeV, "");
    for (const auto& [value, u, message] : rows) {
        for (const auto& [id, field] : {std::pair{"XV101-S", &ElementRecord::windowU},
                                        std::pair{"XV206-S", &ElementRecord::u}}) {
            prompts.shown.clear();
            StageCaseProperty(id, "GLAZEDID", value);
            ElementRecord record;
            ElementData(kShapeV, id, record);
            EXPECT_EQ(record.*field, u) << id << " " << value;
            EXPECT_EQ(prompts.Texts(), *message ? Texts{message} : Texts{}) << id << " " << value;
            EXPECT_EQ(session.ElementKindMark, 0) << "the kind leaks into the next stored row";
        }
    }
}

TEST_F(Balance, SettingsAreReadAndHoldForTheYear) {
    const std::tuple<const char*, double HeatBalance::*, double> rows[] = {
        {"HVACB_HEATING\t21\nHVACB_COOLING\t25\n", &HeatBalance::TempB, 20},
        {"HVACB_HEATING\t21\n", &HeatBalance::TempB, 20},  // a band of just 5
        {"", &HeatBalance::TempB, 23},
        {"HVACB_HEATING\t30\nHVACB_COOLING\t20\n", &HeatBalance::TempB, 25},
        {"HVACB_COOLING\t-999999\n", &HeatBalance::TempB, 20},
        {"HVACG_HEATING\t-999999\n", &HeatBalance::SetPointG, -100},
        {"HVACG_HEATING\t-999999\n", &HeatBalance::HeatDemandG, 0},
        {"HVAC_FVI\t1\n", &HeatBalance::AirChangeG, 1.5 + 360.0 / 1380},
        {"HVAC_FVI\t1\n", &HeatBalance::AirChangeB, 0},
        {"", &HeatBalance::AirChangeG, 1.5},
        {"", &HeatBalance::AirChangeB, 360.0 / 2700},
        {"HVAC_FVI\t3\n", &HeatBalance::AirChangeB, 0},
        {"HVAC_FVV\t-999999\n", &HeatBalance::AirChangeB, 0},
        {"", &HeatBalance::SunPanelFactor, 0.8 * std::pow(0.5, 0.4)},
        {"ABSXS1_ABSX1\t70\n", &HeatBalance::SunPanelFactor, 0.8 * std::pow(0.7, 0.4)},
        {"ABSXS1_ABSX1\t5\n", &HeatBalance::SunPanelFactor, 0.8 * std::pow(0.1, 0.4)}};
    for (const auto& [lines, value, wanted] : rows) {
        MakeCase(kShapeU, lines);
        heatBalance.AirChangeB = 7;  // of the case before
        ReadHvacData();
        PrepareShapeConstants(kShapeU);
        for (int month = 1; month <= 3; ++month) RunMonth(kShapeU, month, -10);
        EXPECT_NEAR(heatBalance.*value, wanted, 1e-9) << lines;
    }
}

TEST_F(Balance, MissingFiguresAreToldOrStandForThemselves) {
    MakeCase(kShapeU, "TDG_POWDEMHEAT\t1500\nTDG_ENERDEMHEAT\t12,5\n");
    StageCaseProperty("HVACG", "INF", "-999999");
    StageCaseProperty("TDG", "TDGMEAN", "-999999");
    ReadHvacData();
    EXPECT_EQ(heatBalance.PowerDemandMax, 1500);
    EXPECT_EQ(heatBalance.HeatEnergyMax, 12500);
    EXPECT_EQ(heatBalance.CoolEnergyMax, -1);
    EXPECT_EQ(heatBalance.AirChangeG, 0);
    EXPECT_EQ(heatBalance.TdgMean, 10);
    EXPECT_EQ(prompts.Texts(), (Texts{" Missing value for HVACG-INF, set to 0",
                                      " Missing value for TDGMEAN, set to 10"}));
}

// The window of the first element serves all: LowE-3 lets 0.45 through, its reference of three
// panes 0.6, so 100 kWh become 75.
TEST_F(Balance, SunFindsItsPlaceInTheRadiationTable) {
    // Indices of the one place that holds 100 kWh/m2, and what lies there: below 0 the run stops.
    const std::tuple<std::string, std::size_t, std::size_t, double> rows[] = {
        {"XU204-W_ORIENTATION\t270\n", 28, 4, 60 * kRoot2},
        {"XU204-W_ORIENTATION\t279,9\n", 28, 4, 60 * kRoot2},
        {"XU204-W_ORIENTATION\t270\nROTATION_ANGLE\t105\n", 2, 4, 60 * kRoot2},
        {"XU204-W_ORIENTATION\t270\nROTATION_ANGLE\t90\n", 1, 4, 60 * kRoot2},
        {"XU204-W_ORIENTATION\t10\nROTATION_ANGLE\t-100\n", 28, 4, 60 * kRoot2},
        {"", 1, 9, 90 + 25 + 25},  // upright: front and gables
        {"DIMENSION_TILT\t0\nXU204-W_ORIENTATION\t300\n", 0, 0, 2 * 60},  // flat: faces nowhere
        {"DIMENSION_TILT\t-999999\n", 1, 3, 2 * 120 / kRoot3},            // missing: 30 degrees
        {"XU204-W_ORIENTATION\t280\n", 1, 4, -1},
        {"XU204-W_ORIENTATION\t-999999\n", 1, 4, -1}};
    for (const auto& [lines, direction, tilt, area] : rows) {
        MakeCase(kShapeU, "XU201-S_GLAZEDID\tLowE-3\n" + lines);
        climateTables.SolarTable[3][6][direction][tilt] = 100;
        if (area < 0) {
            EXPECT_THROW(CalcSolarGain(kShapeU, 6), RunError) << lines;
            continue;
        }
        CalcSolarGain(kShapeU, 6);
        EXPECT_NEAR(heatBalance.SolarGainG, area * 75, 0.01) << lines;
    }
}

}  // namespace
}  // namespace verandis
