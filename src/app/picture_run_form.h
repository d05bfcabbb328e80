#pragma once

#include <string>
#include <vector>

namespace verandis {

/// A steady-state calculation without a window, and what it writes.
struct WindowlessRun {
    std::vector<std::string> labels;  // the slots, "U1" to "I4", as they stand
    std::string system;               // the data root; empty for that of the settings
    int language = 0;                 // 1 Swedish, 2 English; 0 for that of the settings
    std::string pictures;  // folder for each diagram as a PNG picture, made when it is missing
    std::string report;    // PDF file for the report of the run; either may be empty: not wanted
};

/// Calculates and writes. An exit code: 0 done, 1 for a label that names no slot, 2 when the run
/// stopped or something cannot be written; told by a message.
int RunWithoutWindow(const WindowlessRun& run);

}  // namespace verandis
