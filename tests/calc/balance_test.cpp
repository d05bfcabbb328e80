#include <gtest/gtest.h>

#include <cmath>
#include <functional>

#include "calc/climate_file.h"
#include "calc/geometry.h"
#include "calc/heat_balance.h"
#include "calc/solar_gain.h"
#include "case/property_file.h"
#include "platform/errors.h"
#include "support/session_test.h"
#include "text/separators.h"

// The balance against figures worked by hand. All cases stand on one set of dimensions; its roof of
// 45 degrees has the tangent 1, so that a gable over W = 10 rises by 5.

namespace verandis {
namespace {

using Texts = std::vector<std::string>;
const double kRoot2 = std::sqrt(2.0);

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
        climateTables.ClimateMonths[static_cast<std::size_t>(month)][1] =
            static_cast<float>(tempOut);
        CalcMonthBalance(shape, month);
        CalcGlazedSpaceTemperature();
        CalcDemands();
    }
};

struct Areas {
    int shape;
    double area;
    const char* ids;
};
const Areas kAreas[] = {
    {1, 90, "XU201-S XU103-N"},
    {1, 25, "XU202-S XU203-N"},
    {1, 60 * kRoot2, "XU204-W XU205-E"},
    {1, 108, "XU101-W XU102-E"},
    {1, 120, "XU104-F"},
    {1, 0, "XU204 xu201-s XO201-S"},
    {2, 25, "XO201-S XO202-N"},
    {2, 60 * kRoot2, "XO203-W XO204-E"},
    {2, 90, "XO101-S XO103-N"},
    {2, 108, "XO102-W XO104-E"},
    {2, 120, "XO105-F"},
    // The lean-to is as wide as the building and 4 deep; its low side is 9 - 4 = 5 high.
    {3, 20, "XV201-W XV202-E"},
    {3, 100, "XV203-S XV101-S"},
    {3, 8, "XV204-W XV205-E"},
    {3, 80 * kRoot2, "XV206-S"},
    {3, 80, "XV102-F"},
    // The street of shape I is as deep as the building, 21, whatever DEPTHG says.
    {4, 90, "XI201-S XI202-N"},
    {4, 25, "XI203-S XI204-N"},
    {4, 105 * kRoot2, "XI205-W XI206-E"},
    {4, 189, "XI101-W XI102-E"},
    {4, 210, "XI103-F"},
};

TEST_F(Balance, EveryElementHasItsArea) {
    for (const Areas& row : kAreas) {
        MakeCase(row.shape, "");
        for (std::string_view ids = row.ids; !ids.empty();) {
            const std::string id(TakeUpTo(ids, ' '));
            ElementRecord record;
            ElementData(row.shape, id, record);
            EXPECT_NEAR(record.area, row.area, 1e-4) << id << " in shape " << row.shape;
            const double glazed = id[2] == '2' ? row.area : 0;
            EXPECT_NEAR(GlazedElementArea(row.shape, id, 45), glazed, 1e-4) << id;
        }
    }
}

struct Space {
    const char* fault;
    int shape;
    const char* lines;
    double volumeB;
    double volumeG;
    double resistance;  // 0.7 for the edge band of 1 m, 2.2 for the core, by their parts
};
const Space kSpaces[] = {
    {"U", 1, "", 3780 - 1080, 1080 + 300, (0.7 * 10 + 2.2 * 110) / 120},
    {"U with a flat roof", 1, "DIMENSION_TILT\t0\n", 2700, 1080, 2.075},
    {"U as its dialog offers it", 1, "DIMENSION_DEPTHG\t10\nDIMENSION_TILT\t30\n", 2880,
     900 + 250 / std::sqrt(3.0), 0.7 * 0.1 + 2.2 * 0.9},
    {"O has no edge", 2, "", 2700, 1380, 2.2},
    {"V", 3, "", 20 * 17 * 9, 400 + 160, (0.7 * 26 + 2.2 * 54) / 80},
    {"V deeper than it is high", 3, "DIMENSION_OFFD\t12\n", 1620, -720 + 1440,
     (0.7 * 42 + 2.2 * 198) / 240},
    {"I", 4, "", 1890, 1890 + 525, (0.7 * 20 + 2.2 * 190) / 210},
};

