#pragma once

#include <string>

#include "case/shapes.h"

namespace verandis {

/// Puts "ushape", "oshape", "vshape" or "ishape" into `session.PropertyValue`; another shape number
/// leaves it untouched.
void SlotWord(int shape);

/// Opens the case of a slot, so that property reads and writes work on it. Neither the active shape
/// nor the active case number of the window change. The last argument is not used. False when the
/// case list has no such row; the open case then stays.
bool ActivateSlot(int caseNo, int shape, const std::string& ignored);

/// True when the open case is the slot that the window edits.
bool EditedSlotIsOpen();

/// Makes the open case the slot that the window edits when it is one of the sixteen. False, and
/// nothing changed, when it is none.
bool EditOpenCase();

/// Opens the slot that the window edits again; whatever loops over slots ends with it.
void ReactivateEditedSlot();

}  // namespace verandis
