#pragma once

#include <string>
#include <vector>

#include "results/case_inputs.h"

// What the window that compares cases decides.

namespace verandis {

/// The working slots that are marked when the window opens: those of the main window, at most as
/// many as a report takes.
std::vector<Slot> SlotsMarkedAtStart();

/// A row of the list of working slots: "U1  U-shape, Case 1", with the case's note behind it.
std::string WorkingSlotCaption(const Slot& slot);

/// The cases of these files and slots, as they stand on disk; what cannot be read is told by a
/// message and left out.
std::vector<ReportCase> ChosenCases(const std::vector<std::string>& files,
                                    const std::vector<Slot>& slots);

/// Names of the cases, parted by one blank.
std::string NamesOf(const std::vector<ReportCase>& cases);

/// The report of the cases, after it was written to the project folder; the lines come also when
/// the writing failed, which a message has told.
std::vector<std::string> MakeReport(const std::vector<ReportCase>& cases);

}  // namespace verandis
