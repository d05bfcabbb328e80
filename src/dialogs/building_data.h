#pragma once

#include <span>
#include <string>

// What the form that leads to the dialogs of a case shows: a row for each kind of data.

namespace verandis {

/// What is edited behind a row.
enum class CaseData { Site, Dimensions, Walls, Glazing, Hvac, Demands };

inline constexpr int kCaseDataCount = 6;

/// One row: an option and a label that both lead to the same dialog.
struct CaseDataRow {
    CaseData data;
    const char* option;  // objectName
    const char* label;   // objectName; empty when there is none
    int caption;         // catalogue texts
    int tip;
};

/// The rows in the order of `CaseData`.
std::span<const CaseDataRow> CaseDataRows();

/// What the active case has stored of a kind of data, in one short line; empty without a case or
/// its file. Shows no message.
std::string StoredState(CaseData data);

}  // namespace verandis
