#pragma once

#include <string>
#include <vector>

#include "results/case_inputs.h"

namespace verandis {

inline constexpr const char* kReportFile = "Slask.Res";  // in the project folder
inline constexpr std::size_t kMostReportCases = 4;

/// The report of the cases as lines: a head with date, time and the name of what was chosen, then
/// for each case its inputs, one a line.
std::vector<std::string> CaseReport(const std::string& chosen,
                                    const std::vector<ReportCase>& cases);

/// An input in which cases differ.
struct CaseDifference {
    std::string label;
    std::string unit;
    std::vector<std::string> values;  // one a case; "-" where it is not set or the shape lacks it
};

/// The inputs in which the cases differ, numbers compared as numbers, in the order of a report.
/// Rows of elements are compared among the cases of one shape: another shape has none of them.
std::vector<CaseDifference> WhatDiffers(const std::vector<ReportCase>& cases);

/// The differences as lines of cells parted by `separator`, below a line of heads.
std::vector<std::string> DifferenceLines(const std::vector<ReportCase>& cases,
                                         const std::string& separator);

/// Writes the report file, replacing it. False, after a message, when it cannot be written.
bool WriteReport(const std::vector<std::string>& lines);

}  // namespace verandis