TEST_F(Balance, SpacesHaveTheirVolumesAndGround) {
    for (const Space& row : kSpaces) {
        MakeCase(row.shape, row.lines);
        CalcVolumes(row.shape);
        PrepareShapeConstants(row.shape);
        EXPECT_NEAR(heatBalance.VolumeB, row.volumeB, 1e-9) << row.fault;
        EXPECT_NEAR(heatBalance.VolumeG, row.volumeG, 1e-9) << row.fault;
        EXPECT_NEAR(heatBalance.GroundResistance, row.resistance, 1e-6) << row.fault;
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

struct Glazing {
    const char* value;
    double u;
    const char* message;
};
const Glazing kGlazings[] = {
    {"Clear2", 2.8, nullptr},
    {"Clear2, 1", 2.8, nullptr},
    {"WallB2, 2", 0.25, nullptr},
    {"WallB2, 5", 0.25, nullptr},
    {"-999999", 5.8, nullptr},
    {"-999999, 2", 0.5, nullptr},
    {"WallB2", 5.8, " Glazing not found,default used WallB2"},
    {"Clear2, 2", 0.5, " Wall type not found,default used Clear2"},
    {"Clear2 ", 5.8, " Glazing not found,default used Clear2 "},
};

TEST_F(Balance, KindDecidesWhereANameIsLookedUp) {
    MakeCase(kShapeV, "");
    for (const Glazing& row : kGlazings) {
        for (const auto& [id, u] : {std::pair{"XV101-S", &ElementRecord::windowU},
                                    std::pair{"XV206-S", &ElementRecord::u}}) {
            SCOPED_TRACE(std::string(id) + " " + row.value);
            prompts.shown.clear();
            StageCaseProperty(id, "GLAZEDID", row.value);
            ElementRecord record;
            ElementData(kShapeV, id, record);
            EXPECT_FLOAT_EQ(record.*u, static_cast<float>(row.u));
            EXPECT_EQ(prompts.Texts(), row.message ? Texts{row.message} : Texts{});
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
    {"narrow band", "HVACB_HEATING\t21\nHVACB_COOLING\t25\n", &HeatBalance::TempB, 20},
    {"band of just 5", "HVACB_HEATING\t21\n", &HeatBalance::TempB, 20},
    {"wide band", "", &HeatBalance::TempB, 23},
    {"band upside down", "HVACB_HEATING\t30\nHVACB_COOLING\t20\n", &HeatBalance::TempB, 25},
    {"one missing", "HVACB_COOLING\t-999999\n", &HeatBalance::TempB, 20},
    {"no set point", "HVACG_HEATING\t-999999\n", &HeatBalance::SetPointG, -100},
    {"power without a set point", "HVACG_HEATING\t-999999\n", &HeatBalance::HeatDemandG, 0},
    {"flow out of the space", "HVAC_FVI\t1\n", &HeatBalance::AirChangeG, 1.5 + 360.0 / 1380},
    {"and none of the building", "HVAC_FVI\t1\n", &HeatBalance::AirChangeB, 0},
    {"flow out of the building", "", &HeatBalance::AirChangeB, 360.0 / 2700},
    {"and none of the space", "", &HeatBalance::AirChangeG, 1.5},
    {"unknown mode", "HVAC_FVI\t3\n", &HeatBalance::AirChangeB, 0},
    {"no flow told", "HVAC_FVV\t-999999\n", &HeatBalance::AirChangeB, 0},
    {"no absorptance", "", &HeatBalance::SunPanelFactor, 0.8 * std::pow(0.5, 0.4)},
    {"absorptance", "ABSXS1_ABSX1\t70\n", &HeatBalance::SunPanelFactor, 0.8 * std::pow(0.7, 0.4)},
    {"dark", "ABSXS1_ABSX1\t5\n", &HeatBalance::SunPanelFactor, 0.8 * std::pow(0.1, 0.4)},
};

TEST_F(Balance, SettingsAreReadAndHoldForTheYear) {
    for (const Setting& row : kSettings) {
        MakeCase(kShapeU, row.lines);
        heatBalance.AirChangeB = 7;  // of the case before
        ReadHvacData();
        PrepareShapeConstants(kShapeU);
        for (int month = 1; month <= 3; ++month) RunMonth(kShapeU, month, -10);
        EXPECT_NEAR(heatBalance.*row.value, row.wanted, 1e-9) << row.fault;
    }
}

TEST_F(Balance, MissingFiguresAreToldOrStandForThemselves) {
    MakeCase(kShapeU, "TDG_POWDEMHEAT\t1500\nTDG_ENERDEMHEAT\t12,5\n");
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
    const std::pair<const char*, std::function<void()>> steps[] = {
        {"floor area", [] { PrepareShapeConstants(kShapeU); }},
        {"XU104-F", [] { SumElementLosses(kShapeU); }},
        {"sum of the glazed space's losses",
         [] { heatBalance = {}, CalcGlazedSpaceTemperature(); }}};
    for (const auto& [what, step] : steps) {
        try {
            step();
            ADD_FAILURE() << what;
        } catch (const RunError& error) {
            const std::string sentence = error.what();
            EXPECT_NE(sentence.find("ushape1"), std::string::npos) << sentence;
            EXPECT_NE(sentence.find(what), std::string::npos) << sentence;
        }
    }
}

struct Sun {
    const char* fault;
    const char* lines;
    std::size_t direction;  // index of the one place that holds 100 kWh/m2
    std::size_t tilt;
    double area;  // that lies there; negative when the run stops
};
const Sun kSuns[] = {
    {"roof", "XU204-W_ORIENTATION\t270\n", 28, 4, 60 * kRoot2},
    {"last tenth", "XU204-W_ORIENTATION\t279,9\n", 28, 4, 60 * kRoot2},
    {"past the turn", "XU204-W_ORIENTATION\t270\nROTATION_ANGLE\t105\n", 2, 4, 60 * kRoot2},
    {"full turn", "XU204-W_ORIENTATION\t270\nROTATION_ANGLE\t90\n", 1, 4, 60 * kRoot2},
    {"before the start", "XU204-W_ORIENTATION\t10\nROTATION_ANGLE\t-100\n", 28, 4, 60 * kRoot2},
    {"front and gables are vertical", "", 1, 9, 90 + 25 + 25},
    {"flat roof faces nowhere", "DIMENSION_TILT\t0\nXU204-W_ORIENTATION\t300\n", 0, 0, 2 * 60},
    {"missing tilt is 30", "DIMENSION_TILT\t-999999\n", 1, 3, 2 * 120 / std::sqrt(3.0)},
    {"280 degrees", "XU204-W_ORIENTATION\t280\n", 1, 4, -1},
    {"orientation missing", "XU204-W_ORIENTATION\t-999999\n", 1, 4, -1},
};

// The window of the first element serves all: LowE-3 lets 0.45 through, its reference of three
// panes 0.6, so 100 kWh become 75.
TEST_F(Balance, SunFindsItsPlaceInTheRadiationTable) {
    for (const Sun& row : kSuns) {
        SCOPED_TRACE(row.fault);
        MakeCase(kShapeU, std::string("XU201-S_GLAZEDID\tLowE-3\n") + row.lines);
        climateTables.SolarTable[3][6][row.direction][row.tilt] = 100;
        if (row.area < 0) {
            EXPECT_THROW(CalcSolarGain(kShapeU, 6), RunError);
            continue;
        }
        CalcSolarGain(kShapeU, 6);
        EXPECT_NEAR(heatBalance.SolarGainG, row.area * 75, 0.01);
    }
}

}  // namespace
}  // namespace verandis
