#pragma once

#include <array>
#include <optional>
#include <string_view>

// The monthly balance of the glazed space: one node between the outdoor air and the building. Each
// routine works on the open case and on the one state below, in the order in which a run calls
// them.

namespace verandis {

inline constexpr double kNoSetPoint = -100;  // C, in place of a heating set point that is not given
inline constexpr float kNoDemand = -1;       // in place of a demand that is not given

/// State of the balance; it stays as the last case left it. A test starts anew with
/// `heatBalance = {}`.
struct HeatBalance {
    float UAGlazing = 0;               // W/K, glazed space to outdoors and ground
    double UAWalls = 0;                // W/K, glazed space to building
    double VolumeG = 0;                // m3, glazed space
    double VolumeB = 0;                // m3, building without the glazed space
    double AirChangeG = 0;             // 1/h
    double AirChangeB = 0;             // 1/h
    double SetPointG = kNoSetPoint;    // C, heating set point of the glazed space
    double TempB = 0;                  // C, indoor temperature of the building
    double TempOut = 0;                // C, mean of this month
    double SecondClimateField = 0;     // kept beside it, not used
    double TempGFree = 0;              // C, glazed space without heating
    double HeatDemandG = 0;            // W
    float TdgMean = 0;                 // C, demand of the designer
    std::optional<double> TdgMin;      // C, demand of the designer, when he gave one
    float PowerDemandMax = kNoDemand;  // W
    float HeatEnergyMax = kNoDemand;   // Wh
    float CoolEnergyMax = kNoDemand;   // Wh
    float GroundResistance = 0;        // m2K/W, floor of the glazed space to the ground
    float SolarGainG = 0;              // kWh of the month through the glazing; no equation uses it
    double SunPanelFactor = 0;         // no equation uses it
    std::array<int, 13> MonthHours{};  // from 1
    int MonthHoursNow = 0;             // hours of this month; no equation uses it
};

extern HeatBalance heatBalance;

/// What the balance needs of one element.
struct ElementRecord {
    float u = 0;           // W/m2K
    float area = 0;        // m2
    float windowPart = 0;  // 0 to 1
    float windowU = 0;     // W/m2K
};

/// Sets the hours of the months, February always 672.
void ResetMonthHours();

/// Reads infiltration, temperatures and demands of the open case. A missing infiltration or mean
/// temperature shows a message and takes a default.
void ReadHvacData();

/// Sets `GroundResistance` from the floor's edge band of 1 m and its core; 0 for an unknown shape.
/// Throws RunError for a floor without area.
void PrepareShapeConstants(int shape);

/// Fills the record of an element of the balance; zeros for an id that the shape does not know.
void ElementData(int shape, std::string_view id, ElementRecord& record);

/// Sets `UAGlazing` and `UAWalls`.
void SumElementLosses(int shape);

/// Sets `VolumeG` and `VolumeB`.
void CalcVolumes(int shape);

/// One month's climate and solar sums; month 1 also fixes elements, volumes and forced ventilation
/// for the whole year, so months run from 1 upward.
void CalcMonthBalance(int shape, int month);

/// Sets `TempGFree` of the month.
void CalcGlazedSpaceTemperature();

/// Sets `HeatDemandG` of the month: never negative, 0 without a set point.
void CalcDemands();

}  // namespace verandis
