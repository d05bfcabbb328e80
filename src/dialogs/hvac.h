#pragma once

#include <optional>

#include "dialogs/hvac_fields.h"

// What the dialog of set points, infiltration, internal loads and forced ventilation decides. Its
// boxes end in G for the glazed space and in B for the building.

namespace verandis {

/// The controls' contents.
struct HvacTexts {
    ConditionTexts boxes;
    int CMBFV = 0;  // row of the list: 0 none, 1 into the building, 2 into the glazed space

    friend bool operator==(const HvacTexts&, const HvacTexts&) = default;
};

/// What the open case holds. An unknown ventilation mode counts as none.
HvacTexts LoadHvac();

/// The rows of `CMBFV` in the session's language.
std::vector<std::string> ForcedFlowRows();

/// True when a forced flow is to be typed at this row of `CMBFV`.
bool ForcedFlowInUse(int row);

/// Chooses a row of `CMBFV`: without forced ventilation the flow goes blank.
void ChooseForcedFlow(HvacTexts& texts, int row);

/// Checks all boxes; the last note decides the focus, which for some boxes is another one.
ConditionComplaints CheckHvac(const HvacTexts& texts);

/// The message on an amount that must be a number of at least 0, nothing when it is: catalogue text
/// `head`, then the tail of another from character `tail`, or that it is below 0. Without a
/// catalogue the message is there, but blank.
std::optional<std::string> AmountComplaint(int head, std::size_t tail, bool isNumber, double value);

/// Stores checked texts in the open case and tells of the change. False when the file cannot be
/// written, after its message.
bool StoreHvac(const HvacTexts& texts);

}  // namespace verandis
