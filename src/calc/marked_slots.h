#pragma once

#include <vector>

#include "case/shapes.h"

namespace verandis {

/// The marked slots in the order of every run: U, O, V, I, and cases rising. A slot's place in it,
/// from 1, is its run position.
std::vector<Slot> MarkedSlots();

/// Opens the case of a slot; throws RunError when the case list does not hold it.
void ActivateForRun(const Slot& slot);

}  // namespace verandis
