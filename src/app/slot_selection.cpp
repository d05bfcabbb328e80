#include "app/slot_selection.h"

#include "app/session.h"
#include "calc/results.h"
#include "platform/progress.h"
#include "projects/slot_activation.h"

namespace verandis {
namespace {

bool Select(int shape, int caseNo) {
    if (!IsShape(shape) || caseNo < 1 || caseNo > kCasesPerShape) return false;
    if (!ActivateSlot(caseNo, shape, "")) return false;
    session.ActiveShape = shape;
    session.ActiveCaseNo = caseNo;
    return true;
}

}  // namespace

bool SelectFamily(int shape) {
    return Select(shape, 1);
}

bool SelectCase(int caseNo) {
    return Select(session.ActiveShape, caseNo);
}

void ClearMarks() {
    session.ChkCase = {};
    session.CalcMode = kNoCalculation;
    runResults.CaseResultCount = {};
    CurrentProgress().SetValue(0);
}

}  // namespace verandis
