#pragma once

#include <array>
#include <string>

#include "calc/results.h"

namespace verandis {

/// A figure that tables of months tell of a calculated case.
struct MonthColumn {
    const char* head;
    int word;  // catalogue text of what the head stands for
    const char* unit;
    const char* key;  // in data files
    float MonthResult::*value;
    int decimals;
};

inline constexpr std::array<MonthColumn, 3> kMonthColumns = {{
    {"To", 413, "°C", "tempOut", &MonthResult::TempOut, 1},
    {"Tg", 414, "°C", "tempGFree", &MonthResult::Tmin, 1},
    {"Ph", 415, "W", "heatDemandG", &MonthResult::Ph, 0},
}};

/// Catalogue texts of the two lines below the months.
inline constexpr int kMeanWord = 424;
inline constexpr int kLargestWord = 425;

/// Mean of the twelve months.
double MeanOf(const RunResults::Year& year, float MonthResult::*value);

/// Largest of the twelve months.
double LargestOf(const RunResults::Year& year, float MonthResult::*value);

/// A cell of a table: the column's decimals, a point as the decimal sign.
std::string MonthCell(double value, const MonthColumn& column);

}  // namespace verandis
