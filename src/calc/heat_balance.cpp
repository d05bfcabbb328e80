#include "calc/heat_balance.h"

#include <cmath>

#include "app/session.h"
#include "calc/climate_file.h"
#include "calc/division.h"
#include "calc/geometry.h"
#include "calc/properties.h"
#include "calc/solar_gain.h"
#include "case/property_file.h"
#include "case/shapes.h"
#include "libraries/simple_libraries.h"
#include "platform/prompts.h"
#include "text/numbers.h"

namespace verandis {

HeatBalance heatBalance;

namespace {

constexpr float kAirConstantSingle = 0.33f;
constexpr double kAirConstant = kAirConstantSingle;  // Wh/m3K, at the precision of a single
constexpr double kDefaultBuildingTemperature = 20;   // C
constexpr double kNarrowBand = 5;                    // K
constexpr double kEdgeResistance = 0.7;              // m2K/W
constexpr double kCoreResistance = 2.2;              // m2K/W
constexpr int kWindowKind = 1;

/// A narrow band between heating and cooling counts as no set point at all.
double BuildingTemperature(std::optional<double> heating, std::optional<double> cooling) {
    if (!heating || !cooling) return kDefaultBuildingTemperature;
    if (std::abs(*cooling - *heating) <= kNarrowBand) return kDefaultBuildingTemperature;
    return (*heating + *cooling) / 2;
}

float DemandOf(std::string_view key, double scale) {
    const auto value = PropertyNumber("TDG", key);
    return value ? static_cast<float>(*value * scale) : kNoDemand;
}

/// U value of the window or wall that a GLAZEDID row names: a window without a kind or with kind 1.
double GlazingU(std::string_view id) {
    const NameAndKind glazing = SplitKind(PropertyText(id, "GLAZEDID"));
    session.ElementKindMark = static_cast<std::int16_t>(glazing.kind);
    session.PropertyValue = glazing.name;
    const bool window = !glazing.hasKind || glazing.kind == kWindowKind;
    return window ? WindowU(glazing.name) : WallU(glazing.name);
}

double WallTypeU(std::string_view id) {
    return WallU(PropertyText(id, "WALLTYPE"));
}

void FillPartition(std::string_view id, ElementRecord& record) {
    record.u = static_cast<float>(WallTypeU(id));
    record.windowPart = static_cast<float>(PropertyNumber(id, "PCNTW").value_or(0.0) * 0.01);
    record.windowU = static_cast<float>(GlazingU(id));
}

void AddForcedVentilation() {
    const auto mode = PropertyNumber("HVAC", "FVI");
    if (!mode) return;
    const double flow = PropertyNumber("HVAC", "FVV").value_or(0.0);  // l/s
    const double hourly = 3.6 * flow;                                 // m3/h
    HeatBalance& balance = heatBalance;
    if (*mode == 1)
        balance.AirChangeG += Divide(hourly, balance.VolumeG, "the glazed space's volume");
    if (*mode == 2) balance.AirChangeB += Divide(hourly, balance.VolumeB, "the building's volume");
}

/// Losses of the glazed space, W/K.
struct Losses {
    double toOutdoors;
    double toBuilding;
};

Losses SpaceLosses() {
    const HeatBalance& balance = heatBalance;
    return {kAirConstant * balance.AirChangeG * balance.VolumeG + double(balance.UAGlazing),
            kAirConstant * balance.AirChangeB * balance.VolumeB + balance.UAWalls};
}

/// The floor of the glazed space, m and m2.
struct FloorBands {
    double edge;
    double core;
    double whole;
};

FloorBands BandsOf(int shape) {
    const double width = SpaceWidth(shape);
    const double depth = SpaceDepth(shape);
    const double whole = depth * width;
    switch (shape) {
        case kShapeU: return {width, (depth - 1) * width, whole};
        case kShapeV: return {width + 2 * (depth - 1), (width - 2) * (depth - 1), whole};
        default: return {2 * width, (depth - 2) * width, whole};
    }
}

}  // namespace

void ResetMonthHours() {
    // No leap year: the figures of two runs stay comparable.
    heatBalance.MonthHours = {0, 744, 672, 744, 720, 744, 720, 744, 744, 720, 744, 720, 744};
}

void ReadHvacData() {
    HeatBalance& balance = heatBalance;
    const auto infiltration = PropertyNumber("HVACG", "INF");
    if (!infiltration) ShowMessage(" Missing value for HVACG-INF, set to 0");
    balance.AirChangeG = infiltration.value_or(0.0);
    balance.AirChangeB = 0;
    const auto heating = PropertyNumber("HVACB", "HEATING");
    const auto cooling = PropertyNumber("HVACB", "COOLING");
    balance.TempB = BuildingTemperature(heating, cooling);
    balance.SetPointG = PropertyNumber("HVACG", "HEATING").value_or(kNoSetPoint);
    const auto mean = PropertyNumber("TDG", "TDGMEAN");
    if (!mean) ShowMessage(" Missing value for TDGMEAN, set to 10");
    balance.TdgMean = static_cast<float>(mean.value_or(10.0));
    balance.PowerDemandMax = DemandOf("POWDEMHEAT", 1);
    balance.HeatEnergyMax = DemandOf("ENERDEMHEAT", 1000);
    balance.CoolEnergyMax = DemandOf("ENERDEMCOOL", 1000);
}

void PrepareShapeConstants(int shape) {
    heatBalance.GroundResistance = 0;
    if (!IsShape(shape)) return;
    if (shape == kShapeO) {  // enclosed on all sides: its floor has no edge to the outdoors
        heatBalance.GroundResistance = static_cast<float>(kCoreResistance);
        return;
    }
    const FloorBands floor = BandsOf(shape);
    constexpr const char* kArea = "the floor area of the glazed space";
    heatBalance.GroundResistance =
        static_cast<float>(kEdgeResistance * Divide(floor.edge, floor.whole, kArea) +
                           kCoreResistance * Divide(floor.core, floor.whole, kArea));
}

void ElementData(int shape, std::string_view id, ElementRecord& record) {
    record = {};
    ReadWindows();
    ReadWalls();
    const auto tilt = static_cast<float>(Dimension("TILT"));
    const SpaceElements& elements = SpaceElementsOf(shape);
    for (const GlazedElement& glazed : elements.glazed) {
        if (glazed.id != id) continue;
        record.area = AreaByRule(shape, glazed.rule, tilt);
        record.u = static_cast<float>(GlazingU(id));
    }
    if (elements.floor.id == id) {
        record.area = AreaByRule(shape, elements.floor.rule, tilt);
        record.u = static_cast<float>(WallTypeU(id));
    }
    for (const SpaceElement& wall : elements.partition) {
        if (wall.id != id) continue;
        record.area = AreaByRule(shape, wall.rule, tilt);
        FillPartition(id, record);
    }
    // The kind is told of this element only; a later write of another row must not carry it.
    session.ElementKindMark = 0;
}

void SumElementLosses(int shape) {
    HeatBalance& balance = heatBalance;
    const SpaceElements& elements = SpaceElementsOf(shape);
    ElementRecord record;
    balance.UAGlazing = 0;
    balance.UAWalls = 0;
    for (const GlazedElement& glazed : elements.glazed) {
        ElementData(shape, glazed.id, record);
        balance.UAGlazing += record.u * record.area;
    }
    const std::string_view floor = elements.floor.id;
    ElementData(shape, floor, record);
    const double resistance = Divide(1, record.u, "the floor's U value", floor);
    balance.UAGlazing +=
        static_cast<float>(Divide(record.area, resistance + double(balance.GroundResistance),
                                  "the floor's resistance to the ground", floor));
    for (const SpaceElement& wall : elements.partition) {
        ElementData(shape, wall.id, record);
        balance.UAWalls +=
            (1.0 - double(record.windowPart)) * double(record.u) * double(record.area) +
            double(record.area) * double(record.windowPart) * double(record.windowU);
    }
}

void CalcVolumes(int shape) {
    const Volumes volumes = CaseVolumes(shape);
    heatBalance.VolumeB = volumes.building;
    heatBalance.VolumeG = volumes.glazed;
}

void CalcMonthBalance(int shape, int month) {
    if (month == 1) {
        SumElementLosses(shape);
        CalcVolumes(shape);
        AddForcedVentilation();
    }
    CalcSunPanelFactor(shape);
    CalcSolarGain(shape, month);
    const auto& climate = climateTables.ClimateMonths[static_cast<std::size_t>(month)];
    heatBalance.TempOut = double(climate[1]);
    heatBalance.SecondClimateField = double(climate[2]);
}

void CalcGlazedSpaceTemperature() {
    HeatBalance& balance = heatBalance;
    const Losses losses = SpaceLosses();
    const auto total = static_cast<float>(kAirConstant * (balance.AirChangeG * balance.VolumeG +
                                                          balance.AirChangeB * balance.VolumeB) +
                                          balance.UAWalls + double(balance.UAGlazing));
    balance.TempGFree =
        Divide(balance.TempOut * losses.toOutdoors + balance.TempB * losses.toBuilding,
               double(total), "the sum of the glazed space's losses");
}

void CalcDemands() {
    HeatBalance& balance = heatBalance;
    balance.HeatDemandG = 0;
    if (balance.SetPointG == kNoSetPoint) return;
    const Losses losses = SpaceLosses();
    const double demand = (balance.SetPointG - balance.TempOut) * losses.toOutdoors -
                          (balance.TempB - balance.SetPointG) * losses.toBuilding;
    balance.HeatDemandG = demand < 0 ? 0 : demand;
}

}  // namespace verandis
