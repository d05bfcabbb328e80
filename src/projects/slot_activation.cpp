#include "projects/slot_activation.h"

#include "projects/case_list.h"

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

void ReactivateEditedSlot() {
    if (IsShape(session.ActiveShape)) ActivateSlot(session.ActiveCaseNo, session.ActiveShape, "");
}

}  // namespace verandis
