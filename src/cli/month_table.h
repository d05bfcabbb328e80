#pragma once

#include <string>
#include <vector>

#include "calc/results.h"
#include "case/shapes.h"

namespace verandis {

/// A calculated slot: where it stands in the run and what the run left.
struct CalculatedCase {
    Slot slot;
    std::string climate;  // base name of its climate file
    CaseResult result;
    RunResults::Year months;
};

/// The slots of the last run with their results.
std::vector<CalculatedCase> CalculatedCases();

/// The months side by side, three columns a case, with a legend; lines ended by a line feed.
std::string MonthTable(const std::vector<CalculatedCase>& cases);

/// The same as comma-separated values, one line a case and month.
std::string MonthCsv(const std::vector<CalculatedCase>& cases);

/// The same as JSON.
std::string MonthJson(const std::vector<CalculatedCase>& cases);

}  // namespace verandis
