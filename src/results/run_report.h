#pragma once

#include <string>
#include <vector>

#include "results/case_inputs.h"
#include "results/diagrams.h"
#include "results/report_table.h"

// What a report of the last run holds, as data.

namespace verandis {

/// The head of a report.
struct ReportHead {
    std::string title;
    std::string when;     // date and time of the report
    std::string project;  // name of the open project
};

ReportHead HeadOfRunReport();

/// Name of the climate that a slot was calculated with, which may have changed since; empty when it
/// has no results.
std::string ClimateOfRun(const Slot& slot);

/// The inputs in which the cases differ, one column a case; without rows, and with a remark, when
/// nothing differs or there is nothing to compare.
ReportTable DifferenceTable(const std::vector<ReportCase>& cases);

/// The tables of the last run in their order: its cases with climate and note, what differs
/// between them (when there are several), the months, and for each case the guide's verdict with
/// the demands and the months that are furthest from them. Inputs are read as they stand now. Empty
/// without results.
std::vector<ReportTable> RunReportTables();

/// The steady-state diagrams that tell something: one that repeats the curves of another, or whose
/// curves are all zero, is left out. Empty without results.
std::vector<Diagram> ReportDiagrams();

}  // namespace verandis
