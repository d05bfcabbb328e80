#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <ostream>

#include "calc/climate_file.h"
#include "calc/geometry.h"
#include "calc/heat_balance.h"
#include "calc/solar_gain.h"
#include "case/property_file.h"
#include "platform/errors.h"
#include "projects/slot_activation.h"
#include "support/session_test.h"

// The balance against figures worked by hand. All cases stand on one set of dimensions with a roof of
// 45 degrees, where the tangent is 1: gables and slopes of a roof over W = 10 rise by 5.

namespace verandis {
namespace {

using Texts = std::vector<std::string>;

template <class Row>
    requires requires(const Row& row) { row.fault; }
std::ostream& operator<<(std::ostream& out, const Row& row) {
    return out << row.fault;
}

constexpr const char* kDimensions =
    "DIMENSION_WIDTHB\t 20\nDIMENSION_DEPTHB\t 21\nDIMENSION_HIGTHB\t 9\nDIMENSION_WIDTHG\t 10\n"
    "DIMENSION_DEPTHG\t 12\nDIMENSION_OFFD\t 4\nDIMENSION_TILT\t 45\n";
constexpr const char* kHvac =
    "HVACG_INF\t1,5\nHVACB_HEATING\t20\nHVACB_COOLING\t26\nHVACG_HEATING\t5\nTDG_TDGMEAN\t8\n"
    "HVAC_FVI\t2\nHVAC_FVV\t100\n";
const double kRoot2 = std::sqrt(2.0);

class Balance : public testing_support::SmallRootTest {
protected:
    /// A case whose first lines win over those that fill up the rest: glazing of Clear2, walls of
    /// WallA1 with a fifth of LowE-3, a floor of FloorC, everything to the south.
    void MakeCase(int shape, const std::string& firstLines) {
        std::string text = firstLines + kDimensions + kHvac;
        for (const std::string_view id : ElementsOf(shape, Series::Glazing)) {
            text += std::string(id) + "_GLAZEDID\tClear2\n" + std::string(id) + "_ORIENTATION\t 0\n";
        }
        for (const std::string_view id : ElementsOf(shape, Series::Partition)) {
            text += std::string(id) + (id.ends_with("F") ? "_WALLTYPE\tFloorC\n" : "_WALLTYPE\tWallA1\n");
            text += std::string(id) + "_PCNTW\t 20\n" + std::string(id) + "_GLAZEDID\tLowE-3\n";
        }
        MakeSlot({shape, 1}, text);
    }

