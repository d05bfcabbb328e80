#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "climate/climate_input.h"
#include "climate/weather_year.h"

namespace verandis {

/// The measured fields of an EPW row that are used here.
enum class EpwField : std::size_t {
    DryBulb,      // C
    DewPoint,     // C
    Humidity,     // %
    Infrared,     // W/m2, thermal radiation of the sky
    Global,       // W/m2 on the horizontal
    Direct,       // W/m2 facing the sun
    Diffuse,      // W/m2 on the horizontal
    Wind,         // m/s
    TotalCloud,   // tenths
    OpaqueCloud,  // tenths
    Count
};
inline constexpr std::size_t kEpwFields = static_cast<std::size_t>(EpwField::Count);

/// A field as messages name it, with its place in the row: "7 (dry bulb temperature)".
std::string EpwFieldName(EpwField field);

/// One hour of the file. A value that is missing or out of its bounds is absent.
struct EpwRow {
    int line = 0;
    std::array<std::optional<double>, kEpwFields> values;
    const std::optional<double>& At(EpwField field) const { return values[std::size_t(field)]; }
};

/// What reading gave. `rows` are the 8760 hours without a leap day. With a fault nothing of it is
/// to be used. `doubts` names the values out of bounds; absent values are not in it.
struct EpwReading {
    ClimateSite site;
    std::vector<EpwRow> rows;
    std::vector<ClimateDoubt> doubts;
    std::optional<ClimateFault> fault;
};

/// Reads the lines of an EPW weather file: 8 header lines, then one row an hour, with or without
/// 29 February, in whatever years; rows of commas at the end are dropped. Never throws, whatever
/// the lines hold.
EpwReading ReadEpw(const std::vector<std::string>& lines);

}  // namespace verandis
