#pragma once

#include <span>

#include "dialogs/hvac_fields.h"

// What the dialog of the design demands decides. The design guide compares results with them.

namespace verandis {

/// A demand: its row, the largest number that is taken (the least is 0) and its messages.
struct DemandField {
    ConditionField field;
    double most;
    const char* wrong;    // no number
    const char* outside;  // out of bounds
};

/// The demands in the order of checking.
std::span<const DemandField> DemandFields();

/// The texts of the boxes for the open case.
ConditionTexts LoadDemands();

/// Checks every box; the last bad one gets the focus.
ConditionComplaints CheckDemands(const ConditionTexts& texts);

/// Stores checked texts in the open case and tells of the change. False when the file cannot be
/// written, after its message.
bool StoreDemands(const ConditionTexts& texts);

}  // namespace verandis
