#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>

#include "app/session.h"

namespace verandis {

inline constexpr int kMonths = 12;

/// One month of one marked case. Nothing in the steady-state calculation gives a value to the
/// places that are noted as always 0: they keep their position in diagrams and file.
struct MonthResult {
    float Tmin = 0;      // C, glazed-space temperature without heating
    float Tmean = 0;     // always 0
    float Ph = 0;        // W, heating power
    float Eh = 0;        // always 0
    float Ec = 0;        // always 0
    float Reserved = 0;  // always 0
    float TempOut = 0;   // C, mean outdoor temperature
};

/// The year's figures of one marked case: the demands that the design guide compares with
/// `Tmin`, `Tmean`, `Ph`, `Eh` and `Ec`, then its verdict.
struct CaseResult {
    float SetPointG = 0;          // C, -100 when not given
    float TdgMean = 0;            // C
    float PowerDemandMax = 0;     // W, -1 when not given
    float HeatEnergyMax = 0;      // Wh, -1 when not given
    float CoolEnergyMax = 0;      // Wh, -1 when not given
    std::string Verdict;          // "U" none yet, "T" redesign, "F" accepted
    float TempB = 0;              // C, indoor temperature of the building
    std::optional<float> TdgMin;  // C, the designer's demand on `Tmin` when he gave one
};

/// What the last run left for diagrams, guide and result files; one copy. Positions 1 to 4 are the
/// marked cases in the order of the run; place 0 is not used.
struct RunResults {
    using Year = std::array<MonthResult, kMonths + 1>;  // months from 1
    std::array<Year, kMostMarkedCases + 1> MonthResults{};
    std::array<CaseResult, kMostMarkedCases + 1> CaseResults{};
    SlotTable<std::string> SlotClimateLabels{};
    SlotTable<std::int16_t> CaseResultCount{};  // 1 when the slot's results are in the tables
    std::size_t RunPosition = 0;
};

extern RunResults runResults;

}  // namespace verandis
