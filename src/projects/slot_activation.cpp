#include "projects/slot_activation.h"

#include "projects/case_list.h"
#include "text/characters.h"

namespace verandis {

void SlotWord(int shape) {
    if (IsShape(shape)) session.PropertyValue = WordsOf(shape).word;
}

bool ActivateSlot(int caseNo, int shape, const std::string& /*ignored*/) {
    if (IsShape(shape)) session.PropertyValue = SlotCaseName({shape, caseNo});
    const auto row = FindCase(session.PropertyValue);
    if (!row) return false;
    OpenCase(*row);
    return true;
}

bool EditedSlotIsOpen() {
    return IsShape(session.ActiveShape) &&
           EqualNoCase(session.CaseName, SlotCaseName({session.ActiveShape, session.ActiveCaseNo}));
}

bool EditOpenCase() {
    for (const Slot& slot : AllSlots()) {
        if (!EqualNoCase(session.CaseName, SlotCaseName(slot))) continue;
        session.ActiveShape = slot.shape;
        session.ActiveCaseNo = slot.caseNo;
        return true;
    }
    return false;
}

void ReactivateEditedSlot() {
    if (IsShape(session.ActiveShape)) ActivateSlot(session.ActiveCaseNo, session.ActiveShape, "");
}

}  // namespace verandis
