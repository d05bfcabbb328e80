#include "calc/marked_slots.h"

#include "platform/errors.h"
#include "projects/slot_activation.h"

namespace verandis {

std::vector<Slot> MarkedSlots() {
    std::vector<Slot> marked;
    for (const Slot& slot : AllSlots()) {
        const auto shape = static_cast<std::size_t>(slot.shape);
        if (session.CaseMarks[shape][static_cast<std::size_t>(slot.caseNo)] == 1) {
            marked.push_back(slot);
        }
    }
    return marked;
}

void ActivateForRun(const Slot& slot) {
    if (ActivateSlot(slot.caseNo, slot.shape, "")) return;
    throw RunError("Slot " + SlotLabel(slot) + " is not in the case list of the project " +
                   session.ProjectFolder);
}

}  // namespace verandis
