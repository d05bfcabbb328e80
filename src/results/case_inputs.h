#pragma once

#include <optional>
#include <string>
#include <vector>

#include "case/shapes.h"

// What a designer has entered in a case, row by row, in words: for reports and comparisons.

namespace verandis {

/// One input of a case.
struct CaseInput {
    std::string section;
    std::string key;
    std::string reportSection;  // where a report looks instead, when not empty
    std::string label;     // in the session's language; an element's row begins with its identifier
    std::string words;     // the label in a comparison: which surface it is, in words
    std::string suffix;    // between label and value in a report, such as " (m): "
    std::string unit;      // "m"; empty for words
    bool element = false;  // of one building element
};

/// The inputs of a shape, in the order of a report.
std::vector<CaseInput> InputsOf(int shape);

/// A working or saved case as lines of its property file.
struct ReportCase {
    std::string name;  // "U1", or the saved file's name
    Slot slot;
    std::vector<std::string> lines;
};

/// A slot of the open project as it stands; without lines when it has no file.
ReportCase WorkingCase(const Slot& slot);

/// A saved case of the open project; nothing when it cannot be read or its name tells no slot.
std::optional<ReportCase> SavedReportCase(const std::string& file);

/// The value of an input as a report shows it: a number in the session's decimal form, words as
/// they stand, "-" when it is not set.
std::string ShownValue(const ReportCase& each, const CaseInput& input);

}  // namespace verandis