    void RunMonth(int shape, int month, double tempOut) {
        climateTables.ClimateMonths[static_cast<std::size_t>(month)][1] = static_cast<float>(tempOut);
        CalcMonthBalance(shape, month);
        CalcGlazedSpaceTemperature();
        CalcDemands();
    }
};

struct Area {
    const char* fault;  // the element
    int shape;
    double area;
};
const Area kAreas[] = {
    {"XU201-S", 1, 90},      {"XU202-S", 1, 25},        {"XU203-N", 1, 25},
    {"XU204-W", 1, 60 * kRoot2}, {"XU205-E", 1, 60 * kRoot2}, {"XU101-W", 1, 108},
    {"XU102-E", 1, 108},     {"XU103-N", 1, 90},        {"XU104-F", 1, 120},
    {"XO201-S", 2, 25},      {"XO202-N", 2, 25},        {"XO203-W", 2, 60 * kRoot2},
    {"XO204-E", 2, 60 * kRoot2}, {"XO101-S", 2, 90},    {"XO102-W", 2, 108},
    {"XO103-N", 2, 90},      {"XO104-E", 2, 108},       {"XO105-F", 2, 120},
    // The lean-to is 20 wide and 4 deep; its low side is 9 - 4 = 5 high.
    {"XV201-W", 3, 20},      {"XV202-E", 3, 20},        {"XV203-S", 3, 100},
    {"XV204-W", 3, 8},       {"XV205-E", 3, 8},         {"XV206-S", 3, 80 * kRoot2},
    {"XV101-S", 3, 100},     {"XV102-F", 3, 80},
    // The street of shape I is as deep as the building, 21, whatever DEPTHG says.
    {"XI201-S", 4, 90},      {"XI202-N", 4, 90},        {"XI203-S", 4, 25},
    {"XI204-N", 4, 25},      {"XI205-W", 4, 105 * kRoot2}, {"XI206-E", 4, 105 * kRoot2},
    {"XI101-W", 4, 189},     {"XI102-E", 4, 189},       {"XI103-F", 4, 210},
    {"XU204", 1, 0},         {"xu201-s", 1, 0},         {"XO201-S", 1, 0},
};

TEST_F(Balance, EveryElementHasItsArea) {
    for (int shape = 1; shape <= kShapeCount; ++shape) MakeCase(shape, "");
    for (const Area& row : kAreas) {
        ActivateSlot(1, row.shape, "");
        ElementRecord record;
        ElementData(row.shape, row.fault, record);
        EXPECT_NEAR(record.area, row.area, 1e-4) << row.fault << " in shape " << row.shape;
        if (std::string_view(row.fault).substr(2, 1) == "2") {
            EXPECT_NEAR(GlazedElementArea(row.shape, row.fault, 45), row.area, 1e-4) << row.fault;
        }
    }
}

struct Space {
    const char* fault;
    int shape;
    const char* lines;
    double volumeB;
    double volumeG;
    double resistance;  // edge part x 0.7 + core part x 2.2
};

class Spaces : public Balance, public testing::WithParamInterface<Space> {};

TEST_P(Spaces, HaveTheirVolumesAndGround) {
    const Space& row = GetParam();
    MakeCase(row.shape, row.lines);
    CalcVolumes(row.shape);
    EXPECT_NEAR(heatBalance.VolumeB, row.volumeB, 1e-9);
    EXPECT_NEAR(heatBalance.VolumeG, row.volumeG, 1e-9);
    PrepareShapeConstants(row.shape);
    EXPECT_NEAR(heatBalance.GroundResistance, row.resistance, 1e-6);
}

INSTANTIATE_TEST_SUITE_P(
    All, Spaces,
    testing::Values(
        Space{"U", 1, "", 3780 - 1080, 1080 + 300, 0.7 * 10 / 120 + 2.2 * 110 / 120},
        Space{"U with a flat roof", 1, "DIMENSION_TILT\t0\n", 2700, 1080, 2.075},
        Space{"U as its dialog offers it", 1, "DIMENSION_DEPTHG\t10\nDIMENSION_TILT\t30\n", 2880,
              900 + 250 / std::sqrt(3.0), 0.7 * 0.1 + 2.2 * 0.9},
        Space{"O has no edge", 2, "", 2700, 1380, 2.2},
        Space{"V", 3, "", 20 * 17 * 9, 400 + 160, (0.7 * 26 + 2.2 * 54) / 80},
        Space{"V deeper than its roof is high", 3, "DIMENSION_OFFD\t12\n", 1620, 720 * -1 + 1440,
              (0.7 * 42 + 2.2 * 198) / 240},
        Space{"I", 4, "", 1890, 1890 + 525, (0.7 * 20 + 2.2 * 190) / 210}));

struct Loss {
    const char* fault;
    int shape;
    const char* lines;
    double uaGlazing;
    double uaWalls;
    double volumeB;
    double volumeG;
};
const Loss kLosses[] = {
    {"U", 1,
     "XU201-S_GLAZEDID\tClear1\nXU205-E_GLAZEDID\tLowE-3, 1\nXU102-E_WALLTYPE\tWallB2\n"
     "XU102-E_PCNTW\t-999999\nXU103-N_PCNTW\t50\nXU103-N_GLAZEDID\tWallB2, 2\n",
     90 * 5.8 + 50 * 2.8 + 60 * kRoot2 * (2.8 + 1.1) + 120 / (1 / 0.4 + 2.075),
     108 * (0.8 * 0.5 + 0.2 * 1.1) + 108 * 0.25 + 90 * (0.5 * 0.5 + 0.5 * 0.25), 2700, 1380},
    {"O", 2, "XO204-E_GLAZEDID\tLowE-3\nXO104-E_WALLTYPE\tWallB2\n",
     50 * 2.8 + 60 * kRoot2 * (2.8 + 1.1) + 120 / (1 / 0.4 + 2.2),
     288 * (0.8 * 0.5 + 0.2 * 1.1) + 108 * (0.8 * 0.25 + 0.2 * 1.1), 2700, 1380},
    {"V, opaque roof", 3, "XV206-S_GLAZEDID\tWallB2, 2\nXV204-W_GLAZEDID\tClear1\n",
     140 * 2.8 + 8 * (5.8 + 2.8) + 80 * kRoot2 * 0.25 + 80 / (1 / 0.4 + 1.7125), 100 * 0.62, 3060, 560},
    {"I", 4, "XI206-E_GLAZEDID\tLowE-3\n",
     230 * 2.8 + 105 * kRoot2 * (2.8 + 1.1) + 210 / (1 / 0.4 + 432.0 / 210), 378 * 0.62, 1890, 2415},
};

class Losses : public Balance, public testing::WithParamInterface<Loss> {};

// Forced ventilation of 100 l/s from the building is 360 m3/h; the air carries 0.33 Wh/m3K.
TEST_P(Losses, SettleTemperatureAndPower) {
    const Loss& row = GetParam();
    MakeCase(row.shape, row.lines);
    ReadHvacData();
    PrepareShapeConstants(row.shape);
    const double outwards = row.uaGlazing + 0.33 * 1.5 * row.volumeG;
    const double inwards = row.uaWalls + 0.33 * 360;
    for (int month = 1; month <= 12; ++month) {
        const double tempOut = -15 + 3 * month;
        RunMonth(row.shape, month, tempOut);
        EXPECT_NEAR(heatBalance.TempGFree,
                    (outwards * tempOut + inwards * 23) / (outwards + inwards), 1e-4) << month;
        const double power = outwards * (5 - tempOut) - inwards * (23 - 5);
        EXPECT_NEAR(heatBalance.HeatDemandG, std::max(power, 0.0), 0.02) << month;
        EXPECT_EQ(heatBalance.TempOut, tempOut);
    }
    EXPECT_NEAR(heatBalance.UAGlazing, row.uaGlazing, 1e-3);
    EXPECT_NEAR(heatBalance.UAWalls, row.uaWalls, 1e-4);
    EXPECT_EQ(heatBalance.HeatDemandG, 0) << "a warm month asks for cooling";
    EXPECT_TRUE(prompts.shown.empty());
}

INSTANTIATE_TEST_SUITE_P(All, Losses, testing::ValuesIn(kLosses));

struct Glazing {
    const char* fault;  // also the value of the row
    double u;
    const char* message;
};
const Glazing kGlazings[] = {
    {"Clear2", 2.8, nullptr},          {"Clear2, 1", 2.8, nullptr},
    {"WallB2, 2", 0.25, nullptr},      {"WallB2, 5", 0.25, nullptr},
    {"WallB2, 0", 0.25, nullptr},      {"-999999", 5.8, nullptr},
    {"-999999, 2", 0.5, nullptr},      {"WallB2", 5.8, " Glazing not found,default used WallB2"},
    {"Clear2, 2", 0.5, " Wall type not found,default used Clear2"},
    {"Clear2 ", 5.8, " Glazing not found,default used Clear2 "},
};

TEST_F(Balance, KindDecidesWhereANameIsLookedUp) {
    MakeCase(kShapeV, "");
    for (const Glazing& row : kGlazings) {
        for (const auto& [id, u] : {std::pair{"XV101-S", &ElementRecord::windowU},
                                    std::pair{"XV206-S", &ElementRecord::u}}) {
            prompts.shown.clear();
            StageCaseProperty(id, "GLAZEDID", row.fault);
            ElementRecord record;
            ElementData(kShapeV, id, record);
            EXPECT_FLOAT_EQ(record.*u, static_cast<float>(row.u)) << id << " " << row.fault;
            EXPECT_EQ(prompts.Texts(), row.message ? Texts{row.message} : Texts{}) << row.fault;
            EXPECT_EQ(session.ElementKindMark, 0) << "the kind leaks into the next stored row";
        }
    }
}

struct Setting {
    const char* fault;
    const char* lines;
    double HeatBalance::*value;
    double wanted;
};
const Setting kSettings[] = {
    {"narrow band is no set point", "HVACB_HEATING\t21\nHVACB_COOLING\t25\n", &HeatBalance::TempB, 20},
    {"band of just 5", "HVACB_HEATING\t21\n", &HeatBalance::TempB, 20},
    {"wide band", "", &HeatBalance::TempB, 23},
    {"band upside down", "HVACB_HEATING\t30\nHVACB_COOLING\t20\n", &HeatBalance::TempB, 25},
    {"one missing", "HVACB_COOLING\t-999999\n", &HeatBalance::TempB, 20},
    {"set point missing", "HVACG_HEATING\t-999999\n", &HeatBalance::SetPointG, -100},
    {"no demand without a set point", "HVACG_HEATING\t-999999\n", &HeatBalance::HeatDemandG, 0},
    {"flow from the glazed space", "HVAC_FVI\t1\n", &HeatBalance::AirChangeG, 1.5 + 360.0 / 1380},
    {"flow from the glazed space, building", "HVAC_FVI\t1\n", &HeatBalance::AirChangeB, 0},
    {"flow from the building", "", &HeatBalance::AirChangeB, 360.0 / 2700},
    {"flow from the building, glazed space", "", &HeatBalance::AirChangeG, 1.5},
    {"unknown mode, G", "HVAC_FVI\t3\n", &HeatBalance::AirChangeG, 1.5},
    {"unknown mode, B", "HVAC_FVI\t3\n", &HeatBalance::AirChangeB, 0},
    {"flow missing", "HVAC_FVV\t-999999\n", &HeatBalance::AirChangeB, 0},
    {"absorptance missing", "", &HeatBalance::SunPanelFactor, 0.8 * std::pow(0.5, 0.4)},
    {"absorptance", "ABSXS1_ABSX1\t70\n", &HeatBalance::SunPanelFactor, 0.8 * std::pow(0.7, 0.4)},
    {"absorptance too low", "ABSXS1_ABSX1\t5\n", &HeatBalance::SunPanelFactor, 0.8 * std::pow(0.1, 0.4)},
};

class Settings : public Balance, public testing::WithParamInterface<Setting> {};

TEST_P(Settings, AreRead) {
    heatBalance.AirChangeB = 7;  // of the case before
    MakeCase(kShapeU, GetParam().lines);
    ReadHvacData();
    PrepareShapeConstants(kShapeU);
    for (int month = 1; month <= 3; ++month) RunMonth(kShapeU, month, -10);
    EXPECT_NEAR(heatBalance.*GetParam().value, GetParam().wanted, 1e-9);
}

INSTANTIATE_TEST_SUITE_P(All, Settings, testing::ValuesIn(kSettings));

TEST_F(Balance, MissingFiguresAreToldOrStandForThemselves) {
    MakeCase(kShapeU, "TDG_POWDEMHEAT\t1500\nTDG_ENERDEMHEAT\t12,5\nTDG_ENERDEMCOOL\t-999999\n");
    ReadHvacData();
    EXPECT_TRUE(prompts.shown.empty());
    EXPECT_EQ(heatBalance.PowerDemandMax, 1500);
    EXPECT_EQ(heatBalance.HeatEnergyMax, 12500);
    EXPECT_EQ(heatBalance.CoolEnergyMax, -1);
    StageCaseProperty("HVACG", "INF", "-999999");
    StageCaseProperty("TDG", "TDGMEAN", "-999999");
    ReadHvacData();
    EXPECT_EQ(heatBalance.AirChangeG, 0);
    EXPECT_EQ(heatBalance.TdgMean, 10);
    EXPECT_EQ(prompts.Texts(), (Texts{" Missing value for HVACG-INF, set to 0",
                                      " Missing value for TDGMEAN, set to 10"}));
}

TEST_F(Balance, NothingToDivideByStopsTheRunAndNamesTheCase) {
    MakeCase(kShapeU, "DIMENSION_DEPTHG\t-999999\nXU104-F_WALLTYPE\tZero\n");
    testing_support::PutBytes(project + "/SimpWalls.lib", "t\r\nh\r\n1\tZero\t0\r\n");
    for (const auto& [what, step] : std::initializer_list<std::pair<const char*, std::function<void()>>>{
             {"floor area", [] { PrepareShapeConstants(kShapeU); }},
             {"XU104-F", [] { SumElementLosses(kShapeU); }},
             {"sum of the glazed space's losses", [] { CalcGlazedSpaceTemperature(); }}}) {
        heatBalance = {};
        try {
            step();
            ADD_FAILURE() << what;
        } catch (const RunError& error) {
            EXPECT_NE(std::string(error.what()).find("ushape1"), std::string::npos) << error.what();
            EXPECT_NE(std::string(error.what()).find(what), std::string::npos) << error.what();
        }
    }
}

struct Sun {
    const char* fault;
    const char* lines;
    std::size_t direction;  // index of the one place that holds 100 kWh/m2
    std::size_t tilt;
    double area;  // that lies there
};
const Sun kSuns[] = {
    {"roof at its own tilt and direction", "XU204-W_ORIENTATION\t270\n", 28, 4, 60 * kRoot2},
    {"the last tenth", "XU204-W_ORIENTATION\t279,9\n", 28, 4, 60 * kRoot2},
    {"past the full turn", "XU204-W_ORIENTATION\t270\nROTATION_ANGLE\t105\n", 2, 4, 60 * kRoot2},
    {"just the full turn", "XU204-W_ORIENTATION\t270\nROTATION_ANGLE\t90\n", 1, 4, 60 * kRoot2},
    {"before the start", "XU204-W_ORIENTATION\t10\nROTATION_ANGLE\t-100\n", 28, 4, 60 * kRoot2},
    {"front and gables are vertical", "XU204-W_ORIENTATION\t90\n", 1, 9, 90 + 25 + 25},
    {"flat roofs read the horizontal, wherever they face",
     "DIMENSION_TILT\t0\nXU204-W_ORIENTATION\t300\n", 0, 0, 2 * 60},
    {"missing tilt is 30", "DIMENSION_TILT\t-999999\n", 1, 3, 2 * 120 / std::sqrt(3.0)},
    {"280 degrees", "XU204-W_ORIENTATION\t280\n", 1, 4, -1},
    {"orientation missing", "XU204-W_ORIENTATION\t-999999\n", 1, 4, -1},
};

class Suns : public Balance, public testing::WithParamInterface<Sun> {};

// The window of the first element serves all: LowE-3 lets 0.45 through, its reference of three panes
// 0.6, so 100 kWh become 75.
TEST_P(Suns, FindTheirPlaceInTheRadiationTable) {
    const Sun& row = GetParam();
    MakeCase(kShapeU, std::string("XU201-S_GLAZEDID\tLowE-3\n") + row.lines);
    climateTables.SolarTable[3][6][row.direction][row.tilt] = 100;
    if (row.area < 0) {
        EXPECT_THROW(CalcSolarGain(kShapeU, 6), RunError);
        return;
    }
    CalcSolarGain(kShapeU, 6);
    EXPECT_NEAR(heatBalance.SolarGainG, row.area * 75, 0.01);
    CalcSolarGain(kShapeU, 7);
    EXPECT_EQ(heatBalance.SolarGainG, 0);
}

INSTANTIATE_TEST_SUITE_P(All, Suns, testing::ValuesIn(kSuns));

}  // namespace
}  // namespace verandis
